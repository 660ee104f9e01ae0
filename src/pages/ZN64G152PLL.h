#pragma once

#include "ClockTreePage.h"

class ZN64G152PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G152PLL(QWidget* parent = nullptr);
};
