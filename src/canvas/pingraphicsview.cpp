#include "canvas/pingraphicsview.h"

#include <QComboBox>
#include <QGraphicsPixmapItem>
#include <QGraphicsProxyWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

namespace {
// Scale of the view, picture pixels to screen pixels; both ends are allowed.
constexpr qreal smallestScale = 0.2;
constexpr qreal largestScale = 5.0;
constexpr qreal keyStep = 2.0;
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
    switch (event->key()) {
    case Qt::Key_Plus:
        zoomIn();
        return;
    case Qt::Key_Minus:
        zoomOut();
        return;
    case Qt::Key_Left:
        translate(QPointF(-keyStep, 0));
        return;
    case Qt::Key_Right:
        translate(QPointF(keyStep, 0));
        return;
    case Qt::Key_Up:
        translate(QPointF(0, -keyStep));
        return;
    case Qt::Key_Down:
        translate(QPointF(0, keyStep));
        return;
    default:
        QGraphicsView::keyPressEvent(event);
    }
}
