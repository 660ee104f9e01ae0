#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64P216, a sibling of the ZN64P212.
class ZN64P216PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64P216PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
