#include "shell/formconfiguration.h"

#include "shell/ZN64PLLConfig.h"

#include <QAction>
#include <QCoreApplication>
#include <QPushButton>
#include <QTranslator>

void FormConfiguration::SetLanguage(LANGUAGE language)
{
    m_language = language;
    m_English_Action->setChecked(language == UI_EN);
    m_Chinese_Action->setChecked(language == UI_ZH);
}

void FormConfiguration::SetQTranslator(QTranslator* translator)
{
    m_translator = translator;
}

void FormConfiguration::SetLanguage_English_Slot()
{
    switchLanguage(UI_EN);
}

void FormConfiguration::SetLanguage_Chinese_Slot()
{
    switchLanguage(UI_ZH);
}

QAction* FormConfiguration::actionOf(LANGUAGE language) const
{
    return language == UI_ZH ? m_Chinese_Action : m_English_Action;
}

void FormConfiguration::switchLanguage(LANGUAGE language)
{
    if (m_language == language) {
        // The click has just taken the mark away.
        actionOf(language)->setChecked(true);
        return;
    }
    // Fails when no table could be loaded at the start. Then both entries stay checked.
    if (!QCoreApplication::removeTranslator(m_translator))
        return;
    installFurtherTables(language);
    m_translator->load(translationTable(language));
    QCoreApplication::installTranslator(m_translator);
    SetLanguage(language);
    TranslatorUI();
    m_clockConfigForm->TranslatorUI();
}

void FormConfiguration::TranslatorUI()
{
    if (m_MCUSerials.isNull())
        m_ClockConfig_PushButton->setText(tr("Clock Configuration"));
    else
        showSeriesOnButton();
    m_CodeView_PushButton->setText(tr("Code View"));
    translateActions();
    translateMenus();
}
