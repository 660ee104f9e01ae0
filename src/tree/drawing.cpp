#include "tree/drawing.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace tree {

namespace {

const QColor ink(0, 32, 82);
// What is not in use: there, and out of the way.
const QColor idleInk(200, 209, 220);
const QColor idleText(160, 170, 184);
const QColor redInk(224, 0, 0);
// Around what is marked, below everything else.
const QColor halo(170, 228, 250);
constexpr double haloWidth = 9;
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

void drawArrow(QPainter& painter, const Grid& grid, const Wire& wire, const QPointF& tip, const QPointF& way,
               const QColor& color)
{
    const QSizeF size = arrowOf(wire) * grid.scale();
    const QPointF across = QPointF(-way.y(), way.x()) * (size.height() / 2);
    const QPointF base = tip - way * size.width();
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
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

QColor colorOf(Use use)
{
    switch (use) {
    case Use::Idle:
        return idleInk;
    case Use::Red:
        return redInk;
    case Use::InUse:
        break;
    }
    return ink;
}

void drawDot(QPainter& painter, const Grid& grid, const Wire& wire, const QColor& color)
{
    const QPointF joint = grid.onStroke(wire.points.first(), grid.width(wire.width));
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(joint, wire.dot * grid.scale(), wire.dot * grid.scale());
}

void drawWire(QPainter& painter, const Grid& grid, const Wire& wire, const QColor& color)
{
    const double width = grid.width(wire.width);
    QPolygonF points = grid.onStroke(wire.points, width);
    const QPointF tip = points.last();
    const QPointF way = unit(tip - points[points.size() - 2]);
    if (wire.ends == Ends::Arrow)
        points.last() -= way * (arrowOf(wire).width() - 1) * grid.scale();
    painter.strokePath(pathOf(wire, grid, points), pen(width, color));
    if (wire.ends == Ends::Idle) {
        const QPointF bar(0, idleBarHalf * grid.scale());
        painter.setPen(pen(width, color));
        painter.drawLine(points.first() - bar, points.first() + bar);
    }
    if (wire.ends == Ends::Arrow)
        drawArrow(painter, grid, wire, tip, way, color);
}

/// How a shape looks: its frame, its ground, the radius of its corners.
struct Look
{
    QColor frame;
    QColor ground;
    double radius = 0;
};

Look lookOf(Shape shape, Use use)
{
    if (use == Use::Idle && shape != Shape::Frame) {
        Look look = lookOf(shape, Use::InUse);
        look.frame = idleInk;
        return look;
    }
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

void drawFigure(QPainter& painter, const Grid& grid, const Figure& figure, Use use)
{
    const Look look = lookOf(figure.shape, use);
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
    painter.setPen(use == Use::Idle ? idleText : ink);
    drawText(painter, grid, figure.outline.boundingRect(), figure.text, captionFont());
}

QColor inkOf(Style style)
{
    switch (style) {
    case Style::Region:
    case Style::Frame:
        return regionInk;
    case Style::Signal:
        return quietInk;
    case Style::Plain:
    case Style::Bus:
        break;
    }
    return ink;
}

void drawCaption(QPainter& painter, const Grid& grid, const Caption& caption)
{
    if (caption.style == Style::Frame)
        painter.fillRect(QRectF(grid.onStroke(caption.rect.topLeft(), 2), caption.rect.size() * grid.scale()),
                         Qt::white);
    painter.setPen(inkOf(caption.style));
    drawText(painter, grid, caption.rect, caption.text, captionFont(caption.style));
}

/// One drawing of a picture.
class Sheet
{
public:
    Sheet(QPainter& painter, const Picture& picture, const QRectF& seen, const State& state)
        : m_painter(painter), m_picture(picture), m_state(state),
          m_room(seen.adjusted(-overhang, -overhang, overhang, overhang)),
          m_grid(painter.worldTransform() * QTransform::fromScale(painter.device()->devicePixelRatioF(),
                                                                  painter.device()->devicePixelRatioF()))
    {
    }

    void draw() const
    {
        drawMarks();
        drawFigures(m_picture.below, m_state.uses.below);
        // What is in use lies on what is not.
        for (Use use : {Use::Idle, Use::InUse, Use::Red})
            drawWires(use);
        drawFigures(m_picture.above, m_state.uses.above);
        for (const Caption& caption : m_picture.captions)
            if (isSeen(caption.rect))
                drawCaption(m_painter, m_grid, caption);
    }

private:
    bool isSeen(const QRectF& rect) const
    {
        return rect.left() <= m_room.right() && rect.right() >= m_room.left() &&
               rect.top() <= m_room.bottom() && rect.bottom() >= m_room.top();
    }

    Use useOf(int wire) const { return m_state.uses.wires.value(wire, Use::InUse); }

    /// Dots belong to the wire on which they lie.
    void drawWires(Use use) const
    {
        for (int i = 0; i < m_picture.wires.size(); ++i) {
            const Wire& wire = m_picture.wires[i];
            if (!isSeen(wire.points.boundingRect()))
                continue;
            if (useOf(i) == use)
                drawWire(m_painter, m_grid, wire, colorOf(use));
            if (wire.dot > 0 && useOf(wire.before) == use)
                drawDot(m_painter, m_grid, wire, colorOf(use));
        }
    }

    void drawFigures(const QVector<Figure>& figures, const QVector<Use>& uses) const
    {
        for (int i = 0; i < figures.size(); ++i)
            if (isSeen(figures[i].outline.boundingRect()))
                drawFigure(m_painter, m_grid, figures[i], uses.value(i, Use::InUse));
    }

    void drawMarks() const
    {
        const Marks& marks = m_state.marks;
        const double width = haloWidth * m_grid.scale();
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setPen(QPen(halo, width, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
        for (int wire : marks.wires)
            m_painter.drawPolyline(m_grid.onStroke(m_picture.wires[wire].points, 1));
        for (int figure : marks.below)
            m_painter.drawPolygon(m_grid.onStroke(m_picture.below[figure].outline, 1));
        for (int figure : marks.above)
            m_painter.drawPolygon(m_grid.onStroke(m_picture.above[figure].outline, 1));
    }

    QPainter& m_painter;
    const Picture& m_picture;
    const State& m_state;
    QRectF m_room;
    Grid m_grid;
};

} // namespace

QFont captionFont(Style style)
{
    const int size = style == Style::Region ? 11 : style == Style::Signal ? 8 : 9;
    QFont font(QStringLiteral("Arial"), size);
    if (style == Style::Bus)
        font.setBold(true);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

void draw(QPainter& painter, const Picture& picture, const QRectF& seen, const State& state)
{
    const double pixels = painter.device()->devicePixelRatioF();
    const Sheet sheet(painter, picture, seen, state);
    painter.save();
    painter.setWorldTransform(QTransform::fromScale(1 / pixels, 1 / pixels));
    painter.setRenderHint(QPainter::Antialiasing);
    sheet.draw();
    painter.restore();
}

} // namespace tree
