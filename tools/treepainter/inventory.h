#pragma once

#include "pages/description/clocksource.h"

#include <QString>

class ClockTreePage;

/// The clock's name for people who read inventories and manuals: "apb1 timer".
QString clockName(ClockSource clock);

/// What a page holds, a line each, for people who hold it against what was wanted or compare it before and
/// after a change: every control in stacking order (kind, name, place, size, stacking level, text or items,
/// state), the limits, the start state as a design file, and the order in which a file is read.
QString inventoryOf(ClockTreePage& page);
