#include "model/seriestraits.h"
#include "pages/series/seriespages.h"
#include "preview/FormCodeView.h"
#include "preview/MyQsciScintilla.h"
#include "preview/stems.h"

#include <QDir>
#include <QLabel>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

namespace {

const char* const editorNames[] = {"m_main_c_CodeEditor", "m_clock_c_CodeEditor", "m_conf_h_CodeEditor",
                                   "m_clock_h_CodeEditor"};

void write(const QString& path, const QByteArray& text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

} // namespace

class TestCodeView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void stemsAgreeWithTheGenerator();
    void everyFileLandsInItsTabAndNamesMoveUp();
    void scrollPositionSurvivesAReload();
    void clickedTabIsHighlightedAndStaysSoAfterAReload();
    void foldAllFoldsOnceUntilExpandAll();

private:
    MyQsciScintilla* editor(int tab)
    {
        return m_view->findChild<MyQsciScintilla*>(QLatin1String(editorNames[tab]));
    }
    QString text(int tab) { return editor(tab)->text(); }
    QLabel* label(int tab)
    {
        return m_view->findChild<QLabel*>(QStringLiteral("m_tabLable_List_%1").arg(tab));
    }
    QString labels()
    {
        QStringList texts;
        for (int tab = 0; tab < 4; ++tab)
            texts += label(tab)->text();
        return texts.join(QLatin1Char(' '));
    }
    QString folder() const { return m_folder->path(); }
    void load(const QString& series, const QByteArray& main = "int main(void)\n{\n  return 0;\n}\n");

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<FormCodeView> m_view;
};

void TestCodeView::init()
{
    m_folder.reset(new QTemporaryDir);
    m_view.reset(new FormCodeView);
    m_view->resize(900, 600);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.data()));
}

/// Loads four files of a series whose stem is its name.
void TestCodeView::load(const QString& series, const QByteArray& main)
{
    write(folder() + QStringLiteral("/src/main.c"), main);
    write(folder() + QStringLiteral("/src/%1_clock.c").arg(series), "/* clock \xc2\xb5 source */\n");
    write(folder() + QStringLiteral("/inc/%1_conf.h").arg(series), "/* configuration */\n");
    write(folder() + QStringLiteral("/inc/%1_clock.h").arg(series), "/* clock header */\n");
    m_view->LoadCode(series, folder());
}

void TestCodeView::stemsAgreeWithTheGenerator()
{
    int compared = 0;
    for (const SeriesTraits& each : seriesList()) {
        const QScopedPointer<ClockTreePage> page(createSeriesPage(each.series, nullptr));
        if (!page)
            continue;
        QCOMPARE(fileStemOfSeries(each.name()), QLatin1String(page->description().stem));
        ++compared;
    }
    QVERIFY(compared > 0);
}

void TestCodeView::everyFileLandsInItsTabAndNamesMoveUp()
{
    load(QStringLiteral("zn64g110"));
    QCOMPARE(labels(), QStringLiteral("main.c zn64g110_clock.c zn64g110_conf.h zn64g110_clock.h"));
    QVERIFY(text(0).startsWith(QStringLiteral("int main")));
    QCOMPARE(text(1), QString::fromUtf8("/* clock \xc2\xb5 source */\n"));
    QCOMPARE(text(2), QStringLiteral("/* configuration */\n"));
    QCOMPARE(text(3), QStringLiteral("/* clock header */\n"));

    // Behind a missing file the labels count on, and its tab keeps its text.
    write(folder() + QStringLiteral("/inc/zn64g120_conf.h"), "/* newer */\n");
    write(folder() + QStringLiteral("/inc/zn64g120_clock.h"), "/* clock header */\n");
    m_view->LoadCode(QStringLiteral("ZN64G120"), folder());
    QCOMPARE(labels(), QStringLiteral("main.c zn64g120_conf.h zn64g120_clock.h zn64g110_clock.h"));
    QCOMPARE(text(1), QString::fromUtf8("/* clock \xc2\xb5 source */\n"));
    QCOMPARE(text(2), QStringLiteral("/* newer */\n"));
}

void TestCodeView::scrollPositionSurvivesAReload()
{
    const QByteArray line("int line;\n");
    load(QStringLiteral("zn64g110"), line.repeated(500));
    QScrollBar* bar = editor(0)->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 100);
    bar->setValue(77);
    load(QStringLiteral("zn64g110"), "int other;\n" + line.repeated(500));
    QVERIFY(text(0).startsWith(QStringLiteral("int other;")));
    QCOMPARE(bar->value(), 77);
    QCOMPARE(editor(0)->firstVisibleLine(), 77);
}

void TestCodeView::clickedTabIsHighlightedAndStaysSoAfterAReload()
{
    QTest::mouseClick(label(2), Qt::LeftButton);
    QCOMPARE(m_view->findChild<QTabWidget*>()->currentWidget(), editor(2));
    for (int round = 0; round < 2; ++round) {
        for (int tab = 0; tab < 4; ++tab)
            QCOMPARE(label(tab)->styleSheet().contains(QLatin1String("rgb(123, 199, 233)")), tab == 2);
        m_view->TabWidgetTabBarClicked(-1);
        load(QStringLiteral("zn64g110"));
    }
}

void TestCodeView::foldAllFoldsOnceUntilExpandAll()
{
    load(QStringLiteral("zn64g110"));
    editor(0)->recolor();
    const auto visible = [this] { return editor(0)->SendScintilla(QsciScintilla::SCI_GETLINEVISIBLE, 2); };
    QCOMPARE(visible(), 1L);
    for (int round = 0; round < 2; ++round) {
        editor(0)->FoldAll();
        editor(0)->FoldAll();
        QCOMPARE(visible(), 0L);
        editor(0)->ExpandAll();
        QCOMPARE(visible(), 1L);
    }
}

QTEST_MAIN(TestCodeView)
#include "tst_codeview.moc"
