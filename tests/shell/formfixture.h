#pragma once

#include "shell/ZN64PLLConfig.h"
#include "shell/formconfiguration.h"
#include "widgets/dialoganswers.h"

#include <QAction>
#include <QComboBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

/// The main form as the program starts it, and its commands.
struct FormFixture
{
    explicit FormFixture(LANGUAGE language = UI_EN)
        : translated(translator.load(translationTable(language)) &&
                     QCoreApplication::installTranslator(&translator))
    {
        form.SetLanguage(language);
        form.SetQTranslator(&translator);
        form.show();
        // Delivers the change of language, which would give the buttons of a box opened now their own texts
        // back.
        QCoreApplication::processEvents();
    }
    ~FormFixture() { QCoreApplication::removeTranslator(&translator); }

    void trigger(const char* action) { form.findChild<QAction*>(QLatin1String(action))->trigger(); }
    QPushButton* clockButton()
    {
        return form.findChild<QPushButton*>(QStringLiteral("m_ClockConfig_PushButton"));
    }
    QPushButton* codeButton()
    {
        return form.findChild<QPushButton*>(QStringLiteral("m_CodeView_PushButton"));
    }
    QWidget* clockPage() { return form.findChild<QWidget*>(QStringLiteral("m_clockConfigForm")); }
    QWidget* codePage() { return form.findChild<QWidget*>(QStringLiteral("m_codeViewForm")); }
    QWidget* design() { return form.findChild<QWidget*>(QStringLiteral("m_pllConfigWidget")); }

    /// Whether exactly one page is in view and the buttons tell which.
    bool showsClockPage() { return shows(clockPage(), clockButton(), codePage(), codeButton()); }
    bool showsCodePage() { return shows(codePage(), codeButton(), clockPage(), clockButton()); }

    /// Picks the series in the series dialog and confirms it.
    static DialogAnswers::Answer pick(const QString& series)
    {
        return [series](QDialog* dialog) {
            auto* lines = dialog->findChild<QComboBox*>(QStringLiteral("m_ProductLine_ComboBox"));
            auto* devices = dialog->findChild<QComboBox*>(QStringLiteral("m_MCUSerial_ComboBox"));
            for (int line = 0; line < lines->count() && devices->currentText() != series; ++line) {
                lines->setCurrentIndex(line);
                devices->setCurrentText(series);
            }
            DialogAnswers::press("OK")(dialog);
        };
    }

    /// A design that can be generated without questions. What the file lacks takes its default.
    QString designFile(const char* series)
    {
        const QString path = folder.filePath(QLatin1String(series) + QStringLiteral(".ZNCK"));
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(QByteArray("<Configuration><MCU>") + series +
                       "</MCU><hext>8</hext><tousbswitch>1</tousbswitch></Configuration>");
        return path;
    }

    QTemporaryDir folder;
    QTranslator translator;
    /// The texts are there before the form is built.
    bool translated;
    FormConfiguration form;

private:
    static bool shows(QWidget* page, QPushButton* button, QWidget* otherPage, QPushButton* otherButton)
    {
        return page->isVisible() && !otherPage->isVisible() &&
               button->styleSheet().contains(QLatin1String("rgb(57, 169, 220)")) &&
               otherButton->styleSheet().contains(QLatin1String("rgb(0, 32, 82)"));
    }
};
