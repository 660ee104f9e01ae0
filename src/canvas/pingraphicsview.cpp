#include "canvas/pingraphicsview.h"

#include "canvas/taborder.h"
#include "widgets/focusframe.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QGraphicsPixmapItem>
#include <QGraphicsProxyWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>

#include <optional>
#include <utility>

namespace {
// Scale of the view, picture pixels to screen pixels; both ends are allowed.
constexpr qreal smallestScale = 0.2;
constexpr qreal largestScale = 5.0;
constexpr qreal keyStep = 2.0;
// The frame of the control that has the focus, picture pixels outside of the control, and as wide.
constexpr qreal focusFrame = 2.0;
// Between a control that the keyboard brings into sight and the edge of the view, screen pixels.
constexpr int sightMargin = 40;

/// The step of an arrow key, scene coordinates; nothing for any other key.
std::optional<QPointF> panOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return QPointF(-keyStep, 0);
    case Qt::Key_Right:
        return QPointF(keyStep, 0);
    case Qt::Key_Up:
        return QPointF(0, -keyStep);
    case Qt::Key_Down:
        return QPointF(0, keyStep);
    default:
        return std::nullopt;
    }
}
} // namespace

PinGraphicsView::PinGraphicsView(QWidget* parent) : QGraphicsView(parent)
{
    setRenderHint(QPainter::Antialiasing);
    centerOn(0, 0);
}

void PinGraphicsView::setTranslateSpeed(qreal speed)
{
    Q_ASSERT_X(speed >= 0.0 && speed <= 2.0, "InteractiveView::setTranslateSpeed",
               "Speed should be in range [0.0, 2.0].");
    m_translateSpeed = speed;
}

void PinGraphicsView::setZoomDelta(qreal delta)
{
    Q_ASSERT_X(delta >= 0.0 && delta <= 1.0, "InteractiveView::setZoomDelta",
               "Delta should be in range [0.0, 1.0].");
    m_zoomDelta = delta;
}

void PinGraphicsView::zoomIn()
{
    zoom(static_cast<float>(1.0 + m_zoomDelta));
}

void PinGraphicsView::zoomOut()
{
    zoom(static_cast<float>(1.0 - m_zoomDelta));
}

void PinGraphicsView::zoomReset()
{
    setTransformationAnchor(QGraphicsView::AnchorViewCenter);
    const QTransform now = transform();
    setTransform(QTransform(1.0, now.m12(), now.m21(), 1.0, now.dx(), now.dy()));
}

void PinGraphicsView::zoom(float scaleFactor)
{
    const qreal factor = static_cast<qreal>(scaleFactor);
    const qreal width = transform().scale(factor, factor).mapRect(QRectF(0, 0, 1, 1)).width();
    if (width < smallestScale || width > largestScale)
        return;
    scale(factor, factor);
    m_scale *= factor;
}

void PinGraphicsView::translate(QPointF delta)
{
    delta *= m_scale;
    delta *= m_translateSpeed;
    setTransformationAnchor(QGraphicsView::AnchorUnderMouse);
    const QRect area = viewport()->rect();
    const QPoint newCenter(static_cast<int>(area.width() / 2 - delta.x()),
                           static_cast<int>(area.height() / 2 - delta.y()));
    centerOn(mapToScene(newCenter));
    setTransformationAnchor(QGraphicsView::AnchorViewCenter);
}

void PinGraphicsView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == m_translateButton && m_pixmapItem && scene() &&
        scene()->itemAt(mapToScene(event->pos()), transform()) == m_pixmapItem) {
        m_bMouseTranslate = true;
        viewport()->setCursor(Qt::OpenHandCursor);
        m_lastMousePos = event->pos();
    }
    QGraphicsView::mousePressEvent(event);
    // On the control that has the focus already, too.
    if (std::exchange(m_byKeyboard, false))
        viewport()->update();
}

void PinGraphicsView::mouseMoveEvent(QMouseEvent* event)
{
    if (m_bMouseTranslate)
        translate(mapToScene(event->pos()) - mapToScene(m_lastMousePos));
    m_lastMousePos = event->pos();
    QGraphicsView::mouseMoveEvent(event);
}

void PinGraphicsView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == m_translateButton) {
        m_bMouseTranslate = false;
        viewport()->setCursor(Qt::ArrowCursor);
    }
    QGraphicsView::mouseReleaseEvent(event);
}

bool PinGraphicsView::isPictureAt(QPoint pos) const
{
    const QGraphicsItem* item = itemAt(pos);
    const auto* proxy = qgraphicsitem_cast<const QGraphicsProxyWidget*>(item);
    return item && (item == m_pixmapItem || (proxy && proxy->focusPolicy() == Qt::NoFocus));
}

void PinGraphicsView::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const bool onPicture = byKey ? !(m_tabOrder && m_tabOrder->current()) : isPictureAt(event->pos());
    if (!onPicture) {
        QGraphicsView::contextMenuEvent(event);
        return;
    }
    event->accept();
    emit pictureMenuWanted(byKey ? viewport()->mapToGlobal(viewport()->rect().center()) : event->globalPos());
}

bool PinGraphicsView::isComboAt(QPoint pos) const
{
    const auto* control = qgraphicsitem_cast<QGraphicsProxyWidget*>(itemAt(pos));
    return control && control->widget() && control->widget()->findChild<QComboBox*>();
}

void PinGraphicsView::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers() == Qt::ControlModifier && !isComboAt(event->position().toPoint())) {
        if (event->angleDelta().y() >= 1)
            zoomIn();
        else
            zoomOut();
    }
    QGraphicsView::wheelEvent(event);
}

void PinGraphicsView::keyPressEvent(QKeyEvent* event)
{
    // What has the focus gets the key first, and the picture what is left. No control has a use for the keys
    // that zoom.
    const int key = event->key();
    const bool offered = scene() && scene()->focusItem() && isInteractive() && !isForThePicture(event);
    if (zoomByKey(key)) {
        event->accept();
        return;
    }
    if (offered)
        QCoreApplication::sendEvent(scene(), event);
    if ((offered && (event->isAccepted() || stepInGroup(key))) || panByKey(key))
        event->accept();
    else if (offered)
        QAbstractScrollArea::keyPressEvent(event);
    else
        QGraphicsView::keyPressEvent(event);
}

bool PinGraphicsView::isForThePicture(const QKeyEvent* event) const
{
    // With Alt they open a list.
    if (!m_tabOrder || m_byKeyboard || (event->modifiers() & ~Qt::KeypadModifier) || !panOf(event->key()))
        return false;
    const QWidget* control = m_tabOrder->current();
    return control && !m_tabOrder->listIsOpen() && !qobject_cast<const QLineEdit*>(control);
}

bool PinGraphicsView::zoomByKey(int key)
{
    if (key == Qt::Key_Plus)
        zoomIn();
    else if (key == Qt::Key_Minus)
        zoomOut();
    return key == Qt::Key_Plus || key == Qt::Key_Minus;
}

bool PinGraphicsView::stepInGroup(int key)
{
    return m_tabOrder && panOf(key) && m_tabOrder->moveInGroup(key == Qt::Key_Right || key == Qt::Key_Down);
}

bool PinGraphicsView::panByKey(int key)
{
    const std::optional<QPointF> pan = panOf(key);
    if (pan)
        translate(*pan);
    return pan.has_value();
}

void PinGraphicsView::setTabOrder(TabOrder* order)
{
    m_tabOrder = order;
    // Only this one: the scene also tells the view of its size.
    disconnect(scene(), &QGraphicsScene::focusItemChanged, this, &PinGraphicsView::followFocus);
    if (order)
        connect(scene(), &QGraphicsScene::focusItemChanged, this, &PinGraphicsView::followFocus);
}

void PinGraphicsView::followFocus(QGraphicsItem* now, QGraphicsItem* before, Qt::FocusReason reason)
{
    m_tabOrder->focusChanged();
    // A list that closes leaves the focus nowhere.
    const auto* proxy = qgraphicsitem_cast<QGraphicsProxyWidget*>(before);
    if (!now && proxy && proxy->widget() && (proxy->widget()->windowFlags() & Qt::Popup) == Qt::Popup)
        QTimer::singleShot(0, this, [this] {
            if (m_tabOrder && !scene()->focusItem())
                m_tabOrder->restore();
        });
    const QWidget* control = m_tabOrder->current();
    if (control)
        m_byKeyboard = isFocusByKeyboard(reason, m_byKeyboard);
    if (control && (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason))
        ensureVisible(control->window()->graphicsProxyWidget(), sightMargin, sightMargin);
}

bool PinGraphicsView::event(QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !m_tabOrder)
        return QGraphicsView::event(event);
    const auto* pressed = static_cast<const QKeyEvent*>(event);
    const bool tab = pressed->key() == Qt::Key_Tab;
    if (!(tab || pressed->key() == Qt::Key_Backtab) || (pressed->modifiers() & ~Qt::ShiftModifier))
        return QGraphicsView::event(event);
    const bool next = tab && !(pressed->modifiers() & Qt::ShiftModifier);
    // Past the last control the focus goes on to the window's other widgets.
    event->setAccepted(m_tabOrder->listIsOpen() || m_tabOrder->move(next) || focusNextPrevChild(next));
    return true;
}

void PinGraphicsView::focusInEvent(QFocusEvent* event)
{
    const bool tab = event->reason() == Qt::TabFocusReason;
    if (!m_tabOrder || !(tab || event->reason() == Qt::BacktabFocusReason)) {
        QGraphicsView::focusInEvent(event);
        return;
    }
    // The scene would choose a control by an order of its own.
    QFocusEvent plain(QEvent::FocusIn, Qt::OtherFocusReason);
    QGraphicsView::focusInEvent(&plain);
    m_tabOrder->enter(tab);
}

void PinGraphicsView::drawForeground(QPainter* painter, const QRectF& rect)
{
    QGraphicsView::drawForeground(painter, rect);
    const QWidget* control = m_tabOrder && m_byKeyboard && hasFocus() ? m_tabOrder->current() : nullptr;
    if (!control)
        return;
    const QRectF place = control->window()->graphicsProxyWidget()->sceneBoundingRect();
    const qreal outside = focusFrame / 2 + 1;
    painter->setPen(QPen(QColor(0, 32, 82), focusFrame));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(place.adjusted(-outside, -outside, outside, outside), focusFrame, focusFrame);
}
