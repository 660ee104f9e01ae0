#pragma once

#include "drawing.h"
#include "pagelayout.h"

/// Tells what a reader of the picture would stumble over: figures and wires that cross controls, labels or
/// each other, wires that run together without being joined, kinks, radio buttons without a multiplexer,
/// inputs and outputs without a wire. tree is the file to name where no line is to blame.
void checkDrawing(const Drawing& drawing, const PageLayout& page, const QString& tree, Problems& problems);

/// Where two wires of different signals cross at right angles.
bool crosses(const Segment& one, const Segment& other);
