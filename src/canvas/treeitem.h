#pragma once

#include "tree/circuit.h"
#include "tree/drawing.h"
#include "tree/figures.h"

#include <QGraphicsPixmapItem>

class QWidget;

/// The background of a page. To the scene it is the picture of the clock tree, at its size; what it paints
/// are the figures of that picture, sharp at every zoom and on every screen, and in the state of the controls
/// at that moment. Without figures it paints the picture.
class TreeItem : public QGraphicsPixmapItem
{
public:
    TreeItem(const QPixmap& picture, tree::Picture figures);

    /// From now on the picture is in the state of these controls, by their object names. They must outlive
    /// it. takenUp: what may give the signals of the flags' names, as a circuit wants it.
    void follow(const QList<QWidget*>& controls, const QHash<QString, QStringList>& takenUp);

    /// The figures as they are at present: in each mode of the PLL other fields stand before its wires.
    const tree::Picture& figures();
    const tree::Circuit& circuit();
    /// Of the circuit's controls, in its order.
    QVector<tree::ControlState> states();
    /// How the picture looks with nothing marked.
    tree::State state();

    /// Lifts all that carries these signals out of the picture.
    void mark(const QVector<int>& nets);

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    /// Brings figures and circuit in line with the fields before the wires.
    void refit();
    void cut();
    QVector<tree::Cover> covers() const;

    const tree::Picture m_whole;
    tree::Picture m_figures;
    tree::Circuit m_circuit;
    QHash<QString, QWidget*> m_controls;
    QHash<QString, QStringList> m_takenUp;
    QVector<QWidget*> m_fields;  ///< that may stand before wires
    QVector<QWidget*> m_watched; ///< the circuit's controls; null for one that is not there
    QVector<tree::Cover> m_covers;
    QVector<int> m_marked;
};
