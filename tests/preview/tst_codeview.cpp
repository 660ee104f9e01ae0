#include "model/seriestraits.h"
#include "pages/series/seriespages.h"
#include "preview/FormCodeView.h"
#include "preview/MyQsciScintilla.h"
#include "preview/stems.h"
#include "testdata.h"
#include "widgets/framed.h"

#include <QDir>
#include <QLabel>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

const char* const editorNames[] = {"m_main_c_CodeEditor", "m_clock_c_CodeEditor", "m_conf_h_CodeEditor",
                                   "m_clock_h_CodeEditor"};

} // namespace

class TestCodeView : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        m_view.reset(new FormCodeView);
        m_view->resize(900, 600);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.data()));
    }

    void stemsAgreeWithTheGenerator()
    {
        int compared = 0;
        for (const SeriesTraits& each : seriesList()) {
            const QScopedPointer<ClockTreePage> page(createSeriesPage(each.series, nullptr));
            if (!page)
                continue;
            QCOMPARE(fileStemOfSeries(each.name()), page->description().stem());
            ++compared;
        }
        QVERIFY(compared > 0);
    }

    void filesLandInTheirTabsToBeRead()
    {
        load("zn64g110"_s);
        QCOMPARE(labels(), "main.c zn64g110_clock.c zn64g110_conf.h zn64g110_clock.h"_s);
        QVERIFY(text(0).startsWith("int main"_s));
        QCOMPARE(text(1), "/* clock \xc2\xb5 source */\n"_s);
        QCOMPARE(text(2), "/* configuration */\n"_s);
        QCOMPARE(text(3), "/* clock header */\n"_s);
        for (int tab = 0; tab < 4; ++tab) {
            const QString before = text(tab);
            QTest::keyClicks(editor(tab), "typed"_s);
            QTest::keyClick(editor(tab), Qt::Key_Delete);
            QCOMPARE(text(tab), before);
        }

        // Behind a missing file the labels count on, and its tab keeps its text.
        write("/inc/zn64g120_conf.h"_s, "/* newer */\n");
        write("/inc/zn64g120_clock.h"_s, "/* clock header */\n");
        m_view->LoadCode("ZN64G120"_s, folder());
        QCOMPARE(labels(), "main.c zn64g120_conf.h zn64g120_clock.h zn64g110_clock.h"_s);
        QCOMPARE(text(1), "/* clock \xc2\xb5 source */\n"_s);
        QCOMPARE(text(2), "/* newer */\n"_s);
    }

    // What no generator writes is not read: some of it would never end.
    void passesOverWhatIsNoPlainFile_data() { fieldRows({"pipe", "device", "link", "large"}); }

    void passesOverWhatIsNoPlainFile()
    {
        load("zn64g110"_s);
        const QString before = text(0);
        const QString path = folder() + "/src/main.c"_s;
        const QString outside = folder() + "/outside"_s;
        QVERIFY(QFile::remove(path) && writeFile(outside, "int outside;\n"));
        const QString kind = QLatin1String(QTest::currentDataTag());
        if (kind == "pipe"_s)
            QCOMPARE(mkfifo(qPrintable(path), 0600), 0);
        else if (kind == "large"_s)
            QVERIFY(writeFile(path, "int large;\n") && QFile::resize(path, 8 << 20));
        else
            QVERIFY(QFile::link(kind == "device"_s ? "/dev/zero"_s : outside, path));
        m_view->LoadCode("zn64g110"_s, folder());
        QCOMPARE(text(0), before);
        QCOMPARE(labels(), "zn64g110_clock.c zn64g110_conf.h zn64g110_clock.h zn64g110_clock.h"_s);
    }

    void scrollPositionSurvivesAReload()
    {
        const QByteArray line("int line;\n");
        load("zn64g110"_s, line.repeated(500));
        QScrollBar* bar = editor(0)->verticalScrollBar();
        QTRY_VERIFY(bar->maximum() > 100);
        bar->setValue(77);
        load("zn64g110"_s, "int other;\n" + line.repeated(500));
        QVERIFY(text(0).startsWith("int other;"_s));
        QCOMPARE(bar->value(), 77);
        QCOMPARE(editor(0)->firstVisibleLine(), 77);
    }

    void horizontalBarComesAndGoesWithWideLines()
    {
        const QByteArray wide = "int " + QByteArray(300, 'x') + ";\n";
        for (int round = 0; round < 2; ++round) {
            load("zn64g110"_s);
            QTRY_VERIFY(!editor(0)->horizontalScrollBar()->isVisible());
            load("zn64g110"_s, wide);
            QTRY_VERIFY(editor(0)->horizontalScrollBar()->isVisible());
        }
    }

    void clickedTabIsHighlightedAndStaysSoAfterAReload()
    {
        QTest::mouseClick(label(2), Qt::LeftButton);
        QCOMPARE(m_view->findChild<QTabWidget*>()->currentWidget(), editor(2));
        for (int round = 0; round < 2; ++round) {
            for (int tab = 0; tab < 4; ++tab)
                QCOMPARE(label(tab)->styleSheet().contains("rgb(123, 199, 233)"_s), tab == 2);
            m_view->TabWidgetTabBarClicked(-1);
            load("zn64g110"_s);
        }
    }

    void keysWalkTheTabs()
    {
        load("zn64g110"_s);
        auto* tabs = m_view->findChild<QTabWidget*>();
        QVERIFY(QTest::qWaitForWindowActive(m_view.data()));
        tabs->tabBar()->setFocus(Qt::TabFocusReason);
        const QVector<QPair<Qt::Key, int>> steps{
            {Qt::Key_Up,    0},
            {Qt::Key_Down,  1},
            {Qt::Key_Right, 2},
            {Qt::Key_Down,  3},
            {Qt::Key_Down,  3},
            {Qt::Key_Up,    2},
        };
        for (const auto& step : steps) {
            QTest::keyClick(tabs->tabBar(), step.first);
            QCOMPARE(tabs->currentIndex(), step.second);
            for (int tab = 0; tab < 4; ++tab)
                QCOMPARE(label(tab)->styleSheet().contains("rgb(123, 199, 233)"_s), tab == step.second);
            QVERIFY(isFramed(m_view.data(), label(step.second)));
        }
        editor(2)->setFocus();
        QVERIFY(!isFramed(m_view.data(), label(2)));
        tabs->tabBar()->setFocus(Qt::MouseFocusReason);
        QVERIFY(!isFramed(m_view.data(), label(2)));
    }

    void foldAllFoldsOnceUntilExpandAll()
    {
        load("zn64g110"_s);
        editor(0)->recolor();
        const auto visible = [this] {
            return editor(0)->SendScintilla(QsciScintilla::SCI_GETLINEVISIBLE, 2);
        };
        QCOMPARE(visible(), 1L);
        for (int round = 0; round < 2; ++round) {
            editor(0)->FoldAll();
            editor(0)->FoldAll();
            QCOMPARE(visible(), 0L);
            editor(0)->ExpandAll();
            QCOMPARE(visible(), 1L);
        }
    }

private:
    MyQsciScintilla* editor(int tab)
    {
        return m_view->findChild<MyQsciScintilla*>(QLatin1String(editorNames[tab]));
    }
    QString text(int tab) { return editor(tab)->text(); }
    QLabel* label(int tab) { return m_view->findChild<QLabel*>("m_tabLable_List_%1"_s.arg(tab)); }
    QString labels()
    {
        QStringList texts;
        for (int tab = 0; tab < 4; ++tab)
            texts += label(tab)->text();
        return texts.join(u' ');
    }
    QString folder() const { return m_folder->path(); }
    void write(const QString& name, const QByteArray& text) { QVERIFY(writeFile(folder() + name, text)); }
    // Loads four files of a series whose stem is its name.
    void load(const QString& series, const QByteArray& main = "int main(void)\n{\n  return 0;\n}\n")
    {
        QVERIFY(QDir(folder()).mkpath("src"_s) && QDir(folder()).mkpath("inc"_s));
        write("/src/main.c"_s, main);
        write("/src/%1_clock.c"_s.arg(series), "/* clock \xc2\xb5 source */\n");
        write("/inc/%1_conf.h"_s.arg(series), "/* configuration */\n");
        write("/inc/%1_clock.h"_s.arg(series), "/* clock header */\n");
        m_view->LoadCode(series, folder());
    }

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<FormCodeView> m_view;
};

QTEST_MAIN(TestCodeView)
#include "tst_codeview.moc"
