#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G174, a sibling of the ZN64G171.
class ZN64G174PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G174PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
