#include "pages/series/ZN64G167PLL.h"

#include "pages/series/ZN64G166PLL.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G167PLL::describe()
{
    PageDescription page = ZN64G166PLL::describe();
    page.series = ZN64G167;
    page.buses = {
        {"systick",       1092, 75 },
        {"apb1limited",   1036, 446},
        {"apb1timerhalf", 1092, 477},
        {"apb2limited",   1036, 560},
        {"apb2timerhalf", 1092, 590},
        {"apb3",          1036, 662}
    };
    page.column = {
        {"G167", 1182}
    };
    page.outputs =
        "i2s systick sido dma xmc gpio aes trng qspi emac adc apb1peripheral apb1tmr apb2peripheral apb2tmr "
        "apb3peripheral";
    return page;
}

ZN64G167PLL::ZN64G167PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G167PLL>(), parent)
{
    build();
}
