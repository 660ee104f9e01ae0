#pragma once

#include "pages/description/limits.h"

#include <QStringList>

#include <optional>

/// What a block knows of one of its fields, to be told to those who point at it and to those who hear it.
struct Remarks
{
    std::optional<double> shown; ///< what decides red, MHz
    Limits limits = {};          ///< that make the field red, MHz
    /// The name of what decides red where it is not what the field shows.
    QString decidedBy = {};
    /// The name of the clock that the field shows where the chip takes another one.
    QString shows = {};

    // Of a field that takes typed text.

    std::optional<double> lowest = {};
    std::optional<double> highest = {};
    const char* unit = "MHz";
    std::optional<double> typed = {}; ///< what stands in the field
    bool waits = false;               ///< the text is not taken over yet
    /// What was wanted of the solver that found the value shown, MHz.
    std::optional<double> wanted = {};
};

namespace remarks {

/// The sentences on the field, in the user's language. normalMode: the PLL is in its normal mode.
QStringList sentences(const Remarks& remarks, bool normalMode);

QString notInUse();

} // namespace remarks
