#include "anchors.h"

#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace {

// A wire keeps away from the corners of what it joins and from the letters of a label.
constexpr double cornerRoom = 3;
constexpr double labelRoom = 4;
// A wire that comes straight from afar may meet a radio button this far off its middle.
constexpr double radioRoom = 2;
// A dot reaches beyond the wire that it stands on.
constexpr double dotRoom = 2;

constexpr int fieldPull = 2;
constexpr int radioPull = 1;

const QHash<QString, Side>& sides()
{
    static const QHash<QString, Side> names{
        {QStringLiteral("left"),   Side::Left  },
        {QStringLiteral("right"),  Side::Right },
        {QStringLiteral("top"),    Side::Top   },
        {QStringLiteral("bottom"), Side::Bottom}
    };
    return names;
}

bool isUpright(Side side)
{
    return side == Side::Left || side == Side::Right;
}

double edgeOf(const QRectF& rect, Side side)
{
    switch (side) {
    case Side::Left:
        return rect.left();
    case Side::Right:
        return rect.right();
    case Side::Top:
        return rect.top();
    default:
        return rect.bottom();
    }
}

/// The anchor on a side of the rectangle, free between two levels.
Anchor onSide(const QRectF& rect, Side side, double low, double high, const QString& owner)
{
    const double middle = onPixel((low + high) / 2);
    if (isUpright(side))
        return {
            {edgeOf(rect, side), middle},
            Qt::Horizontal, low, high, owner, {      }
        };
    return {
        {middle, edgeOf(rect, side)},
        Qt::Vertical, low, high, owner, {     }
    };
}

double dotOn(const Wire& wire)
{
    return wire.width < weight::bar ? dotRoom + wire.width / 2 : 0;
}

bool within(double value, double one, double other)
{
    return value >= std::min(one, other) && value <= std::max(one, other);
}

bool onSegment(const QPointF& point, const Segment& segment)
{
    return within(point.x(), segment.from.x(), segment.to.x()) &&
           within(point.y(), segment.from.y(), segment.to.y());
}

} // namespace

double onPixel(double level)
{
    return std::floor(level) + 0.5;
}

Side opposite(Side side)
{
    switch (side) {
    case Side::Left:
        return Side::Right;
    case Side::Right:
        return Side::Left;
    case Side::Top:
        return Side::Bottom;
    default:
        return Side::Top;
    }
}

double commonLevel(const QVector<Anchor>& ends)
{
    int pull = 0;
    for (const Anchor& end : ends)
        pull = std::max(pull, end.pull);
    double least = std::numeric_limits<double>::max();
    double most = std::numeric_limits<double>::lowest();
    double low = most;
    double high = least;
    for (const Anchor& end : ends) {
        low = std::max(low, end.low);
        high = std::min(high, end.high);
        if (end.pull < pull)
            continue;
        least = std::min(least, end.level());
        most = std::max(most, end.level());
    }
    return std::max(low, std::min(high, onPixel((least + most) / 2)));
}

QPointF Anchor::at(double level) const
{
    return direction == Qt::Horizontal ? QPointF(point.x(), level) : QPointF(level, point.y());
}

QRectF Anchors::rectOf(const QString& name) const
{
    if (const PlacedControl* control = m_page.find(name))
        return control->rect;
    if (const std::optional<QRectF> rect = m_drawing.rectOf(name))
        return *rect;
    throw TreeError(QStringLiteral("there is no control or figure %1").arg(name));
}

double Anchors::named(const QString& name, const QString& side, Qt::Orientation axis) const
{
    if (side.isEmpty() && m_defined.contains(name))
        return m_defined.value(name);
    const QRectF rect = rectOf(name);
    if (side.isEmpty())
        return axis == Qt::Horizontal ? rect.center().x() : rect.center().y();
    if (isUpright(sides().value(side)) != (axis == Qt::Horizontal))
        throw TreeError(QStringLiteral("%1.%2 is no place along this axis").arg(name, side));
    return edgeOf(rect, sides().value(side));
}

double Anchors::coordinate(const QString& text, Qt::Orientation axis) const
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber)
        return number;
    static const QRegularExpression form(
        QStringLiteral("^(\\w+)(?:\\.(left|right|top|bottom))?([+-]\\d+(?:\\.\\d+)?)?$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        throw TreeError(QStringLiteral("%1 is no coordinate").arg(text));
    return named(match.captured(1), match.captured(2), axis) + match.captured(3).toDouble();
}

Anchor Anchors::side(const QString& owner, Side side, double offset) const
{
    const PlacedControl* control = m_page.find(owner);
    const bool label = control && control->kind == ControlKind::Label;
    const double room = label ? labelRoom : 0;
    const QRectF rect = rectOf(owner).adjusted(-room, -room, room, room);
    const double low = isUpright(side) ? rect.top() : rect.left();
    const double high = isUpright(side) ? rect.bottom() : rect.right();
    if (offset == 0) {
        Anchor anchor = onSide(rect, side, low + cornerRoom, high - cornerRoom, owner);
        anchor.pull = label || m_drawing.mux(owner) ? 0 : fieldPull;
        return anchor;
    }
    const double level = onPixel((low + high) / 2 + offset);
    if (!within(level, low, high))
        throw TreeError(QStringLiteral("the offset leaves the side of %1").arg(owner));
    return onSide(rect, side, level, level, owner);
}

Anchor Anchors::input(const QString& radio) const
{
    const Mux* mux = m_drawing.mux(radio);
    if (!mux)
        throw TreeError(QStringLiteral("%1 lies in no multiplexer").arg(radio));
    const Side side = opposite(mux->nose);
    const QPointF middle = rectOf(radio).center();
    const double level = onPixel(isUpright(side) ? middle.y() : middle.x());
    Anchor anchor = onSide(mux->rect, side, level - radioRoom, level + radioRoom, radio);
    anchor.pull = radioPull;
    return anchor;
}

Anchor Anchors::branch(const QString& name, const QString& place) const
{
    const bool alongX = place.startsWith(QLatin1String("x="));
    const double value = onPixel(coordinate(place.mid(2), alongX ? Qt::Horizontal : Qt::Vertical));
    for (const Wire& wire : m_drawing.wires) {
        if (wire.name != name)
            continue;
        for (const Segment& segment : segmentsOf(wire.points)) {
            const QPointF point =
                alongX ? QPointF(value, segment.from.y()) : QPointF(segment.from.x(), value);
            if (segment.isHorizontal() == alongX && onSegment(point, segment))
                return {point, std::nullopt, 0, 0, {}, wire.net, dotOn(wire)};
        }
    }
    throw TreeError(QStringLiteral("no wire %1 passes %2").arg(name, place));
}

Anchor Anchors::anchor(const QString& text) const
{
    static const QRegularExpression branchForm(QStringLiteral("^(\\w+)@([xy]=.+)$"));
    const QRegularExpressionMatch branching = branchForm.match(text);
    if (branching.hasMatch())
        return branch(branching.captured(1), branching.captured(2));
    static const QRegularExpression form(
        QStringLiteral("^(\\w+)\\.(left|right|top|bottom|in|nose)([+-]\\d+(?:\\.\\d+)?)?$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        throw TreeError(QStringLiteral("%1 is no end of a wire").arg(text));
    const QString owner = match.captured(1);
    const QString where = match.captured(2);
    const double offset = match.captured(3).toDouble();
    if (where == QLatin1String("in"))
        return input(owner);
    if (where != QLatin1String("nose"))
        return side(owner, sides().value(where), offset);
    const Mux* mux = m_drawing.mux(owner);
    if (!mux)
        throw TreeError(QStringLiteral("there is no multiplexer %1").arg(owner));
    return side(mux->name, mux->nose, offset);
}
