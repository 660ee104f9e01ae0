#include "widgets/focusframe.h"

#include <QFocusEvent>
#include <QPainter>

namespace {

/// The styles draw next to nothing here.
class DarkFrame : public QFocusFrame
{
public:
    using QFocusFrame::QFocusFrame;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(QPen(QColor(0, 32, 82), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};

} // namespace

bool isFocusByKeyboard(Qt::FocusReason reason, bool before)
{
    const bool givesBack = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
                           reason == Qt::MenuBarFocusReason;
    return givesBack ? before : reason != Qt::MouseFocusReason;
}

FocusFrame::FocusFrame(QWidget* window) : QObject(window), m_frame(new DarkFrame(window)) {}

void FocusFrame::watch(QWidget* control)
{
    watch(control, [control] { return control; });
}

void FocusFrame::watch(QWidget* control, const std::function<QWidget*()>& part)
{
    m_parts.insert(control, part);
    control->installEventFilter(this);
}

void FocusFrame::update()
{
    QWidget* part = m_byKeyboard && m_focused ? m_parts[m_focused]() : nullptr;
    if (!m_frame)
        return;
    m_frame->setWidget(part);
    m_frame->setVisible(part);
}

bool FocusFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        m_byKeyboard = isFocusByKeyboard(static_cast<QFocusEvent*>(event)->reason(), m_byKeyboard);
        show(watched);
    } else if (event->type() == QEvent::FocusOut) {
        show(nullptr);
    }
    return QObject::eventFilter(watched, event);
}

void FocusFrame::show(QObject* focused)
{
    m_focused = focused;
    // A control may change its sheet with the focus, which would hide a frame that is there already.
    QMetaObject::invokeMethod(this, &FocusFrame::update, Qt::QueuedConnection);
}
