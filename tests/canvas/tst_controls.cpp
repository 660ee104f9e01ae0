#include "canvas/ZN64MCUPLL.h"
#include "testdata.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QGraphicsScene>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <algorithm>

// Real events go through the view's viewport, as a user's do, and never straight to the control.

class TestControls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QPixmap picture(1408, 830);
        picture.fill(Qt::white);
        QVERIFY(picture.save(m_folder.filePath("picture.bmp"_s)));
    }

    void init()
    {
        m_page.reset(new ZN64MCUPLL(ZN64G110, m_folder.filePath("picture.bmp"_s), nullptr));
        m_combo = m_page->NewComboBoxInScenePos(700, 400, 80, 0);
        m_combo->addItems({"none"_s, "PA8"_s, "PA9"_s});
        m_combo->setFixedHeight(25);
        m_edit = m_page->NewCustomLineEditInScenePos("8"_s, 300, 300, 80);
        m_radio = m_page->NewRadioButtonInScenePos(500, 300);
        m_button = m_page->New_toperipheralListButton(600, 300, 0);
        m_label = m_page->NewQLabelInScenePos(QString(), 300, 500, 10, 0);
        m_page->resize(1000, 700);
        m_page->show();
        QVERIFY(QTest::qWaitForWindowActive(m_page.data()));
    }

    void comboOpensAtItsPlace_data() { zooms(true); }
    void comboOpensAtItsPlace()
    {
        zoomTo(m_combo);
        click(middleOf(m_combo));
        const QAbstractItemView* list = m_combo->view();
        QTRY_VERIFY(list->isVisible());

        const QGraphicsProxyWidget* popup = list->window()->graphicsProxyWidget();
        if (!popup)
            popup = list->parentWidget()->graphicsProxyWidget();
        QVERIFY(popup);
        const QRectF combo = ZN64MCUPLL::proxyOf(m_combo)->sceneBoundingRect();
        const QRectF opened = popup->sceneBoundingRect();
        QVERIFY(qAbs(opened.left() - combo.left()) < 10);
        QVERIFY(opened.adjusted(0, -5, 0, 5).intersects(combo));
        QVERIFY(opened.width() >= combo.width() - 10 && opened.height() >= 2 * combo.height());

        const QRect item = list->visualRect(m_combo->model()->index(2, 0));
        const QPoint inPopup = list->viewport()->mapTo(list->parentWidget(), item.center());
        const QPoint target = m_page->view()->mapFromScene(popup->mapToScene(inPopup));
        QVERIFY(viewport()->rect().contains(target));
        click(target);
        QTRY_VERIFY(!list->isVisible());
        QCOMPARE(m_combo->currentText(), "PA9"_s);
    }

    void openListIsDarkOnLightInTheCombosFont()
    {
        m_combo->setFont(QFont("Arial"_s, 24));
        click(middleOf(m_combo));
        const QAbstractItemView* list = m_combo->view();
        QTRY_VERIFY(list->isVisible());
        const QRect chosen = list->visualRect(m_combo->model()->index(0, 0));
        QVERIFY(chosen.height() >= QFontMetrics(m_combo->font()).height());
        const QImage seen = list->viewport()->grab(chosen & list->viewport()->rect()).toImage();
        QVector<int> grays;
        for (int i = 0; i < seen.width() * seen.height(); ++i)
            grays += qGray(seen.pixel(i % seen.width(), i / seen.width()));
        std::sort(grays.begin(), grays.end());
        QVERIFY(grays.first() < 50 && grays.last() < 220);
    }

    void editTakesCaretAndText_data() { zooms(false); }
    void editTakesCaretAndText()
    {
        zoomTo(m_edit);
        m_edit->setText("12345"_s);
        click(onViewport(m_edit, QPoint(m_edit->width() - 3, m_edit->height() / 2)));
        QVERIFY(m_edit->hasFocus());
        QCOMPARE(m_edit->cursorPosition(), 5);
        QTest::keyClicks(viewport(), ".5"_s);
        click(onViewport(m_edit, QPoint(3, m_edit->height() / 2)));
        QCOMPARE(m_edit->cursorPosition(), 0);
        QTest::keyClicks(viewport(), "9"_s);
        QCOMPARE(m_edit->text(), "912345.5"_s);
    }

    void buttonsTakeClicks_data() { zooms(false); }
    void buttonsTakeClicks()
    {
        zoomTo(m_radio);
        click(middleOf(m_radio));
        QVERIFY(m_radio->isChecked());

        m_page->view()->zoomReset();
        QSignalSpy clicked(m_button, &QPushButton::clicked);
        zoomTo(m_button);
        click(middleOf(m_button));
        QCOMPARE(clicked.count(), 1);
    }

    void wheelOverAComboDoesNothing()
    {
        m_combo->setCurrentIndex(1);
        m_page->resize(500, 300);
        m_page->view()->centerOn(700, 400);
        const QPoint pos = middleOf(m_combo);
        for (int delta : {120, -120}) {
            for (auto modifiers : {Qt::NoModifier, Qt::ControlModifier}) {
                QWheelEvent event(pos, viewport()->mapToGlobal(pos), QPoint(), QPoint(0, delta), Qt::NoButton,
                                  modifiers, Qt::NoScrollPhase, false);
                QApplication::sendEvent(viewport(), &event);
                QCOMPARE(m_combo->currentIndex(), 1);
                // Neither scrolled nor zoomed.
                QVERIFY(m_page->view()->transform().isIdentity());
                QCOMPARE(middleOf(m_combo), pos);
            }
        }
    }

    void popupTellsItsFocusToTheView()
    {
        QSignalSpy focus(m_combo->listView(), &CustomListView::focusInThis);
        QSignalSpy clicked(m_combo, &CustomComboBox1::clicked);
        click(middleOf(m_combo));
        QTRY_COMPARE(focus.count(), 1);
        QCOMPARE(focus.takeFirst().first().toBool(), true);
        QCOMPARE(clicked.count(), 1);
        QTest::keyClick(viewport(), Qt::Key_Escape);
        QTRY_COMPARE(focus.count(), 1);
        QCOMPARE(focus.takeFirst().first().toBool(), false);
        QVERIFY(m_combo->isVisible());
        // Only a connection that was there can be cut.
        QVERIFY(disconnect(m_combo->listView(), SIGNAL(focusInThis(bool)), m_page->view(),
                           SLOT(Focus_InControl_Slot(bool))));
    }

    void escapeLeavesTheEdit()
    {
        click(middleOf(m_edit));
        QVERIFY(m_edit->hasFocus());
        QTest::keyClick(viewport(), Qt::Key_Escape);
        QVERIFY(m_edit->isVisible());
        QVERIFY(ZN64MCUPLL::proxyOf(m_edit)->isVisible());
        QTest::keyClicks(viewport(), "8"_s);
        QVERIFY(m_edit->text().contains("88"_s));
    }

    void pressOnAControlStartsNoPan()
    {
        m_label->setText("lick(kHz)"_s);
        QCoreApplication::processEvents();
        for (const QWidget* control :
             {static_cast<const QWidget*>(m_edit), static_cast<const QWidget*>(m_label),
              static_cast<const QWidget*>(m_radio)}) {
            QTest::mousePress(viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(control));
            QVERIFY2(viewport()->cursor().shape() != Qt::OpenHandCursor, control->metaObject()->className());
            QTest::mouseRelease(viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(control));
        }
        QTest::mousePress(viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(m_edit) + QPoint(0, 60));
        QCOMPARE(viewport()->cursor().shape(), Qt::OpenHandCursor);
    }

    void comboKeepsItsChoiceWhenGreyed()
    {
        m_combo->setCurrentIndex(1);
        m_combo->setEnabledStatus(false);
        click(middleOf(m_combo));
        QVERIFY(!m_combo->view()->isVisible());
        QCOMPARE(m_combo->currentText(), "PA8"_s);
    }

    void greyedComboIsGreyAllOver()
    {
        m_combo->setEnabledStatus(true);
        QVERIFY(mostColorful(enlarged(m_combo)) > 50);
        m_combo->setEnabledStatus(false);
        QVERIFY(mostColorful(enlarged(m_combo)) < 10);
    }

    /// An unchecked button's ring is no larger than the disc of the checked one, and has a hole.
    void buttonsAreRound()
    {
        const QImage ring = enlarged(m_radio);
        m_radio->setChecked(true);
        const QImage disc = enlarged(m_radio);
        const QRgb ground = disc.pixel(0, 0);
        QCOMPARE(ring.pixel(ring.rect().center()), ground);
        QVERIFY(disc.pixel(disc.rect().center()) != ground);
        int differ = 0;
        for (int i = 0; i < disc.width() * disc.height(); ++i) {
            const QPoint at(i % disc.width(), i / disc.width());
            QVERIFY(disc.pixel(at) != ground || ring.pixel(at) == ground);
            differ += ring.pixel(at) != ground;
        }
        QVERIFY(differ > 4 * disc.width());
    }

    void wrapperFollowsItsControl()
    {
        const QGraphicsProxyWidget* item = ZN64MCUPLL::proxyOf(m_label);
        for (const char* text : {"(192.000 MHz)", "", "(8.000 MHz)"}) {
            m_label->setText(QLatin1String(text));
            QTRY_COMPARE(item->size(), QSizeF(m_label->sizeHint()));
        }
    }

private:
    /// The control as it is seen at 400 %.
    static QImage enlarged(QWidget* control)
    {
        QImage seen(control->size() * 4, QImage::Format_RGB32);
        seen.setDevicePixelRatio(4);
        control->render(&seen);
        return seen;
    }

    static int mostColorful(const QImage& image)
    {
        int most = 0;
        for (int i = 0; i < image.width() * image.height(); ++i) {
            const QColor color = image.pixelColor(i % image.width(), i / image.width());
            most = qMax(most, qAbs(color.red() - color.blue()));
        }
        return most;
    }

    static void zooms(bool corners)
    {
        QTest::addColumn<float>("zoom");
        QTest::addColumn<QPoint>("place");
        for (int percent : {25, 100, 400}) {
            const float zoom = static_cast<float>(percent) / 100;
            QTest::addRow("%d%%", percent) << zoom << QPoint(700, 400);
            if (!corners)
                continue;
            QTest::addRow("%d%%, top left", percent) << zoom << QPoint(0, 0);
            QTest::addRow("%d%%, bottom right", percent) << zoom << QPoint(1320, 740);
        }
    }

    void zoomTo(const QWidget* control)
    {
        QFETCH(float, zoom);
        QFETCH(QPoint, place);
        ZN64MCUPLL::proxyOf(control)->setPos(place);
        m_page->view()->zoom(zoom);
        m_page->view()->centerOn(place);
    }

    QWidget* viewport() const { return m_page->view()->viewport(); }
    QPoint onViewport(const QWidget* control, QPoint pos) const
    {
        const QPointF onScene =
            ZN64MCUPLL::proxyOf(control)->mapToScene(control->mapTo(control->window(), pos));
        return m_page->view()->mapFromScene(onScene);
    }

    QPoint middleOf(const QWidget* control) const { return onViewport(control, control->rect().center()); }
    void move(QPoint pos)
    {
        QMouseEvent event(QEvent::MouseMove, pos, viewport()->mapToGlobal(pos), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(viewport(), &event);
    }

    void click(QPoint pos)
    {
        move(pos);
        QTest::mouseClick(viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    }

    QTemporaryDir m_folder;
    QScopedPointer<ZN64MCUPLL> m_page;
    CustomComboBox1* m_combo = nullptr;
    QLineEdit* m_edit = nullptr;
    QRadioButton* m_radio = nullptr;
    QPushButton* m_button = nullptr;
    QLabel* m_label = nullptr;
};

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
