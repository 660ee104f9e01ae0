#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G110.
class ZN64G110PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G110PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
