#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G152, a sibling of the ZN64G150.
class ZN64G152PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G152PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
