#include "pages/series/ZN64G190PLL.h"

#include "pages/series/ZN64G171PLL.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G190PLL::describe()
{
    PageDescription page = ZN64G171PLL::describe();
    page.series = ZN64G190;
    return page;
}

ZN64G190PLL::ZN64G190PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G190PLL>(), parent)
{
    build();
}
