#pragma once

#include <QFocusFrame>
#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

/// Whether a focus counts as one that came by the keyboard: it did not come by a click. before is what
/// counted so far, which stays when a window that comes to the front, or a list that closes, gives the focus
/// back.
bool isFocusByKeyboard(Qt::FocusReason reason, bool before);

/// The dark frame that the trees draw round the control with the focus, for the controls of a window. It
/// shows while the focus came by other ways than a click.
class FocusFrame : public QObject
{
    Q_OBJECT

public:
    /// The window owns it.
    explicit FocusFrame(QWidget* window);

    /// Frames the control while it has the focus.
    void watch(QWidget* control);
    /// Frames a part of the control, which may change: see update().
    void watch(QWidget* control, const std::function<QWidget*()>& part);
    /// Moves the frame to the present part of the control that has the focus.
    void update();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show(QObject* focused);

    /// Goes with the window, which may be before the last control.
    QPointer<QFocusFrame> m_frame;
    QHash<QObject*, std::function<QWidget*()>> m_parts;
    QObject* m_focused = nullptr;
    bool m_byKeyboard = true;
};
