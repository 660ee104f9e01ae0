#pragma once

#include "ClockTreePage.h"

class ZN64G150PLL : public ClockTreePage
{
    Q_OBJECT

public:
    explicit ZN64G150PLL(QWidget* parent = nullptr);
};

/// What its sibling starts from.
const PageDescription& g150Description();
