#pragma once

#include "tree/circuit.h"
#include "tree/figures.h"

#include <QFont>
#include <QRgb>

class QPainter;

namespace tree {

/// The ground of multiplexers, which the radio buttons of the pages paint too.
constexpr QRgb muxGround = qRgb(222, 235, 246);

/// The font of what stands on the picture, at its own size.
QFont captionFont(Style style = Style::Plain);

/// Figures of a picture that are lifted out of it, by their places in it.
struct Marks
{
    QVector<int> wires;
    QVector<int> below;
    QVector<int> above;
};

/// How a picture looks at present.
struct State
{
    Uses uses = {}; ///< empty: everything is in use
    Marks marks = {};
};

/// Draws the picture where the painter's transform puts it, at any size: strokes are whole pixels wide and
/// lie on whole pixels of the device, unless the transform turns or shears. What lies outside of the seen
/// rectangle, picture pixels, may be left out.
void draw(QPainter& painter, const Picture& picture, const QRectF& seen, const State& state = {});

} // namespace tree
