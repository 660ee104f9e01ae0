#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64H133, a sibling of the ZN64G133.
class ZN64H133PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64H133PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
