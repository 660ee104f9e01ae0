#pragma once

#include <QtGlobal>

class QPainter;
class QPointF;

/// The arrow of the program's combo boxes, which pages, files and screens of every size show alike.
namespace comboarrow {

/// From its middle to its ends, pixels.
constexpr qreal across = 4.125;

/// As strokes, which stay sharp at every zoom. Grey in a greyed box.
void draw(QPainter& painter, const QPointF& middle, bool enabled);

} // namespace comboarrow
