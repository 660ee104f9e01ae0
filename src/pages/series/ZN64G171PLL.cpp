#include "pages/series/ZN64G171PLL.h"

#include "pages/description/clockoutputs.h"
#include "pages/description/peripherals.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G171PLL::describe()
{
    PageDescription page{ZN64G171, QSize(1408, 829)};
    page.tree = {{"direct"}, {"plldirectfp"}, {"divided"}, {"usbfu"}, {"clockouttwiceeight"}, {"bandone"}};
    page.buses = {{"busesdirect"}};
    page.column = {
        {"outputsdirect", 1182}
    };
    page.outputs = "i2s systick dma xmc gpio apb1peripheral apb1tmr apb2peripheral apb2tmr";
    page.lists.apb1 = {"SPI2 SPI3 USART2 USART3 USART4 USART5 USART7 USART8 I2C1 I2C2 I2C3 CAN1"};
    page.lists.apb1Timers = {"TMR2 TMR3 TMR4 TMR6 TMR7 TMR13 TMR14"};
    page.lists.apb2 = {"ACC I2SF5 SPI1 SCFG ADC1 USART1 USART6"};
    page.lists.apb2Timers = {"TMR1 TMR9 TMR10 TMR11"};

    page.limits.apb1 = 120.0;
    page.limits.apb2 = 216.0;
    page.limits.apbTold = 108;
    page.limits.lowestTyped.reset();
    page.limits.pllRefused = false;
    page.start = {
        {"pllns", 108},
        {"pllfp", 4  },
        {"pllfu", 18 }
    };
    page.peripherals = {peripherals::i2sf5()};
    page.hickAtOutputs = HickAtOutputs::With48ForUsb;
    page.alwaysSearchesUsb = true;

    using namespace clockoutputs;
    ClockOutput output = singleDividedTwice();
    output.pins = {pa8, pa9, pb13, pc9};
    output.rows = {sclk, hext, pll, usbOfTwo, adc, hick, lick, lext};
    page.clockOutputs = {output};
    return page;
}

ZN64G171PLL::ZN64G171PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G171PLL>(), parent)
{
    build();
}
