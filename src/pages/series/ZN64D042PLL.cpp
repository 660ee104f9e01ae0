#include "pages/series/ZN64D042PLL.h"

#include "model/divisors.h"
#include "pages/description/clockoutputs.h"
#include "pages/description/peripherals.h"
#include "pages/series/seriespage.h"

namespace {

PeripheralClock usart(int number, ClockSource bus)
{
    PeripheralClock clock = peripherals::usart(number, bus, USART_CLOCK_SOURCE_HICK48, "hick48");
    clock.fallback = USART_CLOCK_SOURCE_LEXT;
    return clock;
}

PeripheralClock i2c1()
{
    PeripheralClock clock = peripherals::i2c1(I2C1_CLOCK_SOURCE_HICK48, "hick48");
    clock.fallback = I2C1_CLOCK_SOURCE_HICK48;
    return clock;
}

} // namespace

PageDescription ZN64D042PLL::describe()
{
    PageDescription page{ZN64D042, QSize(1408, 830)};
    // clang-format off
    page.tree = {{"modes"}, {"clockoutnine"}, {"bandone"},
                 {"peripheral", 1021, 528}, {"peripheral", 684, 655}};
    page.buses = {{"systick", 1092, 77},    {"apb1", 1036, 217},       {"apb1timer", 1092, 243},
                  {"apb2", 1036, 421},      {"apb2timer", 1092, 455}, {"adc", 1115, 333}};
    // clang-format on
    page.column = {
        {"D042", 1180}
    };
    page.outputs = "i2s systick dma gpio apb1peripheral apb1tmr apb2peripheral apb2tmr";
    page.lists.apb1 = {"SPI2 USART3 USART4 I2C2 CAN1", 40};
    page.lists.apb1Timers = {"TMR3 TMR6 TMR14", 40};
    page.lists.apb2 = {"SCFG ADC1 SPI1", 40};
    page.lists.apb2Timers = {"TMR1 TMR15 TMR16 TMR17", 40};

    page.limits.apb1 = 80.0;
    page.limits.apb2 = 80.0;
    page.limits.adcCommaOnSaving = true;
    page.start = {
        {"pllmult", 10},
        {"pllns",   80},
        {"pllfr",   8 }
    };
    page.adcDivider = dividers::adc(listOf(divisors::adcFine));
    page.peripherals = {usart(1, ClockSource::Apb2), usart(2, ClockSource::Apb1), i2c1()};
    // The second USART's result follows the switch of the first. Firmware has been written by what it shows.
    page.peripherals[1].writtenWhile = page.peripherals[0].on;
    page.switchesBehindSources = true;
    page.hickAtOutputs = HickAtOutputs::Always48;

    using namespace clockoutputs;
    const ClockOutputRow hick48{CLKOUT_HICK, "hick", ClockSource::Hick, "hick48", RowGate::None, 10};
    ClockOutput output = singleDivided(
        {pa8, pa9, pb13}, {noclk, lick, lext, hick48, hext, sclk, adcSwitched, pllDiv2, pllDiv4});
    output.lextNeedsRtc = false;
    page.clockOutputs = {output};
    return page;
}

ZN64D042PLL::ZN64D042PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64D042PLL>(), parent)
{
    build();
}
