#include "pieces.h"

#include <QMap>

#include <algorithm>
#include <iterator>

namespace {

/// How far along the points another point lies on them; negative where it does not.
double distanceTo(const QPolygonF& points, const QPointF& point)
{
    double way = 0;
    for (const Segment& segment : segmentsOf(points)) {
        const QRectF bounds = segment.bounds();
        if (point.x() >= bounds.left() && point.x() <= bounds.right() && point.y() >= bounds.top() &&
            point.y() <= bounds.bottom())
            return way + (point - segment.from).manhattanLength();
        way += segment.length();
    }
    return -1;
}

/// The points between two distances along them.
QPolygonF cut(const QPolygonF& points, double from, double to)
{
    QPolygonF piece;
    double way = 0;
    for (const Segment& segment : segmentsOf(points)) {
        const double end = way + segment.length();
        if (end > from && way < to) {
            const QPointF unit = (segment.to - segment.from) / segment.length();
            if (piece.isEmpty())
                piece << segment.from + unit * std::max(0.0, from - way);
            piece << segment.from + unit * (std::min(end, to) - way);
        }
        way = end;
    }
    return piece;
}

class Cutter
{
public:
    explicit Cutter(const Drawing& drawing) : m_wires(drawing.wires), m_ends(drawing.wires.size())
    {
        for (std::size_t i = 0; i < m_wires.size(); ++i)
            m_trunks.push_back(m_wires[i].branch ? trunkOf(i) : -1);
    }

    Pieces cutAll()
    {
        for (std::size_t i = 0; i < m_wires.size(); ++i)
            if (m_wires[i].width != weight::bar)
                cutWire(static_cast<int>(i));
        return std::move(m_result);
    }

private:
    /// The wire that reaches the bus where this one is its bar.
    int reaching(int wire) const
    {
        while (m_wires[wire].width == weight::bar)
            wire = m_trunks[wire];
        return wire;
    }

    /// The earlier wire of the net from which this one branches off.
    int trunkOf(std::size_t branch) const
    {
        for (int i = 0; i < static_cast<int>(branch); ++i)
            if (m_wires[i].net == m_wires[branch].net &&
                distanceTo(m_wires[i].points, m_wires[branch].points.first()) >= 0)
                return i;
        throw TreeError(QStringLiteral("a branch starts on no wire of its net"));
    }

    /// Where the branch leaves its trunk, along the trunk.
    double jointOf(std::size_t branch) const
    {
        const Wire& trunk = m_wires[m_trunks[branch]];
        return trunk.width == weight::bar ? lengthOf(m_wires[reaching(m_trunks[branch])].points)
                                          : distanceTo(trunk.points, m_wires[branch].points.first());
    }

    static double lengthOf(const QPolygonF& points)
    {
        double length = 0;
        for (const Segment& segment : segmentsOf(points))
            length += segment.length();
        return length;
    }

    int netOf(const Wire& wire)
    {
        if (!m_result.nets.contains(wire.net)) {
            m_result.nets.append(wire.net);
            m_result.sources.append(wire.from);
        }
        return m_result.nets.indexOf(wire.net);
    }

    void cutWire(int wire)
    {
        const Wire& whole = m_wires[wire];
        const double length = lengthOf(whole.points);
        QMap<double, int> joints{
            {length, -1}
        };
        for (std::size_t i = 0; i < m_wires.size(); ++i)
            if (m_trunks[i] >= 0 && m_wires[i].width != weight::bar && reaching(m_trunks[i]) == wire)
                joints.insert(jointOf(i), -1);
        int before = m_trunks[wire] < 0 ? -1 : m_ends[reaching(m_trunks[wire])].value(jointOf(wire), -1);
        double from = 0;
        for (auto joint = joints.begin(); joint != joints.end(); from = joint.key(), ++joint) {
            // A branch at the very start goes on from what this wire goes on from.
            if (joint.key() == 0) {
                m_ends[wire].insert(0, before);
                continue;
            }
            Piece piece{whole, netOf(whole), before};
            piece.wire.points = cut(whole.points, from, joint.key());
            if (from > 0)
                piece.wire.dot = 0;
            if (joint.key() < length) {
                piece.wire.end = WireEnd::Plain;
                piece.wire.to.clear();
            }
            before = static_cast<int>(m_result.pieces.size());
            m_ends[wire].insert(joint.key(), before);
            m_result.pieces.push_back(piece);
        }
    }

    const std::vector<Wire>& m_wires;
    std::vector<int> m_trunks;             ///< of each wire; -1 for one that starts at its source
    std::vector<QMap<double, int>> m_ends; ///< of each wire: the piece that ends at each joint
    Pieces m_result;
};

} // namespace

Pieces piecesOf(const Drawing& drawing)
{
    return Cutter(drawing).cutAll();
}
