#include "pages/series/ZN64G110PLL.h"

#include "pages/description/clockoutputs.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G110PLL::describe()
{
    PageDescription page{ZN64G110, QSize(1408, 830)};
    // The tree: its parts, from the oscillators to AHB with USB and the clock output, the buses behind AHB,
    // and the column of outputs at its place.
    page.tree = {{"multiplier"}, {"usb"}, {"clockouteight"}};
    page.buses = {{"buses"}};
    page.column = {
        {"outputs", 1180}
    };
    page.outputs = "i2s systick sido dma xmc apb1peripheral apb1tmr apb2peripheral apb2tmr";
    page.lists.apb1 = {"SPI2 SPI3 SPI4 USART2 USART3 UART4 UART5 I2C1 I2C2 I2C3 CAN1 DAC"};
    page.lists.apb1Timers = {"TMR2 TMR3 TMR4 TMR5 TMR6 TMR7 TMR12 TMR13 TMR14"};
    page.lists.apb2 = {"GPIOA GPIOB GPIOC GPIOD GPIOE GPIOF GPIOG SPI1 USART1", -205};
    page.lists.apb2Timers = {"TMR1 TMR8 TMR9 TMR10 TMR11 TMR15", -136};
    page.rtcName = "rtc";

    // The chip: limits beside the highest system clock, MHz, and what a new design starts with beside the
    // usual.
    page.limits.apb1 = 100.0;
    page.limits.apb2 = 100.0;
    page.start = {
        {"pllmult", 24},
        {"usbdiv",  4 }
    };
    page.hickAtOutputs = HickAtOutputs::Always8;

    using namespace clockoutputs;
    ClockOutput output = single();
    output.pins = {pa8};
    output.rows = {noclk, hick, hext, sclk, usb, adcSwitched, pllDiv2, pllDiv4};
    page.clockOutputs = {output};
    return page;
}

ZN64G110PLL::ZN64G110PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G110PLL>(), parent)
{
    build();
}
