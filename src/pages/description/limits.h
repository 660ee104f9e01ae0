#pragma once

#include "model/seriestraits.h"
#include "pages/description/clocksource.h"

#include <QString>

#include <vector>

/// The highest clock of the ADC where a page limits it, MHz.
constexpr double adcLimitMHz = 28.0;
/// The lowest output of the PLL in its normal mode where a page limits it, MHz.
constexpr double lowestNormalPllMHz = 16.0;
/// The clock of the PHY of USB must be at it exactly, MHz.
constexpr double usbPhyClockMHz = 12.0;
/// The highest clock of a third APB bus, MHz.
constexpr double apb3LimitMHz = 90.0;

/// On which side of its number a clock breaks a limit. A clock equal to the number never does. Not a number
/// breaks only a limit that asks for an exact value.
enum class Bound
{
    Above,
    BelowInNormalMode, ///< counts only while the PLL is in its normal mode
    NotExactly
};

/// One limit of a series. What is painted red, what saving refuses or asks about and what generating refuses
/// or asks about are three lists of these: they differ on several series.
struct Limit
{
    ClockSource clock;
    Bound bound;
    double compared; ///< MHz
    int shown = 0;   ///< MHz in a refusal; on some series not the number compared, which is meant
    /// A question that the user may agree to; without it the limit refuses.
    const char* question = nullptr;
};
using Limits = std::vector<Limit>;

/// Both lists, one behind the other.
Limits operator+(Limits some, const Limits& others);

namespace limits {

/// Red above: the system clock, AHB and both timers' clocks at sclk, the APB buses at theirs, MHz.
Limits painted(double sclk, double apb1, double apb2);

/// Refuses above these numbers, MHz, and shows them: the system clock, then APB1 and APB2.
Limits refused(double sclk, double apb1, double apb2);
/// Refuses above the number, and shows it.
Limit above(ClockSource clock, double compared);
/// Refuses above one number and shows another.
Limit above(ClockSource clock, double compared, int shown);
/// Refuses a PLL in normal mode that is too slow.
Limit belowInNormalMode();

/// Asks about a USB clock that is on and not exactly right.
Limit usbClock();
/// Asks about a PHY clock of USB that is not exactly right.
Limit usbPhyClock();
/// Asks about an ADC clock that is on and above the limit.
Limit adcClock(double compared, const char* question);

/// The questions about the ADC. The one with a comma is asked on saving alone, on some series.
extern const char adc28[];
extern const char adc28Comma[];
extern const char adc80[];

/// The words of a refusal, in front of the number.
const char* refusal(const Limit& limit);
/// Whether the value, MHz, breaks the limit. normalMode: the PLL is in its normal mode.
bool breaks(const Limit& limit, double value, bool normalMode);
/// Whether the value of the clock breaks any of these limits.
bool breaksAny(const Limits& all, ClockSource clock, double value, bool normalMode);

} // namespace limits
