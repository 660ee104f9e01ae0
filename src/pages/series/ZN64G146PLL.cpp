#include "pages/series/ZN64G146PLL.h"

#include "pages/series/ZN64G142PLL.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G146PLL::describe()
{
    PageDescription page = ZN64G142PLL::describe();
    page.series = ZN64G146;
    return page;
}

ZN64G146PLL::ZN64G146PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G146PLL>(), parent)
{
    build();
}
