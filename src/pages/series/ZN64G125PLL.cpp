#include "pages/series/ZN64G125PLL.h"

#include "pages/description/clockoutputs.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G125PLL::describe()
{
    PageDescription page{ZN64G125, QSize(1404, 828)};
    page.tree = {
        {"modes"    },
        {"usbdivrow"},
        {"usbswitch", 840, 502},
        {"clockoutclose"       }
    };
    page.buses = {{"buses"}};
    page.column = {
        {"outputs", 1178}
    };
    page.outputs = "i2s systick sido dma gpio apb1peripheral apb1tmr apb2peripheral apb2tmr";
    page.lists.apb1 = {"SPI2 USART2 USART3 UART4 UART5 I2C1 I2C2 CAN1 CMP"};
    page.lists.apb1Timers = {"TMR2 TMR3 TMR4 TMR5"};
    page.lists.apb2 = {"SPI1 USART1"};
    page.lists.apb2Timers = {"TMR1 TMR9 TMR10 TMR11", -88};

    page.limits.apb1 = 75.0;
    page.limits.apb2 = 75.0;
    page.limits.adcCommaOnSaving = true;
    page.start = {
        {"pllmult", 18},
        {"pllns",   72},
        {"pllfr",   4 },
        {"usbdiv",  3 }
    };

    using namespace clockoutputs;
    page.clockOutputs = {singleDivided({pa8}, tenSources)};
    return page;
}

ZN64G125PLL::ZN64G125PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G125PLL>(), parent)
{
    build();
}
