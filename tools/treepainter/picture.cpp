#include "picture.h"

#include "checks.h"
#include "pieces.h"
#include "tree/drawing.h"

#include <QHash>
#include <QPainter>

#include <algorithm>

namespace {

// Pixels.
constexpr double hopRoom = 3.5;
constexpr double tagTip = 7;
constexpr double padInset = 2.5;
constexpr double crystalPlateHalf = 6;
constexpr double crystalBodyHalfWidth = 7;
constexpr double crystalBodyHalfHeight = 3.5;
constexpr double crystalPlateDistance = 6.5;

constexpr int mostColors = 256;

/// Where the horizontal segments of the wire hop over wires of other signals, along the wire.
QVector<tree::Hop> hopsOf(const Wire& wire, const Drawing& drawing)
{
    QVector<tree::Hop> all;
    const std::vector<Segment> segments = segmentsOf(wire.points);
    for (std::size_t i = 0; i < segments.size(); ++i) {
        if (!segments[i].isHorizontal())
            continue;
        QVector<tree::Hop> hops;
        for (const Wire& other : drawing.wires)
            for (const Segment& crossed : segmentsOf(other.points))
                if (crosses(segments[i], crossed))
                    hops.push_back({static_cast<int>(i), crossed.from.x(), other.width / 2 + hopRoom});
        std::sort(hops.begin(), hops.end(),
                  [](const tree::Hop& one, const tree::Hop& two) { return one.x < two.x; });
        if (segments[i].to.x() < segments[i].from.x())
            std::reverse(hops.begin(), hops.end());
        all += hops;
    }
    return all;
}

tree::Ends endsOf(WireEnd end)
{
    switch (end) {
    case WireEnd::Arrow:
        return tree::Ends::Arrow;
    case WireEnd::Idle:
        return tree::Ends::Idle;
    case WireEnd::Plain:
        break;
    }
    return tree::Ends::Plain;
}

tree::Wire wireOf(const Piece& piece, const Drawing& drawing)
{
    const Wire& wire = piece.wire;
    return {piece.net,  piece.before, wire.to,          wire.points, hopsOf(wire, drawing),
            wire.width, wire.dot,     endsOf(wire.end), wire.behind};
}

/// Four corners without the first again at the end.
QPolygonF corners(const QRectF& rect)
{
    return QVector<QPointF>{rect.topLeft(), rect.topRight(), rect.bottomRight(), rect.bottomLeft()};
}

tree::Figure figure(tree::Shape shape, const QString& name, const QPolygonF& outline,
                    const QString& text = {})
{
    return {shape, name, outline, false, {}, text, {}, -1};
}

tree::Figure muxOf(const Mux& mux)
{
    tree::Figure shape = figure(tree::Shape::Mux, mux.name, mux.outline);
    shape.inputs = mux.radios;
    return shape;
}

/// pieces: for the number of the bar's net.
tree::Figure barOf(const Bar& bar, const Pieces& pieces)
{
    tree::Figure shape = figure(tree::Shape::Bar, {}, corners(bar.rect.adjusted(0.5, 0.5, -0.5, -0.5)));
    shape.net = pieces.nets.indexOf(bar.net);
    return shape;
}

tree::Figure crystalOf(const Crystal& crystal)
{
    const QPointF corner(crystalBodyHalfWidth, crystalBodyHalfHeight);
    tree::Figure figure =
        ::figure(tree::Shape::Crystal, {}, corners(QRectF(crystal.middle - corner, crystal.middle + corner)));
    figure.inputs = QStringList(crystal.oscillator);
    for (const QPolygonF& lead : crystal.leads) {
        const double level = lead.last().y();
        const double side = level < crystal.middle.y() ? -1 : 1;
        const QPointF plate = crystal.middle + QPointF(0, side * crystalPlateDistance);
        const QPointF half(crystalPlateHalf, 0);
        figure.lines.push_back(lead);
        figure.lines.push_back(QVector<QPointF>{
            {plate.x(), level},
            plate
        });
        figure.lines.push_back(QVector<QPointF>{plate - half, plate + half});
    }
    return figure;
}

/// A square with its diagonals, the sign of a pin.
tree::Figure padOf(const Pad& pad)
{
    tree::Figure sign = figure(tree::Shape::Pad, pad.name, corners(pad.rect));
    const QRectF cross = pad.rect.adjusted(padInset, padInset, -padInset, -padInset);
    sign.lines = {
        QVector<QPointF>{cross.topLeft(),  cross.bottomRight()},
        QVector<QPointF>{cross.topRight(), cross.bottomLeft() }
    };
    return sign;
}

/// A flag with its tip at the level of its wire.
tree::Figure flagOf(const Tag& tag)
{
    const QRectF rect = lineOf(tag);
    QPolygonF outline;
    if (tag.tip == Side::Left)
        outline << rect.topRight() << rect.topLeft() + QPointF(tagTip, 0) << QPointF(rect.left(), tag.level)
                << rect.bottomLeft() + QPointF(tagTip, 0) << rect.bottomRight();
    else
        outline << rect.topLeft() << rect.topRight() - QPointF(tagTip, 0) << QPointF(rect.right(), tag.level)
                << rect.bottomRight() - QPointF(tagTip, 0) << rect.bottomLeft();
    tree::Figure flag = figure(tree::Shape::Flag, tag.name + tag.label, outline, tag.text);
    flag.open = tag.open;
    return flag;
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

tree::Picture pictureOf(const Drawing& drawing, const QSize& size)
{
    tree::Picture picture;
    picture.size = size;
    for (const Frame& frame : drawing.frames)
        picture.below.push_back(
            figure(tree::Shape::Frame, {}, corners(frame.rect.adjusted(0.5, 0.5, -0.5, -0.5))));
    for (const Mux& mux : drawing.muxes)
        picture.below.push_back(muxOf(mux));
    for (const Crystal& crystal : drawing.crystals)
        picture.below.push_back(crystalOf(crystal));
    const Pieces pieces = piecesOf(drawing);
    for (const QString& source : pieces.sources)
        picture.nets.push_back({source});
    for (const Piece& piece : pieces.pieces)
        picture.wires.push_back(wireOf(piece, drawing));
    for (const Bar& bar : drawing.bars)
        picture.above.push_back(barOf(bar, pieces));
    for (const Box& box : drawing.boxes)
        picture.above.push_back(figure(tree::Shape::Box, box.name, corners(box.rect), box.text));
    for (const Pad& pad : drawing.pads)
        picture.above.push_back(padOf(pad));
    for (const Tag& tag : drawing.tags)
        picture.above.push_back(flagOf(tag));
    for (const Caption& caption : drawing.captions)
        picture.captions.push_back({caption.rect, caption.text, caption.style});
    return picture;
}

QImage paintPicture(const tree::Picture& picture, int scale)
{
    QImage image(picture.size * scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    tree::draw(painter, picture, QRectF(QPointF(), picture.size));
    painter.end();
    QImage small = indexed(image);
    small.setDevicePixelRatio(scale);
    return small;
}
