#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64TQ125, a sibling of the ZN64G125.
class ZN64TQ125PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64TQ125PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
