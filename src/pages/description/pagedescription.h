#pragma once

#include "pages/description/dividers.h"
#include "pages/description/limits.h"
#include "pages/description/modelfield.h"
#include "pages/description/places.h"

#include <QSize>
#include <QStringList>

#include <limits>
#include <optional>
#include <vector>

/// What the edit of the system clock takes, MHz. A value equal to an end is good; without a lowest value
/// everything down to 0 is.
struct TypedSclk
{
    std::optional<double> lowest;
    double highest = 0.0;
};

/// An output of the column: its edit without "m_" and "_lineEdit", and its row.
struct OutputRow
{
    const char* name;
    int y;
    int right = 0; ///< pixels out of the column
};

/// The column of output frequencies.
struct OutputColumn
{
    int x = 0;
    std::vector<OutputRow> rows = {};
};

/// The list of the peripherals on a bus: the row at which it opens, and the names with blanks between. Its
/// button stands below the output of the bus.
struct PeripheralList
{
    int y = 0;
    const char* peripherals = "";
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

struct ClockOutputRow
{
    int value;        ///< in the model and in design files
    const char* name; ///< part of the member names, "hick" in m_clockout_hick_RadioButton
    ClockSource source;
    int y; ///< of the radio button
    const char* text;
    RowGate gate = RowGate::None;
    int valueRight = 0; ///< pixels by which a wide name pushes the value to the right
};

/// Where the radio buttons, names and values of a clock output's rows stand; labelsDown from button to
/// labels.
struct ClockOutputColumn
{
    int radioX;
    int nameX;
    int valueX;
    int labelsDown;
};

struct PinChoice
{
    const char* text;
    int number; ///< in the model and in design files
};

/// One clock output. The dividers stand in the order in which the frequency passes them.
struct ClockOutput
{
    const char* stem;       ///< of the members: "clockout", "clockout1"
    const char* setting;    ///< of the source in design files: "clkout"
    const char* pinSetting; ///< "clkoutpinselect"
    ModelField field;
    ModelField pinField;
    std::vector<PinChoice> pins = {}; ///< behind "none", which is 0
    /// A number from a design file goes by the text of its pin. Otherwise it is the index, whatever it is.
    bool pinsByText = false;
    ClockOutputColumn column = {};
    std::vector<ClockOutputRow> rows = {};
    std::vector<Divider> dividers = {};
    /// The source that is checked when the chosen one is switched off.
    int fallback = 0;
    /// lext shows its frequency only while the RTC uses it.
    bool lextNeedsRtc = false;
};

/// The one clock output of a series that has no second one, still without pins, column and rows.
ClockOutput singleClockOutput();

/// The USB clock.
struct UsbPart
{
    Divider divider;
    bool hickRoute = false; ///< there is a choice between the PLL and hick
    /// USB that is switched on, or put back to the PLL, may move a PLL that drives the system clock.
    bool movesBusyPll = false;
};

/// One source that a peripheral's clock can be taken from.
struct PeripheralSource
{
    int number; ///< in the model and in design files
    const char*
        name; ///< part of the member names, "pclk" in m_usart1clocksel_pclk_RadioButton; also the label
    ClockSource shown;
    /// The clock that decides red. On some series it is another than the one shown, which is meant. None is
    /// never red.
    ClockSource limited = ClockSource::None;
};

/// What the reader of design files does with one number of a peripheral's source.
struct PeripheralNumber
{
    int number;
    int checks;          ///< the number of the source whose button is checked
    bool strays = false; ///< it is stored in strayField and not in the peripheral's own
};

/// A peripheral whose clock can be switched and chosen, as a small tree of its own.
struct PeripheralClock
{
    const char* stem;          ///< "usart1" in m_usart1switch_ComboBox, m_tousart1_lineEdit
    const char* title;         ///< "usart1 clock sel"
    const char* sourceSetting; ///< "usart1clocksel", also part of the member names
    const char* switchSetting; ///< "usart1switch"
    ModelField source;
    ModelField on;
    double limit; ///< red above, MHz
    std::vector<PeripheralSource> sources;
    int x = 0; ///< of the tree's names, picture pixels
    int y = 0; ///< of its title
    /// What the reader takes; empty takes the number of each source.
    std::vector<PeripheralNumber> readNumbers = {};
    /// Where the numbers that stray are stored.
    ModelField strayField = {};
    /// What any other number in a design file becomes; without it nothing changes.
    std::optional<int> fallback = {};
    /// The result is written while this switch is on; without it while the own one is.
    ModelField writtenWhile = {};
};

/// A choice of the start state: the setting's name and the value that it takes.
struct StartValue
{
    QString setting;
    double value;
};

/// Everything that sets the page of one series apart. It is constant data, read by the page and its blocks,
/// by the reader and writer of design files, by the checks of saving and generating, and by the painter of
/// the picture. A family has tables of its own; a sibling starts from a copy and names only what differs.
struct PageDescription
{
    ZN64MCUSERIALS series;
    const char* picture; ///< file name of the picture under the resource prefix
    QSize pictureSize;
    const char* stem; ///< of the templates and the generated files

    /// What stands alone. The rows of columns, lists and clock outputs join it in complete().
    Places places = {};
    OutputColumn outputs = {};
    PeripheralLists lists = {};

    /// "rtcsel=0 rtcswitch=0 ...", in the order of the reset.
    const char* start = "";
    /// Of a sibling: what it starts with instead, in the place that the family gives it.
    const char* ownStart = "";
    /// Writes the fields for which the series has no control.
    void (*fixedFields)(ZN64ConfigCLK&) = nullptr;
    /// The settings of a design file, with blanks between.
    const char* fileOrder = "";
    /// Differs from the order in the file: each setting read may move others.
    const char* readingOrder = "";

    TypedSclk typedSclk = {};
    Limits painted = {};
    Limits onSaving = {};
    Limits onGenerating = {};
    /// Generating refuses an APB3 clock above it, MHz.
    std::optional<double> generatedApb3 = {};

    // The parts of the tree. A block is there because its part is.

    const char* hextEdit = "m_hext_lineEdit"; ///< two series spell its member otherwise
    /// Divisor of hext on the way to the RTC; without it the RTC has a divider of its own.
    std::optional<double> rtcHextDivisor = 128.0;
    bool pllHextDivider = false; ///< the choice of a divider of hext before the PLL
    /// The PLL's input from hext must lie within 2 to 16 MHz: the page tells and corrects hext.
    bool checksPllInput = false;
    bool pllMultiplier = false;  ///< the PLL's normal mode
    bool pllParameters = false;  ///< its flexible mode: MS, NS and the register value
    bool hickToSclk = false;     ///< the choice of hick's way to the system clock
    bool sclkWarnings = false;   ///< warnings below the edit at a high system clock
    bool sclkSolidFrame = false; ///< the selector gives the edit of the system clock a solid frame
    std::optional<UsbPart> usb = {};
    bool adcDivider = false;  ///< the switch of an ADC that takes APB2 through a divider
    bool timerHalves = false; ///< fixed steps of "/ 2" on the timers' ways
    bool usbPhy = false;      ///< a field that shows what the typed hext gives to the PHY of USB
    /// All but those of USB and the clock outputs.
    std::vector<Divider> dividers = {};
    std::vector<ClockOutput> clockOutputs = {};
    std::vector<PeripheralClock> peripherals = {};

    HickAtOutputs hickAtOutputs = HickAtOutputs::ByRoute;
    /// With the PLL off the system clock, a changed PLL source always asks for a USB solution, and never for
    /// a plain recalculation, even while USB is off and the solver does nothing. Meant as it is.
    bool alwaysSearchesUsb = false;

    std::vector<StartValue> startValues() const;
    QStringList settingsInFile() const { return QString::fromLatin1(fileOrder).split(QLatin1Char(' ')); }
    QStringList settingsInReadingOrder() const
    {
        return QString::fromLatin1(readingOrder).split(QLatin1Char(' '));
    }
};

/// The description with the places that follow from its columns: outputs, lists, rows of clock outputs.
PageDescription complete(PageDescription page);

/// The edit of an output row.
QString outputEdit(const OutputRow& row);
