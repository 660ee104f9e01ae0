#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G171.
class ZN64G171PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G171PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
