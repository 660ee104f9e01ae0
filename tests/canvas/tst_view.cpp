#include "canvas/pingraphicsview.h"
#include "testdata.h"

#include <QApplication>
#include <QGraphicsPixmapItem>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QLineEdit>
#include <QScrollBar>
#include <QWheelEvent>
#include <QtMath>

// The picture is larger than the view on all sides, so that every pan shows in the scroll bars.

class TestView : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_view.reset();
        m_scene.reset(new QGraphicsScene);
        m_view.reset(new PinGraphicsView);
        QPixmap picture(2000, 2000);
        picture.fill(Qt::white);
        QGraphicsPixmapItem* background = m_scene->addPixmap(picture);
        m_edit = new QLineEdit;
        m_scene->addWidget(m_edit)->setPos(1000, 1000);
        m_view->setScene(m_scene.data());
        m_view->SetPixMapItem(background);
        m_view->setFrameShape(QFrame::NoFrame);
        m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_view->resize(600, 400);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowActive(m_view.data()));
        m_view->centerOn(1000, 1000);
    }

    void stepsStopInsideTheLimits()
    {
        const auto step = [this](bool in) { in ? m_view->zoomIn() : m_view->zoomOut(); };
        for (const bool in : {true, false}) {
            init();
            // 1.03 to the power of 54 is 4.93, 0.97 to the power of 52 is 0.205.
            const int steps = in ? 54 : 52;
            for (int i = 1; i <= steps + 3; ++i) {
                const qreal before = scale();
                step(in);
                QCOMPARE(scale() != before, i <= steps);
            }
            // A refused step leaves the speed of pans alone too.
            m_view->zoomReset();
            m_view->centerOn(1000, 1000);
            const int before = scrolled().x();
            m_view->translate(QPointF(-20, 0));
            QCOMPARE(scrolled().x() - before, static_cast<int>(20 * qPow(in ? 1.03 : 0.97, steps)));
        }
    }

    void bothLimitsAreGood()
    {
        // The nearest float lies above 0.2.
        for (const float good : {5.0f, 0.2f}) {
            m_view->zoom(good);
            QVERIFY(qAbs(scale() - qreal(good)) < 1e-6);
            m_view->zoomReset();
        }
        for (const float bad : {5.0001f, 0.1999f}) {
            m_view->zoom(bad);
            QCOMPARE(scale(), 1.0);
        }
    }

    void resetKeepsTheSpeedOfPans()
    {
        m_view->zoom(2.0f);
        const QTransform zoomed = m_view->transform();
        m_view->zoomReset();
        QCOMPARE(m_view->transform(), QTransform(1, zoomed.m12(), zoomed.m21(), 1, zoomed.dx(), zoomed.dy()));

        const QPoint before = scrolled();
        QTest::keyClick(m_view.data(), Qt::Key_Left);
        QCOMPARE(scrolled() - before, QPoint(4, 0));
        // The next zoom multiplies the old product, not the scale that shows.
        m_view->zoom(2.0f);
        const QPoint zoomedAgain = scrolled();
        QTest::keyClick(m_view.data(), Qt::Key_Left);
        QCOMPARE(scrolled() - zoomedAgain, QPoint(8, 0));
    }

    void wheelZoomsWithNothingButCtrl()
    {
        struct Turn
        {
            Qt::KeyboardModifiers modifiers;
            int delta;
            qreal expected;
        };
        const QPoint pos(100, 100);
        // A turn that does not zoom scrolls.
        for (const Turn& each : {
                 Turn{Qt::ControlModifier,                     120,  1.03},
                 Turn{Qt::ControlModifier,                     -120, 0.97},
                 Turn{Qt::ControlModifier,                     1,    1.03},
                 Turn{Qt::ControlModifier,                     0,    0.97},
                 Turn{Qt::NoModifier,                          120,  1.0 },
                 Turn{Qt::ControlModifier | Qt::ShiftModifier, 120,  1.0 }
        }) {
            init();
            const QPoint before = scrolled();
            QWheelEvent event(pos, m_view->viewport()->mapToGlobal(pos), QPoint(), QPoint(0, each.delta),
                              Qt::NoButton, each.modifiers, Qt::NoScrollPhase, false);
            QApplication::sendEvent(m_view->viewport(), &event);
            QVERIFY2(qAbs(scale() - each.expected) < 1e-6, qPrintable(QString::number(scale())));
            QVERIFY(scrolled() != before);
        }
    }

    void keys()
    {
        const QPoint before = scrolled();
        const auto press = [this](Qt::Key key) { QTest::keyClick(m_view->viewport(), key); };
        press(Qt::Key_Left);
        QCOMPARE(scrolled() - before, QPoint(2, 0));
        press(Qt::Key_Up);
        QCOMPARE(scrolled() - before, QPoint(2, 2));
        press(Qt::Key_Right);
        press(Qt::Key_Down);
        QCOMPARE(scrolled(), before);
        press(Qt::Key_Plus);
        QVERIFY(qAbs(scale() - 1.03) < 1e-6);
        press(Qt::Key_Minus);
        QVERIFY(qAbs(scale() - 1.03 * 0.97) < 1e-6);
        // A control that has the focus gets the others first, and the view what it does not want.
        m_scene->setFocusItem(m_edit->graphicsProxyWidget());
        m_edit->setFocus();
        const QPoint kept = scrolled();
        press(Qt::Key_7);
        press(Qt::Key_Left);
        QCOMPARE(scrolled(), kept);
        QTest::keyClicks(m_view->viewport(), "++8"_s);
        QCOMPARE(m_edit->text(), "87"_s);
        QVERIFY(qAbs(scale() - qPow(1.03, 3) * 0.97) < 1e-6);
        press(Qt::Key_Up);
        QVERIFY(scrolled().y() > kept.y());
    }

    void dragMovesThePicture()
    {
        const QPoint start(100, 100);
        for (const float zoom : {1.0f, 2.0f, 0.25f}) {
            m_view->zoom(zoom);
            m_view->centerOn(1000, 1000);
            const QPoint before = scrolled();
            mouse(QEvent::MouseButtonPress, start, Qt::LeftButton);
            QCOMPARE(m_view->viewport()->cursor().shape(), Qt::OpenHandCursor);
            // The other button's release does not end a pan; the left one's does.
            mouse(QEvent::MouseButtonRelease, start, Qt::RightButton);
            mouse(QEvent::MouseMove, start + QPoint(30, 20), Qt::NoButton);
            QCOMPARE(before - scrolled(), QPoint(30, 20));
            mouse(QEvent::MouseButtonRelease, start, Qt::LeftButton);
            QCOMPARE(m_view->viewport()->cursor().shape(), Qt::ArrowCursor);

            mouse(QEvent::MouseButtonPress, start, Qt::RightButton);
            mouse(QEvent::MouseMove, start, Qt::NoButton);
            QCOMPARE(before - scrolled(), QPoint(30, 20));
        }
    }

    void stepsBelowAPixelAreLost()
    {
        const QPoint before = scrolled();
        for (int i = 0; i < 10; ++i)
            m_view->translate(QPointF(-0.9, -0.9));
        QCOMPARE(scrolled(), before);
        m_view->setTranslateSpeed(2.0);
        m_view->translate(QPointF(-0.9, -0.9));
        QCOMPARE(scrolled() - before, QPoint(1, 1));
    }

private:
    QPoint scrolled() const
    {
        return QPoint(m_view->horizontalScrollBar()->value(), m_view->verticalScrollBar()->value());
    }
    qreal scale() const { return m_view->transform().m11(); }
    void mouse(QEvent::Type type, QPoint pos, Qt::MouseButton button)
    {
        QMouseEvent event(type, pos, m_view->viewport()->mapToGlobal(pos), button, button, Qt::NoModifier);
        QApplication::sendEvent(m_view->viewport(), &event);
    }

    QScopedPointer<QGraphicsScene> m_scene;
    QScopedPointer<PinGraphicsView> m_view;
    QLineEdit* m_edit = nullptr;
};

QTEST_MAIN(TestView)
#include "tst_view.moc"
