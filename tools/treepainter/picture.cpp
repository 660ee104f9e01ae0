#include "picture.h"

#include "builder.h"
#include "checks.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

const QColor ink(0, 32, 82);
const QColor muxFrame(57, 169, 220);
// The frame of the pages' own boxes with a fixed step.
const QColor boxFrame(10, 78, 121);
// Beside blocks that are on and blocks that are grey.
const QColor quietInk(104, 128, 158);
const QColor regionInk(150, 168, 190);

// Pixels.
constexpr double hopRoom = 3.5;
constexpr double idleBarHalf = 4;
constexpr double tagTip = 7;
constexpr double padInset = 2.5;
constexpr double crystalPlateHalf = 6;
constexpr double crystalBodyHalfWidth = 7;
constexpr double crystalBodyHalfHeight = 3.5;
constexpr double crystalPlateDistance = 6.5;

constexpr int mostColors = 256;

QPen wirePen(double width, const QColor& color = ink)
{
    return {color, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

/// An arrowhead grows with its wire, but less.
QSizeF arrowOf(const Wire& wire)
{
    return wire.width > weight::branch ? QSizeF(10, 9) : QSizeF(8, 6);
}

/// The unit vector along the wire at its last piece.
QPointF arrival(const Wire& wire)
{
    const QPointF way = wire.points.last() - wire.points[wire.points.size() - 2];
    return way / way.manhattanLength();
}

/// A hop over a wire of another signal.
struct Hop
{
    double x;
    double radius;
};

/// Where the horizontal segment hops over wires of other signals, in its own direction.
std::vector<Hop> hopsOf(const Segment& segment, const Drawing& drawing)
{
    std::vector<Hop> hops;
    if (!segment.isHorizontal())
        return hops;
    for (const Wire& wire : drawing.wires) {
        for (const Segment& other : segmentsOf(wire.points)) {
            if (crosses(segment, other))
                hops.push_back({other.from.x(), wire.width / 2 + hopRoom});
        }
    }
    std::sort(hops.begin(), hops.end(), [](const Hop& one, const Hop& two) { return one.x < two.x; });
    if (segment.to.x() < segment.from.x())
        std::reverse(hops.begin(), hops.end());
    return hops;
}

QPainterPath pathOf(const Wire& wire, const Drawing& drawing)
{
    QPolygonF points = wire.points;
    if (wire.end == WireEnd::Arrow)
        points.last() -= arrival(wire) * (arrowOf(wire).width() - 1);
    QPainterPath path(points.first());
    for (const Segment& segment : segmentsOf(points)) {
        const bool rightward = segment.to.x() > segment.from.x();
        for (const Hop& hop : hopsOf(segment, drawing)) {
            const QPointF corner(hop.radius, hop.radius);
            const QPointF middle(hop.x, segment.from.y());
            const QRectF circle(middle - corner, middle + corner);
            path.arcTo(circle, rightward ? 180 : 0, rightward ? -180 : 180);
        }
        path.lineTo(segment.to);
    }
    return path;
}

void paintArrow(QPainter& painter, const Wire& wire)
{
    const QSizeF size = arrowOf(wire);
    const QPointF way = arrival(wire);
    const QPointF across = QPointF(-way.y(), way.x()) * (size.height() / 2);
    const QPointF tip = wire.points.last();
    const QPointF base = tip - way * size.width();
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawPolygon(QPolygonF{
        {tip, base + across, base - across}
    });
}

/// The bar that closes an input which nothing feeds.
void paintIdleEnd(QPainter& painter, const Wire& wire)
{
    const QPointF end = wire.points.first();
    painter.setPen(wirePen(wire.width));
    painter.drawLine(end - QPointF(0, idleBarHalf), end + QPointF(0, idleBarHalf));
}

void paintWire(QPainter& painter, const Wire& wire, const Drawing& drawing)
{
    if (wire.width == weight::bar)
        return;
    painter.strokePath(pathOf(wire, drawing), wirePen(wire.width));
    if (wire.end == WireEnd::Idle)
        paintIdleEnd(painter, wire);
    if (wire.end == WireEnd::Arrow)
        paintArrow(painter, wire);
    if (wire.dot == 0)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(wire.points.first(), wire.dot, wire.dot);
}

/// A hollow bar: the spine runs into it, the branches come out of it.
void paintBar(QPainter& painter, const QRectF& bar)
{
    painter.setPen(QPen(ink, 1));
    painter.setBrush(QColor(muxGround));
    painter.drawRect(bar.adjusted(0.5, 0.5, -0.5, -0.5));
}

void paintCrystal(QPainter& painter, const Crystal& crystal)
{
    painter.setBrush(Qt::white);
    painter.setPen(wirePen(1, quietInk));
    for (const QPolygonF& lead : crystal.leads) {
        painter.drawPolyline(lead);
        const double level = lead.last().y();
        const double side = level < crystal.middle.y() ? -1 : 1;
        const QPointF plate = crystal.middle + QPointF(0, side * crystalPlateDistance);
        painter.drawLine(QPointF(plate.x(), level), plate);
        painter.drawLine(plate - QPointF(crystalPlateHalf, 0), plate + QPointF(crystalPlateHalf, 0));
    }
    const QPointF corner(crystalBodyHalfWidth, crystalBodyHalfHeight);
    painter.drawRect(QRectF(crystal.middle - corner, crystal.middle + corner));
}

void paintFrame(QPainter& painter, const Frame& frame)
{
    painter.setPen(QPen(regionInk, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame.rect.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

void paintMux(QPainter& painter, const Mux& mux)
{
    painter.setPen(QPen(muxFrame, 1));
    painter.setBrush(QColor(muxGround));
    painter.drawPolygon(mux.outline);
}

void paintBox(QPainter& painter, const Box& box)
{
    painter.setPen(QPen(boxFrame, 1));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(box.rect, 2, 2);
    painter.setPen(ink);
    painter.drawText(box.rect, Qt::AlignCenter, box.text);
}

/// A square with its diagonals, the sign of a pin.
void paintPad(QPainter& painter, const Pad& pad)
{
    painter.setPen(QPen(ink, 1));
    painter.setBrush(QColor(muxGround));
    painter.drawRect(pad.rect);
    const QRectF cross = pad.rect.adjusted(padInset, padInset, -padInset, -padInset);
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
}

/// A flag with its tip at the level of its wire.
void paintTag(QPainter& painter, const Tag& tag)
{
    const QRectF rect = lineOf(tag);
    QPolygonF outline;
    if (tag.tip == Side::Left)
        outline << rect.topRight() << rect.topLeft() + QPointF(tagTip, 0) << QPointF(rect.left(), tag.level)
                << rect.bottomLeft() + QPointF(tagTip, 0) << rect.bottomRight();
    else
        outline << rect.topLeft() << rect.topRight() - QPointF(tagTip, 0) << QPointF(rect.right(), tag.level)
                << rect.bottomRight() - QPointF(tagTip, 0) << rect.bottomLeft();
    painter.setPen(QPen(quietInk, 1));
    painter.setBrush(Qt::white);
    tag.open ? painter.drawPolyline(outline) : painter.drawPolygon(outline);
    painter.setPen(ink);
    painter.drawText(rect, Qt::AlignCenter, tag.text);
}

void paintCaption(QPainter& painter, const Caption& caption)
{
    const bool quiet = caption.style == Style::Region || caption.style == Style::Frame;
    if (caption.style == Style::Frame)
        painter.fillRect(caption.rect, Qt::white);
    painter.setFont(captionFont(caption.style));
    painter.setPen(quiet ? regionInk : ink);
    painter.drawText(caption.rect, Qt::AlignCenter, caption.text);
}

/// The colours of the image, the most frequent first.
QVector<QRgb> colorsOf(const QImage& image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
            ++counts[line[x]];
    }
    QVector<QRgb> colors;
    for (auto color = counts.cbegin(); color != counts.cend(); ++color)
        colors.append(color.key());
    std::sort(colors.begin(), colors.end(), [&counts](QRgb one, QRgb other) {
        return counts[one] != counts[other] ? counts[one] > counts[other] : one > other;
    });
    return colors;
}

int distance(QRgb one, QRgb other)
{
    return qAbs(qRed(one) - qRed(other)) + qAbs(qGreen(one) - qGreen(other)) +
           qAbs(qBlue(one) - qBlue(other));
}

uchar nearest(QRgb color, const QVector<QRgb>& table)
{
    const auto found = std::min_element(table.begin(), table.end(), [color](QRgb one, QRgb other) {
        return distance(color, one) < distance(color, other);
    });
    return static_cast<uchar>(found - table.begin());
}

/// Smoothed edges give a few hundred shades; the rarest take the nearest of the others.
QImage indexed(const QImage& image)
{
    const QVector<QRgb> colors = colorsOf(image);
    const QVector<QRgb> table = colors.mid(0, mostColors);
    QHash<QRgb, uchar> indices;
    for (const QRgb color : colors)
        indices.insert(color, nearest(color, table));
    QImage small(image.size(), QImage::Format_Indexed8);
    small.setColorTable(table);
    for (int y = 0; y < image.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        std::transform(from, from + image.width(), small.scanLine(y),
                       [&indices](QRgb color) { return indices.value(color); });
    }
    return small;
}

} // namespace

QImage paintPicture(const Drawing& drawing, const QSize& size, int scale)
{
    QImage image(size * scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(captionFont());
    for (const Frame& frame : drawing.frames)
        paintFrame(painter, frame);
    for (const Mux& mux : drawing.muxes)
        paintMux(painter, mux);
    for (const Crystal& crystal : drawing.crystals)
        paintCrystal(painter, crystal);
    for (const Wire& wire : drawing.wires)
        paintWire(painter, wire, drawing);
    for (const QRectF& bar : drawing.bars)
        paintBar(painter, bar);
    for (const Box& box : drawing.boxes)
        paintBox(painter, box);
    for (const Pad& pad : drawing.pads)
        paintPad(painter, pad);
    for (const Tag& tag : drawing.tags)
        paintTag(painter, tag);
    for (const Caption& caption : drawing.captions)
        paintCaption(painter, caption);
    painter.end();
    QImage picture = indexed(image);
    picture.setDevicePixelRatio(scale);
    return picture;
}
