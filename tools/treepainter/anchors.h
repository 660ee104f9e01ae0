#pragma once

#include "drawing.h"
#include "pagelayout.h"

#include <QHash>

#include <optional>

/// The level of a wire's middle line: wires are sharp only between the pixels' edges.
double onPixel(double level);

/// An end of a wire that is joined to something.
struct Anchor
{
    QPointF point;
    /// The direction of the wire at this end; a branch leaves the other wire in any direction.
    std::optional<Qt::Orientation> direction;
    /// The levels at which the wire may stand here, across its direction.
    double low = 0;
    double high = 0;
    QString owner;          ///< what the wire is joined to; empty for a branch
    std::optional<int> net; ///< of the wire that a branch leaves
    double dot = 0;         ///< radius of the dot where a branch leaves; off a bus bar there is none
    /// Whose middle a row goes through: fields come before radio buttons, those before noses and labels.
    int pull = 0;

    double level() const { return direction == Qt::Horizontal ? point.y() : point.x(); }
    /// The point at another level.
    QPointF at(double level) const;
};

/// The level for a straight row through all ends: it goes through the middle of those with the strongest
/// pull, as far as the others allow. Where no level suits all, the row misses one of them.
double commonLevel(const QVector<Anchor>& ends);

/// The other side of a figure.
Side opposite(Side side);

/// Answers every question of position: where a control, a figure or a wire of the tree stands.
/// All questions throw TreeError on a name or a place that is not there.
class Anchors
{
public:
    Anchors(const PageLayout& page, const Drawing& drawing) : m_page(page), m_drawing(drawing) {}

    /// Gives a coordinate a name for the lines that follow.
    void define(const QString& name, double value) { m_defined.insert(name, value); }

    /// A coordinate along x (Qt::Horizontal) or y: a number, a defined name, the middle or a side of a
    /// control or figure ("m_hext_lineEdit", "m_hext_lineEdit.right"), each with an offset ("busX+12").
    double coordinate(const QString& text, Qt::Orientation axis) const;

    /// "control.left", "control.bottom-5", "mux.nose", "radio.in", or a branch "wire@x=240".
    Anchor anchor(const QString& text) const;

    /// The side of a control or figure; without an offset the wire may stand anywhere on it.
    Anchor side(const QString& owner, Side side, double offset = 0) const;

    QRectF rectOf(const QString& name) const;

private:
    Anchor input(const QString& radio) const;
    Anchor branch(const QString& name, const QString& place) const;
    double named(const QString& name, const QString& side, Qt::Orientation axis) const;

    const PageLayout& m_page;
    const Drawing& m_drawing;
    QHash<QString, double> m_defined;
};
