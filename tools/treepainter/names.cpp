#include "names.h"

#include "builder.h"
#include "checker.h"
#include "pages/description/signalnames.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace {

// Pixels.
constexpr double step = 2;         // from one place that is tried to the next
constexpr double fromWire = 3;     // between the name and any wire
constexpr double fromOthers = 2;   // between the name and anything else
constexpr double aboveLetters = 2; // of the height of a font there is no ink
constexpr double farthestAlong = 60;
constexpr double farthestAway = 19;

/// What a name must not stand on.
std::vector<QRectF> takenRooms(const Drawing& drawing, const std::vector<PageLayout>& states)
{
    std::vector<QRectF> rooms;
    for (const PageLayout& state : states)
        for (const PlacedControl& control : state.controls) {
            const QSizeF room = drawing.rooms.value(control.name, control.rect.size());
            rooms.push_back({control.rect.topLeft(), room.expandedTo(control.rect.size())});
        }
    for (const Mux& mux : drawing.muxes)
        rooms.push_back(mux.rect);
    for (const Box& box : drawing.boxes)
        rooms.push_back(box.rect);
    for (const Pad& pad : drawing.pads)
        rooms.push_back(pad.rect);
    for (const Tag& tag : drawing.tags)
        rooms.push_back(tag.rect);
    for (const Crystal& crystal : drawing.crystals)
        rooms.push_back(crystal.room);
    for (const Caption& caption : drawing.captions)
        rooms.push_back(caption.rect);
    for (const Bar& bar : drawing.bars)
        rooms.push_back(bar.rect);
    return rooms;
}

class Namer
{
public:
    Namer(Drawing& drawing, const std::vector<PageLayout>& states)
        : m_drawing(drawing), m_states(states), m_rooms(takenRooms(drawing, states))
    {
    }

    /// False if there is no place.
    bool name(int net, const QString& text)
    {
        const QSizeF extent = extentOf(text, tree::captionFont(tree::Style::Signal));
        const QSizeF size(std::ceil(extent.width()), std::ceil(extent.height()) - aboveLetters);
        for (const Wire& wire : m_drawing.wires)
            if (wire.net == net && wire.width != weight::bar)
                for (const Segment& piece : segmentsOf(wire.points))
                    if (piece.isHorizontal() && place(wire, piece, size, text))
                        return true;
        return false;
    }

private:
    /// The right side of the fields in front of the wire; 0 for a wire without.
    double behind(const Wire& wire) const
    {
        double right = 0;
        for (const PageLayout& state : m_states)
            for (const PlacedControl& control : state.controls)
                if (wire.behind.contains(control.name))
                    right = std::max(right, control.rect.right());
        return right;
    }

    /// As close to the wire and to its start as there is room.
    bool place(const Wire& wire, const Segment& piece, const QSizeF& size, const QString& text)
    {
        const double left = std::max(std::min(piece.from.x(), piece.to.x()), behind(wire));
        const double right = std::max(piece.from.x(), piece.to.x());
        const double half = std::ceil(wire.width / 2);
        for (double away = fromWire; away <= farthestAway; away += step)
            for (double x = left + fromOthers - (away - fromWire);
                 x <= std::min(left + farthestAlong, right - size.width()); x += step)
                for (const double y :
                     {piece.from.y() - half - away - size.height(), piece.from.y() + half + away}) {
                    const QRectF rect(QPointF(std::floor(x), std::floor(y)), size);
                    if (!isFree(rect))
                        continue;
                    m_rooms.push_back(rect);
                    m_drawing.captions.push_back({wire.source, rect, text, tree::Style::Signal});
                    return true;
                }
        return false;
    }

    bool isFree(const QRectF& rect) const
    {
        const QRectF wide = grown(rect, fromOthers);
        return std::none_of(m_rooms.begin(), m_rooms.end(),
                            [&wide](const QRectF& room) { return overlap(wide, room); }) &&
               std::none_of(m_drawing.wires.begin(), m_drawing.wires.end(), [&wide](const Wire& wire) {
                   const std::vector<Segment> pieces = segmentsOf(wire.points);
                   const double half = wire.width / 2 + fromWire - fromOthers - 0.5;
                   return std::any_of(pieces.begin(), pieces.end(), [&](const Segment& piece) {
                       return overlap(wide, piece.bounds().adjusted(-half, -half, half, half));
                   });
               });
    }

    Drawing& m_drawing;
    const std::vector<PageLayout>& m_states;
    std::vector<QRectF> m_rooms;
};

/// Oscillators, the system clock, USB and the ADC carry their names on the page.
bool carriesName(ClockSource clock)
{
    switch (clock) {
    case ClockSource::Pll:
    case ClockSource::PllU:
    case ClockSource::Ahb:
    case ClockSource::Apb1:
    case ClockSource::Apb2:
    case ClockSource::Apb3:
        return false;
    default:
        return true;
    }
}

/// What gives the signal of the wire at its end: a field in front of it may have made another of it.
QString sourceOf(const Wire& wire, const PageDescription& series)
{
    for (const QString& field : wire.behind)
        if (const auto signal = signalName(series, field); signal && signal->clock != ClockSource::None)
            return field;
    return wire.from;
}

} // namespace

void nameSignals(Drawing& drawing, const std::vector<PageLayout>& states, const PageDescription& series,
                 Problems& problems)
{
    std::set<ClockSource> flagged;
    for (const ClockSource clock : flaggedClocks(series))
        flagged.insert(drawnAs(clock));
    Namer namer(drawing, states);
    std::set<ClockSource> named;
    const std::vector<Wire> wires = drawing.wires;
    for (const Wire& wire : wires) {
        const std::optional<SignalName> signal =
            wire.branch ? std::nullopt : signalName(series, sourceOf(wire, series));
        if (!signal || carriesName(signal->clock) || flagged.count(signal->clock) == 0 ||
            named.count(signal->clock) > 0)
            continue;
        named.insert(signal->clock);
        if (!namer.name(wire.net, signal->name))
            problems.push_back(
                {wire.source, QStringLiteral("there is no place for the name %1").arg(signal->name)});
    }
}
