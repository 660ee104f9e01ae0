#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

class QDataStream;

/// What the picture of a clock tree consists of, in picture pixels. The painter of the pictures solves it
/// once, at build time, and writes it beside the bitmap; the program reads it and draws it at the zoom and
/// the pixels at hand.
namespace tree {

/// Where a wire passes over one of another signal.
struct Hop
{
    int segment; ///< of the wire, from 0
    double x;
    double radius;
};

/// What stands at the ends of a wire.
enum class Ends : quint8
{
    Plain, ///< runs into a bus bar
    Arrow, ///< an arrowhead at its end
    Idle   ///< a bar at its start: nothing feeds the input
};

/// A piece of a wire along its signal, from one joint to the next.
struct Wire
{
    int net = 0;     ///< its signal, of the picture's nets
    int before = -1; ///< the piece, further up, that it goes on from or branches off; -1 at the net's source
    QString to;      ///< the control or figure that it reaches; empty where it goes on or ends free
    QPolygonF points;
    QVector<Hop> hops;
    double width = 1; ///< an odd number
    double dot = 0;   ///< radius of the dot at its start; 0 for none
    Ends ends = Ends::Arrow;
    /// Fields that stand before the wire, in one mode of the PLL or in both, and take the signal up in
    /// passing.
    QStringList behind;
};

/// One signal, by the control or figure that gives it.
struct Net
{
    QString source;
};

enum class Shape : quint8
{
    Frame, ///< a quiet line with round corners
    Mux,
    Crystal,
    Bar, ///< of a bus
    Box, ///< a fixed step with its text
    Pad, ///< of a pin
    Flag ///< the name of a signal; open where something else follows at once
};

/// A figure of straight lines. The outline is closed unless the flag is open.
struct Figure
{
    Shape shape;
    QString name;
    QPolygonF outline;
    bool open = false;
    QVector<QPolygonF> lines; ///< of a crystal's leads and plates, of a pad's cross
    QString text;             ///< in the middle of the outline
    QStringList inputs;       ///< the radio buttons of a multiplexer; the oscillator of a crystal
    int net = -1;             ///< the signal of a bus bar
};

enum class Style : quint8
{
    Plain,
    Bus,    ///< the name of a bus bar
    Region, ///< the quiet title of a part of the picture
    Frame,  ///< the quiet title in the line of a frame
    Signal  ///< the name of a signal where it is born
};

struct Caption
{
    QRectF rect;
    QString text;
    Style style = Style::Plain;
};

/// In the order in which they are drawn: what lies below the wires, the wires, what lies above them, the
/// texts.
struct Picture
{
    QSize size;
    QVector<Net> nets;
    QVector<Figure> below;
    QVector<Wire> wires;
    QVector<Figure> above;
    QVector<Caption> captions;

    bool isEmpty() const { return size.isEmpty(); }
};

QDataStream& operator<<(QDataStream& stream, const Picture& picture);
/// A stream that holds no picture, or one of another version, gives an empty one.
QDataStream& operator>>(QDataStream& stream, Picture& picture);

/// The picture of a file; empty if there is none.
Picture readPicture(const QString& path);

} // namespace tree
