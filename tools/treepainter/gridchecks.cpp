#include "checker.h"

#include <cmath>

namespace {

// Pixels.
constexpr double noseRoom = 0.5;     // of a nose off the middle of its multiplexer
constexpr double gutter = 20;        // in front of the flags of a block
constexpr double titleDistance = 20; // between the titles of two multiplexers, one below the other

bool isOnPixel(double line)
{
    return std::abs(line - std::floor(line) - 0.5) < 0.01;
}

} // namespace

void Checker::checkNose(const Mux& mux)
{
    for (const Wire& wire : m_drawing.wires) {
        const double off = qAbs(wire.points.first().y() - mux.rect.center().y());
        if (wire.from == mux.name && off > noseRoom)
            tell(mux.source, QStringLiteral("the nose of mux %1 is %2 off its middle").arg(mux.name).arg(off),
                 {mux.name}, {QStringLiteral("nose")});
    }
}

void Checker::checkTitles(const Mux& mux)
{
    const PlacedControl* title = m_page.find(mux.title);
    for (const Mux& other : m_drawing.muxes) {
        const PlacedControl* below = m_page.find(other.title);
        if (!title || !below || title == below || below->rect.top() < title->rect.top())
            continue;
        const QRectF near = title->rect.adjusted(0, 0, 0, titleDistance);
        if (overlap(near, below->rect))
            tell(mux.source, QStringLiteral("%1 and %2 read as one").arg(mux.title, other.title), {mux.title},
                 {other.title});
    }
}

/// A flag at the left of its multiplexer begins a block: what stands in front of it belongs to another one.
void Checker::checkGutter(const Tag& tag)
{
    if (tag.tip != Side::Right || tag.label.isEmpty())
        return;
    const QRectF before(tag.rect.left() - gutter, tag.rect.top(), gutter, tag.rect.height());
    for (const std::vector<Block>* blocks : {&m_controls, &m_figures})
        for (const Block& block : *blocks)
            if (overlap(before, block.rect) && block.rect.right() <= tag.rect.left())
                tell(tag.source,
                     QStringLiteral("the gutter between %1 and tag %2 is %3")
                         .arg(block.name, tag.label)
                         .arg(tag.rect.left() - block.rect.right()),
                     {tag.label}, block.owners);
}

void Checker::checkPixels(const SourceLine& source, const QString& name, const QRectF& lines)
{
    for (const double line : {lines.left(), lines.right(), lines.top(), lines.bottom()})
        if (!isOnPixel(line)) {
            tell(source, QStringLiteral("the outline of %1 lies between pixels").arg(name));
            return;
        }
}

void Checker::checkGrid()
{
    for (const Mux& mux : m_drawing.muxes) {
        checkNose(mux);
        checkTitles(mux);
        checkPixels(mux.source, QLatin1String("mux ") + mux.name, mux.outline.boundingRect());
    }
    for (const Box& box : m_drawing.boxes)
        checkPixels(box.source, QLatin1String("box ") + box.name, box.rect);
    for (const Tag& tag : m_drawing.tags) {
        checkGutter(tag);
        checkPixels(tag.source, QLatin1String("tag ") + tag.name + tag.label, lineOf(tag));
    }
}
