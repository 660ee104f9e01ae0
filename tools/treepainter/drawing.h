#pragma once

#include "tree/figures.h"
#include "treetext.h"

#include <QHash>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QStringList>

#include <optional>
#include <vector>

// What a tree's text comes to: figures in the picture's pixels, each with the line that asked for it.

enum class Side
{
    Left,
    Right,
    Top,
    Bottom
};

/// Pixels. All are odd, so that every wire lies on whole pixels around a middle line between their edges.
namespace weight {
constexpr double branch = 1;
constexpr double spine = 3; ///< the way from the PLL to the buses
constexpr double bar = 7;   ///< a bus from which peripherals branch
} // namespace weight

/// A multiplexer around its radio buttons: long where the inputs enter, short at the nose.
struct Mux
{
    SourceLine source;
    QString name;
    Side nose = Side::Right;
    QRectF rect;
    QPolygonF outline;
    QStringList radios;
    QString title = {}; ///< the label that the shape reaches up or down to; may be empty
};

/// A frame with a text for a step that has no control, such as a fixed divider.
struct Box
{
    SourceLine source;
    QString name;
    QRectF rect;
    QString text;
};

/// A pin of the chip.
struct Pad
{
    SourceLine source;
    QString name;
    QRectF rect;
};

/// A flag that says: the signal of this name. Its tip shows the way of the signal.
struct Tag
{
    SourceLine source;
    QString name;
    QRectF rect;
    Side tip = Side::Right;
    double level = 0;  ///< of the tip and of the wire, along y
    QString text;      ///< empty around a label of the page
    QString label;     ///< the page's label that the flag surrounds; may be empty
    bool open = false; ///< without an edge behind the text, where something else follows at once
};

/// Where the frame of a flag runs: just inside of its rectangle.
QRectF lineOf(const Tag& tag);

/// A crystal between the pins of an oscillator, with the leads that join them.
struct Crystal
{
    SourceLine source;
    QString oscillator; ///< its edit
    QRectF room;        ///< of leads and symbol together
    QPointF middle;
    std::vector<QPolygonF> leads;
};

/// A text on the picture.
struct Caption
{
    SourceLine source;
    QRectF rect;
    QString text;
    tree::Style style = tree::Style::Plain;
};

/// What stands at an end of a wire.
enum class WireEnd
{
    Arrow,
    Plain, ///< runs into a bus bar
    Idle   ///< a bar at the start: nothing feeds this input
};

/// A wire along its signal, from the first to the last point.
struct Wire
{
    SourceLine source;
    QString name;
    QPolygonF points;
    QString from;        ///< the control or figure that the wire leaves; empty on a branch
    QString to;          ///< the control or figure that it reaches; empty where it ends free
    int net = 0;         ///< the same for all wires that carry one signal
    bool branch = false; ///< starts on another wire of its net
    double dot = 0;      ///< radius of the dot that marks a branch; 0 for none
    WireEnd end = WireEnd::Arrow;
    double width = weight::branch;
    QStringList behind = {}; ///< fields that may cover a piece of the wire
};

/// Of a bus, in place of the wires of that width.
struct Bar
{
    QRectF rect;
    int net;
};

/// A pair that may break a rule of the checks: two controls, or a wire or control and what it breaks.
struct Allowance
{
    SourceLine source;
    QString one;
    QString other;
};

/// A quiet line around what belongs together. Wires pass it.
struct Frame
{
    SourceLine source;
    QRectF rect;
};

struct Drawing
{
    std::vector<Frame> frames;
    std::vector<Mux> muxes;
    std::vector<Box> boxes;
    std::vector<Pad> pads;
    std::vector<Tag> tags;
    std::vector<Crystal> crystals;
    std::vector<Caption> captions;
    std::vector<Wire> wires;
    std::vector<Bar> bars;
    std::vector<Allowance> allowances;
    QHash<QString, QSizeF> rooms; ///< of labels that show something wider later

    const Wire* wire(const QString& name) const;
    /// The multiplexer of that name, or the one that holds the radio button of that name.
    const Mux* mux(const QString& name) const;
    /// The rectangle of a multiplexer, box, pad or tag.
    std::optional<QRectF> rectOf(const QString& name) const;
};

/// A straight piece of a wire, one side of a box or one lead of a crystal.
struct Segment
{
    QPointF from;
    QPointF to;

    bool isHorizontal() const { return from.y() == to.y(); }
    bool isVertical() const { return from.x() == to.x(); }
    /// The smallest rectangle around both ends; it has no height or no width.
    QRectF bounds() const;
    double length() const { return (to - from).manhattanLength(); }
};

/// Whether two rectangles share more than an edge.
bool overlap(const QRectF& one, const QRectF& other);

std::vector<Segment> segmentsOf(const QPolygonF& points);
