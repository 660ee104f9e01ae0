#include "pages/series/ZN64P216PLL.h"

#include "pages/series/ZN64P212PLL.h"
#include "pages/series/seriespage.h"

PageDescription ZN64P216PLL::describe()
{
    PageDescription page = ZN64P212PLL::describe();
    page.series = ZN64P216;
    return page;
}

ZN64P216PLL::ZN64P216PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64P216PLL>(), parent)
{
    build();
}
