#include "canvas/comboarrow.h"

#include <QPainter>
#include <QPainterPath>

namespace {

// The arrow from its middle, pixels: half of its width, and of its height.
constexpr qreal arrowAcross = 3.25;
constexpr qreal arrowDown = 1.625;
constexpr qreal arrowStroke = 1.75;
static_assert(comboarrow::across == arrowAcross + arrowStroke / 2);

} // namespace

void comboarrow::draw(QPainter& painter, const QPointF& middle, bool enabled)
{
    QPainterPath arrow(middle + QPointF(-arrowAcross, -arrowDown));
    arrow.lineTo(middle + QPointF(0, arrowDown));
    arrow.lineTo(middle + QPointF(arrowAcross, -arrowDown));
    const QColor color = enabled ? QColor(0, 32, 82) : QColor(Qt::gray);
    const bool smooth = painter.testRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(arrow, QPen(color, arrowStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setRenderHint(QPainter::Antialiasing, smooth);
}
