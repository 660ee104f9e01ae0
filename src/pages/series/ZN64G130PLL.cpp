#include "pages/series/ZN64G130PLL.h"

#include "pages/description/clockoutputs.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G130PLL::describe()
{
    PageDescription page{ZN64G130, QSize(1404, 828)};
    page.tree = {{"modes"}, {"clockoutnine"}};
    page.buses = {{"buses"}};
    page.column = {
        {"outputsfew", 1178}
    };
    page.outputs = "i2s systick dma gpio apb1peripheral apb1tmr apb2peripheral apb2tmr";
    page.lists.apb1 = {"SPI2 USART2 I2C1 I2C2"};
    page.lists.apb1Timers = {"TMR3 TMR6 TMR14"};
    page.lists.apb2 = {"SPI1 USART1 SCFG CMP"};
    page.lists.apb2Timers = {"TMR1 TMR15 TMR16 TMR17", -91};
    page.hextEdit = "m_hext_LineEdit";
    page.sclkSolidFrame = true;

    page.limits.apb1 = 120.0;
    page.limits.apb2 = 120.0;
    page.limits.adcCommaOnSaving = true;
    page.start = {
        {"pllmult", 15 },
        {"pllns",   120},
        {"pllfr",   8  }
    };
    page.rtcHextDivisor = 32.0;

    using namespace clockoutputs;
    page.clockOutputs = {singleDivided({pa8, pa9}, nineSources)};
    return page;
}

ZN64G130PLL::ZN64G130PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G130PLL>(), parent)
{
    build();
}
