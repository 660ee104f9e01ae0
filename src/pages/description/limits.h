#pragma once

#include "model/seriestraits.h"
#include "pages/description/clocksource.h"

#include <QString>

#include <optional>
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
    /// MHz in a refusal. Some series tell another number than they compare: users know the texts so.
    int shown = 0;
    /// A question that the user may agree to; without it the limit refuses.
    const char* question = nullptr;
};
using Limits = std::vector<Limit>;

/// What a series says of its limits, MHz. The highest system clock is a trait of the series; AHB, the timers
/// and the PLL's output go by it too.
struct SeriesLimits
{
    double apb1 = 0.0;
    double apb2 = 0.0;
    /// Of a typed system clock; some series take any number down to 0.
    std::optional<double> lowestTyped = 4.0;
    /// APB3 is painted red above it. Two series paint values in normal colour that generating refuses: what
    /// the page shows there has always been the bus's own limit, and the code wants the lower one.
    double paintedApb3 = apb3LimitMHz;
    /// Whether the PLL's output is painted red, and refused, above the highest system clock.
    bool pllPainted = true;
    bool pllRefused = true;
    /// What saving tells of a refused APB clock where it is not the number compared. Users know the texts so.
    std::optional<int> apbTold = {};
    /// Generating looks at APB3 and not at APB2.
    bool generatingSkipsApb2 = false;
    /// Saving asks about the ADC with a comma where generating has a full stop: two texts of one question,
    /// which both stand in the tables of translations.
    bool adcCommaOnSaving = false;
    /// Saving and generating ask about an ADC clock above it. The one series with it has no switch for the
    /// ADC, so that nobody has ever been asked.
    std::optional<double> askedAdc = {};
};

struct PageDescription;

namespace limits {

/// Derives the three lists and the range of the typed system clock from what the series says and has.
void derive(PageDescription& page);

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
