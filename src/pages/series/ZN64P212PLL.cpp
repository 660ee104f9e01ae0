#include "pages/series/ZN64P212PLL.h"

#include "pages/description/clockoutputs.h"
#include "pages/description/peripherals.h"
#include "pages/series/seriespage.h"

PageDescription ZN64P212PLL::describe()
{
    PageDescription page{ZN64P212, QSize(1408, 829)};
    page.picture = "P212_216PLL.bmp";
    page.tree = {{"direct"}, {"plldirectfr"}, {"divided"}, {"clockouttwiceseven"}, {"bandone"}};
    page.buses = {
        {"systick",     1092, 133},
        {"apb1limited", 1036, 247},
        {"apb1timer",   1092, 284},
        {"apb2limited", 1036, 415},
        {"apb2timer",   1092, 448},
        {"apb3",        1036, 561}
    };
    page.column = {
        {"P212", 1181}
    };
    page.outputs = "i2s systick dma gpio apb1peripheral apb1tmr apb2peripheral apb2tmr apb3peripheral";
    page.lists.apb1 = {"DAC SPI2 USART2 I2C1 I2C2 CAN1"};
    page.lists.apb1Timers = {"TMR3 TMR4 TMR6 TMR7"};
    page.lists.apb2 = {"SPI1 SCFG ADC USART1 OP CMP"};
    page.lists.apb2Timers = {"TMR1 TMR9 TMR10 TMR11"};

    page.limits.apb1 = 180.0;
    page.limits.apb2 = 180.0;
    page.limits.apbTold = 90;
    page.limits.lowestTyped.reset();
    page.limits.pllPainted = false;
    page.limits.generatingSkipsApb2 = true;
    page.start = {
        {"pllns", 90},
        {"pllfr", 4 }
    };
    page.peripherals = {peripherals::can()};
    page.hickAtOutputs = HickAtOutputs::Always48;

    using namespace clockoutputs;
    ClockOutput output = singleDividedTwice();
    output.pins = {pa8, pa9, pb13, pf2};
    // The series lacks a pin in the middle of the numbers: index and number differ.
    output.pinsByText = true;
    output.rows = {sclk, hext, pll, hick, adcclk, lick, lext};
    page.clockOutputs = {output};
    return page;
}

ZN64P212PLL::ZN64P212PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64P212PLL>(), parent)
{
    build();
}
