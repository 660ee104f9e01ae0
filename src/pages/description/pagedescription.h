#pragma once

#include "pages/description/dividers.h"
#include "pages/description/limits.h"
#include "pages/description/modelfield.h"
#include "pages/layout/parts.h"

#include <QSize>

#include <initializer_list>
#include <optional>
#include <vector>

/// What the edit of the system clock takes, MHz. A value equal to an end is good; without a lowest value
/// everything down to 0 is.
struct TypedSclk
{
    std::optional<double> lowest;
    double highest = 0.0;
};

/// An output of the column: the name of its edit, and where it stands, picture pixels.
struct OutputRow
{
    QString edit;
    int x;
    int y;
};

/// The list of the peripherals on a bus, their names with blanks between, and the pixels from the output of
/// the bus down to it; lists near the bottom open upward. Its button stands below the output.
struct PeripheralList
{
    const char* peripherals = "";
    int down = 45;
};

/// The four lists that every series has.
struct PeripheralLists
{
    PeripheralList apb1, apb1Timers, apb2, apb2Timers;
};

/// The member names that belong to one of the lists.
struct ListNames
{
    const char* button;
    const char* group;
    const char* output;
    PeripheralList PeripheralLists::*list;
};
const std::vector<ListNames>& listNames();

/// What hick gives to outputs, clock outputs and peripherals.
enum class HickAtOutputs
{
    Always8,
    Always48,
    With48ForUsb, ///< 48 MHz while USB is on and takes hick, otherwise 8
    ByRoute       ///< 48 MHz while a route in use takes hick undivided, otherwise 8
};

/// What keeps a source of a clock output from being chosen.
enum class RowGate
{
    None,
    Usb, ///< USB is off
    Adc  ///< the ADC is off
};

/// A source of a clock output.
struct ClockOutputRow
{
    int value;        ///< in the model and in design files
    const char* name; ///< part of the member names, "hick" in m_clockout_hick_RadioButton
    ClockSource source;
    const char* text = name;
    RowGate gate = RowGate::None;
    int valueRight = 0; ///< pixels by which a wide name pushes the value to the right
};

struct PinChoice
{
    const char* text;
    int number; ///< in the model and in design files
};

/// One clock output. A part of the tree of its stem places it, the sources in the order of their rows. The
/// dividers stand in the order in which the frequency passes them.
struct ClockOutput
{
    const char* stem;       ///< of the members: "clockout", "clockout1"
    const char* setting;    ///< of the source in design files: "clkout"
    const char* pinSetting; ///< "clkoutpinselect"
    ModelField field;
    ModelField pinField;
    std::vector<Divider> dividers = {};
    std::vector<PinChoice> pins = {}; ///< behind "none", which is 0
    /// A number from a design file goes by the text of its pin. Otherwise it is the index, whatever it is.
    bool pinsByText = false;
    std::vector<ClockOutputRow> rows = {};
    /// The source that is checked when the chosen one is switched off.
    int fallback = 0;
    /// lext shows its frequency only while the RTC uses it.
    bool lextNeedsRtc = false;

    /// The members: "m_clockout1pin_ComboBox" of "pin_ComboBox", "m_clockout_hick_QLabel" of a row's
    /// "QLabel".
    QString member(const char* rest) const;
    QString member(const ClockOutputRow& row, const char* kind) const;
};

/// The USB clock.
struct UsbPart
{
    Divider divider;
    bool hickRoute = false; ///< there is a choice between the PLL and hick
};

/// One source that a peripheral's clock can be taken from.
struct PeripheralSource
{
    int number; ///< in the model and in design files
    /// Part of the member names, "pclk" in m_usart1clocksel_pclk_RadioButton; also the label.
    const char* name;
    ClockSource shown;
    /// The clock that decides red; on some series another than the one shown, as their users know it. None is
    /// never red.
    ClockSource limited = ClockSource::None;
    /// The clock that the chip takes, where another one is shown.
    std::optional<ClockSource> taken = {};
};

/// What the reader of design files does with one number of a peripheral's source.
struct PeripheralNumber
{
    int number;
    int checks;          ///< the number of the source whose button is checked
    bool strays = false; ///< it is stored in strayField and not in the peripheral's own
};

/// A peripheral whose clock can be switched and chosen, as a small tree of its own. The rows "peripherals" of
/// the parts place them in their order.
struct PeripheralClock
{
    const char* stem; ///< "usart1" in m_usart1switch_ComboBox, m_tousart1_lineEdit
    ModelField source;
    ModelField on;
    QString title; ///< "usart1 clock sel"
    std::vector<PeripheralSource> sources = {};
    /// Red above, MHz. A series that says nothing gets its highest system clock.
    std::optional<double> limit = {};
    int start = 0; ///< the number of the source at the start
    /// What the reader takes; empty takes the number of each source.
    std::vector<PeripheralNumber> readNumbers = {};
    /// Where the numbers that stray are stored.
    ModelField strayField = {};
    /// What any other number in a design file becomes; without it nothing changes.
    std::optional<int> fallback = {};
    /// The result is written while this switch is on; without it while the own one is.
    ModelField writtenWhile = {};

    QString sourceSetting() const { return QLatin1String(stem) + QLatin1String("clocksel"); }
    QString switchSetting() const { return QLatin1String(stem) + QLatin1String("switch"); }
    // The members.
    QString selector() const { return QLatin1String("m_") + sourceSetting(); }
    QString titleLabel() const { return selector() + QLatin1String("_Label"); }
    QString sourceLabel(const PeripheralSource& source) const;
    QString sourceRadio(const PeripheralSource& source) const;
    QString switchBox() const { return QLatin1String("m_") + switchSetting() + QLatin1String("_ComboBox"); }
    QString result() const
    {
        return QLatin1String("m_to") + QLatin1String(stem) + QLatin1String("_lineEdit");
    }
    QString unit() const { return QLatin1String("m_to") + QLatin1String(stem) + QLatin1String("_Label"); }
    /// What assistive tools call the result, in English.
    QString spokenResult(const char* unit) const
    {
        return QStringLiteral("%1 clock, %2").arg(QLatin1String(stem), QLatin1String(unit));
    }
};

/// A start value that is not that of the setting's row.
struct StartValue
{
    const char* setting;
    double value;
};

/// Everything that sets the page of one series apart. It is constant data, read by the page and its blocks,
/// by the reader and writer of design files, by the checks of saving and generating, and by the painter of
/// the picture. The file of the series says what the chip decides and which parts its tree has; a sibling
/// starts from a copy and names only what differs. What follows from these is derived.
struct PageDescription
{
    ZN64MCUSERIALS series;
    QSize pictureSize;
    /// The picture under the resource prefix where it is not called by the series' word, "G110PLL.bmp".
    const char* picture = nullptr;

    // The tree.

    std::vector<PlacedPart> tree = {};    ///< from the oscillators to AHB, USB, clock outputs, peripherals
    std::vector<PlacedPart> buses = {};   ///< behind AHB
    std::vector<PlacedPart> column = {};  ///< of outputs
    std::vector<ControlPlace> moved = {}; ///< what stands otherwise than its part has it, picture pixels
    std::vector<ControlFont> fonts = {};
    const char* outputs = ""; ///< of the column, by name and in the order of their rows: "i2s systick"
    PeripheralLists lists = {};
    const char* rtcName = "ertc";             ///< how captions call the RTC
    const char* hextEdit = "m_hext_lineEdit"; ///< two series spell its member otherwise
    bool sclkSolidFrame = false; ///< the selector gives the edit of the system clock a solid frame

    // The chip.

    SeriesLimits limits = {};
    std::vector<StartValue> start = {};
    double rtcHextDivisor = 128.0;          ///< of hext to the RTC, which has no divider of its own
    std::optional<Divider> usbDivider = {}; ///< where it is not the one of half steps up to 4
    std::optional<Divider> adcDivider = {}; ///< where it is not the one of most series
    std::vector<ClockOutput> clockOutputs = {};
    std::vector<PeripheralClock> peripherals = {};
    HickAtOutputs hickAtOutputs = HickAtOutputs::ByRoute;
    /// USB that is switched on, or put back to the PLL, may move a PLL that drives the system clock.
    bool usbMovesBusyPll = false;
    /// With the PLL off the system clock, a changed PLL source always asks for a USB solution, and never for
    /// a plain recalculation, even while USB is off and the solver does nothing: the series' rule, not a
    /// slip.
    bool alwaysSearchesUsb = false;
    /// In design files the switches of the peripherals stand behind all of their sources.
    bool switchesBehindSources = false;

    // What complete() derives. A block is there because a part places its controls.

    Places places = {};
    std::vector<OutputRow> outputRows = {};
    TypedSclk typedSclk = {};
    Limits painted = {};
    Limits onSaving = {};
    Limits onGenerating = {};
    /// Generating refuses an APB3 clock above it, MHz.
    std::optional<double> generatedApb3 = {};
    /// All but those of USB and the clock outputs.
    std::vector<Divider> dividers = {};
    std::optional<UsbPart> usb = {};

    bool has(const char* control) const { return places.has(QLatin1String(control)); }
    bool rtcDivider() const { return has("m_rtcdiv_ComboBox"); }
    /// The choice of a divider of hext before the PLL.
    bool pllHextDivider() const { return has("m_pllhext_div_RadioButton"); }
    bool pllMultiplier() const { return has("m_pllmult_ComboBox"); } ///< the PLL's normal mode
    bool pllParameters() const { return has("m_pllms_lineEdit"); }   ///< its flexible mode
    bool pllModes() const { return pllMultiplier() && pllParameters(); }
    /// The PLL's input from hext must lie within 2 to 16 MHz: the page tells and corrects hext. With MS and
    /// NS their own limits see to it.
    bool checksPllInput() const { return pllMultiplier() && !pllParameters(); }
    /// The choice of hick's way to the system clock.
    bool hickToSclk() const { return has("m_hicktosclk_RadioButton"); }
    /// Warnings below the edit at a high system clock.
    bool sclkWarnings() const { return has("m_sclkWarning1_QLabel"); }
    /// The switch of an ADC that takes APB2 through a divider.
    bool adcSwitch() const { return has("m_toadcswitch_ComboBox"); }
    /// Fixed steps of "/ 2" on the timers' ways.
    bool timerHalves() const { return has("m_toapb1tmr_div"); }
    /// A field that shows what the typed hext gives to the PHY of USB.
    bool usbPhy() const { return has("m_tousbhsphy_lineEdit"); }

    QString word() const { return QLatin1String(seriesTraits(series).word); }
    QString stem() const { return QLatin1String(seriesTraits(series).stem); } ///< of the generated files
    QString pictureName() const;
    /// Starts otherwise than the sibling from which the description comes.
    void startWith(std::initializer_list<StartValue> values) { start.insert(start.end(), values); }
    /// Moves more controls than the sibling from which the description comes.
    void move(std::initializer_list<ControlPlace> rows) { moved.insert(moved.end(), rows); }
    /// All parts of the tree.
    std::vector<PlacedPart> parts() const;
};

/// The description with everything that follows from what the series says.
PageDescription complete(PageDescription page);
