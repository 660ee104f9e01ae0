#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G120.
class ZN64G120PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G120PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
