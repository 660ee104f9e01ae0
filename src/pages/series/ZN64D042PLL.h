#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64D042.
class ZN64D042PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64D042PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
