#pragma once

#include "model/clockenums.h"

#include <QString>
#include <QWidget>

class ClockTreePage;
class QAction;
class QGroupBox;
class QLabel;
class QToolBar;
class QVBoxLayout;

/// The project: the zoom tool bar and at most one series page, which it owns. Calls are passed on to that
/// page; without a page they have no effect.
class ZN64PLLConfig : public QWidget
{
    Q_OBJECT

public:
    explicit ZN64PLLConfig(QWidget* parent = nullptr);

    bool HaveActivedConfig() const { return m_pllConfigWidget != nullptr; }

    /// Starts a design of the series in place of the present one.
    void newConfig(ZN64MCUSERIALS series);
    /// Replaces the page by a fresh one of the series.
    void NewMCUConfig(ZN64MCUSERIALS series);
    void AllConfigFormClose();
    /// Puts the page's controls back to the start values.
    void InitParameters();

    void SaveToFile();
    /// Opens a design in place of the present one; seriesName takes the name of its series. A file that names
    /// no known series is refused with a message: the present design stays, and seriesName is left as it was.
    void OpenFromFile(const QString& path, QString& seriesName);
    /// Whether the four files were written.
    bool GenerateCode(GENERATE_CODE_MODE mode);

    /// Sets the texts of the tool bar again in the current language.
    void TranslatorUI();

public slots:
    void ZoomIn();
    void ZoomOut();
    void ZoomReset();
    /// Puts the page back to the start values after asking.
    void ConfigReset();

private:
    void CreateActions();
    QAction* newAction(const char* memberName, const QString& icon, const char* slot);
    void createToolBar();
    void createStartLabel();
    void translateStartLabel();
    void showNotSupported();

    QVBoxLayout* m_main_VBoxLayout;
    /// How to begin; goes with the first page.
    QLabel* m_start_Label = nullptr;
    QGroupBox* m_toolBarGroupBox;
    /// The series name last read from a design file; empty after an unknown one.
    QString m_MCUName;
    QToolBar* m_ToolBar;
    QAction* m_ZoomIn_Action;
    QAction* m_ZoomOut_Action;
    QAction* m_ZoomReset_Action;
    QAction* m_ConfigReset_Action;
    ClockTreePage* m_pllConfigWidget = nullptr;
};
