#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G133.
class ZN64G133PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G133PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
