#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G146, a sibling of the ZN64G142.
class ZN64G146PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G146PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
