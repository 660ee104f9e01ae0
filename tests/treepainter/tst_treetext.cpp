#include "samplepage.h"
#include "treepainter/builder.h"

#include <QTemporaryDir>
#include <QTest>

/// What the lines of a tree come to: statements from files, and the points of wires.
class TestTreeText : public QObject
{
    Q_OBJECT

private slots:
    void includes_data();
    void includes();
    void routes_data();
    void routes();
};

void TestTreeText::includes_data()
{
    QTest::addColumn<QString>("main");
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("statements");
    QTest::addColumn<QString>("told");
    QTest::newRow("in its place") << "one\ninclude part.tree\nthree"
                                  << "# part\ntwo"
                                  << "main.tree:1 one, part.tree:2 two, main.tree:3 three" << QString();
    QTest::newRow("no such file") << "include none.tree"
                                  << "" << QString() << "main.tree:1: there is no tree none.tree";
    QTest::newRow("without end") << "include part.tree"
                                 << "include part.tree" << QString()
                                 << "part.tree:1: include takes one file, and no file itself again";
    QTest::newRow("a fault in the part") << "include part.tree\ntwo"
                                         << "\ntext \"open"
                                         << "main.tree:2 two"
                                         << "part.tree:2: the text has no closing quote";
}

void TestTreeText::includes()
{
    QFETCH(QString, main);
    QFETCH(QString, part);
    QFETCH(QString, statements);
    QFETCH(QString, told);
    const QTemporaryDir folder;
    const auto write = [&folder](const char* name, const QString& text) {
        QFile file(folder.filePath(QLatin1String(name)));
        return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) == text.size();
    };
    QVERIFY(write("main.tree", main));
    QVERIFY(write("part.tree", part));
    Problems problems;
    QStringList read;
    for (const Statement& statement : readTree(folder.filePath(QStringLiteral("main.tree")), problems))
        read << QStringLiteral("%1:%2 %3")
                    .arg(statement.source.file)
                    .arg(statement.source.number)
                    .arg(statement.keyword);
    QCOMPARE(read.join(QStringLiteral(", ")), statements);
    QCOMPARE(problems.empty() ? QString() : problems.front().text(), told);
    QVERIFY(problems.size() <= 1);
}

void TestTreeText::routes_data()
{
    QTest::addColumn<QString>("wire");
    QTest::addColumn<QString>("points");
    const auto row = [](const char* wire, const char* points) {
        QTest::newRow(wire) << QString::fromUtf8(wire) << QString::fromUtf8(points);
    };
    row("wire osc.right a.in", "80,56.5 193,56.5");
    row("wire osc.right+8 x=130 a.in", "80,63.5 130.5,63.5 130.5,56.5 193,56.5");
    row("wire osc.right x=100 b.in", "80,55.5 100.5,55.5 100.5,106.5 193,106.5");
    row("wire osc.bottom y=b b.in", "50.5,70 50.5,106.5 193,106.5");
    row("wire sel.nose out.left", "223,82.5 300,82.5");
    row("wire sel.nose out.left-10", "223,72.5 300,72.5");
    row("wire sel.nose x=330 out.bottom", "223,81.5 330.5,81.5 330.5,95");
    row("wire sel.nose x=260 out.bottom", "");
    row("wire osc.right x=osc.right+20 y=osc-30", "80,55.5 100.5,55.5 100.5,25.5");
    row("wire out.right value.right+2", "");
}

void TestTreeText::routes()
{
    QFETCH(QString, wire);
    QFETCH(QString, points);
    PageLayout page = samplePage();
    Problems problems;
    const QString tree = QStringLiteral("mux sel: right a b\n") + wire;
    const Drawing drawing = buildDrawing(parseTree(tree, QStringLiteral("t.tree"), problems), page, problems);
    QStringList route;
    for (const Wire& drawn : drawing.wires) {
        for (const QPointF& point : drawn.points)
            route << QStringLiteral("%1,%2").arg(point.x()).arg(point.y());
    }
    QCOMPARE(route.join(QLatin1Char(' ')), points);
    QCOMPARE(problems.empty(), !points.isEmpty());
}

QTEST_MAIN(TestTreeText)
#include "tst_treetext.moc"
