#pragma once

#include "pages/ClockTreePage.h"

/// The page of the ZN64G110R.
class ZN64G110RPLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G110RPLL(QWidget* parent = nullptr);

    /// What sets the series apart.
    static PageDescription describe();
};
