#pragma once

#include "drawing.h"
#include "pagelayout.h"

/// Tells what a reader of the picture would stumble over, in any state of the page: controls that stand on or
/// too close to each other, figures and wires that cross controls, labels or each other, wires that run
/// together without being joined, kinks and steps, ends off the middle, radio buttons without a multiplexer,
/// inputs and outputs without a wire. What the tree allows is not told; an allowance that nothing needs is.
/// tree is the file to name where no line is to blame.
void checkDrawing(const Drawing& drawing, const std::vector<PageLayout>& states, const QString& tree,
                  Problems& problems);

/// Where two wires of different signals cross at right angles.
bool crosses(const Segment& one, const Segment& other);
