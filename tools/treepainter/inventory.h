#pragma once

#include <QString>

class ClockTreePage;

/// What a page holds, a line each, for people who hold it against what was wanted or compare it before and
/// after a change: every control in stacking order (kind, name, place, size, stacking level, text or items,
/// state), the limits, the start state as a design file, and the order in which a file is read.
QString inventoryOf(ClockTreePage& page);
