#include "pages/series/ZN64H110RPLL.h"

#include "pages/series/ZN64G110RPLL.h"
#include "pages/series/seriespage.h"

PageDescription ZN64H110RPLL::describe()
{
    PageDescription page = ZN64G110RPLL::describe();
    page.series = ZN64H110R;
    page.limits.apb1 = 100.0;
    page.limits.apb2 = 100.0;
    page.startWith({
        {"pllmult", 25}
    });
    return page;
}

ZN64H110RPLL::ZN64H110RPLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64H110RPLL>(), parent)
{
    build();
}
