#pragma once

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
    /// A label's or an edit's text. A word in braces stands for a fact of the series, as "{sclk}" for its
    /// highest system clock, MHz.
    const char* text = "";
    int width = 0; ///< of a combo box, pixels
    int z = 0;
    int pointSize = 10;
    int weight = 0; ///< QFont weight, 75 is bold
    /// What assistive tools say of it; of an output without, what follows from its text.
    const char* spoken = "";
};

namespace controlcatalogue {

/// The entry of the control; null for a name that no series has. Clock outputs and peripheral clocks are made
/// by pattern and not listed.
const ControlEntry* find(const QString& name);

} // namespace controlcatalogue
