#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G135.
class ZN64G135PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G135PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
