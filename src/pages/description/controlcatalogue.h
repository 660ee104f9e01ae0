#pragma once

#include "pages/description/clocksource.h"

#include <QString>

enum class ControlType
{
    Label,
    Edit,
    Output, ///< a read-only edit with its label, if it has one, to the right of it
    Combo,
    Radio,
    List ///< the open list of an output's peripherals
};

/// What a control is, wherever it stands.
struct ControlEntry
{
    const char* name; ///< the member name, which is the objectName too
    ControlType kind = ControlType::Label;
    const char* text = ""; ///< a label's or an edit's text; "%1" stands for the highest system clock
    int width = 0;         ///< of a combo box, pixels
    int z = 0;
    int pointSize = 10;
    int weight = 0; ///< QFont weight, 75 is bold
    /// What assistive tools say of it; of an output without, what follows from its text.
    const char* spoken = "";
};

/// What feeds an output field.
struct OutputEntry
{
    const char* name; ///< of the edit
    ClockSource source;
    double divisor = 1.0; ///< of the clock on the way to this output
};

namespace controlcatalogue {

/// The entry of the control; null for a name that no series has. Clock outputs and peripheral clocks are made
/// by pattern and not listed.
const ControlEntry* find(const QString& name);
/// The entry of an output field; a name that is none ends the program.
const OutputEntry& output(const QString& name);

} // namespace controlcatalogue
