#include "shell/MCUSelect_Form.h"
#include "testdata.h"

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
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("series");
        const auto row = [](const char* name, const char* typed, const char* line, const char* series) {
            QTest::newRow(name) << QString::fromLatin1(typed) << QString::fromLatin1(line)
                                << QString::fromLatin1(series);
        };
        row("another line", "ZN64G152", "High performance", "ZN64G152");
        row("the line shown", "ZN64G167", "Mainstream", "ZN64G167");
        row("wrong case", "zn64g152", "Mainstream", "ZN64G171");
        row("part of a name", "ZN64G15", "Mainstream", "ZN64G171");
        row("series for files only", "ZN64G190", "Mainstream", "ZN64G171");
        row("no device", "clock", "Mainstream", "ZN64G171");
    }

    void typedNameMovesTheLists()
    {
        QFETCH(QString, typed);
        search()->setFocus();
        QTest::keyClicks(search(), typed);
        search()->completer()->popup()->hide();
        QTest::keyClick(search(), Qt::Key_Tab);

        QVERIFY(!search()->hasFocus());
        QTEST(line(), "line");
        QTEST(series(), "series");
        QCOMPARE(search()->text(), typed);
        QCOMPARE(box("m_QueryDevice_ComboBox")->count(), 20);
    }

    void pickingFromTheCompleterIgnoresTheCase()
    {
        search()->setFocus();
        QTest::keyClicks(search(), "h133"_s);
        QAbstractItemView* popup = search()->completer()->popup();
        QTRY_VERIFY(popup->isVisible());
        QCOMPARE(popup->model()->rowCount(), 1);
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Return);

        QTRY_COMPARE(series(), "ZN64H133"_s);
        QCOMPARE(line(), "Automotive"_s);
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
