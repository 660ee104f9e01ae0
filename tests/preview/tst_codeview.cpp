#include "model/seriestraits.h"
#include "pages/seriespages.h"
#include "preview/FormCodeView.h"
#include "preview/MyQsciScintilla.h"
#include "preview/stems.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

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
    void everyFileLandsInItsTab();
    void stemsAgreeWithTheGenerator();
    void namesMoveUpBehindAMissingFile();
    void scrollPositionSurvivesAReload();
    void clickedTabIsHighlightedAndStaysSoAfterAReload();
    void foldAllFoldsOnceUntilExpandAll();
    void contextMenuDoesNotGrow();

private:
    MyQsciScintilla* editor(int tab)
    {
        return m_view->findChild<MyQsciScintilla*>(QLatin1String(editorNames[tab]));
    }
    QString text(int tab) { return editor(tab)->text(); }
    QString label(int tab)
    {
        return m_view->findChild<QLabel*>(QStringLiteral("m_tabLable_List_%1").arg(tab))->text();
    }
    QString folder() const { return m_folder->path(); }
    void writeAll(const QString& stem);
    bool lineVisible(int line)
    {
        return editor(0)->SendScintilla(QsciScintilla::SCI_GETLINEVISIBLE, line) != 0;
    }
    QStringList openContextMenu(bool* selectAllEnabled);

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

void TestCodeView::writeAll(const QString& stem)
{
    write(folder() + QStringLiteral("/src/main.c"), "int main(void)\n{\n  return 0;\n}\n");
    write(folder() + QStringLiteral("/src/%1_clock.c").arg(stem), "/* clock \xc2\xb5 source */\n");
    write(folder() + QStringLiteral("/inc/%1_conf.h").arg(stem), "/* configuration */\n");
    write(folder() + QStringLiteral("/inc/%1_clock.h").arg(stem), "/* clock header */\n");
}

void TestCodeView::everyFileLandsInItsTab()
{
    const QString stem = QStringLiteral("zn64g16x");
    writeAll(stem);
    m_view->LoadCode(QStringLiteral("zn64g167"), folder());

    QCOMPARE(text(0), QStringLiteral("int main(void)\n{\n  return 0;\n}\n"));
    QCOMPARE(text(1), QString::fromUtf8("/* clock \xc2\xb5 source */\n"));
    QCOMPARE(text(2), QStringLiteral("/* configuration */\n"));
    QCOMPARE(text(3), QStringLiteral("/* clock header */\n"));
    const QStringList labels = {label(0), label(1), label(2), label(3)};
    const QStringList expected = {QStringLiteral("main.c"), stem + QStringLiteral("_clock.c"),
                                  stem + QStringLiteral("_conf.h"), stem + QStringLiteral("_clock.h")};
    QCOMPARE(labels, expected);
    const auto* tabs = m_view->findChild<QTabWidget*>(QStringLiteral("m_CodeViewTabWidget"));
    for (int tab = 0; tab < 4; ++tab)
        QCOMPARE(tabs->widget(tab), editor(tab));
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

void TestCodeView::namesMoveUpBehindAMissingFile()
{
    writeAll(QStringLiteral("zn64g110"));
    m_view->LoadCode(QStringLiteral("ZN64G110"), folder());
    writeAll(QStringLiteral("zn64g120"));
    write(folder() + QStringLiteral("/inc/zn64g120_conf.h"), "/* newer */\n");
    QVERIFY(QFile::remove(folder() + QStringLiteral("/src/zn64g120_clock.c")));
    m_view->LoadCode(QStringLiteral("ZN64G120"), folder());

    QCOMPARE(text(1), QString::fromUtf8("/* clock \xc2\xb5 source */\n"));
    QCOMPARE(text(2), QStringLiteral("/* newer */\n"));
    QCOMPARE(label(0), QStringLiteral("main.c"));
    QCOMPARE(label(1), QStringLiteral("zn64g120_conf.h"));
    QCOMPARE(label(2), QStringLiteral("zn64g120_clock.h"));
    QCOMPARE(label(3), QStringLiteral("zn64g110_clock.h"));
}

void TestCodeView::scrollPositionSurvivesAReload()
{
    writeAll(QStringLiteral("zn64g110"));
    write(folder() + QStringLiteral("/src/main.c"), QByteArray("int line;\n").repeated(500));
    m_view->LoadCode(QStringLiteral("ZN64G110"), folder());
    QScrollBar* bar = editor(0)->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 100);
    bar->setValue(77);
    write(folder() + QStringLiteral("/src/main.c"), QByteArray("int other;\n").repeated(500));
    m_view->LoadCode(QStringLiteral("ZN64G110"), folder());

    QVERIFY(text(0).startsWith(QStringLiteral("int other;")));
    QCOMPARE(bar->value(), 77);
    QCOMPARE(editor(0)->firstVisibleLine(), 77);
}

void TestCodeView::clickedTabIsHighlightedAndStaysSoAfterAReload()
{
    writeAll(QStringLiteral("zn64g110"));
    m_view->LoadCode(QStringLiteral("ZN64G110"), folder());
    auto* tabs = m_view->findChild<QTabWidget*>(QStringLiteral("m_CodeViewTabWidget"));
    auto* third = m_view->findChild<QLabel*>(QStringLiteral("m_tabLable_List_2"));
    QTest::mouseClick(third, Qt::LeftButton);
    QCOMPARE(tabs->currentIndex(), 2);

    for (int round = 0; round < 2; ++round) {
        for (int tab = 0; tab < 4; ++tab) {
            const auto* each = m_view->findChild<QLabel*>(QStringLiteral("m_tabLable_List_%1").arg(tab));
            const bool light = each->styleSheet().contains(QLatin1String("rgb(123, 199, 233)"));
            QCOMPARE(light, tab == 2);
        }
        m_view->TabWidgetTabBarClicked(-1);
        m_view->LoadCode(QStringLiteral("ZN64G110"), folder());
    }
}

void TestCodeView::foldAllFoldsOnceUntilExpandAll()
{
    writeAll(QStringLiteral("zn64g110"));
    m_view->LoadCode(QStringLiteral("ZN64G110"), folder());
    editor(0)->recolor();
    QVERIFY(lineVisible(2));
    editor(0)->FoldAll();
    QVERIFY(!lineVisible(2));
    editor(0)->FoldAll();
    QVERIFY(!lineVisible(2));
    editor(0)->ExpandAll();
    QVERIFY(lineVisible(2));
    editor(0)->FoldAll();
    QVERIFY(!lineVisible(2));
}

QStringList TestCodeView::openContextMenu(bool* selectAllEnabled)
{
    QStringList entries;
    QTimer::singleShot(0, this, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return;
        for (const QAction* each : menu->actions()) {
            entries += each->isSeparator() ? QStringLiteral("-") : each->text();
            if (each->objectName() == QLatin1String("m_selectAllAction"))
                *selectAllEnabled = each->isEnabled();
        }
        menu->close();
    });
    const QPoint spot(20, 20);
    QContextMenuEvent event(QContextMenuEvent::Mouse, spot, editor(0)->mapToGlobal(spot));
    QApplication::sendEvent(editor(0)->viewport(), &event);
    return entries;
}

void TestCodeView::contextMenuDoesNotGrow()
{
    const QStringList expected = {QStringLiteral("Fold All"), QStringLiteral("Expand All"),
                                  QStringLiteral("-"), QStringLiteral("Copy"), QStringLiteral("Select All")};
    bool enabled = true;
    QCOMPARE(openContextMenu(&enabled), expected);
    QVERIFY(!enabled);

    writeAll(QStringLiteral("zn64g110"));
    m_view->LoadCode(QStringLiteral("ZN64G110"), folder());
    QCOMPARE(openContextMenu(&enabled), expected);
    QVERIFY(enabled);
}

QTEST_MAIN(TestCodeView)
#include "tst_codeview.moc"
