#include "pages/series/ZN64H133PLL.h"

#include "pages/series/ZN64G133PLL.h"
#include "pages/series/seriespage.h"

PageDescription ZN64H133PLL::describe()
{
    PageDescription page = ZN64G133PLL::describe();
    page.series = ZN64H133;
    return page;
}

ZN64H133PLL::ZN64H133PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64H133PLL>(), parent)
{
    build();
}
