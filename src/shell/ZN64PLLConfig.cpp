#include "shell/ZN64PLLConfig.h"

#include "model/seriestraits.h"
#include "pages/ClockTreePage.h"
#include "pages/series/seriespages.h"
#include "shell/picturemenu.h"
#include "widgets/messages.h"
#include "widgets/named.h"
#include "xml/guardedxml.h"

#include <QAction>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

ZN64PLLConfig::ZN64PLLConfig(QWidget* parent) : QWidget(parent)
{
    CreateActions();
    createToolBar();
    createStartLabel();
    m_main_VBoxLayout = named("m_main_VBoxLayout", new QVBoxLayout);
    m_main_VBoxLayout->addWidget(m_toolBarGroupBox);
    m_main_VBoxLayout->addWidget(m_start_Label);
    m_main_VBoxLayout->setSpacing(0);
    m_main_VBoxLayout->setContentsMargins(0, 0, 0, 0);
    setLayout(m_main_VBoxLayout);
}

void ZN64PLLConfig::CreateActions()
{
    m_ZoomIn_Action = newAction("m_ZoomIn_Action", QStringLiteral(":/image/zoomin.png"), SLOT(ZoomIn()));
    m_ZoomOut_Action = newAction("m_ZoomOut_Action", QStringLiteral(":/image/zoomout.png"), SLOT(ZoomOut()));
    m_ZoomReset_Action =
        newAction("m_ZoomReset_Action", QStringLiteral(":/image/zoomreset.png"), SLOT(ZoomReset()));
    m_ConfigReset_Action =
        newAction("m_ConfigReset_Action", QStringLiteral(":/image/editundo.png"), SLOT(ConfigReset()));
    TranslatorUI();
}

QAction* ZN64PLLConfig::newAction(const char* memberName, const QString& icon, const char* slot)
{
    QAction* action = named(memberName, new QAction(this));
    action->setFont(QFont(QStringLiteral("Arial"), 11, 0));
    action->setIcon(QIcon(icon));
    connect(action, SIGNAL(triggered()), this, slot);
    return action;
}

void ZN64PLLConfig::createToolBar()
{
    m_ToolBar = named("m_ToolBar", new QToolBar);
    m_ToolBar->setStyleSheet(
        QStringLiteral("QToolBar{background-color: rgb(255, 255, 255); spacing: 30px;}"));
    m_ToolBar->addAction(m_ZoomIn_Action);
    m_ToolBar->addAction(m_ZoomReset_Action);
    m_ToolBar->addAction(m_ZoomOut_Action);
    // A gap in front of the command that is no zoom.
    m_ToolBar->addWidget(new QLabel(this));
    m_ToolBar->addAction(m_ConfigReset_Action);
    // A tool bar leaves its buttons out of the keyboard's way round the window.
    for (QToolButton* button : m_ToolBar->findChildren<QToolButton*>()) {
        button->setFocusPolicy(Qt::TabFocus);
        button->setAutoRepeat(button->defaultAction() == m_ZoomIn_Action ||
                              button->defaultAction() == m_ZoomOut_Action);
        button->setStyleSheet(
            QStringLiteral("QToolButton:focus{border: 2px solid rgb(0, 32, 82); border-radius: 2px;}"));
    }

    auto* row = new QHBoxLayout;
    row->addItem(new QSpacerItem(50, 40, QSizePolicy::Expanding, QSizePolicy::Fixed));
    row->addWidget(m_ToolBar);
    row->addItem(new QSpacerItem(50, 40, QSizePolicy::Expanding, QSizePolicy::Fixed));
    m_toolBarGroupBox = named("m_toolBarGroupBox", new QGroupBox(this));
    m_toolBarGroupBox->setLayout(row);
    m_toolBarGroupBox->setStyleSheet(QStringLiteral("background-color: rgb(255, 255, 255); border: none;"));
    m_toolBarGroupBox->hide();
}

void ZN64PLLConfig::createStartLabel()
{
    m_start_Label = named("m_start_Label", new QLabel(this));
    m_start_Label->setFont(QFont(QStringLiteral("Arial"), 11, 0));
    m_start_Label->setStyleSheet(QStringLiteral("color: rgb(110, 110, 110);"));
    m_start_Label->setAlignment(Qt::AlignCenter);
    m_start_Label->setWordWrap(true);
    translateStartLabel();
}

void ZN64PLLConfig::translateStartLabel()
{
    if (m_start_Label)
        m_start_Label->setText(
            tr("To begin, choose New or Open in the menu Project, or drop a design file here."));
}

void ZN64PLLConfig::TranslatorUI()
{
    translateStartLabel();
    m_ZoomIn_Action->setText(tr("Zoom in"));
    m_ZoomOut_Action->setText(tr("Zoom out"));
    m_ZoomReset_Action->setText(tr("Zoom Reset"));
    m_ConfigReset_Action->setText(tr("Config Reset"));
}

void ZN64PLLConfig::newConfig(ZN64MCUSERIALS series)
{
    m_toolBarGroupBox->show();
    NewMCUConfig(series);
    ZoomReset();
    InitParameters();
}

void ZN64PLLConfig::NewMCUConfig(ZN64MCUSERIALS series)
{
    AllConfigFormClose();
    m_pllConfigWidget = createSeriesPage(series, this);
    if (!m_pllConfigWidget)
        return;
    delete m_start_Label;
    m_start_Label = nullptr;
    m_main_VBoxLayout->addWidget(named("m_pllConfigWidget", m_pllConfigWidget));
    new PictureMenu(m_pllConfigWidget);
    // The keys are the tree's from the start: Tab goes to its first control.
    m_pllConfigWidget->view()->setFocus();
}

void ZN64PLLConfig::AllConfigFormClose()
{
    if (!m_pllConfigWidget)
        return;
    m_main_VBoxLayout->removeWidget(m_pllConfigWidget);
    delete m_pllConfigWidget;
    m_pllConfigWidget = nullptr;
}

void ZN64PLLConfig::InitParameters()
{
    if (m_pllConfigWidget)
        m_pllConfigWidget->InitAllControl();
}

void ZN64PLLConfig::ZoomIn()
{
    if (m_pllConfigWidget)
        m_pllConfigWidget->ZoomIn();
}

void ZN64PLLConfig::ZoomOut()
{
    if (m_pllConfigWidget)
        m_pllConfigWidget->ZoomOut();
}

void ZN64PLLConfig::ZoomReset()
{
    if (m_pllConfigWidget)
        m_pllConfigWidget->ZoomReset();
}

void ZN64PLLConfig::ConfigReset()
{
    const int answer =
        showMessage(QMessageBox::Warning, tr("Warning"),
                    tr("The current configuration will be reset. Please confirm whether to continue?"),
                    {
                        {QMessageBox::Cancel, tr("Cancel")},
                        {QMessageBox::Yes,    tr("Yes")   }
    },
                    this);
    if (answer != QMessageBox::Cancel)
        InitParameters();
}

void ZN64PLLConfig::SaveToFile()
{
    if (m_pllConfigWidget)
        m_pllConfigWidget->SaveToFile(seriesName(m_pllConfigWidget->model().series()));
}

void ZN64PLLConfig::OpenFromFile(const QString& path, QString& seriesName)
{
    // Read once: the file may change, or go, before the page takes its settings.
    QDomDocument design;
    loadGuardedXml(path, design);
    const QString name = ZN64MCUPLL::GetXMLElementString(design, QStringLiteral("MCU"));
    const SeriesTraits* traits = seriesByName(name);
    if (!traits) {
        m_MCUName = QStringLiteral("");
        showNotSupported();
        return;
    }
    m_MCUName = name;
    m_toolBarGroupBox->show();
    NewMCUConfig(traits->series);
    m_pllConfigWidget->OpenFromDocument(design);
    ZoomReset();
    seriesName = m_MCUName;
}

bool ZN64PLLConfig::GenerateCode(GENERATE_CODE_MODE mode)
{
    if (!m_pllConfigWidget)
        return false;
    m_pllConfigWidget->Set_GenerateCodeMode(mode);
    return m_pllConfigWidget->GenerateCode();
}

void ZN64PLLConfig::showNotSupported()
{
    showMessage(QMessageBox::Warning, tr("Warning"), tr("MCU in file not supported."),
                {
                    {QMessageBox::Ok, tr("Ok")}
    },
                this);
}
