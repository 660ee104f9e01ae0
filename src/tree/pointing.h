#pragma once

#include "tree/circuit.h"
#include "tree/drawing.h"

namespace tree {

/// The signal at a place of the picture, picture pixels: that of a wire within reach, or of the box, flag,
/// multiplexer, pad or bus bar there. -1 for none.
int netAt(const Picture& picture, const Circuit& circuit, const QPointF& place, double reach);

/// All that carries these signals: wires, bus bars and flags.
Marks marksOf(const Picture& picture, const Circuit& circuit, const QVector<int>& nets);

} // namespace tree
