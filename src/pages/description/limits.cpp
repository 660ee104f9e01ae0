#include "pages/description/limits.h"

#include <algorithm>

const char limits::adc28[] = "The maximum ADC clock is 28 MHz. The currently configured ADC clock is wrong.  "
                             "please confirm whether to continue?";
const char limits::adc28Comma[] = "The maximum ADC clock is 28 MHz. The currently configured ADC clock is "
                                  "wrong, please confirm whether to continue?";
const char limits::adc80[] = "The maximum ADC clock is 80 MHz. The currently configured ADC clock is wrong.  "
                             "please confirm whether to continue?";

Limit limits::above(ClockSource clock, double compared)
{
    return above(clock, compared, static_cast<int>(compared));
}

Limit limits::above(ClockSource clock, double compared, int shown)
{
    return {clock, Bound::Above, compared, shown};
}

Limit limits::belowInNormalMode()
{
    return {ClockSource::Pll, Bound::BelowInNormalMode, lowestNormalPllMHz,
            static_cast<int>(lowestNormalPllMHz)};
}

Limit limits::usbClock()
{
    return {ClockSource::Usb, Bound::NotExactly, usbClockMHz, 0,
            "USB clock must be 48MHz. But the USB clock of current config is wrong.  please confirm whether "
            "to continue?"};
}

Limit limits::usbPhyClock()
{
    return {ClockSource::UsbPhy, Bound::NotExactly, usbPhyClockMHz, 0,
            "USBHS PHY clock must be 12MHz. But the PHY clock of current config is wrong.  please confirm "
            "whether to continue?"};
}

Limit limits::adcClock(double compared, const char* question)
{
    return {ClockSource::Adc, Bound::Above, compared, 0, question};
}

const char* limits::refusal(const Limit& limit)
{
    if (limit.bound == Bound::BelowInNormalMode)
        return "Can not support pll clock less than";
    switch (limit.clock) {
    case ClockSource::Apb1:
        return "Can not support apb1clk greater than";
    case ClockSource::Apb2:
        return "Can not support apb2clk greater than";
    case ClockSource::Apb3:
        return "Can not support apb3clk greater than";
    case ClockSource::Pll:
        return "Can not support pll clock greater than";
    default:
        return "Can not support sclk greater than";
    }
}

bool limits::breaks(const Limit& limit, double value, bool normalMode)
{
    switch (limit.bound) {
    case Bound::Above:
        return value > limit.compared;
    case Bound::BelowInNormalMode:
        return normalMode && value < limit.compared;
    case Bound::NotExactly:
        return value != limit.compared;
    }
    return false;
}

bool limits::breaksAny(const Limits& all, ClockSource clock, double value, bool normalMode)
{
    return std::any_of(all.begin(), all.end(), [&](const Limit& limit) {
        return limit.clock == clock && breaks(limit, value, normalMode);
    });
}
