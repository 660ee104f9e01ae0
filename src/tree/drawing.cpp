#include "tree/drawing.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace tree {

namespace {

const QColor ink(0, 32, 82);
const QColor muxFrame(57, 169, 220);
// The frame of the pages' own boxes with a fixed step.
const QColor boxFrame(10, 78, 121);
// Beside blocks that are on and blocks that are grey.
const QColor quietInk(104, 128, 158);
const QColor regionInk(150, 168, 190);

// Picture pixels.
constexpr double idleBarHalf = 4;
constexpr double boxRadius = 2;
constexpr double frameRadius = 4;
// Of arrowheads, hops, dots and leads beyond the points of a figure.
constexpr double overhang = 60;

/// Turns picture pixels into those of the device.
class Grid
{
public:
    explicit Grid(const QTransform& toDevice)
        : m_toDevice(toDevice), m_scale(toDevice.m11()), m_even(toDevice.type() <= QTransform::TxScale)
    {
    }

    double scale() const { return m_scale; }
    /// A stroke of so many picture pixels.
    double width(double width) const
    {
        return m_even ? std::max(1.0, std::round(width * m_scale)) : width * m_scale;
    }
    /// A point of a stroke of that width. A coordinate between the edges of a picture's pixel is the middle
    /// of the stroke, one on an edge is where it ends.
    QPointF onStroke(const QPointF& point, double stroke) const
    {
        const QPointF device = m_toDevice.map(point);
        return m_even
                   ? QPointF(onStroke(point.x(), device.x(), stroke), onStroke(point.y(), device.y(), stroke))
                   : device;
    }
    QPolygonF onStroke(const QPolygonF& points, double stroke) const
    {
        QPolygonF snapped;
        for (const QPointF& point : points)
            snapped << onStroke(point, stroke);
        return snapped;
    }

private:
    /// A stroke of an odd width has its middle between the edges of a pixel, one of an even width on an edge.
    static double onStroke(double level, double device, double stroke)
    {
        const bool middle = level != std::floor(level);
        return middle && std::fmod(stroke, 2.0) != 0.0 ? std::floor(device) + 0.5 : std::round(device);
    }

    QTransform m_toDevice;
    double m_scale;
    bool m_even;
};

QPen pen(double width, const QColor& color = ink)
{
    return {color, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

/// An arrowhead grows with its wire, but less.
QSizeF arrowOf(const Wire& wire)
{
    return wire.width > 1 ? QSizeF(10, 9) : QSizeF(8, 6);
}

QPointF unit(const QPointF& way)
{
    const double length = std::hypot(way.x(), way.y());
    return length > 0 ? way / length : QPointF();
}

void drawArrow(QPainter& painter, const Grid& grid, const Wire& wire, const QPointF& tip, const QPointF& way)
{
    const QSizeF size = arrowOf(wire) * grid.scale();
    const QPointF across = QPointF(-way.y(), way.x()) * (size.height() / 2);
    const QPointF base = tip - way * size.width();
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawPolygon(QPolygonF{
        {tip, base + across, base - across}
    });
}

/// The way of the wire with its hops, in the device's pixels.
QPainterPath pathOf(const Wire& wire, const Grid& grid, const QPolygonF& points)
{
    QPainterPath path(points.first());
    auto hop = wire.hops.begin();
    for (int i = 1; i < points.size(); ++i) {
        const bool rightward = points[i].x() > points[i - 1].x();
        for (; hop != wire.hops.end() && hop->segment == i - 1; ++hop) {
            const double radius = hop->radius * grid.scale();
            const QPointF middle(grid.onStroke(QPointF(hop->x, 0), 1).x(), points[i].y());
            const QRectF circle(middle - QPointF(radius, radius), middle + QPointF(radius, radius));
            path.arcTo(circle, rightward ? 180 : 0, rightward ? -180 : 180);
        }
        path.lineTo(points[i]);
    }
    return path;
}

void drawWire(QPainter& painter, const Grid& grid, const Wire& wire)
{
    const double width = grid.width(wire.width);
    QPolygonF points = grid.onStroke(wire.points, width);
    const QPointF tip = points.last();
    const QPointF way = unit(tip - points[points.size() - 2]);
    if (wire.ends == Ends::Arrow)
        points.last() -= way * (arrowOf(wire).width() - 1) * grid.scale();
    painter.strokePath(pathOf(wire, grid, points), pen(width));
    if (wire.ends == Ends::Idle) {
        const QPointF bar(0, idleBarHalf * grid.scale());
        painter.setPen(pen(width));
        painter.drawLine(points.first() - bar, points.first() + bar);
    }
    if (wire.ends == Ends::Arrow)
        drawArrow(painter, grid, wire, tip, way);
    if (wire.dot == 0)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(points.first(), wire.dot * grid.scale(), wire.dot * grid.scale());
}

/// How a shape looks: its frame, its ground, the radius of its corners.
struct Look
{
    QColor frame;
    QColor ground;
    double radius = 0;
};

Look lookOf(Shape shape)
{
    switch (shape) {
    case Shape::Frame:
        return {regionInk, Qt::transparent, frameRadius};
    case Shape::Mux:
        return {muxFrame, QColor(muxGround)};
    case Shape::Bar:
    case Shape::Pad:
        return {ink, QColor(muxGround)};
    case Shape::Box:
        return {boxFrame, Qt::white, boxRadius};
    case Shape::Crystal:
    case Shape::Flag:
        break;
    }
    return {quietInk, Qt::white};
}

/// A text at its own size in picture pixels, in the middle of the rectangle.
void drawText(QPainter& painter, const Grid& grid, const QRectF& rect, const QString& text, const QFont& font)
{
    if (text.isEmpty())
        return;
    painter.save();
    painter.translate(grid.onStroke(rect.topLeft(), 2));
    painter.scale(grid.scale(), grid.scale());
    painter.setFont(font);
    painter.drawText(QRectF(QPointF(), rect.size()), Qt::AlignCenter, text);
    painter.restore();
}

void drawFigure(QPainter& painter, const Grid& grid, const Figure& figure)
{
    const Look look = lookOf(figure.shape);
    const double stroke = grid.width(1);
    painter.setPen(pen(stroke, look.frame));
    painter.setBrush(look.ground);
    for (const QPolygonF& line : figure.lines)
        painter.drawPolyline(grid.onStroke(line, stroke));
    const QPolygonF outline = grid.onStroke(figure.outline, stroke);
    if (look.radius > 0)
        painter.drawRoundedRect(outline.boundingRect(), look.radius * grid.scale(),
                                look.radius * grid.scale());
    else if (figure.open)
        painter.drawPolyline(outline);
    else
        painter.drawPolygon(outline);
    // A pad's cross lies on its ground.
    if (figure.shape == Shape::Pad)
        for (const QPolygonF& line : figure.lines)
            painter.drawPolyline(grid.onStroke(line, stroke));
    painter.setPen(ink);
    drawText(painter, grid, figure.outline.boundingRect(), figure.text, captionFont());
}

void drawCaption(QPainter& painter, const Grid& grid, const Caption& caption)
{
    const bool quiet = caption.style == Style::Region || caption.style == Style::Frame;
    if (caption.style == Style::Frame)
        painter.fillRect(QRectF(grid.onStroke(caption.rect.topLeft(), 2), caption.rect.size() * grid.scale()),
                         Qt::white);
    painter.setPen(quiet ? regionInk : ink);
    drawText(painter, grid, caption.rect, caption.text, captionFont(caption.style));
}

} // namespace

QFont captionFont(Style style)
{
    QFont font(QStringLiteral("Arial"), style == Style::Region ? 11 : 9);
    if (style == Style::Bus)
        font.setBold(true);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

void draw(QPainter& painter, const Picture& picture, const QRectF& seen)
{
    const QRectF room = seen.adjusted(-overhang, -overhang, overhang, overhang);
    const auto isSeen = [&room](const QRectF& rect) {
        return rect.left() <= room.right() && rect.right() >= room.left() && rect.top() <= room.bottom() &&
               rect.bottom() >= room.top();
    };
    const double pixels = painter.device()->devicePixelRatioF();
    const Grid grid(painter.worldTransform() * QTransform::fromScale(pixels, pixels));
    painter.save();
    painter.setWorldTransform(QTransform::fromScale(1 / pixels, 1 / pixels));
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Figure& figure : picture.below)
        if (isSeen(figure.outline.boundingRect()))
            drawFigure(painter, grid, figure);
    for (const Wire& wire : picture.wires)
        if (isSeen(wire.points.boundingRect()))
            drawWire(painter, grid, wire);
    for (const Figure& figure : picture.above)
        if (isSeen(figure.outline.boundingRect()))
            drawFigure(painter, grid, figure);
    for (const Caption& caption : picture.captions)
        if (isSeen(caption.rect))
            drawCaption(painter, grid, caption);
    painter.restore();
}

} // namespace tree
