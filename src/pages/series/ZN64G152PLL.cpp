#include "pages/series/ZN64G152PLL.h"

#include "pages/series/ZN64G150PLL.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G152PLL::describe()
{
    PageDescription page = ZN64G150PLL::describe();
    page.series = ZN64G152;
    page.buses[0] = {"systick", 1092, 74};
    page.buses[1] = {"apb1div", 1035, 448};
    page.buses.push_back({"apb1caption", 1035, 448});
    page.column = {
        {"G152", 1176}
    };
    page.outputs =
        "i2s systick sido dma xmc gpio dvp qspi emac adc apb1peripheral apb1tmr apb2peripheral apb2tmr";
    page.limits.askedAdc = 80.0;
    return page;
}

ZN64G152PLL::ZN64G152PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G152PLL>(), parent)
{
    build();
}
