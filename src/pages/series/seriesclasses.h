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
SERIES_PAGE(G150)
SERIES_PAGE(G152)
