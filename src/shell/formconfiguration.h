#pragma once

#include "shell/language.h"

#include <QMessageBox>
#include <QString>
#include <QWidget>

#include <initializer_list>

class FormCodeView;
class QAction;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QMenu;
class QMenuBar;
class QPushButton;
class QTimer;
class QTranslator;
class QVBoxLayout;
class ZN64PLLConfig;

/// The main window: the menus, and two big buttons that choose between the project and the preview of its
/// code. Nothing in it is ever disabled; a command that needs a design looks for one when it runs.
class FormConfiguration : public QWidget
{
    Q_OBJECT

public:
    explicit FormConfiguration(QWidget* parent = nullptr);

    /// Takes the language over and checks its menu entry; loads nothing.
    void SetLanguage(LANGUAGE language);
    /// The translator that the application uses. It stays with its owner and must outlive the form.
    void SetQTranslator(QTranslator* translator);
    /// Sets all texts of the form again in the current language.
    void TranslatorUI();

    /// The number of a version in three fields, see OnlineUpdate.
    static int VersionString2Int(const QString& version);
    /// A text out of the list of tools on the download site, see OnlineUpdate.
    static QString GetURLDownloadXMLElement(const QString& file, const QString& top, const QString& toolName,
                                            const QString& tag);

protected:
    /// Asks while a design is active, whether it was saved or not.
    void closeEvent(QCloseEvent* event) override;
    /// A design file that is dropped on the window opens as by Open.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private slots:
    void ClockConfig_PushButton_Slot();
    void CodeView_PushButton_Clicked();
    void NewDesign_Slot();
    void OpenDesign_Slot();
    void SaveDesign_Slot();
    void SetLanguage_English_Slot();
    void SetLanguage_Chinese_Slot();
    void GenerateCode_Slot();
    void OpenManual_Slot();
    void NewVersionDownload_Slot();
    void OpenAbout_Slot();

private:
    void CreateActions();
    QAction* newAction(const char* memberName);
    void translateActions();
    void CreateMenuBar();
    QMenu* newMenu(const char* memberName, std::initializer_list<QAction*> entries);
    void translateMenus();
    void CreateTopLayout();
    void CreateMainFuncLayout();
    void createPages();
    void connectSlots();

    void showClockPage();
    void showCodePage();
    void showSeriesOnButton();
    void switchLanguage(LANGUAGE language);
    QAction* actionOf(LANGUAGE language) const;

    /// Whether the user agrees to the question about the active design; true without asking if there is none.
    bool mayCloseDesign(QMessageBox::Icon icon, const QString& question);
    /// Asks what Open asks first.
    bool mayOpenDesign();
    void openDesign(const QString& path);
    void showNoConfiguration();
    /// Writes the files of the preview. 0 done, 1 no design, 2 the generation failed; 1 and 2 were told to
    /// the user.
    int GeneralCode_For_CodeView(QString& folder);
    void OnlineDownload();

    QTranslator* m_translator = nullptr;
    LANGUAGE m_language = UI_EN;
    /// The series name of the active design. Null until the first design; empty, but not null, after a file
    /// was refused.
    QString m_MCUSerials;
    QVBoxLayout* m_main_VBoxlayout;
    QHBoxLayout* m_Title_HBoxLayout;
    QLabel* m_picTitle_Label;
    QGroupBox* m_Title_GroupBox;
    QHBoxLayout* m_Mainfunc_HBoxLayout;
    QPushButton* m_ClockConfig_PushButton;
    QPushButton* m_CodeView_PushButton;
    ZN64PLLConfig* m_clockConfigForm = nullptr;
    FormCodeView* m_codeViewForm = nullptr;
    QMenu* m_FileMenu;
    QMenu* m_LanguageMenu;
    QMenu* m_GeneralCodeMenu;
    QMenu* m_HelpMenu;
    QAction* m_New_Action;
    QAction* m_Open_Action;
    QAction* m_Save_Action;
    QAction* m_English_Action;
    QAction* m_Chinese_Action;
    QAction* m_GeneralCode_Action;
    QAction* m_OpenManual_Action;
    QAction* m_NewVersionDownload_Action;
    QAction* m_Version_Action;
    QMenuBar* m_MenuBar;
    // Kept ready and translated, but offered nowhere.
    QAction* m_ZoomIn_Action;
    QAction* m_ZoomOut_Action;
    QAction* m_ZoomReset_Action;
    QAction* m_PinReset_Action;
    QAction* m_RotateClockwise_Action;
    QAction* m_RotateAntiClockwise_Action;
    /// Never started.
    QTimer* m_timer;
};
