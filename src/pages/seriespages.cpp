#include "seriespages.h"

#include "ZN64G110PLL.h"
#include "ZN64G150PLL.h"
#include "ZN64G152PLL.h"

#include <algorithm>
#include <iterator>

namespace {

struct SeriesPage
{
    ZN64MCUSERIALS series;
    ClockTreePage* (*create)(QWidget* parent);
};

template <class Page>
ClockTreePage* make(QWidget* parent)
{
    return new Page(parent);
}

const SeriesPage pages[] = {
    {ZN64G110, make<ZN64G110PLL>},
    {ZN64G150, make<ZN64G150PLL>},
    {ZN64G152, make<ZN64G152PLL>},
};

const SeriesPage* find(ZN64MCUSERIALS series)
{
    const auto page = std::find_if(std::begin(pages), std::end(pages),
                                   [series](const SeriesPage& each) { return each.series == series; });
    return page != std::end(pages) ? page : nullptr;
}

} // namespace

bool hasSeriesPage(ZN64MCUSERIALS series)
{
    return find(series) != nullptr;
}

ClockTreePage* createSeriesPage(ZN64MCUSERIALS series, QWidget* parent)
{
    const SeriesPage* page = find(series);
    return page ? page->create(parent) : nullptr;
}
