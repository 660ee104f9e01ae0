#include "formfixture.h"

#include "canvas/CustomQControl.h"
#include "canvas/accessibletree.h"
#include "model/seriestraits.h"
#include "pages/ClockTreePage.h"
#include "shell/MCUSelect_Form.h"
#include "widgets/look.h"

#include <QAccessible>
#include <QButtonGroup>
#include <QGraphicsProxyWidget>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QToolButton>
#include <QWindow>

namespace {

/// The main form with a design, led by the keyboard alone.
struct Keyboard : FormFixture
{
    explicit Keyboard(ZN64MCUSERIALS series)
    {
        find<ZN64PLLConfig>("m_clockConfigForm")->newConfig(series);
        if (!QTest::qWaitForWindowActive(&form))
            qFatal("the form is not active");
        clockButton()->setFocus();
    }

    ClockTreePage* page() const { return find<ClockTreePage>("m_pllConfigWidget"); }
    QGraphicsView* view() const { return page()->view(); }
    template <class Control = QWidget>
    Control* control(const char* name) const
    {
        return page()->findChild<Control*>(QLatin1String(name));
    }
    static void press(QWidget* window, int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(window->windowHandle(), Qt::Key(key), modifiers);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) { press(&form, key, modifiers); }

    /// The widget that the keys go to: a control of the scene, or another of the window.
    QWidget* focus() const
    {
        QWidget* widget = form.focusWidget();
        const QGraphicsItem* item = widget == view() ? view()->scene()->focusItem() : nullptr;
        if (const auto* proxy = qgraphicsitem_cast<const QGraphicsProxyWidget*>(item))
            widget = proxy->widget()->focusWidget();
        return widget;
    }
    QString focusName() const { return focus() ? focus()->objectName() : QString(); }

    /// Presses Tab until the control has the focus.
    void goTo(QWidget* control)
    {
        for (int presses = 0; presses < 200 && focus() != control; ++presses)
            press(Qt::Key_Tab);
        QCOMPARE(focusName(), control->objectName());
    }

    /// Goes to the control and presses the key, which must not move the picture.
    void pressAt(QWidget* control, int key, Qt::KeyboardModifiers modifiers = {})
    {
        goTo(control);
        const QPointF corner = view()->mapToScene(0, 0);
        press(key, modifiers);
        QCOMPARE(view()->mapToScene(0, 0), corner);
    }

    /// Whether a person can do anything with the control.
    static bool canBeUsed(const QWidget* control)
    {
        const auto* edit = qobject_cast<const QLineEdit*>(control);
        const bool kind =
            edit ? !edit->isReadOnly()
                 : qobject_cast<const QComboBox*>(control) || qobject_cast<const QAbstractButton*>(control);
        return kind && control->isEnabled() && control->isVisible();
    }

    bool isFramed(const QWidget* control) const
    {
        const QRectF place = control->window()->graphicsProxyWidget()->sceneBoundingRect();
        const QPoint above(view()->mapFromScene(QPointF(place.center().x(), place.top() - 2)));
        const QImage shot = view()->viewport()->grab(QRect(above, QSize(1, 1))).toImage();
        return shot.pixelColor(0, 0) == QColor(0, 32, 82);
    }

    bool isInSight(const QWidget* control) const
    {
        const QGraphicsItem* item = control->window()->graphicsProxyWidget();
        return view()->viewport()->rect().contains(
            view()->mapFromScene(item->sceneBoundingRect()).boundingRect());
    }
};

/// Whether the box shows its item as one with room to spare does, to the left of its arrow.
bool showsWhole(const CustomComboBox1* box, int item)
{
    constexpr int arrowColumn = 16;
    const auto seen = [&](int width) {
        CustomComboBox1 shown;
        shown.setFont(box->font());
        shown.addItem(box->itemText(item));
        shown.setFixedSize(width, 25);
        return shown.grab(QRect(2, 0, box->width() - arrowColumn - 2, 25)).toImage();
    };
    return seen(box->width()) == seen(box->width() + 60);
}

QObject* stopOf(QWidget* control)
{
    const auto* button = qobject_cast<QRadioButton*>(control);
    return button && button->group() ? static_cast<QObject*>(button->group()) : control;
}

} // namespace

/// All pages without a mouse, and what assistive tools are told of them.
class KeyboardTest : public QObject
{
    Q_OBJECT

private slots:
    void everyPage_data()
    {
        QTest::addColumn<int>("series");
        for (const SeriesTraits& traits : seriesList())
            QTest::newRow(traits.word) << int(traits.series);
    }

    void initTestCase()
    {
        look::apply();
        look::fixResolution();
        accessibletree::install();
    }

    /// Also run with another font resolution.
    void nothingIsCut_data() { everyPage_data(); }
    void nothingIsCut()
    {
        QFETCH(int, series);
        Keyboard keyboard{ZN64MCUSERIALS(series)};
        MCUSelect_Form dialog(&keyboard.form);
        dialog.show();
        QCoreApplication::processEvents();
        const QList<QWidget*> all = keyboard.form.findChildren<QWidget*>() + dialog.findChildren<QWidget*>();
        for (const QWidget* widget : all) {
            if (widget->isVisible() && widget->objectName().startsWith("m_"_s))
                QVERIFY2(widget->fontMetrics().fontDpi() == 96, qPrintable(widget->objectName()));
            if (const auto* box = qobject_cast<const CustomComboBox1*>(widget))
                for (int item = 0; item < box->count(); ++item)
                    QVERIFY2(showsWhole(box, item),
                             qPrintable(box->objectName() + u' ' + box->itemText(item)));
            const auto* edit = qobject_cast<const QLineEdit*>(widget);
            if (edit && !edit->text().isEmpty())
                QVERIFY2(edit->fontMetrics().horizontalAdvance(edit->text()) < edit->width() - 4,
                         qPrintable(edit->objectName() + u' ' + edit->text()));
        }
    }

    void tabWalksThePage_data() { everyPage_data(); }
    void tabWalksThePage()
    {
        QFETCH(int, series);
        Keyboard keyboard{ZN64MCUSERIALS(series)};
        // Far smaller than the picture, so that controls have to be brought into sight.
        keyboard.form.setMinimumSize(0, 0);
        keyboard.form.showNormal();
        keyboard.form.resize(700, 500);
        static const QRegularExpression switches("^m_(.*switch|tortc|clockout\\d?pin)_ComboBox$"_s);
        for (auto* combo : keyboard.page()->findChildren<QComboBox*>(switches))
            combo->setCurrentIndex(
                qMax(combo->findText("enable"_s), int(combo->objectName().contains("pin"_s))));
        keyboard.view()->scale(1.2, 1.2);
        QSet<QObject*> wanted;
        for (QWidget* control : keyboard.page()->findChildren<QWidget*>(QRegularExpression("^m_"_s)))
            if (Keyboard::canBeUsed(control))
                wanted += stopOf(control);
        QStringList names;
        QSet<QObject*> met;
        keyboard.codeButton()->setFocus();
        // The page, the tool bar and the buttons of the form, and so round again.
        do {
            keyboard.press(Qt::Key_Tab);
            QWidget* stop = keyboard.focus();
            QVERIFY(stop && Keyboard::canBeUsed(stop));
            QVERIFY2(!met.contains(stopOf(stop)), qPrintable("twice: "_s + stop->objectName()));
            met += stopOf(stop);
            names += stop->objectName();
            if (stop->window()->graphicsProxyWidget())
                QVERIFY2(keyboard.isInSight(stop), qPrintable(stop->objectName()));
        } while (keyboard.focus() != keyboard.codeButton() && names.size() < 200);
        QVERIFY((wanted - met).isEmpty());
        QCOMPARE(met.size() - wanted.size(), 6); // four tools and two buttons
        const QStringList order = names.filter(QRegularExpression("^m_(tortc_|hext_line|sclk_line|ahbdiv)"_s,
                                                                  QRegularExpression::CaseInsensitiveOption));
        const QStringList chain{"m_tortc_ComboBox"_s, QLatin1String(keyboard.page()->description().hextEdit),
                                "m_sclk_lineEdit"_s, "m_ahbdiv_ComboBox"_s};
        QCOMPARE(order, chain);
        for (auto name = names.crbegin() + 1; name != names.crend(); ++name) {
            keyboard.press(Qt::Key_Backtab, Qt::ShiftModifier);
            QCOMPARE(keyboard.focusName(), *name);
        }
    }

    void namesForTheEar_data() { everyPage_data(); }
    void namesForTheEar()
    {
        QFETCH(int, series);
        Keyboard keyboard{ZN64MCUSERIALS(series)};
        QHash<QString, QString> names;
        for (QWidget* control : keyboard.form.findChildren<QWidget*>()) {
            const bool result = qobject_cast<QLineEdit*>(control);
            const bool used = qobject_cast<QComboBox*>(control) || qobject_cast<QAbstractButton*>(control);
            if (!control->objectName().startsWith("m_"_s) || !(result || used))
                continue;
            const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(control);
            // The toolkit gives the present item of a list as its name here.
            const bool list = qobject_cast<QComboBox*>(control);
            const QString name = told->text(list ? QAccessible::Description : QAccessible::Name);
            QVERIFY2(name.size() > 3, qPrintable(control->objectName()));
            QVERIFY2(!names.contains(name),
                     qPrintable(name + " is "_s + names[name] + " and "_s + control->objectName()));
            names.insert(name, control->objectName());
            if (control->window()->graphicsProxyWidget()) {
                QCOMPARE(control->accessibleName(), name);
                QCOMPARE(control->window()->accessibleName(), name);
            }
        }
        QCOMPARE(names.value("hext, MHz"_s), QLatin1String(keyboard.page()->description().hextEdit));
        QVERIFY(keyboard.view()->accessibleDescription().contains(seriesName(ZN64MCUSERIALS(series))));
    }

    /// One window with one tree, which holds every control and label of the scene.
    void oneTreeForTheEar_data() { everyPage_data(); }
    void oneTreeForTheEar()
    {
        QFETCH(int, series);
        Keyboard keyboard{ZN64MCUSERIALS(series)};
        const QAccessibleInterface* program = QAccessible::queryAccessibleInterface(qApp);
        QCOMPARE(program->childCount(), 1);
        QAccessibleInterface* window = program->child(0);
        QCOMPARE(window->object(), &keyboard.form);
        QCOMPARE(window->role(), QAccessible::Window);
        int trees = 0;
        QSet<QObject*> met;
        QVector<QAccessibleInterface*> open{window};
        while (!open.isEmpty()) {
            QAccessibleInterface* each = open.takeLast();
            met += each->object();
            trees += each->text(QAccessible::Name) == "clock tree"_s;
            for (int i = 0; i < each->childCount(); ++i) {
                QAccessibleInterface* child = each->child(i);
                QVERIFY2(child->role() != QAccessible::Dialog && child->role() != QAccessible::Window,
                         qPrintable(child->text(QAccessible::Name)));
                QCOMPARE(child->parent(), each);
                QCOMPARE(each->indexOfChild(child), i);
                open += child;
            }
        }
        QCOMPARE(trees, 1);
        for (QWidget* control : keyboard.page()->findChildren<QWidget*>())
            if (control->window()->graphicsProxyWidget() &&
                (qobject_cast<QLabel*>(control) || control->objectName().startsWith("m_"_s)))
                QVERIFY2(met.contains(control), qPrintable(control->objectName()));
    }

    void listButtonTellsWhetherItsListIsOpen()
    {
        Keyboard keyboard(ZN64G125);
        auto* button = keyboard.control<QPushButton>("m_toapb1peripheral_List_Button");
        QAccessibleInterface* told = QAccessible::queryAccessibleInterface(button);
        for (const bool open : {false, true, false}) {
            QVERIFY(told->state().expandable);
            QCOMPARE(bool(told->state().expanded), open);
            QCOMPARE(bool(told->state().collapsed), !open);
            told->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        }
    }

    void keysGoToTheControlFirst()
    {
        Keyboard keyboard(ZN64G125);
        // In the text of an edit.
        auto* hext = keyboard.control<QLineEdit>("m_hext_lineEdit");
        keyboard.goTo(hext);
        hext->setText("12.5"_s);
        keyboard.pressAt(hext, Qt::Key_Left);
        QCOMPARE(hext->cursorPosition(), 3);
        // In a group of radio buttons, round its end, where one is checked by Space as well.
        auto* pll = keyboard.control<QRadioButton>("m_sclkselect_pll_RadioButton");
        QStringList checked;
        keyboard.goTo(pll);
        for (int key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Up}) {
            keyboard.press(key);
            checked += keyboard.focusName();
            QVERIFY(static_cast<QRadioButton*>(keyboard.focus())->isChecked());
        }
        QCOMPARE(QSet<QString>(checked.begin(), checked.end()).size(), 2);
        // In an open list.
        auto* ahb = keyboard.control<QComboBox>("m_ahbdiv_ComboBox");
        for (int opens : {int(Qt::Key_Space), int(Qt::Key_Down)}) {
            keyboard.pressAt(ahb, opens, opens == Qt::Key_Down ? Qt::AltModifier : Qt::NoModifier);
            keyboard.press(Qt::Key_Tab);
            QVERIFY(ahb->view()->isVisible());
            const int index = ahb->currentIndex();
            const QPointF corner = keyboard.view()->mapToScene(0, 0);
            keyboard.press(Qt::Key_Down);
            QCOMPARE(keyboard.view()->mapToScene(0, 0), corner);
            keyboard.press(Qt::Key_Return);
            QTRY_VERIFY(!ahb->view()->isVisible());
            QCOMPARE(ahb->currentIndex(), index + 1);
            QCOMPARE(keyboard.focusName(), "m_ahbdiv_ComboBox"_s);
        }
        // While the picture has the focus the keys are its own, and Tab goes on from where it was.
        keyboard.view()->scene()->setFocusItem(nullptr);
        const double zoomed = keyboard.view()->transform().m11();
        keyboard.press(Qt::Key_Plus);
        QVERIFY(keyboard.view()->transform().m11() > zoomed);
        keyboard.press(Qt::Key_Tab);
        QCOMPARE(keyboard.focusName(), "m_apb1div_ComboBox"_s);
    }

    /// What a click led to leaves the arrows to the picture, but for a text; nothing takes the keys that
    /// zoom.
    void arrowsAfterAClick_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("panned");
        QTest::newRow("box") << "m_apb1div_ComboBox"_s << int(Qt::Key_Down) << true;
        QTest::newRow("button") << "m_sclkselect_pll_RadioButton"_s << int(Qt::Key_Down) << true;
        QTest::newRow("text") << "m_hext_lineEdit"_s << int(Qt::Key_Left) << false;
    }
    void arrowsAfterAClick()
    {
        QFETCH(QString, name);
        QFETCH(int, key);
        Keyboard keyboard(ZN64G125);
        QGraphicsView* view = keyboard.view();
        auto* control = keyboard.control(qPrintable(name));
        const auto panned = [&](int key) {
            const QPointF corner = view->mapToScene(0, 0);
            keyboard.press(key);
            return view->mapToScene(0, 0) != corner;
        };
        const auto click = [&] {
            const QGraphicsItem* item = control->window()->graphicsProxyWidget();
            QCoreApplication::processEvents();
            view->ensureVisible(item);
            const QPoint place = view->mapFromScene(item->sceneBoundingRect().center());
            QTest::mouseClick(keyboard.form.windowHandle(), Qt::LeftButton, {},
                              view->viewport()->mapTo(&keyboard.form, place));
        };
        // By mouse, also to the control to which the keyboard had led.
        for (bool byKeyboardBefore : {false, true}) {
            if (byKeyboardBefore)
                keyboard.goTo(control);
            click();
            if (auto* combo = qobject_cast<QComboBox*>(control)) {
                QVERIFY(!panned(Qt::Key_Up)); // the list is open
                keyboard.press(Qt::Key_Return);
                QTRY_VERIFY(!combo->view()->isVisible());
            }
            QTRY_COMPARE(keyboard.focusName(), name);
            QTEST(panned(key), "panned");
            QVERIFY(!keyboard.isFramed(control));
        }
        const double scale = view->transform().m11();
        keyboard.press(Qt::Key_Plus);
        QVERIFY(view->transform().m11() > scale);
        keyboard.press(Qt::Key_Tab);
        QVERIFY(keyboard.isFramed(keyboard.focus()));
    }

    // A control that is greyed while it has the focus passes it on; one that has it no more keeps out.
    void greyedControls()
    {
        Keyboard keyboard(ZN64G110);
        auto* first = keyboard.control("m_apb1div_ComboBox");
        auto* second = keyboard.control("m_apb2div_ComboBox");
        keyboard.goTo(first);
        keyboard.goTo(second);
        first->setEnabled(false);
        QCOMPARE(keyboard.focus(), second);
        second->setEnabled(false);
        QVERIFY(keyboard.focus() != second && Keyboard::canBeUsed(keyboard.focus()));
        // Nothing is left to go to: the keys are the picture's again.
        keyboard.goTo(keyboard.control("m_sclkselect_pll_RadioButton"));
        const auto all = keyboard.page()->findChildren<QWidget*>(QRegularExpression("^m_"_s));
        for (QWidget* control : all)
            if (!control->objectName().contains("sclkselect"_s))
                control->setEnabled(false);
        for (auto* radio : keyboard.page()->findChildren<QRadioButton*>())
            radio->setEnabled(false);
        const QPointF corner = keyboard.view()->mapToScene(0, 0);
        keyboard.press(Qt::Key_Left);
        QVERIFY(keyboard.view()->mapToScene(0, 0) != corner);
    }

    /// The frame is drawn round the control that has the focus, and goes with it.
    void frame()
    {
        Keyboard keyboard(ZN64G110);
        auto* combo = keyboard.control("m_ahbdiv_ComboBox");
        keyboard.goTo(combo);
        QVERIFY(keyboard.isFramed(combo));
        keyboard.press(Qt::Key_Tab);
        QVERIFY(!keyboard.isFramed(combo));
    }

    void menuTitleIsFramed()
    {
        Keyboard keyboard(ZN64G110);
        auto* bar = keyboard.find<QMenuBar>("m_MenuBar");
        const auto framed = [&](int menu) {
            const QRect title = bar->actionGeometry(bar->actions().at(menu));
            const QImage shot =
                bar->grab(QRect(title.center().x(), title.top(), 1, title.height())).toImage();
            return shot.pixelColor(0, 0) == QColor(0, 32, 82) || shot.pixelColor(0, 1) == QColor(0, 32, 82);
        };
        QVERIFY(!framed(0));
        QTest::keyClick(&keyboard.form, Qt::Key_Alt);
        QVERIFY(framed(0) && !framed(1));
        QTest::keyClick(bar, Qt::Key_Right);
        QVERIFY(!framed(0) && framed(1));
        bar->setActiveAction(bar->actions().first());
        QTest::keyClick(bar, Qt::Key_Down);
        QVERIFY(QApplication::activePopupWidget());
        QVERIFY(framed(0));
        QApplication::activePopupWidget()->close();
    }
};

QTEST_MAIN(KeyboardTest)
#include "tst_keyboard.moc"
