#include "pages/series/ZN64G166PLL.h"

#include "pages/series/ZN64G165PLL.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G166PLL::describe()
{
    PageDescription page = ZN64G165PLL::describe();
    page.series = ZN64G166;
    // Shown in normal colour at values that generating refuses.
    page.limits.paintedApb3 = 192.0;
    return page;
}

ZN64G166PLL::ZN64G166PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G166PLL>(), parent)
{
    build();
}
