#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G150.
class ZN64G150PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G150PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
