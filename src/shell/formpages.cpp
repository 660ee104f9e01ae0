#include "shell/formconfiguration.h"

#include "files/previewfolder.h"
#include "preview/FormCodeView.h"
#include "shell/ZN64PLLConfig.h"
#include "widgets/look.h"
#include "widgets/named.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

// The two pages of the main form and the buttons that show them.

namespace {

QString inViewSheet()
{
    return QStringLiteral("background-color: rgb(57, 169, 220); color: white");
}

QString notInViewSheet()
{
    return QStringLiteral("background-color: rgb(0, 32, 82); color: white");
}

} // namespace

void FormConfiguration::CreateMainFuncLayout()
{
    const QFont font(QStringLiteral("Arial"), 13, QFont::Bold);
    m_ClockConfig_PushButton =
        named("m_ClockConfig_PushButton", new QPushButton(tr("Clock Configuration"), this));
    m_ClockConfig_PushButton->setFont(font);
    m_CodeView_PushButton = named("m_CodeView_PushButton", new QPushButton(tr("Code View"), this));
    m_CodeView_PushButton->setFont(font);
    // Other styles shade the ground of a button.
    m_ClockConfig_PushButton->setStyle(look::plainStyle());
    m_CodeView_PushButton->setStyle(look::plainStyle());
    m_ClockConfig_PushButton->setStyleSheet(inViewSheet());
    m_CodeView_PushButton->setStyleSheet(notInViewSheet());

    m_Mainfunc_HBoxLayout = named("m_Mainfunc_HBoxLayout", new QHBoxLayout);
    m_Mainfunc_HBoxLayout->setSpacing(1);
    m_Mainfunc_HBoxLayout->addWidget(m_ClockConfig_PushButton);
    m_Mainfunc_HBoxLayout->addWidget(m_CodeView_PushButton);
    m_main_VBoxlayout->addLayout(m_Mainfunc_HBoxLayout, 1);
}

void FormConfiguration::createPages()
{
    m_clockConfigForm = named("m_clockConfigForm", new ZN64PLLConfig);
    m_main_VBoxlayout->addWidget(m_clockConfigForm, 2);
    m_codeViewForm = named("m_codeViewForm", new FormCodeView(this));
    m_main_VBoxlayout->addWidget(m_codeViewForm, 3);
    m_codeViewForm->hide();
}

void FormConfiguration::ClockConfig_PushButton_Slot()
{
    if (m_clockConfigForm && m_codeViewForm && m_clockConfigForm->isHidden())
        showClockPage();
}

void FormConfiguration::CodeView_PushButton_Clicked()
{
    if (!m_clockConfigForm || !m_codeViewForm || !m_codeViewForm->isHidden())
        return;
    QString folder = previewfolder::path();
    if (GeneralCode_For_CodeView(folder) != 0) {
        showClockPage();
        return;
    }
    m_codeViewForm->LoadCode(m_MCUSerials, folder);
    previewfolder::release();
    showCodePage();
}

void FormConfiguration::showClockPage()
{
    m_clockConfigForm->show();
    m_ClockConfig_PushButton->setStyleSheet(inViewSheet());
    m_codeViewForm->hide();
    m_CodeView_PushButton->setStyleSheet(notInViewSheet());
}

void FormConfiguration::showCodePage()
{
    m_clockConfigForm->hide();
    m_ClockConfig_PushButton->setStyleSheet(notInViewSheet());
    m_codeViewForm->show();
    m_CodeView_PushButton->setStyleSheet(inViewSheet());
}

void FormConfiguration::showSeriesOnButton()
{
    m_ClockConfig_PushButton->setText(tr("Clock Configuration") + tr("---") + m_MCUSerials);
}
