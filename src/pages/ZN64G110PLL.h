#pragma once

#include "ClockTreePage.h"

class ZN64G110PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G110PLL(QWidget* parent = nullptr);
};

/// The reference: what the other series' descriptions start from.
const PageDescription& g110Description();
