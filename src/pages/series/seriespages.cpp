#include "pages/series/seriespages.h"

#include "pages/series/ZN64D042PLL.h"
#include "pages/series/ZN64G110PLL.h"
#include "pages/series/ZN64G110RPLL.h"
#include "pages/series/ZN64G114PLL.h"
#include "pages/series/ZN64G120PLL.h"
#include "pages/series/ZN64G125PLL.h"
#include "pages/series/ZN64G130PLL.h"
#include "pages/series/ZN64G133PLL.h"
#include "pages/series/ZN64G135PLL.h"
#include "pages/series/ZN64G142PLL.h"
#include "pages/series/ZN64G146PLL.h"
#include "pages/series/ZN64G150PLL.h"
#include "pages/series/ZN64G152PLL.h"
#include "pages/series/ZN64G165PLL.h"
#include "pages/series/ZN64G166PLL.h"
#include "pages/series/ZN64G167PLL.h"
#include "pages/series/ZN64G171PLL.h"
#include "pages/series/ZN64G174PLL.h"
#include "pages/series/ZN64G190PLL.h"
#include "pages/series/ZN64H110RPLL.h"
#include "pages/series/ZN64H133PLL.h"
#include "pages/series/ZN64P212PLL.h"
#include "pages/series/ZN64P216PLL.h"
#include "pages/series/ZN64TQ125PLL.h"

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

} // namespace

ClockTreePage* createSeriesPage(ZN64MCUSERIALS series, QWidget* parent)
{
    const auto page = std::find_if(std::begin(pages), std::end(pages),
                                   [series](const SeriesPage& each) { return each.series == series; });
    return page != std::end(pages) ? page->create(parent) : nullptr;
}
