#include "drawing.h"

#include <algorithm>

namespace {

template <class Figure>
const Figure* named(const std::vector<Figure>& figures, const QString& name)
{
    const auto found = std::find_if(figures.begin(), figures.end(),
                                    [&name](const Figure& figure) { return figure.name == name; });
    return found != figures.end() ? &*found : nullptr;
}

} // namespace

const Wire* Drawing::wire(const QString& name) const
{
    return named(wires, name);
}

const Mux* Drawing::mux(const QString& name) const
{
    if (const Mux* mux = named(muxes, name))
        return mux;
    const auto found = std::find_if(muxes.begin(), muxes.end(),
                                    [&name](const Mux& mux) { return mux.radios.contains(name); });
    return found != muxes.end() ? &*found : nullptr;
}

std::optional<QRectF> Drawing::rectOf(const QString& name) const
{
    if (const Mux* mux = named(muxes, name))
        return mux->rect;
    if (const Box* box = named(boxes, name))
        return box->rect;
    if (const Pad* pad = named(pads, name))
        return pad->rect;
    if (const Tag* tag = named(tags, name))
        return tag->rect;
    return std::nullopt;
}

QRectF lineOf(const Tag& tag)
{
    return tag.rect.adjusted(0.5, 0.5, -0.5, -0.5);
}

QRectF Segment::bounds() const
{
    return {QPointF(std::min(from.x(), to.x()), std::min(from.y(), to.y())),
            QPointF(std::max(from.x(), to.x()), std::max(from.y(), to.y()))};
}

bool overlap(const QRectF& one, const QRectF& other)
{
    return one.left() < other.right() && other.left() < one.right() && one.top() < other.bottom() &&
           other.top() < one.bottom();
}

std::vector<Segment> segmentsOf(const QPolygonF& points)
{
    std::vector<Segment> segments;
    for (int i = 1; i < points.size(); ++i)
        segments.push_back({points[i - 1], points[i]});
    return segments;
}
