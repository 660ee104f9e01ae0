#pragma once

#include "pages/description/modelfield.h"

#include <QString>

#include <functional>
#include <vector>

/// When a divider's box can be used; grey otherwise.
enum class DividerUse
{
    Always,
    RtcFromHext,
    PllInUse,
    PllFromDividedHext,
    SclkFromHext,
    SclkFromHick,
    UsbFromPll,
    UsbOrCanFromPll, ///< USB on the PLL, or a CAN that is on and takes the PLL's output for USB
    AdcOn,
    ClockOutputOn ///< the clock output that lists the divider has a pin
};

/// What follows once a divider is stored.
enum class DividerEffect
{
    Recalculate,
    ShowRtc,    ///< nothing but the RTC's output depends on it
    KeepSclk,   ///< the typed system clock is kept: the PLL is searched again
    ServeUsb,   ///< the PLL is searched for USB, if it is free for that
    HextThenPll ///< the typed hext comes first, if it feeds the PLL; then a recalculation
};

/// Which pass brings the box in line with a model that has moved the divider by itself.
enum class DividerFollows
{
    Nothing,
    PllSearch, ///< the solvers set it
    Results    ///< every recalculation may set it
};

/// One divider of a tree.
struct Divider
{
    const char* routine; ///< "New_hextdiv"
    const char* control; ///< "m_hextdiv", what its members begin with
    const char* setting; ///< its name in design files
    ModelField field;
    /// In the order of the box's items. The place of a value is its index.
    std::vector<double> divisors;
    double fallback; ///< what any other number in a design file becomes
    DividerUse use = DividerUse::Always;
    DividerEffect effect = DividerEffect::Recalculate;
    DividerFollows follows = DividerFollows::Nothing;
    const char* itemPrefix = "  /";
    bool decimal = false; ///< stands in design files with one decimal
    /// Divisors at the end of the list that have no item: they come from design files only.
    int withoutItem = 0;
    /// Divisors that the box offers but the reader of design files does not take.
    std::vector<double> unread = {};

    // The members.
    QString label() const { return QLatin1String(control) + QLatin1String("_Label"); }
    QString limitLabel() const { return QLatin1String(control) + QLatin1String("Max_Label"); }
    QString box() const { return QLatin1String(control) + QLatin1String("_ComboBox"); }
};

/// hext to the PLL where its divider cannot be chosen.
constexpr int fixedHextDivisor = 2;

/// A list of divisors as a table wants it.
template <class List>
std::vector<double> listOf(const List& list)
{
    return {list.begin(), list.end()};
}

namespace dividers {

Divider ahb();
Divider apb1();
Divider apb2();
Divider apb3();
/// hext to the RTC, 2 to 31.
Divider rtc();
/// hext to the PLL's input, 2 to 5.
Divider hextToPll();
/// hext and hick to the system clock.
Divider hextToSclk();
Divider hickToSclk();
/// The PLL's output, in two makes.
Divider pllFr();
Divider pllFp();
/// The PLL to USB, with the series' own divisors.
Divider usb(std::vector<double> divisors);
/// The VCO to USB.
Divider pllFu();
/// APB2 to the ADC, with the series' own divisors.
Divider adc(std::vector<double> divisors);

/// The only divider of a clock output, and the first and second of two; named after the output's number, ""
/// or "1" or "2" before or behind "div".
Divider clockOutput();
Divider clockOutputFirst(const char* routine, const char* control, const char* setting, ModelField field);
Divider clockOutputSecond(const char* routine, const char* control, const char* setting, ModelField field);

} // namespace dividers
