#include "pages/series/ZN64G135PLL.h"

#include "pages/description/clockoutputs.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G135PLL::describe()
{
    PageDescription page{ZN64G135, QSize(1408, 830)};
    page.tree = {{"modes"}, {"usbroute"}, {"clockoutten"}};
    page.buses = {{"buses"}};
    page.column = {
        {"outputsfew", 1180}
    };
    page.outputs = "i2s systick dma gpio apb1peripheral apb1tmr apb2peripheral apb2tmr";
    page.lists.apb1 = {"SPI2 SPI3 USART2 USART3 USART4 I2C1 I2C2 CAN1"};
    page.lists.apb1Timers = {"TMR2 TMR3 TMR6 TMR7 TMR13 TMR14"};
    page.lists.apb2 = {"SPI1 USART1 SCFG"};
    page.lists.apb2Timers = {"TMR1 TMR15 TMR16 TMR17", -91};
    page.hextEdit = "m_hext_LineEdit";
    page.sclkSolidFrame = true;

    page.limits.apb1 = 96.0;
    page.limits.apb2 = 96.0;
    page.limits.adcCommaOnSaving = true;
    page.start = {
        {"pllmult", 12},
        {"pllns",   96},
        {"pllfr",   8 },
        {"usbdiv",  2 }
    };
    page.usbMovesBusyPll = true;

    using namespace clockoutputs;
    page.clockOutputs = {singleDivided({pa8, pa9, pb13}, tenSources)};
    return page;
}

ZN64G135PLL::ZN64G135PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G135PLL>(), parent)
{
    build();
}
