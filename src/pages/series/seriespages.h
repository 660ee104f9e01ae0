#pragma once

#include "pages/ClockTreePage.h"

/// A new page of the series, in its start state; null for a value that is no series.
ClockTreePage* createSeriesPage(ZN64MCUSERIALS series, QWidget* parent);
