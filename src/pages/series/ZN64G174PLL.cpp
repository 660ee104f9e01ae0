#include "pages/series/ZN64G174PLL.h"

#include "pages/series/ZN64G171PLL.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G174PLL::describe()
{
    PageDescription page = ZN64G171PLL::describe();
    page.series = ZN64G174;
    page.tree.push_back({"usbphy", 1180, 707});
    // The PHY of USB wants 12 MHz. 12 by 72 gives the same clocks as 8 by 108.
    page.startWith({
        {"hext",  12},
        {"pllns", 72}
    });
    return page;
}

ZN64G174PLL::ZN64G174PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G174PLL>(), parent)
{
    build();
}
