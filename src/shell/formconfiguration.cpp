#include "shell/formconfiguration.h"

#include "shell/version.h"
#include "widgets/named.h"

#include <QAction>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

namespace {

/// A small screen must hold the window with its frame, which the desktop makes later: room is left for it.
QSize smallestSize(const QSize& screen)
{
    const QSize frame(16, 48);
    return QSize(1000, 800).boundedTo(screen - frame);
}

} // namespace

FormConfiguration::FormConfiguration(QWidget* parent) : QWidget(parent)
{
    setWindowIcon(QIcon(QStringLiteral(":/image/ZN64_tool_CRM.ico.ico")));
    m_timer = named("m_timer", new QTimer(this));
    m_main_VBoxlayout = named("m_main_VBoxlayout", new QVBoxLayout(this));
    CreateActions();
    CreateMenuBar();
    CreateTopLayout();
    CreateMainFuncLayout();
    createPages();
    setStyleSheet(QStringLiteral("background-color: rgb(255, 255, 255);"));
    setWindowState(Qt::WindowMaximized);
    setContentsMargins(0, 0, 0, 0);
    setAcceptDrops(true);
    setMinimumSize(smallestSize(QGuiApplication::primaryScreen()->availableSize()));
    setWindowTitle(QStringLiteral("Velmora Clockwright ") + QLatin1String(versionText));
    connectSlots();
}

void FormConfiguration::CreateTopLayout()
{
    m_picTitle_Label = named("m_picTitle_Label", new QLabel(this));
    m_picTitle_Label->setPixmap(QIcon(QStringLiteral(":/image/Logo_1.png")).pixmap(308, 60));
    m_picTitle_Label->setAccessibleName(QStringLiteral("ZN64 Clockwright, logo"));
    m_picTitle_Label->setFixedHeight(60);

    m_Title_GroupBox = named("m_Title_GroupBox", new QGroupBox(this));
    m_Title_GroupBox->setFixedHeight(60);
    m_Title_GroupBox->setStyleSheet(
        QStringLiteral("background-color: rgb(255, 255, 255); color: white; border:none"));
    auto* box = new QVBoxLayout(m_Title_GroupBox);
    box->addItem(new QSpacerItem(5, 5, QSizePolicy::Fixed, QSizePolicy::Fixed));
    box->addWidget(m_MenuBar);

    m_Title_HBoxLayout = named("m_Title_HBoxLayout", new QHBoxLayout);
    m_Title_HBoxLayout->setSpacing(0);
    m_Title_HBoxLayout->addWidget(m_picTitle_Label);
    m_Title_HBoxLayout->addItem(new QSpacerItem(10, 10, QSizePolicy::Fixed, QSizePolicy::Expanding));
    m_Title_HBoxLayout->addWidget(m_Title_GroupBox, 0, Qt::AlignLeft | Qt::AlignBottom);
    m_Title_HBoxLayout->addItem(new QSpacerItem(10, 10, QSizePolicy::Expanding, QSizePolicy::Expanding));
    m_main_VBoxlayout->addLayout(m_Title_HBoxLayout, 0);
}

void FormConfiguration::connectSlots()
{
    connect(m_ClockConfig_PushButton, SIGNAL(clicked()), this, SLOT(ClockConfig_PushButton_Slot()));
    connect(m_CodeView_PushButton, SIGNAL(clicked()), this, SLOT(CodeView_PushButton_Clicked()));
    connect(m_New_Action, SIGNAL(triggered()), this, SLOT(NewDesign_Slot()));
    connect(m_Open_Action, SIGNAL(triggered()), this, SLOT(OpenDesign_Slot()));
    connect(m_Save_Action, SIGNAL(triggered()), this, SLOT(SaveDesign_Slot()));
    connect(m_English_Action, SIGNAL(triggered()), this, SLOT(SetLanguage_English_Slot()));
    connect(m_Chinese_Action, SIGNAL(triggered()), this, SLOT(SetLanguage_Chinese_Slot()));
    connect(m_GeneralCode_Action, SIGNAL(triggered()), this, SLOT(GenerateCode_Slot()));
    connect(m_OpenManual_Action, SIGNAL(triggered()), this, SLOT(OpenManual_Slot()));
    connect(m_NewVersionDownload_Action, SIGNAL(triggered()), this, SLOT(NewVersionDownload_Slot()));
    connect(m_Version_Action, SIGNAL(triggered()), this, SLOT(OpenAbout_Slot()));
}
