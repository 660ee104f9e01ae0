#include "pages/series/seriespages.h"

#include "pages/series/families.h"
#include "pages/series/seriesclasses.h"

#include <algorithm>
#include <iterator>

namespace {

/// Built at the first page of the series and kept: pages and blocks refer to it.
template <PageDescription (*describe)()>
const PageDescription& descriptionBy()
{
    static const PageDescription page = complete(describe());
    return page;
}

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

} // namespace

#define CONSTRUCT(word, describe)                                                                            \
    ZN64##word##PLL::ZN64##word##PLL(QWidget* parent)                                                        \
        : ClockTreePage(descriptionBy<families::describe>(), parent)                                         \
    {                                                                                                        \
        build();                                                                                             \
    }

CONSTRUCT(G110, g110)
CONSTRUCT(G110R, g110r)
CONSTRUCT(G114, g114)
CONSTRUCT(H110R, h110r)
CONSTRUCT(G120, g120)
CONSTRUCT(G150, g150)
CONSTRUCT(G152, g152)

namespace {

const SeriesPage pages[] = {
    {ZN64G110,  make<ZN64G110PLL> },
    {ZN64G110R, make<ZN64G110RPLL>},
    {ZN64G114,  make<ZN64G114PLL> },
    {ZN64H110R, make<ZN64H110RPLL>},
    {ZN64G120,  make<ZN64G120PLL> },
    {ZN64G150,  make<ZN64G150PLL> },
    {ZN64G152,  make<ZN64G152PLL> },
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
