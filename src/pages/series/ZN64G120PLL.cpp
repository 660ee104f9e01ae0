#include "pages/series/ZN64G120PLL.h"

#include "pages/description/clockoutputs.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G120PLL::describe()
{
    PageDescription page{ZN64G120, QSize(1408, 830)};
    page.tree = {{"multiplierhick"}, {"clockoutten"}};
    page.buses = {{"buses"}};
    page.column = {
        {"outputs", 1180}
    };
    page.outputs = "i2s systick sido dma gpio apb1peripheral apb1tmr apb2peripheral apb2tmr";
    page.lists.apb1 = {"SPI2 USART2 USART3 UART4 UART5 I2C1 I2C2 CAN1 CAN2"};
    page.lists.apb1Timers = {"TMR2 TMR3 TMR4 TMR5"};
    page.lists.apb2 = {"SPI1 USART1"};
    page.lists.apb2Timers = {"TMR1 TMR8 TMR9 TMR10 TMR11", -113};
    page.rtcName = "rtc";

    page.limits.apb1 = 100.0;
    page.limits.apb2 = 100.0;
    page.limits.adcCommaOnSaving = true;
    page.start = {
        {"pllmult", 25},
        {"usbdiv",  4 }
    };
    page.usbMovesBusyPll = true;

    using namespace clockoutputs;
    page.clockOutputs = {singleDivided({pa8}, tenSources)};
    return page;
}

ZN64G120PLL::ZN64G120PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G120PLL>(), parent)
{
    build();
}
