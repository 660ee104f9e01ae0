#pragma once

#include "tree/figures.h"

#include <QFont>
#include <QRgb>

class QPainter;

namespace tree {

/// The ground of multiplexers, which the radio buttons of the pages paint too.
constexpr QRgb muxGround = qRgb(222, 235, 246);

/// The font of what stands on the picture, at its own size.
QFont captionFont(Style style = Style::Plain);

/// Draws the picture where the painter's transform puts it, at any size: strokes are whole pixels wide and
/// lie on whole pixels of the device, unless the transform turns or shears. What lies outside of the seen
/// rectangle, picture pixels, may be left out.
void draw(QPainter& painter, const Picture& picture, const QRectF& seen);

} // namespace tree
