#pragma once

#include "model/clockenums.h"

#include <QString>

#include <array>

/// The only clock that USB works at, MHz.
constexpr double usbClockMHz = 48.0;
/// The lowest VCO frequency, MHz.
constexpr double vcoMinMHz = 500.0;

/// Where the USB clock can come from, as the usage analysis sees it.
enum class UsbSource
{
    None,     ///< USB puts no oscillator to use
    Pll,      ///< the PLL only; the route from hick is not looked at
    PllOrHick ///< the PLL, or hick by its own route
};

/// What makes the PLL count as used, beside the system clock. A series has any set of these.
enum PllUser : unsigned
{
    PLL_USER_USB = 1u << 0,
    PLL_USER_CLKOUT_DIVIDED = 1u << 1, ///< the single output on PLL/2 or PLL/4
    PLL_USER_CLKOUT = 1u << 2,         ///< the single output on the undivided PLL
    PLL_USER_TWO_CLKOUTS = 1u << 3,    ///< either of two outputs on the PLL
    PLL_USER_ADC = 1u << 4,
    PLL_USER_I2SF5 = 1u << 5,
    PLL_USER_CAN1 = 1u << 6,     ///< CAN1 on the PLL
    PLL_USER_THREE_CAN = 1u << 7 ///< any of three CAN on the PLL or on PCLK
};

/// What sets one chip series apart in the model. Code asks these facts and never the series.
struct SeriesTraits
{
    ZN64MCUSERIALS series;
    /// The series word, such as "G110R"; empty for a value that is no series.
    const char* word;
    /// The stem of the names of its templates and generated files; siblings may share one.
    const char* stem;
    /// The highest system clock, MHz.
    int sysclkMax;

    /// hick reaches the PLL without the divider by 2, and hext has no PLL pre-divider.
    bool pll_in_direct;
    /// The hext and hick dividers act on the way to the system clock.
    bool sclk_prediv;
    /// The PLL divides its output by FP, and USB is the VCO divided by FU.
    bool pll_fp_output;
    /// The system clock is half of the PLL's output.
    bool sysclk_half_pll;
    /// Two clock outputs, CLKOUT1 and CLKOUT2, in place of one.
    bool dual_clkout;
    /// No USB clock at all.
    bool no_usb;
    /// The VCO goes up to 1200 MHz.
    bool vco_1200;
    /// APB1 and APB2 above half of the highest system clock raise their divider.
    bool apb_half_rule;
    /// AHB above 120 MHz raises the divider of APB1.
    bool apb1_120_rule;

    /// hick is an 8 MHz oscillator: it has no divider by 6, and its route to the system clock no choice.
    bool hick_8mhz;
    UsbSource usbSource;
    /// The limits of the USB divider that follows the system clock: FU on pll_fp_output, else USBDIV.
    int usbDivMin;
    int usbDivMax;
    /// A set of PllUser.
    unsigned pllUsers;

    /// The series name, such as "ZN64G110R"; empty for a value that is no series.
    QString name() const;
    /// hick's start value, MHz.
    double hickStart() const { return hick_8mhz ? 8.0 : 48.0; }
    /// The highest VCO frequency, MHz, leaving USB out of account.
    double vcoTop() const { return vco_1200 ? 1200.0 : 1000.0; }
};

/// The facts of the series. A value outside the enum gives a row with no trait and sysclkMax 0.
const SeriesTraits& seriesTraits(ZN64MCUSERIALS series);
/// All series, family by family.
const std::array<SeriesTraits, 24>& seriesList();
/// The series of the exact, case-sensitive name; null if there is none.
const SeriesTraits* seriesByName(const QString& name);
/// The name of the series; empty for a value outside the enum.
QString seriesName(ZN64MCUSERIALS series);
