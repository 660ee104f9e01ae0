#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G114, a sibling of the ZN64G110R.
class ZN64G114PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G114PLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
