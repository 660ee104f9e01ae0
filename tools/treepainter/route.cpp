#include "route.h"

#include <algorithm>

namespace {

// A wire that goes on straight meets its end so far off its middle.
constexpr double middleRoom = 3;

[[noreturn]] void diagonal(const QPointF& from, const QPointF& to)
{
    throw TreeError(QStringLiteral("the wire would run diagonally from (%1, %2) to (%3, %4): give it a bend")
                        .arg(from.x())
                        .arg(from.y())
                        .arg(to.x())
                        .arg(to.y()));
}

QPolygonF straight(const Anchor& start, const Anchor& end)
{
    if (!start.direction) {
        const double level = end.direction == Qt::Horizontal ? start.point.y() : start.point.x();
        if (level < end.low || level > end.high)
            diagonal(start.point, end.point);
        return QVector<QPointF>{start.point, end.at(level)};
    }
    const double level = commonLevel({start, end});
    if (start.direction != end.direction || level < start.low || level > start.high || level < end.low ||
        level > end.high)
        diagonal(start.point, end.point);
    return QVector<QPointF>{start.at(level), end.at(level)};
}

QPointF moved(QPointF point, const Bend& bend)
{
    if (bend.axis == Qt::Horizontal)
        point.setX(onPixel(bend.coordinate));
    else
        point.setY(onPixel(bend.coordinate));
    return point;
}

void arrive(QPolygonF& points, Qt::Orientation lastAxis, const Anchor& end)
{
    const QPointF last = points.last();
    const double here = end.direction == Qt::Horizontal ? last.y() : last.x();
    if (lastAxis == end.direction) {
        const bool straight = here >= end.low && here <= end.high && qAbs(here - end.level()) <= middleRoom;
        const double level = straight ? here : end.level();
        if (level != here)
            points << (end.direction == Qt::Horizontal ? QPointF(last.x(), level) : QPointF(level, last.y()));
        else
            points.removeLast(); // the wire goes on straight
        points << end.at(level);
        return;
    }
    if (here < end.low || here > end.high)
        diagonal(last, end.point);
    points << end.at(here);
}

} // namespace

QPolygonF route(const Anchor& start, const QVector<Bend>& bends, const std::optional<Anchor>& end)
{
    if (end && !end->direction)
        throw TreeError(QStringLiteral("a wire ends at a control or figure: let the branch start there"));
    if (bends.isEmpty()) {
        if (!end)
            throw TreeError(QStringLiteral("the wire has no end"));
        return straight(start, *end);
    }
    if (start.direction && *start.direction != bends.first().axis)
        throw TreeError(QStringLiteral("the wire cannot leave %1 in this direction").arg(start.owner));
    QPolygonF points;
    points << start.point;
    for (int i = 0; i < bends.size(); ++i) {
        if (i > 0 && bends[i].axis == bends[i - 1].axis)
            throw TreeError(QStringLiteral("two bends in a row along the same axis"));
        points << moved(points.last(), bends[i]);
    }
    if (end)
        arrive(points, bends.last().axis, *end);
    return points;
}
