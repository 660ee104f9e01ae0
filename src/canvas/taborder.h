#pragma once

#include <QPointer>
#include <QVector>
#include <QWidget>

class QGraphicsScene;

/// Walks the controls of a scene by the keyboard, in an order of the owner's choice. The toolkit has no such
/// walk for them: each control is a window of its own to it, and a group of radio buttons ends at its window.
/// Only what can be used takes part: shown, enabled, not read-only. A group of radio buttons is one stop, at
/// the button that is checked.
class TabOrder
{
public:
    explicit TabOrder(QGraphicsScene& scene) : m_scene(scene) {}

    /// All that may ever take the focus, in reading order. None may go before this object.
    void setControls(const QVector<QWidget*>& controls) { m_controls = controls; }
    const QVector<QWidget*>& controls() const { return m_controls; }

    /// The control that has the focus of the scene; null if the picture or a mere label has it.
    QWidget* current() const;
    /// Whether the list of a combo box is open, which then has the keyboard to itself.
    bool listIsOpen() const;
    /// To the next or previous stop, from where the focus was last; false, moving nothing, at the end.
    bool move(bool next);
    /// To the first or last stop, for the focus that comes from outside; false if nothing can be used.
    bool enter(bool atFirst);
    /// Gives the focus back to the control that had it last.
    void restore();
    /// Checks the next or previous button of the radio group that has the focus, round its end; false if none
    /// has it.
    bool moveInGroup(bool next);
    /// To be told of every change of focus of the scene, so that the walk goes on from there.
    void focusChanged();

private:
    QVector<QWidget*> stops() const;
    int placeOfLast() const;
    void focus(QWidget* control, Qt::FocusReason reason);

    QGraphicsScene& m_scene;
    QVector<QWidget*> m_controls;
    QPointer<QWidget> m_last;
};
