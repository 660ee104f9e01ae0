#include "shell/formconfiguration.h"

#include "widgets/look.h"
#include "widgets/named.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

QAction* FormConfiguration::newAction(const char* memberName)
{
    QAction* action = named(memberName, new QAction(this));
    action->setFont(QFont(QStringLiteral("Arial"), 11, 0));
    return action;
}

void FormConfiguration::CreateActions()
{
    m_New_Action = newAction("m_New_Action");
    m_Open_Action = newAction("m_Open_Action");
    m_Save_Action = newAction("m_Save_Action");
    // The two languages exclude each other by hand, not by an action group.
    m_English_Action = newAction("m_English_Action");
    m_English_Action->setCheckable(true);
    m_Chinese_Action = newAction("m_Chinese_Action");
    m_Chinese_Action->setCheckable(true);
    m_GeneralCode_Action = newAction("m_GeneralCode_Action");
    m_OpenManual_Action = newAction("m_OpenManual_Action");
    m_NewVersionDownload_Action = newAction("m_NewVersionDownload_Action");
    m_Version_Action = newAction("m_Version_Action");
    m_ZoomIn_Action = newAction("m_ZoomIn_Action");
    m_ZoomOut_Action = newAction("m_ZoomOut_Action");
    m_ZoomReset_Action = newAction("m_ZoomReset_Action");
    m_PinReset_Action = newAction("m_PinReset_Action");
    m_RotateClockwise_Action = newAction("m_RotateClockwise_Action");
    m_RotateAntiClockwise_Action = newAction("m_RotateAntiClockwise_Action");
    translateActions();
}

void FormConfiguration::translateActions()
{
    m_New_Action->setText(tr("New"));
    m_Open_Action->setText(tr("Open"));
    m_Save_Action->setText(tr("Save"));
    m_English_Action->setText(tr("English"));
    m_Chinese_Action->setText(tr("Chinese"));
    m_GeneralCode_Action->setText(tr("Generate code"));
    m_OpenManual_Action->setText(tr("Open Manual"));
    m_NewVersionDownload_Action->setText(tr("New version download"));
    m_Version_Action->setText(tr("Version"));
    m_ZoomIn_Action->setText(tr("Zoom in"));
    m_ZoomOut_Action->setText(tr("Zoom out"));
    m_ZoomReset_Action->setText(tr("Zoom Reset"));
    m_PinReset_Action->setText(tr("All config reset"));
    m_RotateClockwise_Action->setText(tr("Clockwise rotate"));
    m_RotateAntiClockwise_Action->setText(tr("Anti-clockwise rotate"));
}

QMenu* FormConfiguration::newMenu(const char* memberName, std::initializer_list<QAction*> entries)
{
    QMenu* menu = named(memberName, new QMenu(this));
    menu->setStyleSheet(look::menuSheet());
    menu->addActions(entries);
    m_MenuBar->addMenu(menu);
    return menu;
}

void FormConfiguration::CreateMenuBar()
{
    const QFont font(QStringLiteral("Arial"), 13, QFont::Bold);
    m_MenuBar = named("m_MenuBar", new QMenuBar(this));
    m_MenuBar->setFont(font);
    m_MenuBar->setStyleSheet(
        QStringLiteral("QMenuBar{background-color: rgb(255, 255, 255); spacing: 40px;}"
                       "QMenuBar::item{background-color: rgb(255, 255, 255); color: rgb(0, 32, 82); "
                       "border: 2px solid transparent; border-radius: 2px;}"
                       "QMenuBar::item:selected{border-color: rgb(0, 32, 82);}"));
    m_FileMenu = newMenu("m_FileMenu", {m_New_Action, m_Open_Action, m_Save_Action});
    m_FileMenu->setFont(font);
    m_LanguageMenu = newMenu("m_LanguageMenu", {m_English_Action, m_Chinese_Action});
    m_GeneralCodeMenu = newMenu("m_GeneralCodeMenu", {m_GeneralCode_Action});
    m_HelpMenu = newMenu("m_HelpMenu", {m_OpenManual_Action, m_NewVersionDownload_Action, m_Version_Action});
    translateMenus();
}

void FormConfiguration::translateMenus()
{
    m_FileMenu->setTitle(tr("Project"));
    m_LanguageMenu->setTitle(tr("Language"));
    m_GeneralCodeMenu->setTitle(tr("Generate code"));
    m_HelpMenu->setTitle(tr("Help"));
}
