#include "checks.h"

#include <algorithm>

namespace {

// Pixels.
constexpr double wireRoom = 2;        // between a wire and what it passes
constexpr double halfWire = 0.75;     // of a wire's width
constexpr double wireDistance = 5;    // between the middle lines of two wires side by side
constexpr double shortestPiece = 6;   // of a wire with bends
constexpr double shortestArrival = 9; // of the piece that carries the arrowhead

/// What wires and figures must not cross.
struct Block
{
    QString name;
    QRectF rect;
    QStringList owners; ///< names by which a wire may be joined to it
    SourceLine source;
};

bool overlap(const QRectF& one, const QRectF& other)
{
    return one.left() < other.right() && other.left() < one.right() && one.top() < other.bottom() &&
           other.top() < one.bottom();
}

QRectF grown(const QRectF& rect, double by)
{
    return rect.adjusted(-by, -by, by, by);
}

std::vector<Block> controlBlocks(const PageLayout& page)
{
    std::vector<Block> blocks;
    for (const PlacedControl& control : page.controls)
        blocks.push_back({control.name, control.rect, {control.name}, {}});
    return blocks;
}

std::vector<Block> figureBlocks(const Drawing& drawing)
{
    std::vector<Block> blocks;
    for (const Mux& mux : drawing.muxes)
        blocks.push_back(
            {QLatin1String("mux ") + mux.name, mux.rect, mux.radios + QStringList{mux.name}, mux.source});
    for (const Box& box : drawing.boxes)
        blocks.push_back({QLatin1String("box ") + box.name, box.rect, {box.name}, box.source});
    for (const Pad& pad : drawing.pads)
        blocks.push_back({QLatin1String("pad ") + pad.name, pad.rect, {pad.name}, pad.source});
    for (const Crystal& crystal : drawing.crystals)
        blocks.push_back({QStringLiteral("crystal"), crystal.room, {}, crystal.source});
    for (const Caption& caption : drawing.captions)
        blocks.push_back({QLatin1String("text ") + caption.text, caption.rect, {}, caption.source});
    return blocks;
}

void checkFigures(const std::vector<Block>& figures, const std::vector<Block>& controls,
                  const QRectF& picture, Problems& problems)
{
    for (auto figure = figures.begin(); figure != figures.end(); ++figure) {
        if (!picture.contains(figure->rect))
            problems.push_back(
                {figure->source, QStringLiteral("%1 reaches out of the picture").arg(figure->name)});
        const auto tell = [&](const Block& other) {
            if (overlap(figure->rect, other.rect) && !figure->owners.contains(other.name))
                problems.push_back(
                    {figure->source, QStringLiteral("%1 crosses %2").arg(figure->name, other.name)});
        };
        std::for_each(controls.begin(), controls.end(), tell);
        std::for_each(std::next(figure), figures.end(), tell);
    }
}

/// A wire may touch what it is joined to from outside, and keeps away from anything else.
bool hits(const Wire& wire, const Block& block)
{
    const bool joined = block.owners.contains(wire.from) || block.owners.contains(wire.to);
    const QRectF forbidden = grown(block.rect, joined ? -halfWire : wireRoom);
    const std::vector<Segment> segments = segmentsOf(wire.points);
    return std::any_of(segments.begin(), segments.end(), [&forbidden](const Segment& segment) {
        return overlap(grown(segment.bounds(), halfWire), forbidden);
    });
}

void checkWire(const Wire& wire, const QRectF& picture, Problems& problems)
{
    const auto tell = [&](const QString& message) { problems.push_back({wire.source, message}); };
    if (!picture.contains(grown(wire.points.boundingRect(), halfWire)))
        tell(QStringLiteral("the wire reaches out of the picture"));
    const std::vector<Segment> segments = segmentsOf(wire.points);
    if (!wire.idle && segments.back().length() < shortestArrival)
        tell(QStringLiteral("the wire has no room for its arrowhead at %1")
                 .arg(wire.to.isEmpty() ? QStringLiteral("its end") : wire.to));
    if (std::any_of(segments.begin(), segments.end(),
                    [](const Segment& segment) { return segment.length() < shortestPiece; }))
        tell(QStringLiteral("the wire has a kink"));
}

/// How far two parallel segments run side by side; negative if there is a gap between them.
double sharedLength(const Segment& one, const Segment& other)
{
    const QRectF a = one.bounds();
    const QRectF b = other.bounds();
    return one.isHorizontal() ? std::min(a.right(), b.right()) - std::max(a.left(), b.left())
                              : std::min(a.bottom(), b.bottom()) - std::max(a.top(), b.top());
}

bool runTogether(const Segment& one, const Segment& other)
{
    if (one.isHorizontal() != other.isHorizontal() || sharedLength(one, other) <= 0)
        return false;
    const double distance =
        one.isHorizontal() ? one.from.y() - other.from.y() : one.from.x() - other.from.x();
    return qAbs(distance) < wireDistance;
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
    if (runTogether(one, other))
        return QStringLiteral("runs along");
    if (one.isHorizontal() == other.isHorizontal())
        return {};
    const QPointF point = meeting(one, other);
    if (isBranchPoint(point, oneWire, otherWire))
        return {};
    if (crosses(one, other))
        return oneWire.net == otherWire.net ? QStringLiteral("crosses its own signal,") : QString();
    const double reach = wireDistance / 2;
    if (grown(one.bounds(), reach).contains(point) && grown(other.bounds(), reach).contains(point))
        return QStringLiteral("touches without joining");
    return {};
}

void checkPair(const Wire& one, const Wire& other, Problems& problems)
{
    for (const Segment& segment : segmentsOf(one.points)) {
        for (const Segment& otherSegment : segmentsOf(other.points)) {
            const QString wrong = conflict(segment, otherSegment, one, other);
            if (wrong.isEmpty())
                continue;
            problems.push_back({other.source, QStringLiteral("the wire %1 the wire of %2:%3")
                                                  .arg(wrong, one.source.file)
                                                  .arg(one.source.number)});
            return;
        }
    }
}

bool isReached(const Drawing& drawing, const QString& name)
{
    return std::any_of(drawing.wires.begin(), drawing.wires.end(),
                       [&name](const Wire& wire) { return wire.to == name; });
}

/// What the page has and the tree forgets.
void checkComplete(const Drawing& drawing, const PageLayout& page, const QString& tree, Problems& problems)
{
    const auto tell = [&](const QString& message, const QString& name) {
        problems.push_back({
            {tree, 0},
            message.arg(name)
        });
    };
    for (const PlacedControl& control : page.controls) {
        const bool radio = control.kind == ControlKind::Radio;
        if (radio && !drawing.mux(control.name))
            tell(QStringLiteral("%1 lies in no multiplexer"), control.name);
        else if (radio && !isReached(drawing, control.name))
            tell(QStringLiteral("no wire enters at %1"), control.name);
        if (control.output && !isReached(drawing, control.name))
            tell(QStringLiteral("no wire ends at %1"), control.name);
    }
}

} // namespace

bool crosses(const Segment& one, const Segment& other)
{
    if (one.isHorizontal() == other.isHorizontal())
        return false;
    const QPointF point = meeting(one, other);
    const double reach = wireDistance / 2;
    const auto passes = [&point, reach](const Segment& segment) {
        const QRectF line = segment.bounds();
        return segment.isHorizontal() ? point.x() > line.left() + reach && point.x() < line.right() - reach
                                      : point.y() > line.top() + reach && point.y() < line.bottom() - reach;
    };
    return passes(one) && passes(other);
}

void checkDrawing(const Drawing& drawing, const PageLayout& page, const QString& tree, Problems& problems)
{
    const QRectF picture(QPointF(), QSizeF(page.size));
    const std::vector<Block> controls = controlBlocks(page);
    const std::vector<Block> figures = figureBlocks(drawing);
    checkFigures(figures, controls, picture, problems);
    std::vector<Block> all = controls;
    all.insert(all.end(), figures.begin(), figures.end());
    for (auto wire = drawing.wires.begin(); wire != drawing.wires.end(); ++wire) {
        checkWire(*wire, picture, problems);
        for (const Block& block : all) {
            if (hits(*wire, block))
                problems.push_back({wire->source, QStringLiteral("the wire crosses %1").arg(block.name)});
        }
        std::for_each(std::next(wire), drawing.wires.end(),
                      [&](const Wire& other) { checkPair(*wire, other, problems); });
    }
    checkComplete(drawing, page, tree, problems);
}
