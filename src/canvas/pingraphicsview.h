#pragma once

#include <QGraphicsView>

class QGraphicsItem;
class QGraphicsPixmapItem;
class TabOrder;

/// A view that zooms in small steps between 0.2 and 5.0 and pans by dragging the background picture or by the
/// arrow keys. A control that has the focus gets the keys first, but for those that zoom, and for the arrows
/// if it was clicked and is no text; Tab walks from control to control, and the view frames the one to which
/// the keyboard led. It holds no clock logic.
class PinGraphicsView : public QGraphicsView
{
    Q_OBJECT

public:
    explicit PinGraphicsView(QWidget* parent = nullptr);

    /// The background item, not owned: only a press on it starts a pan.
    void SetPixMapItem(QGraphicsPixmapItem* item) { m_pixmapItem = item; }
    /// The walk of its scene's controls, not owned; null ends it. To be called while the scene is set.
    void setTabOrder(TabOrder* order);

    /// Multiplier of a pan, 0.0 to 2.0; anything else is a programming fault.
    void setTranslateSpeed(qreal speed);
    qreal translateSpeed() const { return m_translateSpeed; }
    /// Relative size of a zoom step, 0.0 to 1.0; anything else is a programming fault.
    void setZoomDelta(qreal delta);
    qreal zoomDelta() const { return m_zoomDelta; }

    void zoomIn();
    void zoomOut();
    /// Back to the unit scale. The product of the zoom factors stays, so pans keep the speed of the old zoom,
    /// as users of the keyboard are used to.
    void zoomReset();
    /// Scales by the factor unless that leads out of 0.2 to 5.0.
    void zoom(float scaleFactor);
    /// Moves the picture by a distance in scene coordinates; less than a viewport pixel has no effect.
    void translate(QPointF delta);

signals:
    /// A menu is asked for where nothing but the picture is, by the mouse or by its key.
    void pictureMenuWanted(const QPoint& globalPos);

public slots:
    /// Keeps track of whether a combo's list has the focus; the combos are wired to it.
    void Focus_InControl_Slot(bool focused) { m_focusInControl_Flag = focused; }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void drawForeground(QPainter* painter, const QRectF& rect) override;

private:
    bool zoomByKey(int key);
    /// Whether an arrow key pans without being offered to the control that has the focus.
    bool isForThePicture(const QKeyEvent* event) const;
    bool stepInGroup(int key);
    bool panByKey(int key);
    void followFocus(QGraphicsItem* now, QGraphicsItem* before, Qt::FocusReason reason);
    /// Labels are part of the picture to the mouse.
    bool isPictureAt(QPoint pos) const;
    /// A combo box keeps the wheel for itself, with Ctrl too.
    bool isComboAt(QPoint pos) const;

    Qt::MouseButton m_translateButton = Qt::LeftButton;
    qreal m_translateSpeed = 1.0;
    qreal m_zoomDelta = 0.03;
    bool m_bMouseTranslate = false;
    QPoint m_lastMousePos;
    qreal m_scale = 1.0;
    bool m_focusInControl_Flag = false;
    QGraphicsPixmapItem* m_pixmapItem = nullptr;
    TabOrder* m_tabOrder = nullptr;
    /// How the focus came to the control that has it.
    bool m_byKeyboard = true;
};
