#include "checker.h"
#include "checks.h"

#include <algorithm>

namespace {

// Pixels.
constexpr double wireRoom = 2;        // between a wire and what it passes
constexpr double wireDistance = 4;    // between two wires side by side
constexpr double crossingRoom = 2.5;  // from a crossing to the end of a piece
constexpr double shortestPiece = 6;   // of a wire with bends
constexpr double shortestArrival = 9; // of the piece that carries the arrowhead
constexpr double middleRoom = 3;      // of an arrow off the middle of a field
constexpr double behindRoom = 3;      // of a wire off the middle of a field that covers it
constexpr double largestStep = 5;     // of a row that seems straight but is not

bool hits(const Wire& wire, const QRectF& forbidden)
{
    const std::vector<Segment> segments = segmentsOf(wire.points);
    return std::any_of(segments.begin(), segments.end(), [&](const Segment& segment) {
        return overlap(grown(segment.bounds(), wire.width / 2), forbidden);
    });
}

/// The names that stand for a wire in an allowance.
QStringList namesOf(const Wire& wire)
{
    QStringList names{wire.name, wire.from, wire.to};
    names.removeAll(QString());
    return names;
}

/// How far two parallel segments run side by side; negative if there is a gap between them.
double sharedLength(const Segment& one, const Segment& other)
{
    const QRectF a = one.bounds();
    const QRectF b = other.bounds();
    return one.isHorizontal() ? std::min(a.right(), b.right()) - std::max(a.left(), b.left())
                              : std::min(a.bottom(), b.bottom()) - std::max(a.top(), b.top());
}

bool runTogether(const Segment& one, const Segment& other, double distance)
{
    if (one.isHorizontal() != other.isHorizontal() || sharedLength(one, other) <= 0)
        return false;
    return qAbs(one.isHorizontal() ? one.from.y() - other.from.y() : one.from.x() - other.from.x()) <
           distance;
}

/// Where the lines of two segments at right angles meet.
QPointF meeting(const Segment& one, const Segment& other)
{
    return one.isHorizontal() ? QPointF(other.from.x(), one.from.y()) : QPointF(one.from.x(), other.from.y());
}

bool isBranchPoint(const QPointF& point, const Wire& one, const Wire& other)
{
    return one.net == other.net &&
           ((one.branch && one.points.first() == point) || (other.branch && other.points.first() == point));
}

/// What is wrong between two segments of two wires, as the end of a sentence; empty if nothing is.
QString conflict(const Segment& one, const Segment& other, const Wire& oneWire, const Wire& otherWire)
{
    const double distance = wireDistance + (oneWire.width + otherWire.width) / 2;
    if (runTogether(one, other, distance))
        return QStringLiteral("runs along");
    if (one.isHorizontal() == other.isHorizontal())
        return {};
    const QPointF point = meeting(one, other);
    if (isBranchPoint(point, oneWire, otherWire))
        return {};
    if (crosses(one, other))
        return oneWire.net == otherWire.net ? QStringLiteral("crosses its own signal,") : QString();
    if (grown(one.bounds(), crossingRoom).contains(point) &&
        grown(other.bounds(), crossingRoom).contains(point))
        return QStringLiteral("touches without joining");
    return {};
}

} // namespace

/// A wire may touch what it is joined to from outside, run behind the fields that its line names, and keeps
/// away from anything else.
void Checker::checkCovers(const Wire& wire, const Block& block)
{
    const bool joined = block.owners.contains(wire.from) || block.owners.contains(wire.to);
    const double room = joined ? -wire.width / 2 : wireRoom;
    if (!hits(wire, grown(block.rect, room)))
        return;
    const std::vector<Segment> segments = segmentsOf(wire.points);
    const bool covered =
        block.field && !joined && wire.behind.contains(block.name) &&
        std::all_of(segments.begin(), segments.end(), [&block](const Segment& segment) {
            return !overlap(grown(segment.bounds(), 1), block.rect) ||
                   (segment.isHorizontal() && qAbs(segment.from.y() - block.rect.center().y()) <= behindRoom);
        });
    if (!covered)
        tell(wire.source, QStringLiteral("the wire crosses %1").arg(block.name), namesOf(wire), block.owners);
}

/// The end must touch what it is joined to, and a field in the middle of its side.
void Checker::checkEnd(const Wire& wire, const QString& name, const Segment& piece, const QPointF& end)
{
    const bool control = !name.isEmpty() && !m_drawing.rectOf(name) && !m_drawing.mux(name);
    if (!control)
        return;
    const PlacedControl* placed = m_page.find(name);
    if (!placed) {
        tell(wire.source, QStringLiteral("the wire ends at %1, which is hidden").arg(name));
        return;
    }
    if (placed->kind == ControlKind::Label)
        return;
    if (!grown(placed->rect, 0.5).contains(end))
        tell(wire.source, QStringLiteral("the wire does not reach %1").arg(name));
    else if (piece.isHorizontal() && qAbs(end.y() - placed->rect.center().y()) > middleRoom)
        tell(wire.source, QStringLiteral("the wire meets %1 off its middle").arg(name), {name},
             {QStringLiteral("middle")});
}

void Checker::checkEnds(const Wire& wire)
{
    const std::vector<Segment> segments = segmentsOf(wire.points);
    checkEnd(wire, wire.from, segments.front(), wire.points.first());
    checkEnd(wire, wire.to, segments.back(), wire.points.last());
}

void Checker::checkWire(const Wire& wire)
{
    const QRectF picture(QPointF(), QSizeF(m_page.size));
    if (!picture.contains(grown(wire.points.boundingRect(), wire.width / 2)))
        tell(wire.source, QStringLiteral("the wire reaches out of the picture"));
    const std::vector<Segment> segments = segmentsOf(wire.points);
    if (wire.end == WireEnd::Arrow && segments.back().length() < shortestArrival)
        tell(wire.source, QStringLiteral("the wire has no room for its arrowhead at %1")
                              .arg(wire.to.isEmpty() ? QStringLiteral("its end") : wire.to));
    if (std::any_of(segments.begin(), segments.end(),
                    [](const Segment& segment) { return segment.length() < shortestPiece; }))
        tell(wire.source, QStringLiteral("the wire has a kink"));
    for (const QString& name : wire.behind) {
        const PlacedControl* placed = m_page.find(name);
        if (placed && (placed->kind != ControlKind::Field || !hits(wire, placed->rect)))
            tell(wire.source, QStringLiteral("the wire does not run behind %1").arg(name));
    }
}

void Checker::checkBesides(const Wire& one, const Wire& other)
{
    for (const Segment& segment : segmentsOf(one.points)) {
        for (const Segment& otherSegment : segmentsOf(other.points)) {
            const QString wrong = conflict(segment, otherSegment, one, other);
            if (wrong.isEmpty())
                continue;
            tell(other.source, QStringLiteral("the wire %1 the wire of %2:%3")
                                   .arg(wrong, one.source.file)
                                   .arg(one.source.number));
            return;
        }
    }
}

/// Whether the wire comes from a flag, which stands where its name does.
bool Checker::isFlagged(const Wire& wire) const
{
    return std::any_of(m_drawing.tags.begin(), m_drawing.tags.end(),
                       [&wire](const Tag& tag) { return !tag.label.isEmpty() && tag.label == wire.from; });
}

/// A row that goes on behind a field or figure goes on at its level, or visibly elsewhere.
void Checker::checkRow(const Block& block)
{
    for (const Wire& in : m_drawing.wires) {
        if (!block.owners.contains(in.to) || !segmentsOf(in.points).back().isHorizontal() || isFlagged(in))
            continue;
        for (const Wire& out : m_drawing.wires) {
            if (!block.owners.contains(out.from) || !segmentsOf(out.points).front().isHorizontal())
                continue;
            const double step = qAbs(in.points.last().y() - out.points.first().y());
            if (step > 0 && step <= largestStep)
                tell(out.source, QStringLiteral("the row steps by %1 at %2").arg(step).arg(block.name),
                     block.owners, {QStringLiteral("step")});
        }
    }
}

void Checker::checkWires()
{
    std::vector<Block> all = m_controls;
    all.insert(all.end(), m_figures.begin(), m_figures.end());
    for (auto wire = m_drawing.wires.begin(); wire != m_drawing.wires.end(); ++wire) {
        checkWire(*wire);
        checkEnds(*wire);
        for (const Block& block : all)
            checkCovers(*wire, block);
        std::for_each(std::next(wire), m_drawing.wires.end(),
                      [&](const Wire& other) { checkBesides(*wire, other); });
    }
    std::for_each(all.begin(), all.end(), [this](const Block& block) { checkRow(block); });
}

bool crosses(const Segment& one, const Segment& other)
{
    if (one.isHorizontal() == other.isHorizontal())
        return false;
    const QPointF point = meeting(one, other);
    const auto passes = [&point](const Segment& segment) {
        const QRectF line = segment.bounds();
        return segment.isHorizontal()
                   ? point.x() > line.left() + crossingRoom && point.x() < line.right() - crossingRoom
                   : point.y() > line.top() + crossingRoom && point.y() < line.bottom() - crossingRoom;
    };
    return passes(one) && passes(other);
}
