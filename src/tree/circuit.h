#pragma once

#include "tree/figures.h"

#include <QHash>

#include <functional>

namespace tree {

/// What a control says to the wires that reach and leave it.
struct ControlState
{
    bool enabled = true;
    bool passes = true; ///< not so a switch that is off and a radio button that is not checked
    bool red = false;   ///< what it shows is out of range
};

enum class Use : quint8
{
    Idle,
    InUse,
    Red ///< a wire that reaches a red field
};

/// The use of every figure, in the order of the picture.
struct Uses
{
    QVector<Use> wires;
    QVector<Use> below;
    QVector<Use> above;
};

/// A field that stands before a wire, and its middle, picture pixels.
struct Cover
{
    QString field;
    QPointF middle;
};

/// The picture with the wires cut at the fields that stand before them at present: what was one signal behind
/// them becomes the chain of signals that they make of it.
Picture cutAt(const Picture& picture, const QVector<Cover>& covers);

/// How the signals of a picture hang together: which of them a control or figure takes and gives, and so what
/// is in use, and where a signal comes from. It knows no rule of a chip; all of it follows from the states of
/// the controls.
class Circuit
{
public:
    Circuit() = default;
    /// takenUp: for flags, the controls or figures that may give the signal of their name; the first that is
    /// in the picture does.
    explicit Circuit(const Picture& picture, const QHash<QString, QStringList>& takenUp = {});

    /// The controls whose states count. The states of all calls are in this order.
    const QStringList& controls() const { return m_controls; }

    Uses usesOf(const QVector<ControlState>& states) const;

    int nets() const { return m_sources.size(); }
    /// The control or figure that gives the signal.
    QString sourceOf(int net) const { return m_elements[m_sources[net]].name; }
    /// The signal that the control or figure gives, or else the one that it takes; -1 for none.
    int netAt(const QString& element) const;
    /// The signal that reaches the control or figure at present: through a multiplexer that of the radio
    /// button that is checked. -1 for none.
    int netInto(const QString& element, const QVector<ControlState>& states) const;
    /// The signal that the flag which gives this one takes up: the two are one. The signal itself if no flag
    /// gives it, or one that takes up nothing of the picture.
    int named(int net) const { return m_named[net]; }
    /// Whether any piece or flag of the signal is in use.
    bool inUse(int net, const QVector<ControlState>& states) const;

private:
    enum class Kind
    {
        Control,
        Radio, ///< an input of a multiplexer
        Step,  ///< a multiplexer, a box or a flag that a wire leaves
        Sink   ///< a flag or a pad at the end of a wire
    };
    struct Element
    {
        QString name;
        Kind kind = Kind::Control;
        int control = -1;    ///< of the controls
        int takes = -1;      ///< the signal that reaches it
        int gives = -1;      ///< the signal that leaves it
        int selector = -1;   ///< element, of a radio button
        QVector<int> inputs; ///< elements, of a multiplexer
    };
    struct Piece
    {
        int net;
        int before;
        int end; ///< element; -1 for none
    };
    class Evaluation;

    int element(const QString& name);
    void add(const Figure& figure);
    void takeUp(const QHash<QString, QStringList>& takenUp);

    QVector<Element> m_elements;
    QHash<QString, int> m_byName;
    QStringList m_controls;
    QVector<int> m_sources;         ///< element of each signal
    QVector<QVector<int>> m_pieces; ///< of each signal
    QVector<int> m_named;           ///< of each signal
    QVector<QVector<int>> m_flags;  ///< of each signal: those that flags give which take it up
    QVector<Piece> m_wires;
    QVector<int> m_below; ///< elements of the figures; -1 for one without a state
    QVector<int> m_above;
    QVector<int> m_bars; ///< the signals of figures above that are bus bars; -1 for others
};

} // namespace tree
