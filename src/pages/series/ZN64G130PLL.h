#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G130.
class ZN64G130PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G130PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
