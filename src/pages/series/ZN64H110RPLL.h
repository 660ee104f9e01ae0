#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64H110R, a sibling of the ZN64G110R.
class ZN64H110RPLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64H110RPLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
