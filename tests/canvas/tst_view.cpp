#include "canvas/pingraphicsview.h"

#include <QApplication>
#include <QGraphicsPixmapItem>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <QtMath>

// The picture is larger than the view on all sides, so that every pan shows in the scroll bars.

class TestView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void stepsStopInsideTheLimits_data();
    void stepsStopInsideTheLimits();
    void bothLimitsAreGood_data();
    void bothLimitsAreGood();
    void resetKeepsTheSpeedOfPans();
    void wheelZoomsWithNothingButCtrl_data();
    void wheelZoomsWithNothingButCtrl();
    void keys_data();
    void keys();
    void dragMovesThePicture_data();
    void dragMovesThePicture();
    void stepsBelowAPixelAreLost();

private:
    QPoint scrolled() const
    {
        return QPoint(m_view->horizontalScrollBar()->value(), m_view->verticalScrollBar()->value());
    }
    qreal scale() const { return m_view->transform().m11(); }
    void mouse(QEvent::Type type, QPoint pos, Qt::MouseButton button);

    QScopedPointer<QGraphicsScene> m_scene;
    QScopedPointer<PinGraphicsView> m_view;
    QLineEdit* m_edit = nullptr;
};

void TestView::init()
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

void TestView::mouse(QEvent::Type type, QPoint pos, Qt::MouseButton button)
{
    QMouseEvent event(type, pos, m_view->viewport()->mapToGlobal(pos), button, button, Qt::NoModifier);
    QApplication::sendEvent(m_view->viewport(), &event);
}

void TestView::stepsStopInsideTheLimits_data()
{
    QTest::addColumn<bool>("in");
    QTest::addColumn<int>("steps");
    // 1.03 to the power of 54 is 4.93, 0.97 to the power of 52 is 0.205.
    QTest::newRow("in") << true << 54;
    QTest::newRow("out") << false << 52;
}

void TestView::stepsStopInsideTheLimits()
{
    QFETCH(bool, in);
    QFETCH(int, steps);
    for (int step = 1; step <= steps + 3; ++step) {
        const qreal before = scale();
        in ? m_view->zoomIn() : m_view->zoomOut();
        QCOMPARE(scale() != before, step <= steps);
    }
    QVERIFY(scale() > 0.2 && scale() < 5.0);
    // A refused step leaves the speed of pans alone too.
    m_view->zoomReset();
    m_view->centerOn(1000, 1000);
    const int before = scrolled().x();
    m_view->translate(QPointF(-20, 0));
    QCOMPARE(scrolled().x() - before, static_cast<int>(20 * qPow(in ? 1.03 : 0.97, steps)));
    in ? m_view->zoomOut() : m_view->zoomIn();
    QVERIFY(in ? scale() < 1.0 : scale() > 1.0);
}

void TestView::bothLimitsAreGood_data()
{
    QTest::addColumn<float>("factor");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("5") << 5.0f << true;
    QTest::newRow("above 5") << 5.0001f << false;
    // The nearest float lies above 0.2.
    QTest::newRow("0.2") << 0.2f << true;
    QTest::newRow("below 0.2") << 0.1999f << false;
}

void TestView::bothLimitsAreGood()
{
    QFETCH(float, factor);
    m_view->zoom(factor);
    QTEST(scale() != 1.0, "accepted");
}

void TestView::resetKeepsTheSpeedOfPans()
{
    m_view->zoom(2.0f);
    const QTransform zoomed = m_view->transform();
    m_view->zoomReset();
    QCOMPARE(m_view->transform(), QTransform(1, zoomed.m12(), zoomed.m21(), 1, zoomed.dx(), zoomed.dy()));

    const QPoint before = scrolled();
    QTest::keyClick(m_view.data(), Qt::Key_Left);
    QCOMPARE(scrolled() - before, QPoint(4, 0));
}

void TestView::wheelZoomsWithNothingButCtrl_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("delta");
    QTest::addColumn<qreal>("expected");
    const auto row = [](const char* name, Qt::KeyboardModifiers modifiers, int delta, qreal expected) {
        QTest::newRow(name) << static_cast<int>(modifiers) << delta << expected;
    };
    row("up", Qt::ControlModifier, 120, 1.03);
    row("a little up", Qt::ControlModifier, 1, 1.03);
    row("far up", Qt::ControlModifier, 1200, 1.03);
    row("down", Qt::ControlModifier, -120, 0.97);
    row("sideways", Qt::ControlModifier, 0, 0.97);
    row("no modifier", Qt::NoModifier, 120, 1.0);
    row("Ctrl and Shift", Qt::ControlModifier | Qt::ShiftModifier, 120, 1.0);
    row("Shift", Qt::ShiftModifier, 120, 1.0);
}

void TestView::wheelZoomsWithNothingButCtrl()
{
    QFETCH(int, modifiers);
    QFETCH(int, delta);
    QFETCH(qreal, expected);
    const QPoint before = scrolled();
    const QPoint pos(100, 100);
    QWheelEvent event(pos, m_view->viewport()->mapToGlobal(pos), QPoint(), QPoint(0, delta), Qt::NoButton,
                      Qt::KeyboardModifiers(modifiers), Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_view->viewport(), &event);
    QVERIFY2(qAbs(scale() - expected) < 1e-6, qPrintable(QString::number(scale())));
    QCOMPARE(scrolled() != before, delta != 0 || expected != 1.0);
}

void TestView::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<qreal>("expected");
    QTest::addColumn<QPoint>("moved");
    QTest::newRow("plus") << int(Qt::Key_Plus) << 1.03 << QPoint();
    QTest::newRow("minus") << int(Qt::Key_Minus) << 0.97 << QPoint();
    QTest::newRow("left") << int(Qt::Key_Left) << 1.0 << QPoint(2, 0);
    QTest::newRow("right") << int(Qt::Key_Right) << 1.0 << QPoint(-2, 0);
    QTest::newRow("up") << int(Qt::Key_Up) << 1.0 << QPoint(0, 2);
    QTest::newRow("down") << int(Qt::Key_Down) << 1.0 << QPoint(0, -2);
    QTest::newRow("a digit") << int(Qt::Key_7) << 1.0 << QPoint();
}

void TestView::keys()
{
    QFETCH(int, key);
    QFETCH(qreal, expected);
    QFETCH(QPoint, moved);
    m_scene->setFocusItem(m_edit->graphicsProxyWidget());
    m_edit->setFocus();
    const QPoint before = scrolled();
    QTest::keyClick(m_view->viewport(), Qt::Key(key));
    QVERIFY2(qAbs(scale() - expected) < 1e-6, qPrintable(QString::number(scale())));
    if (expected == 1.0)
        QCOMPARE(scrolled() - before, moved);
    // The view keeps its own keys from the controls and passes on all others.
    QCOMPARE(m_edit->text(), key == Qt::Key_7 ? QStringLiteral("7") : QString());
}

void TestView::dragMovesThePicture_data()
{
    QTest::addColumn<float>("zoom");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("onControl");
    QTest::addColumn<bool>("pans");
    QTest::newRow("left") << 1.0f << int(Qt::LeftButton) << false << true;
    QTest::newRow("left at 2") << 2.0f << int(Qt::LeftButton) << false << true;
    QTest::newRow("left at 0.5") << 0.5f << int(Qt::LeftButton) << false << true;
    QTest::newRow("right") << 1.0f << int(Qt::RightButton) << false << false;
    QTest::newRow("left on a control") << 1.0f << int(Qt::LeftButton) << true << false;
}

void TestView::dragMovesThePicture()
{
    QFETCH(float, zoom);
    QFETCH(int, button);
    QFETCH(bool, onControl);
    QFETCH(bool, pans);
    m_view->zoom(zoom);
    m_view->centerOn(1000, 1000);
    const QPoint start = onControl ? m_view->mapFromScene(1010, 1005) : QPoint(100, 100);
    const QPoint before = scrolled();
    mouse(QEvent::MouseButtonPress, start, Qt::MouseButton(button));
    QCOMPARE(m_view->viewport()->cursor().shape() == Qt::OpenHandCursor, pans);
    mouse(QEvent::MouseMove, start + QPoint(30, 20), Qt::NoButton);
    QCOMPARE(before - scrolled(), pans ? QPoint(30, 20) : QPoint(0, 0));

    // The other button's release does not end a pan; the left one's does.
    mouse(QEvent::MouseButtonRelease, start, Qt::RightButton);
    QCOMPARE(m_view->viewport()->cursor().shape() == Qt::OpenHandCursor, pans);
    mouse(QEvent::MouseButtonRelease, start, Qt::LeftButton);
    QCOMPARE(m_view->viewport()->cursor().shape(), Qt::ArrowCursor);
    const QPoint after = scrolled();
    mouse(QEvent::MouseMove, QPoint(5, 5), Qt::NoButton);
    QCOMPARE(scrolled(), after);
}

void TestView::stepsBelowAPixelAreLost()
{
    const QPoint before = scrolled();
    for (int i = 0; i < 10; ++i)
        m_view->translate(QPointF(-0.9, -0.9));
    QCOMPARE(scrolled(), before);
    m_view->setTranslateSpeed(2.0);
    m_view->translate(QPointF(-0.9, -0.9));
    QCOMPARE(scrolled() - before, QPoint(1, 1));
}

QTEST_MAIN(TestView)
#include "tst_view.moc"
