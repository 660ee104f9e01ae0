#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64P212.
class ZN64P212PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64P212PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
