#pragma once

#include "pages/ClockTreePage.h"

/// Whether the series has a page.
bool hasSeriesPage(ZN64MCUSERIALS series);
/// A new page of the series, in its start state; null for a series without a page.
ClockTreePage* createSeriesPage(ZN64MCUSERIALS series, QWidget* parent);
