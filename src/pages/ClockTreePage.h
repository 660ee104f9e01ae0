#pragma once

#include "canvas/ZN64MCUPLL.h"
#include "pagedescription.h"
#include "settings.h"

#include <QHash>
#include <QMessageBox>

#include <functional>
#include <memory>
#include <vector>

class ClockBlock;
class HighSpeedBlock;
class HickRouteBlock;
class LowSpeedBlock;
class OutputsBlock;
class FlexiblePllBlock;
class AdcBlock;
class PllMultiplierBlock;
class PllOutputBlock;
class PllSourceBlock;
class SystemClockBlock;
class UsbBlock;
class ClockOutputBlock;

/// A series page: blocks put together by a description. The class of a series calls build() in its
/// constructor, when texts already translate in its own context.
class ClockTreePage : public ZN64MCUPLL
{
    Q_OBJECT

public:
    ~ClockTreePage() override;

    const PageDescription& description() const { return m_description; }

    /// Sets every control and its field to the start state, then recalculates.
    void InitAllControl();
    /// Checks the design against its limits, asks for a file name and writes the file.
    void SaveToFile(const QString& seriesName);
    /// Writes the file without checks or questions; false if it cannot be opened.
    bool writeDesign(const QString& path, const QString& seriesName) const;
    /// Takes over the settings of the file; what it lacks or holds wrongly takes its default.
    void OpenFromFile(const QString& path);
    /// Checks, asks, and writes the four files. False if anything kept them from being written.
    bool GenerateCode();
    /// The typed values that generating insists on; false after telling what is wrong.
    bool GenerateCodeCheck();

    // What one block may ask about the rest of the tree. The answers come from the controls.

    bool rtcOn() const;
    bool sclkFromPll() const;
    bool sclkFromHick() const;
    bool hextFeedsPll() const;
    bool hickUndivided() const;
    bool usbOn() const;
    bool usbFromPll() const;
    bool usbFromHick() const;
    bool adcOn() const;
    bool pllInUse() const;
    /// Whether anything but the RTC needs hext, so that its typed value must be good.
    bool hextNeeded() const;
    /// Whether hext is in use at all, the RTC included.
    bool hextInUse() const;
    /// While a design file is being read, typed values pass as they are, nobody is told, and nothing is
    /// solved: the file's own numbers stand.
    bool readingDesign() const { return m_readingDesign; }

    // What the blocks' slots run.

    void UI_Display();
    /// Recalculates and repaints, unless a typed value is bad.
    void UpdateCalculateResult();
    void UpdateResultControls();
    /// Solves for the clock that must be kept, then recalculates and repaints.
    void UpdateParam_From_ResultCLK();
    /// Shows the PLL parameters that a solver found.
    void updatePllControls();
    void UpdateRTCParam();
    /// Solves for 48 MHz at USB and shows the parameters found. Does not repaint the results.
    void searchUsb();
    void hext_LineEdit_returnPressed();
    /// Writes a good hext, MHz, in place of a bad one and commits it.
    void correctHext(double hext);
    /// Takes the typed hext over if it feeds the PLL; false after telling that it is bad.
    bool readHextForPll();
    /// Takes the typed hext over; false after telling that it is bad.
    bool readHext();
    /// Keeps the typed system clock over a change of the PLL's source or divider, if it is good.
    void keepTypedSysclk();
    bool Hext_Value_Valid(double& value);
    bool Result_SYSCLK_Valid(double& value);

    /// The text in the user's language, in the context of the concrete page class.
    QString translated(const char* text) const;
    void showError(const char* text) const;
    void showError(const QString& translatedText) const;
    /// A question with "Yes" and "Cancel"; true unless it was cancelled.
    bool askToContinue(QMessageBox::Icon icon, const char* text) const;

    // Controls at their places, named after themselves.

    QLabel* placeLabel(const QString& name);
    QLineEdit* placeEdit(const QString& name);
    QLineEdit* placeOutput(const QString& name);
    CustomComboBox1* placeCombo(const QString& name);
    QRadioButton* placeRadio(const QString& name);

    void addControls(const char* routine, std::function<void()> make);
    void addSetting(const char* name, Setting setting);

protected:
    ClockTreePage(const PageDescription& description, QWidget* parent);

    /// Makes the controls, puts them in their start state and connects them, in this order, so that the first
    /// start state raises no slot.
    void build();
    /// Closes the open list of peripherals: the press was on the bare picture.
    void mousePressEvent(QMouseEvent* event) override;

private:
    template <class Block>
    Block* addBlock(std::unique_ptr<Block> block);
    /// Whether the series has the controls of this routine.
    bool makes(const char* routine) const;
    void createBlocks();
    void NewAllControl();
    void ControlsConnectSlots();
    bool TextBox_Input_Valid_Check();

    bool breaksSoftLimit(const SoftLimit& limit) const;
    bool passesHardLimits() const;
    bool passesSoftLimits() const;
    bool prepareFolders(const QString& incPath, const QString& srcPath) const;
    void showGenerated(const QString& folder) const;

    const PageDescription& m_description;
    std::vector<std::unique_ptr<ClockBlock>> m_blocks;
    QHash<QString, std::function<void()>> m_routines;
    QHash<QString, Setting> m_settings;
    bool m_readingDesign = false;

    LowSpeedBlock* m_lowSpeed = nullptr;
    HighSpeedBlock* m_highSpeed = nullptr;
    PllSourceBlock* m_pllSource = nullptr;
    PllMultiplierBlock* m_pllMultiplier = nullptr;
    FlexiblePllBlock* m_flexiblePll = nullptr;
    PllOutputBlock* m_pllOutput = nullptr;
    SystemClockBlock* m_systemClock = nullptr;
    HickRouteBlock* m_hickRoute = nullptr;
    UsbBlock* m_usb = nullptr;
    AdcBlock* m_adc = nullptr;
    OutputsBlock* m_outputs = nullptr;
};
