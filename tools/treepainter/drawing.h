#pragma once

#include "treetext.h"

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

/// A multiplexer around its radio buttons: long where the inputs enter, short at the nose.
struct Mux
{
    SourceLine source;
    QString name;
    Side nose = Side::Right;
    QRectF rect;
    QPolygonF outline;
    QStringList radios;
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

/// A crystal between the pins of an oscillator, with the leads that join them.
struct Crystal
{
    SourceLine source;
    QRectF room; ///< of leads and symbol together
    QPointF middle;
    std::vector<QPolygonF> leads;
};

/// A text on the picture.
struct Caption
{
    SourceLine source;
    QRectF rect;
    QString text;
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
    bool idle = false;   ///< an input that nothing feeds
};

struct Drawing
{
    std::vector<Mux> muxes;
    std::vector<Box> boxes;
    std::vector<Pad> pads;
    std::vector<Crystal> crystals;
    std::vector<Caption> captions;
    std::vector<Wire> wires;

    const Wire* wire(const QString& name) const;
    /// The multiplexer of that name, or the one that holds the radio button of that name.
    const Mux* mux(const QString& name) const;
    /// The rectangle of a multiplexer, box or pad.
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

std::vector<Segment> segmentsOf(const QPolygonF& points);
