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
CONSTRUCT(G125, g125)
CONSTRUCT(TQ125, tq125)
CONSTRUCT(G130, g130)
CONSTRUCT(G135, g135)
CONSTRUCT(D042, d042)
CONSTRUCT(G142, g142)
CONSTRUCT(G146, g146)
CONSTRUCT(G133, g133)
CONSTRUCT(H133, h133)
CONSTRUCT(P212, p212)
CONSTRUCT(P216, p216)
CONSTRUCT(G171, g171)
CONSTRUCT(G174, g174)
CONSTRUCT(G190, g190)
CONSTRUCT(G165, g165)
CONSTRUCT(G166, g166)
CONSTRUCT(G167, g167)
CONSTRUCT(G150, g150)
CONSTRUCT(G152, g152)

namespace {

const SeriesPage pages[] = {
    {ZN64G110,  make<ZN64G110PLL> },
    {ZN64G110R, make<ZN64G110RPLL>},
    {ZN64G114,  make<ZN64G114PLL> },
    {ZN64H110R, make<ZN64H110RPLL>},
    {ZN64G120,  make<ZN64G120PLL> },
    {ZN64G125,  make<ZN64G125PLL> },
    {ZN64TQ125, make<ZN64TQ125PLL>},
    {ZN64G130,  make<ZN64G130PLL> },
    {ZN64G135,  make<ZN64G135PLL> },
    {ZN64D042,  make<ZN64D042PLL> },
    {ZN64G142,  make<ZN64G142PLL> },
    {ZN64G146,  make<ZN64G146PLL> },
    {ZN64G133,  make<ZN64G133PLL> },
    {ZN64H133,  make<ZN64H133PLL> },
    {ZN64P212,  make<ZN64P212PLL> },
    {ZN64P216,  make<ZN64P216PLL> },
    {ZN64G171,  make<ZN64G171PLL> },
    {ZN64G174,  make<ZN64G174PLL> },
    {ZN64G190,  make<ZN64G190PLL> },
    {ZN64G165,  make<ZN64G165PLL> },
    {ZN64G166,  make<ZN64G166PLL> },
    {ZN64G167,  make<ZN64G167PLL> },
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
