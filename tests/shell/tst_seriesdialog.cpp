#include "shell/MCUSelect_Form.h"
#include "testdata.h"
#include "widgets/framed.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>

class TestSeriesDialog : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dialog.reset(new MCUSelect_Form(nullptr));
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.data()));
    }

    void typedNameMovesTheLists_data()
    {
        fieldRows({"ZN64G152 | High performance | ZN64G152", "ZN64G167 | Mainstream | ZN64G167",
                   // The wrong case, a part of a name, a series for files only, no device.
                   "zn64g152 | Mainstream | ZN64G171", "ZN64G15 | Mainstream | ZN64G171",
                   "ZN64G190 | Mainstream | ZN64G171", "clock | Mainstream | ZN64G171"});
    }

    void typedNameMovesTheLists()
    {
        QFETCH(QStringList, fields);
        search()->setFocus();
        QTest::keyClicks(search(), fields[0]);
        search()->completer()->popup()->hide();
        QTest::keyClick(search(), Qt::Key_Tab);

        QVERIFY(!search()->hasFocus());
        QCOMPARE(QStringList({search()->text(), line(), series()}), fields);
        QCOMPARE(box("m_QueryDevice_ComboBox")->count(), 20);
    }

    void pickingFromTheCompleterIgnoresTheCase()
    {
        search()->setFocus();
        QTest::keyClicks(search(), "h133"_s);
        QAbstractItemView* popup = search()->completer()->popup();
        QTRY_VERIFY(popup->isVisible());
        QCOMPARE(popup->model()->rowCount(), 1);
        for (const QWidget* each : {static_cast<QWidget*>(search()), static_cast<QWidget*>(popup)})
            QVERIFY(each->font().family() == "Arial"_s && each->font().bold() &&
                    each->font().pointSize() == 10);
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Return);

        QTRY_COMPARE(series(), "ZN64H133"_s);
        QCOMPARE(line(), "Automotive"_s);
    }

    void focusByKeyboardIsFramed()
    {
        QSet<QWidget*> framed;
        for (int presses = 0; presses < 5; ++presses) {
            QWidget* focus = m_dialog->focusWidget();
            QVERIFY2(isFramed(m_dialog.data(), focus), qPrintable(focus->objectName()));
            framed += focus;
            QTest::keyClick(m_dialog.data(), Qt::Key_Tab);
        }
        QCOMPARE(framed.size(), 5);
        auto* list = box("m_MCUSerial_ComboBox");
        QTest::mouseClick(list, Qt::LeftButton);
        list->hidePopup();
        list->setFocus(Qt::MouseFocusReason);
        QVERIFY(!isFramed(m_dialog.data(), list));
    }

private:
    QComboBox* box(const char* name) { return m_dialog->findChild<QComboBox*>(QLatin1String(name)); }
    QString line() { return box("m_ProductLine_ComboBox")->currentText(); }
    QString series() { return box("m_MCUSerial_ComboBox")->currentText(); }
    QLineEdit* search() { return box("m_QueryDevice_ComboBox")->lineEdit(); }

    QScopedPointer<MCUSelect_Form> m_dialog;
};

QTEST_MAIN(TestSeriesDialog)
#include "tst_seriesdialog.moc"
