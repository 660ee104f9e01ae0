#pragma once

#include "canvas/CustomQControl.h"
#include "pages/blocks/settings.h"
#include "pages/description/pagedescription.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>

#include <functional>

/// What a block may ask about the rest of the tree and have done by it. The page that puts the blocks
/// together answers; a block knows neither the page nor another block.
class ClockTree
{
public:
    virtual ~ClockTree() = default;

    virtual const PageDescription& description() const = 0;
    virtual ZN64ConfigCLK& clocks() const = 0;

    // Questions. The answers come from the controls.

    virtual bool rtcOn() const = 0;
    virtual bool rtcFromLext() const = 0;
    virtual bool rtcFromHext() const = 0;
    virtual bool sclkFromPll() const = 0;
    virtual bool sclkFromHext() const = 0;
    virtual bool sclkFromHick() const = 0;
    virtual bool hextFeedsPll() const = 0;
    virtual bool usbOn() const = 0;
    virtual bool usbFromPll() const = 0;
    virtual bool usbFromHick() const = 0;
    virtual bool adcOn() const = 0;
    virtual bool pllInUse() const = 0;
    /// Whether hext is in use at all, the RTC included.
    virtual bool hextInUse() const = 0;
    /// What hick gives to outputs at present, MHz.
    virtual double hickAtOutputs() const = 0;
    /// Whether the PLL is in its normal mode, by a multiplier.
    virtual bool normalMode() const = 0;
    /// While a whole design is taken over, from a file or at the reset, typed values pass as they are, nobody
    /// is told, and nothing is solved: the design's own numbers stand.
    virtual bool takingDesign() const = 0;

    // What the blocks' slots run.

    virtual void UI_Display() = 0;
    /// Recalculates and repaints, unless a typed value is bad.
    virtual void UpdateCalculateResult() = 0;
    virtual void UpdateResultControls() = 0;
    /// Solves for the clock that must be kept, then recalculates and repaints.
    virtual void UpdateParam_From_ResultCLK() = 0;
    /// Shows the PLL parameters that a solver found.
    virtual void updatePllControls() = 0;
    /// Shows what belongs to the PLL's present mode and hides the rest.
    virtual void showPllMode() = 0;
    virtual void UpdateRTCParam() = 0;
    /// Solves for 48 MHz at USB and shows the parameters found. Does not repaint the results.
    virtual void searchUsb() = 0;
    /// A divider of USB changed: solves for USB if the PLL is free to serve it; in all cases recalculates and
    /// repaints.
    virtual void serveUsb() = 0;
    virtual void hext_LineEdit_returnPressed() = 0;
    /// Writes a good hext, MHz, in place of a bad one and commits it.
    virtual void correctHext(double hext) = 0;
    /// Takes the typed hext over if it feeds the PLL; false after telling that it is bad.
    virtual bool readHextForPll() = 0;
    /// Takes the typed hext over; false after telling that it is bad.
    virtual bool readHext() = 0;
    /// Keeps the typed system clock over a change of the PLL's source or divider, if it is good.
    virtual void keepTypedSysclk() = 0;
    /// The typed hext as it stands, MHz; 0 for a text that is no number.
    virtual double typedHext() const = 0;
    /// The typed hext, MHz; false after telling that it is bad.
    virtual bool Hext_Value_Valid(double& value) = 0;
    virtual bool Result_SYSCLK_Valid(double& value) = 0;
    /// Generating checks hext only while the tree uses it.
    virtual void tellHextInUse(bool inUse) = 0;

    /// The text in the user's language, in the context of the concrete page class.
    virtual QString translated(const char* text) const = 0;
    virtual void showError(const char* text) const = 0;
    /// A question with "Yes" and "Cancel"; true unless it was cancelled.
    virtual bool askToContinue(QMessageBox::Icon icon, const char* text) const = 0;

    // Controls at their places, named after themselves. A name without a place, or one of another kind, ends
    // the program.

    virtual QLabel* placeLabel(const QString& name) = 0;
    virtual QLineEdit* placeEdit(const QString& name) = 0;
    virtual QLineEdit* placeOutput(const QString& name) = 0;
    virtual CustomComboBox1* placeCombo(const QString& name) = 0;
    virtual QRadioButton* placeRadio(const QString& name) = 0;
    /// The button below the output, and the closed list of peripherals that it opens.
    virtual QPushButton* placeListButton(const QString& name, const QString& output) = 0;
    virtual QDialog* placeList(const QString& name, const QStringList& peripherals) = 0;
    /// Assistive tools call the control so from now on, in the user's language; name: in English.
    virtual void speakOf(QWidget* control, const QString& name) = 0;
    /// The parent of what belongs to no control, such as validators.
    virtual QWidget* widget() = 0;

    virtual void addControls(const char* routine, std::function<void()> make) = 0;
    virtual void addSetting(const QString& name, Setting setting) = 0;
};
