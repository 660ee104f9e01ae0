#pragma once

#include "clocks.h"
#include "modelfield.h"
#include "places.h"

#include <QSize>

#include <limits>
#include <optional>
#include <vector>

/// A value above any that a limit compares.
constexpr double unlimited = std::numeric_limits<double>::infinity();

/// What a page accepts in its edits and paints as in range, MHz. A value equal to a limit is in range.
struct PageLimits
{
    std::optional<double> lowestSysclk; ///< of the typed system clock; none accepts anything down to 0
    double sysclk = unlimited;          ///< typed system clock; also AHB and the timers
    double apb1 = unlimited;
    double apb2 = unlimited;
    double pll = unlimited;
    double adc = unlimited;
    /// Above this system clock the warnings below its edit show; none has no warnings.
    std::optional<double> sysclkWarning;
};

/// A limit that saving and generating refuse to pass; a value equal to it is good. The PLL's limits count
/// only while the PLL is in use.
struct HardLimit
{
    Clock clock;
    double compared; ///< MHz
    int shown;       ///< MHz in the message; on some series not the number compared, which is meant
    const char* words;
};

/// A broken limit that saving and generating ask about.
enum class SoftLimitKind
{
    Usb48,   ///< USB is on and not exactly at 48 MHz
    AdcAbove ///< the ADC is on and above the limit
};
struct SoftLimit
{
    SoftLimitKind kind;
    double limit; ///< MHz
    const char* text;
};

/// A choice of the start state: the setting's name and the value that it takes, in the order of the reset.
struct StartValue
{
    const char* setting;
    double value;
};

/// A field of the output column.
struct OutputRow
{
    const char* edit;
    Clock clock;
    double divisor = 1.0; ///< of the clock on the way to this output
};

/// An output's list of peripherals: its button stands below the output, the list opens at its own place.
struct ListGroup
{
    const char* button;
    const char* group;
    const char* output;
    std::vector<const char*> peripherals;
};

/// What a row of a clock output shows, and so how its frequency is found.
enum class OutputSource
{
    None,
    Lick,
    Lext,
    Hick,
    Hext,
    Sclk,
    Usb,
    Adc,
    PllDiv2,
    PllDiv4,
    Pll
};

/// How a clock output tells the frequency of hick.
enum class HickAtOutput
{
    Always8,
    Routed ///< 48 MHz when a route in use takes hick undivided, otherwise 8 MHz
};

struct ClockOutputRow
{
    int value;        ///< in the model and in design files
    const char* name; ///< part of the member names, "hick" in m_clockout_hick_RadioButton
    OutputSource source;
};

struct ClockOutputDivider
{
    const char* step;    ///< "New_clockoutdiv"
    const char* control; ///< "m_clockoutdiv": with _ComboBox and _Label the member names
    const char* setting; ///< "clkoutdiv"
    std::vector<double> divisors;
    ModelField field;
};

/// One clock output. The dividers stand in the order in which the frequency passes them.
struct ClockOutputDescription
{
    const char* stem;       ///< of the members: "clockout", "clockout1"
    const char* setting;    ///< of the source in design files: "clkout"
    const char* pinSetting; ///< "clkoutpinselect"
    ModelField field;
    ModelField pinField;
    std::vector<ClockOutputRow> rows;
    /// Behind "none"; the index in the combo is the model's number.
    std::vector<const char*> pins;
    std::vector<ClockOutputDivider> dividers;
    /// The source that is checked when the chosen one is switched off.
    int fallback = 0;
    HickAtOutput hick = HickAtOutput::Routed;
};

/// Everything that sets the page of one series apart. It is constant data, read by the page and its blocks,
/// by the reader and writer of design files, by the checks of saving and generating, and by the painter of
/// the picture. A sibling starts from a copy and names only what differs.
struct PageDescription
{
    ZN64MCUSERIALS series;
    const char* picture; ///< file name of the picture under the resource prefix
    QSize pictureSize;
    const char* stem; ///< of the templates and the generated files

    Places places;
    /// The controls of the page by the routines that make them, in stacking order. What is not listed is not
    /// there.
    std::vector<const char*> controls = {};
    std::vector<StartValue> start = {};
    /// Writes the fields for which the series has no control.
    void (*fixedFields)(ZN64ConfigCLK&) = nullptr;
    std::vector<const char*> fileOrder = {};
    /// Differs from the order in the file: each setting read may move others.
    std::vector<const char*> readingOrder = {};

    PageLimits limits = {};
    std::vector<HardLimit> hardLimits = {};
    std::vector<SoftLimit> softLimits = {};

    /// Divisor of hext on the way to the RTC where it is fixed.
    double rtcHextDivisor = 128.0;
    std::vector<double> usbDivisors = {};
    std::vector<double> adcDivisors = {};
    std::vector<OutputRow> outputs = {};
    std::vector<ListGroup> listGroups = {};
    std::vector<ClockOutputDescription> clockOutputs = {};

    /// The PLL's input from hext must lie within 2 to 16 MHz: the page tells and corrects hext.
    bool checksPllInput = false;
    /// With the PLL off the system clock, a changed PLL source always asks for a USB solution, and never for
    /// a plain recalculation, even while USB is off and the solver does nothing. Meant as it is.
    bool alwaysSearchesUsb = false;
};
