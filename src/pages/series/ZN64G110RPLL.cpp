#include "pages/series/ZN64G110RPLL.h"

#include "pages/description/clockoutputs.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G110RPLL::describe()
{
    PageDescription page{ZN64G110R, QSize(1408, 830)};
    page.tree = {
        {"multiplierhick"},
        {"hextdivpll",     220, 340},
        {"clockoutten"            }
    };
    page.buses = {{"buses"}};
    page.column = {
        {"outputsten", 1180}
    };
    page.moved = {
        {"m_sclk_Label",      793, 325},
        {"m_sclk_lineEdit",   783, 345},
        {"m_sclkRange_Label", 798, 374}
    };
    page.outputs = "i2s systick sido dma xmc gpio apb1peripheral apb1tmr apb2peripheral apb2tmr";
    page.lists.apb1 = {"SPI2 SPI3 SPI4 USART2 USART3 UART4 UART5 I2C1 I2C2 CAN1 CAN2 DAC"};
    page.lists.apb1Timers = {"TMR2 TMR3 TMR4 TMR5 TMR6 TMR7 TMR12 TMR13 TMR14"};
    page.lists.apb2 = {"I2C3 SPI1 USART1 USART6 UART7 UART8"};
    page.lists.apb2Timers = {"TMR1 TMR8 TMR9 TMR10 TMR11", -113};
    page.rtcName = "rtc";

    page.limits.apb1 = 120.0;
    page.limits.apb2 = 120.0;
    page.start = {
        {"hextdiv", 2 },
        {"pllmult", 30},
        {"usbdiv",  4 }
    };
    page.usbMovesBusyPll = true;

    using namespace clockoutputs;
    page.clockOutputs = {singleDivided({pa8}, tenSources)};
    return page;
}

ZN64G110RPLL::ZN64G110RPLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G110RPLL>(), parent)
{
    build();
}
