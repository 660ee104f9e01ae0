#pragma once

#include "pages/ClockTreePage.h"

// A class per series: each is the context in which the texts of its page translate.

#define SERIES_PAGE(word)                                                                                    \
    class ZN64##word##PLL : public ClockTreePage                                                             \
    {                                                                                                        \
        Q_OBJECT                                                                                             \
    public:                                                                                                  \
        explicit ZN64##word##PLL(QWidget* parent = nullptr);                                                 \
    };

SERIES_PAGE(G110)
SERIES_PAGE(G110R)
SERIES_PAGE(G114)
SERIES_PAGE(H110R)
SERIES_PAGE(G120)
SERIES_PAGE(G125)
SERIES_PAGE(TQ125)
SERIES_PAGE(G130)
SERIES_PAGE(G135)
SERIES_PAGE(D042)
SERIES_PAGE(G142)
SERIES_PAGE(G146)
SERIES_PAGE(G133)
SERIES_PAGE(H133)
SERIES_PAGE(P212)
SERIES_PAGE(P216)
SERIES_PAGE(G171)
SERIES_PAGE(G174)
SERIES_PAGE(G190)
SERIES_PAGE(G165)
SERIES_PAGE(G166)
SERIES_PAGE(G167)
SERIES_PAGE(G150)
SERIES_PAGE(G152)
