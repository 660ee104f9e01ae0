#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G167, a sibling of the ZN64G166.
class ZN64G167PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G167PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
