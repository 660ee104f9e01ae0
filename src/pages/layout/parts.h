#pragma once

#include "pages/layout/places.h"

#include <QPoint>

#include <vector>

/// A part of a tree at its place. The text of the name beside this file tells where its controls stand,
/// pixels from its corner, and how they are wired; the corner is in picture pixels. A series' own text, in
/// the folder of the series, is a part like the others.
struct PlacedPart
{
    const char* name;
    int x = 0;
    int y = 0;
};

/// Columns of a clock output, picture pixels: its radio buttons, the names and the values of its sources;
/// labelsDown from button to labels.
struct SourceColumns
{
    int radioX = 0;
    int nameX = 0;
    int valueX = 0;
    int labelsDown = 0;
};

namespace layout {

/// The parts with those within them behind them, each at its place. A name that no text has ends the program.
std::vector<PlacedPart> withInner(const std::vector<PlacedPart>& parts);

/// The places of the controls of these parts. A control with two places ends the program.
Places placesOf(const std::vector<PlacedPart>& parts);

/// Where the rows of what goes by the name stand, in order: x of their part, and y. "outputs" is the column
/// of outputs, "clockout" and the like the sources of a clock output. Empty if the parts have none.
std::vector<QPoint> rowsOf(const std::vector<PlacedPart>& parts, const char* name);

/// The columns of the sources of a clock output. An output that no part places ends the program.
SourceColumns columnsOf(const std::vector<PlacedPart>& parts, const char* clockOutput);

} // namespace layout
