#include "pages/series/ZN64G142PLL.h"

#include "pages/description/clockoutputs.h"
#include "pages/description/peripherals.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G142PLL::describe()
{
    PageDescription page{ZN64G142, QSize(1414, 835)};
    page.tree = {
        {"lowspeedrow" },
        {"modesrow",     0, 3},
        {"clockoutnine"            },
        {"bandone"}
    };
    page.buses = {
        {"systick",   1092, 127},
        {"apb1",      1036, 263},
        {"apb1timer", 1092, 295},
        {"apb2",      1036, 489},
        {"apb2timer", 1092, 522},
        {"apb3",      1036, 625},
        {"adc",       1115, 401}
    };
    page.column = {
        {"G142", 1186}
    };
    page.outputs = "i2s systick dma gpio apb1peripheral apb1tmr apb2peripheral apb2tmr apb3peripheral";
    page.lists.apb1 = {"SPI2 USART2 I2C1 I2C2 CAN1"};
    page.lists.apb1Timers = {"TMR3 TMR4 TMR6"};
    page.lists.apb2 = {"SPI1 USART1 SCFG CMP"};
    page.lists.apb2Timers = {"TMR1 TMR15 TMR16 TMR17", -91};

    page.limits.apb1 = 200.0;
    page.limits.apb2 = 200.0;
    page.limits.adcCommaOnSaving = true;
    page.start = {
        {"pllmult", 25},
        {"pllns",   75},
        {"pllfr",   4 },
        {"adcdiv",  6 }
    };
    page.peripherals = {peripherals::can()};
    // CAN itself goes no higher, while the buses of the series do.
    page.peripherals[0].limit = 180.0;

    using namespace clockoutputs;
    page.clockOutputs = {singleDivided({pa8, pa9}, nineSources)};
    return page;
}

ZN64G142PLL::ZN64G142PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G142PLL>(), parent)
{
    build();
}
