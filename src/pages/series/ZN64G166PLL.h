#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G166, a sibling of the ZN64G165.
class ZN64G166PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G166PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
