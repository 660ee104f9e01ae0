#pragma once

#include "pages/description/clocksource.h"

#include <QString>

/// What feeds an output field.
struct OutputEntry
{
    const char* name; ///< of the edit
    ClockSource source;
    double divisor = 1.0; ///< of the clock on the way to this output
};

/// The entry of an output field; a name that is none ends the program.
const OutputEntry& outputEntry(const QString& name);
