#pragma once

#include "canvas/ZN64MCUPLL.h"
#include "canvas/treeguide.h"
#include "pages/blocks/ClockTree.h"
#include "pages/description/settingrows.h"

#include <QAccessible>
#include <QHash>
#include <QSet>
#include <QTimer>

#include <memory>
#include <vector>

class AdcBlock;
class ClockBlock;
class ClockSignals;
class HickRouteBlock;
class HighSpeedBlock;
class LowSpeedBlock;
class OutputsBlock;
class FlexiblePllBlock;
class PllOutputBlock;
class PllSourceBlock;
class SystemClockBlock;
class TreePointer;
class UsbBlock;
class UsbPhyBlock;

/// A series page: blocks put together by a description. The class of a series calls build() in its
/// constructor, when texts already translate in its own context.
class ClockTreePage : public ZN64MCUPLL,
                      public ClockTree,
                      public TreeGuide,
                      private QAccessible::ActivationObserver
{
    Q_OBJECT

public:
    ~ClockTreePage() override;

    const PageDescription& description() const override { return m_description; }

    /// Sets every control and its field to the start state, then recalculates.
    void InitAllControl();
    /// Checks the design against its limits, asks for a file name and writes the file.
    void SaveToFile(const QString& seriesName);
    /// Writes the file without checks or questions; false if it cannot be opened.
    bool writeDesign(const QString& path, const QString& seriesName) const;
    /// The message for a file of the user's that could not be written.
    void tellSaveFailed() const;
    /// Takes over the settings of the file; what it lacks or holds wrongly takes its default.
    void OpenFromFile(const QString& path);
    /// The same from a file that has been read.
    void OpenFromDocument(const QDomDocument& design);
    /// Checks, asks, and writes the four files. False if anything kept them from being written.
    bool GenerateCode();
    /// The typed values that generating insists on; false after telling what is wrong.
    bool GenerateCodeCheck();

    /// The controls that have a place but are made by no block: faults in the series' tables.
    QStringList unusedPlaces() const;
    /// The settings of the page with their start values, in the order of the reset.
    const std::vector<SettingRow>& startOrder() const { return m_startOrder; }
    /// The settings of a design file, as they stand in it and as they are read.
    const QStringList& fileOrder() const { return m_fileOrder; }
    const QStringList& readingOrder() const { return m_readingOrder; }

    // What is told of the tree to those who point at it.

    QVector<int> sameSignal(int net) const override;
    QStringList tellSignal(int net) const override;
    QStringList tellControl(const QWidget* control) const override;

protected:
    ClockTreePage(const PageDescription& description, QWidget* parent);

    /// Makes the controls, puts them in their start state and connects them, in this order, so that the first
    /// start state raises no slot.
    void build();
    /// Closes the open list of peripherals: the press was on the bare picture.
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // What the blocks ask.

    ZN64ConfigCLK& clocks() const override { return const_cast<ClockTreePage*>(this)->model(); }
    bool normalMode() const override { return model().Get_ConfigMode() == PLLMODE_NORMAL; }
    bool rtcOn() const override;
    bool rtcFromLext() const override;
    bool rtcFromHext() const override;
    bool sclkFromPll() const override;
    bool sclkFromHext() const override;
    bool sclkFromHick() const override;
    bool hextFeedsPll() const override;
    bool usbOn() const override;
    bool usbFromPll() const override;
    bool usbFromHick() const override;
    bool adcOn() const override;
    bool pllInUse() const override;
    bool hextInUse() const override;
    double hickAtOutputs() const override;
    bool takingDesign() const override { return m_takingDesign; }

    // What the blocks have done.

    void UI_Display() override;
    void UpdateCalculateResult() override;
    void UpdateResultControls() override;
    void UpdateParam_From_ResultCLK() override;
    void updatePllControls() override;
    void showPllMode() override;
    void UpdateRTCParam() override;
    void searchUsb() override;
    void serveUsb() override;
    void hext_LineEdit_returnPressed() override;
    void correctHext(double hext) override;
    bool readHextForPll() override;
    bool readHext() override;
    void keepTypedSysclk() override;
    double typedHext() const override;
    bool Hext_Value_Valid(double& value) override;
    bool Result_SYSCLK_Valid(double& value) override;
    void tellHextInUse(bool inUse) override { Set_Hext_Enable_Falg(inUse); }

    QString translated(const char* text) const override;
    void showError(const char* text) const override;
    bool askToContinue(QMessageBox::Icon icon, const char* text) const override;

    QLabel* placeLabel(const QString& name) override;
    QLineEdit* placeEdit(const QString& name) override;
    QLineEdit* placeOutput(const QString& name) override;
    CustomComboBox1* placeCombo(const QString& name) override;
    QRadioButton* placeRadio(const QString& name) override;
    QPushButton* placeListButton(const QString& name, const QString& output) override;
    QDialog* placeList(const QString& name, const QStringList& peripherals) override;
    void speakOf(QWidget* control, const QString& name) override;
    QWidget* widget() override { return this; }

    void addControls(const char* routine, std::function<void()> make) override;
    void addSetting(const QString& name, Setting setting) override;

    // Its own work.

    template <class Block, class... Arguments>
    Block* addBlock(const Arguments&... arguments);
    std::function<bool()> useOf(const Divider& divider) const;
    void createBlocks();
    void NewAllControl();
    void ControlsConnectSlots();
    /// Tells assistive tools the names, in the language of the program.
    void speak();
    QString spokenName(const QWidget* control) const;
    QStringList sentencesOn(const QWidget* control, const ClockSignals& known) const;
    /// The descriptions of the controls follow the design while an assistive tool listens, which costs too
    /// much when none does.
    void listenForListeners();
    void tellLater();
    void tell();
    void accessibilityActiveChanged(bool active) override;
    const Control& take(const QString& name, ControlType kind);
    /// Names the control for the program, and for the ear where it can be used.
    template <class Widget>
    Widget* identified(const QString& name, const QString& spoken, Widget* control);
    /// Puts the settings that the blocks have made in the orders of reset, writing and reading.
    void orderSettings();
    /// Sets the fields of the model for which the page has no control.
    void setFieldsWithoutControl();
    bool TextBox_Input_Valid_Check();
    /// Whether anything but the RTC needs hext, so that its typed value must be good.
    bool hextNeeded() const;

    /// Whether the PLL's divider for USB is of use.
    bool usbDividerInUse() const;

    bool isOn(ClockSource clock) const;
    double limitedValue(ClockSource clock) const;
    bool passes(const Limit& limit) const;
    bool passesAll(const Limits& limits) const;
    void showErrorBox(const QString& translatedText) const;
    bool prepareFolders(const QString& incPath, const QString& srcPath) const;
    void showGenerated(const QString& folder) const;

    /// The signal that a control shows or gives; -1 for none.
    int netOf(const QWidget* control) const;

    const PageDescription& m_description;
    std::vector<std::unique_ptr<ClockBlock>> m_blocks;
    QHash<QString, std::function<void()>> m_routines;
    QHash<QString, Setting> m_settings;
    std::vector<SettingRow> m_startOrder;
    QStringList m_fileOrder;
    QStringList m_readingOrder;
    QSet<QString> m_takenPlaces;
    QHash<QWidget*, QString> m_spoken; ///< the names of what a person can use, before their translation
    QVector<QWidget*> m_made; ///< what a person can use of the controls that the running routine has made
    bool m_takingDesign = false;
    QTimer m_telling;
    bool m_heard = false; ///< an assistive tool listens
    std::unique_ptr<TreePointer> m_pointer;

    LowSpeedBlock* m_lowSpeed = nullptr;
    HighSpeedBlock* m_highSpeed = nullptr;
    PllSourceBlock* m_pllSource = nullptr;
    FlexiblePllBlock* m_flexiblePll = nullptr;
    PllOutputBlock* m_pllOutput = nullptr;
    SystemClockBlock* m_systemClock = nullptr;
    HickRouteBlock* m_hickRoute = nullptr;
    UsbBlock* m_usb = nullptr;
    UsbPhyBlock* m_usbPhy = nullptr;
    AdcBlock* m_adc = nullptr;
    OutputsBlock* m_outputs = nullptr;
};
