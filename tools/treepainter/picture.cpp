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

// Pixels.
constexpr double wireWidth = 1.5;
constexpr double dotRadius = 2.75;
constexpr double hopRadius = 4;
constexpr double arrowLength = 8;
constexpr double arrowHalfWidth = 3.5;
constexpr double idleBarHalf = 4;
constexpr double crystalPlateHalf = 6;
constexpr double crystalBodyHalfWidth = 7;
constexpr double crystalBodyHalfHeight = 3.5;
constexpr double crystalPlateDistance = 6.5;

constexpr int mostColors = 256;

QPen wirePen(const QColor& color = ink)
{
    return {color, wireWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

/// The unit vector along the wire at its last piece.
QPointF arrival(const Wire& wire)
{
    const QPointF way = wire.points.last() - wire.points[wire.points.size() - 2];
    return way / way.manhattanLength();
}

/// Where the horizontal segment hops over wires of other signals, in its own direction.
std::vector<double> hopsOf(const Segment& segment, const Drawing& drawing)
{
    std::vector<double> hops;
    if (!segment.isHorizontal())
        return hops;
    for (const Wire& wire : drawing.wires) {
        for (const Segment& other : segmentsOf(wire.points)) {
            if (crosses(segment, other))
                hops.push_back(other.from.x());
        }
    }
    std::sort(hops.begin(), hops.end());
    if (segment.to.x() < segment.from.x())
        std::reverse(hops.begin(), hops.end());
    return hops;
}

QPainterPath pathOf(const Wire& wire, const Drawing& drawing)
{
    QPolygonF points = wire.points;
    if (!wire.idle)
        points.last() -= arrival(wire) * (arrowLength - 1);
    QPainterPath path(points.first());
    for (const Segment& segment : segmentsOf(points)) {
        const bool rightward = segment.to.x() > segment.from.x();
        for (const double x : hopsOf(segment, drawing)) {
            const QRectF circle(x - hopRadius, segment.from.y() - hopRadius, 2 * hopRadius, 2 * hopRadius);
            path.arcTo(circle, rightward ? 180 : 0, rightward ? -180 : 180);
        }
        path.lineTo(segment.to);
    }
    return path;
}

void paintArrow(QPainter& painter, const Wire& wire)
{
    const QPointF way = arrival(wire);
    const QPointF across(-way.y(), way.x());
    const QPointF tip = wire.points.last();
    const QPointF base = tip - way * arrowLength;
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawPolygon(QPolygonF{
        {tip, base + across * arrowHalfWidth, base - across * arrowHalfWidth}
    });
}

/// The bar that closes an input which nothing feeds.
void paintIdleEnd(QPainter& painter, const Wire& wire)
{
    const QPointF end = wire.points.first();
    painter.setPen(wirePen());
    painter.drawLine(end - QPointF(0, idleBarHalf), end + QPointF(0, idleBarHalf));
}

void paintWire(QPainter& painter, const Wire& wire, const Drawing& drawing)
{
    painter.strokePath(pathOf(wire, drawing), wirePen());
    if (wire.idle)
        paintIdleEnd(painter, wire);
    else
        paintArrow(painter, wire);
    if (!wire.branch)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(wire.points.first(), dotRadius, dotRadius);
}

void paintCrystal(QPainter& painter, const Crystal& crystal)
{
    painter.setBrush(QColor(muxGround));
    painter.setPen(wirePen());
    for (const QPolygonF& lead : crystal.leads) {
        painter.drawPolyline(lead);
        const double level = lead.last().y();
        const double side = level < crystal.middle.y() ? -1 : 1;
        const QPointF plate = crystal.middle + QPointF(0, side * crystalPlateDistance);
        painter.drawLine(QPointF(plate.x(), level), plate);
        painter.drawLine(plate - QPointF(crystalPlateHalf, 0), plate + QPointF(crystalPlateHalf, 0));
    }
    painter.setPen(QPen(ink, 1));
    const QPointF corner(crystalBodyHalfWidth, crystalBodyHalfHeight);
    painter.drawRect(QRectF(crystal.middle - corner, crystal.middle + corner));
}

void paintMux(QPainter& painter, const Mux& mux)
{
    painter.setPen(wirePen(muxFrame));
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
    painter.drawLine(pad.rect.topLeft(), pad.rect.bottomRight());
    painter.drawLine(pad.rect.topRight(), pad.rect.bottomLeft());
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

QImage paintPicture(const Drawing& drawing, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(captionFont());
    for (const Mux& mux : drawing.muxes)
        paintMux(painter, mux);
    for (const Crystal& crystal : drawing.crystals)
        paintCrystal(painter, crystal);
    for (const Wire& wire : drawing.wires)
        paintWire(painter, wire, drawing);
    for (const Box& box : drawing.boxes)
        paintBox(painter, box);
    for (const Pad& pad : drawing.pads)
        paintPad(painter, pad);
    painter.setPen(ink);
    for (const Caption& caption : drawing.captions)
        painter.drawText(caption.rect, Qt::AlignCenter, caption.text);
    painter.end();
    return indexed(image);
}
