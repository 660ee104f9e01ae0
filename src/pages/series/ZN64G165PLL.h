#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G165.
class ZN64G165PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G165PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
