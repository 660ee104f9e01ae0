#include "codegen/codetraits.h"

#include <algorithm>

namespace {
using C = ZN64ConfigCLK;

// Clock chains.

constexpr CodeFragment g110Clock[] = {
    &C::GenerateCode_hext,         &C::GenerateCode_hextbypass,  &C::GenerateCode_hick,
    &C::GenerateCode_pll,          &C::GenerateCode_pllsysclock, &C::GenerateCode_hextsysclock,
    &C::GenerateCode_hicksysclock, &C::GenerateCode_pllusbclock, &C::GenerateCode_ahbclk,
    &C::GenerateCode_apb1clk,      &C::GenerateCode_apb2clk,     &C::GenerateCode_result};

constexpr CodeFragment g120Clock[] = {
    &C::GenerateCode_hext,         &C::GenerateCode_hextbypass,   &C::GenerateCode_hick,
    &C::GenerateCode_pll,          &C::GenerateCode_autostepmode, &C::GenerateCode_pllsysclock,
    &C::GenerateCode_hextsysclock, &C::GenerateCode_hicksysclock, &C::GenerateCode_pllusbclock,
    &C::GenerateCode_hickusbclock, &C::GenerateCode_ahbclk,       &C::GenerateCode_apb1clk,
    &C::GenerateCode_apb2clk,      &C::GenerateCode_result};

constexpr CodeFragment g110rClock[] = {
    &C::GenerateCode_hext,        &C::GenerateCode_hextbypass,   &C::GenerateCode_hick,
    &C::GenerateCode_hextdiv,     &C::GenerateCode_pll,          &C::GenerateCode_autostepmode,
    &C::GenerateCode_pllsysclock, &C::GenerateCode_hextsysclock, &C::GenerateCode_hicksysclock,
    &C::GenerateCode_pllusbclock, &C::GenerateCode_hickusbclock, &C::GenerateCode_ahbclk,
    &C::GenerateCode_apb1clk,     &C::GenerateCode_apb2clk,      &C::GenerateCode_result};

constexpr CodeFragment g150Clock[] = {
    &C::GenerateCode_PWC_LDO_OUTPUT, &C::GenerateCode_hext,         &C::GenerateCode_hextbypass,
    &C::GenerateCode_hick,           &C::GenerateCode_pll,          &C::GenerateCode_autostepmode,
    &C::GenerateCode_pllsysclock,    &C::GenerateCode_hextsysclock, &C::GenerateCode_hicksysclock,
    &C::GenerateCode_pllusbclock,    &C::GenerateCode_hickusbclock, &C::GenerateCode_ahbclk,
    &C::GenerateCode_apb1clk,        &C::GenerateCode_apb2clk,      &C::GenerateCode_flashclkdiv,
    &C::GenerateCode_result};

constexpr CodeFragment g125Clock[] = {
    &C::GenerateCode_flashpsr,    &C::GenerateCode_hextbypass,   &C::GenerateCode_hext,
    &C::GenerateCode_hick,        &C::GenerateCode_pll,          &C::GenerateCode_autostepmode,
    &C::GenerateCode_pllsysclock, &C::GenerateCode_hextsysclock, &C::GenerateCode_hicksysclock,
    &C::GenerateCode_pllusbclock, &C::GenerateCode_hickusbclock, &C::GenerateCode_ahbclk,
    &C::GenerateCode_apb1clk,     &C::GenerateCode_apb2clk,      &C::GenerateCode_result};

constexpr CodeFragment g130Clock[] = {
    &C::GenerateCode_flashpsr,    &C::GenerateCode_hextbypass,   &C::GenerateCode_hext,
    &C::GenerateCode_hick,        &C::GenerateCode_pll,          &C::GenerateCode_autostepmode,
    &C::GenerateCode_pllsysclock, &C::GenerateCode_hextsysclock, &C::GenerateCode_hicksysclock,
    &C::GenerateCode_ahbclk,      &C::GenerateCode_apb1clk,      &C::GenerateCode_apb2clk,
    &C::GenerateCode_result};

constexpr CodeFragment d042Clock[] = {
    &C::GenerateCode_flashpsr,    &C::GenerateCode_PWC_LDO_OUTPUT, &C::GenerateCode_hextbypass,
    &C::GenerateCode_hext,        &C::GenerateCode_hick,           &C::GenerateCode_pll,
    &C::GenerateCode_pllsysclock, &C::GenerateCode_hextsysclock,   &C::GenerateCode_hicksysclock,
    &C::GenerateCode_ahbclk,      &C::GenerateCode_apb1clk,        &C::GenerateCode_apb2clk,
    &C::GenerateCode_result};

constexpr CodeFragment g142Clock[] = {
    &C::GenerateCode_flashpsr,     &C::GenerateCode_PWC_LDO_OUTPUT, &C::GenerateCode_hextbypass,
    &C::GenerateCode_hext,         &C::GenerateCode_hick,           &C::GenerateCode_pll,
    &C::GenerateCode_autostepmode, &C::GenerateCode_pllsysclock,    &C::GenerateCode_hextsysclock,
    &C::GenerateCode_hicksysclock, &C::GenerateCode_ahbclk,         &C::GenerateCode_apb1clk,
    &C::GenerateCode_apb2clk,      &C::GenerateCode_apb3clk,        &C::GenerateCode_result};

constexpr CodeFragment g133Clock[] = {
    &C::GenerateCode_flashpsr,     &C::GenerateCode_PWC_LDO_OUTPUT, &C::GenerateCode_hextbypass,
    &C::GenerateCode_hext,         &C::GenerateCode_hick,           &C::GenerateCode_pll,
    &C::GenerateCode_autostepmode, &C::GenerateCode_pllsysclock,    &C::GenerateCode_hextsysclock,
    &C::GenerateCode_hicksysclock, &C::GenerateCode_pllusbclock,    &C::GenerateCode_hickusbclock,
    &C::GenerateCode_ahbclk,       &C::GenerateCode_apb1clk,        &C::GenerateCode_apb2clk,
    &C::GenerateCode_result};

constexpr CodeFragment g165Clock[] = {
    &C::GenerateCode_flashpsr,     &C::GenerateCode_PWC_LDO_OUTPUT, &C::GenerateCode_hextbypass,
    &C::GenerateCode_hext,         &C::GenerateCode_hick,           &C::GenerateCode_pll,
    &C::GenerateCode_autostepmode, &C::GenerateCode_pllsysclock,    &C::GenerateCode_hextsysclock,
    &C::GenerateCode_hicksysclock, &C::GenerateCode_pllusbclock,    &C::GenerateCode_hickusbclock,
    &C::GenerateCode_ahbclk,       &C::GenerateCode_apb1clk,        &C::GenerateCode_apb2clk,
    &C::GenerateCode_apb3clk,      &C::GenerateCode_result};

// Main chains.

constexpr CodeFragment g110Main[] = {&C::GenerateCode_clockout, &C::GenerateCode_mainFunc,
                                     &C::GenerateCode_rtc, &C::GenerateCode_adc};
constexpr CodeFragment g150Main[] = {&C::GenerateCode_clockout1, &C::GenerateCode_clockout2,
                                     &C::GenerateCode_mainFunc, &C::GenerateCode_rtc};
constexpr CodeFragment g133Main[] = {&C::GenerateCode_clockout, &C::GenerateCode_mainFunc,
                                     &C::GenerateCode_rtc,      &C::GenerateCode_adc,
                                     &C::GenerateCode_i2c,      &C::GenerateCode_usart};
constexpr CodeFragment g171Main[] = {&C::GenerateCode_clockout, &C::GenerateCode_mainFunc,
                                     &C::GenerateCode_rtc, &C::GenerateCode_i2sf5};
constexpr CodeFragment g165Main[] = {&C::GenerateCode_clockout, &C::GenerateCode_mainFunc,
                                     &C::GenerateCode_rtc, &C::GenerateCode_can, &C::GenerateCode_i2sf5};
constexpr CodeFragment p212Main[] = {&C::GenerateCode_clockout, &C::GenerateCode_mainFunc,
                                     &C::GenerateCode_rtc, &C::GenerateCode_can};
constexpr CodeFragment g142Main[] = {&C::GenerateCode_clockout, &C::GenerateCode_mainFunc,
                                     &C::GenerateCode_rtc, &C::GenerateCode_adc, &C::GenerateCode_can};

// Rows. A family builds on a sibling's row and names only what differs.

constexpr int ldo1V2 = 1;
constexpr int ldo1V1 = 2;
constexpr double never = LdoThresholds::never;

constexpr CodeTraits g110 = [] {
    CodeTraits row;
    row.clockChain = g110Clock;
    row.mainChain = g110Main;
    row.threeArgumentPll = true;
    row.steppedSwitch = true;
    row.normalHickDivisor = 2;
    row.flexibleHickDivisor = 2;
    row.clkoutDivider = ClkoutDivider::None;
    return row;
}();

constexpr CodeTraits g120 = [] {
    CodeTraits row;
    row.clockChain = g120Clock;
    row.mainChain = g110Main;
    row.threeArgumentPll = true;
    return row;
}();

constexpr CodeTraits g110r = [] {
    CodeTraits row = g120;
    row.clockChain = g110rClock;
    return row;
}();

constexpr CodeTraits g125 = [] {
    CodeTraits row;
    row.clockChain = g125Clock;
    row.mainChain = g110Main;
    row.normalPllSection = true;
    row.flexiblePllSection = true;
    row.pllRangeLine = false;
    row.flashCycleLine = true;
    return row;
}();

constexpr CodeTraits g130 = [] {
    CodeTraits row = g125;
    row.clockChain = g130Clock;
    row.clkoutMux = true;
    row.clkoutPinMux[CLKOUTPIN_PA9] = 5;
    return row;
}();

constexpr CodeTraits g135 = [] {
    CodeTraits row = g125;
    row.clkoutMux = true;
    row.clkoutPinMux[CLKOUTPIN_PA9] = 5;
    row.clkoutPinMux[CLKOUTPIN_PB13] = 3;
    return row;
}();

constexpr CodeTraits d042 = [] {
    CodeTraits row = g135;
    row.clockChain = d042Clock;
    row.mainChain = g133Main;
    row.ldo = {never, never, 32.0, ldo1V1};
    row.usartCount = 2;
    return row;
}();

constexpr CodeTraits g142 = [] {
    CodeTraits row = g130;
    row.clockChain = g142Clock;
    row.mainChain = g142Main;
    row.ldo = {120.0, never, never, ldo1V2};
    row.canCount = 1;
    return row;
}();

constexpr CodeTraits g150 = [] {
    CodeTraits row;
    row.clockChain = g150Clock;
    row.mainChain = g150Main;
    row.ldo = {240.0, never, 144.0, ldo1V1};
    row.normalHickDivisor = 6;
    row.flexibleHickDivisor = 6;
    row.ertcDivider = true;
    return row;
}();

constexpr CodeTraits g133 = [] {
    CodeTraits row;
    row.clockChain = g133Clock;
    row.mainChain = g133Main;
    // No template of this family has the section: the search misses and nothing follows from it.
    row.normalPllSection = true;
    row.ldo = {120.0, never, 64.0, ldo1V1};
    row.flexibleHickDivisor = 6;
    row.pllRangeLine = false;
    row.hextDivInComment = true;
    row.clkoutMux = true;
    row.clkoutDivider = ClkoutDivider::Two;
    row.ertcDivider = true;
    row.adcSource = true;
    row.usartCount = 3;
    return row;
}();

constexpr CodeTraits g171 = [] {
    CodeTraits row;
    row.clockChain = g133Clock;
    row.mainChain = g171Main;
    row.ldo = {192.0, never, 108.0, ldo1V1};
    row.flexibleHickDivisor = 6;
    row.hextDivInComment = true;
    row.clkoutMux = true;
    row.clkoutDivider = ClkoutDivider::Two;
    row.ertcDivider = true;
    row.hextDefaultMHz = 12;
    return row;
}();

constexpr CodeTraits g165 = [] {
    CodeTraits row = g171;
    row.clockChain = g165Clock;
    row.mainChain = g165Main;
    row.canFromPllu = true;
    row.ldo = {160.0, never, 108.0, ldo1V1};
    row.canCount = 3;
    row.hextDefaultMHz = 8;
    return row;
}();

constexpr CodeTraits p212 = [] {
    CodeTraits row = g165;
    row.clockChain = g142Clock;
    row.mainChain = p212Main;
    row.canFromPllu = false;
    // Above 180 MHz, which generating refuses, the voltage is 1.2 V again.
    row.ldo = {150.0, 180.0, never, ldo1V2};
    // The code sets the hext divider, but the comment of this family passes it over: with it, every generated
    // file would differ from those that users have.
    row.hextDivInComment = false;
    row.canCount = 1;
    return row;
}();

constexpr CodeTraits unknown;

struct SeriesRow
{
    ZN64MCUSERIALS series;
    const CodeTraits* traits;
};

constexpr SeriesRow seriesRows[] = {
    {ZN64G110,  &g110 },
    {ZN64G110R, &g110r},
    {ZN64G114,  &g110r},
    {ZN64H110R, &g110r},
    {ZN64G120,  &g120 },
    {ZN64G125,  &g125 },
    {ZN64TQ125, &g125 },
    {ZN64G130,  &g130 },
    {ZN64G135,  &g135 },
    {ZN64D042,  &d042 },
    {ZN64G142,  &g142 },
    {ZN64G146,  &g142 },
    {ZN64G150,  &g150 },
    {ZN64G152,  &g150 },
    {ZN64G133,  &g133 },
    {ZN64H133,  &g133 },
    {ZN64G171,  &g171 },
    {ZN64G174,  &g171 },
    {ZN64G190,  &g171 },
    {ZN64G165,  &g165 },
    {ZN64G166,  &g165 },
    {ZN64G167,  &g165 },
    {ZN64P212,  &p212 },
    {ZN64P216,  &p212 }
};
} // namespace

bool CodeChain::contains(CodeFragment fragment) const
{
    return std::find(begin(), end(), fragment) != end();
}

const CodeTraits& codeTraits(ZN64MCUSERIALS series)
{
    const auto row = std::find_if(std::begin(seriesRows), std::end(seriesRows),
                                  [series](const SeriesRow& each) { return each.series == series; });
    return row == std::end(seriesRows) ? unknown : *row->traits;
}
