#include "samplepage.h"
#include "treepainter/builder.h"
#include "treepainter/checks.h"

#include <QTest>

namespace {

/// What the painter tells of a tree of the sample page, a line each.
QString problemsOf(const QString& text)
{
    PageLayout page = samplePage();
    Problems problems;
    const Drawing drawing = buildDrawing(parseTree(text, QStringLiteral("t.tree"), problems), page, problems);
    checkDrawing(drawing, page, QStringLiteral("t.tree"), problems);
    QStringList lines;
    for (const Problem& problem : problems)
        lines << problem.text();
    return lines.join(QLatin1Char('\n'));
}

} // namespace

class TestTreeChecks : public QObject
{
    Q_OBJECT

private slots:
    void goodTrees_data();
    void goodTrees();
    void addedFaults_data();
    void addedFaults();
    void missingLines_data();
    void missingLines();
};

void TestTreeChecks::goodTrees_data()
{
    QTest::addColumn<QString>("added");
    QTest::newRow("nothing more") << QString();
    QTest::newRow("two wires cross at right angles")
        << QStringLiteral("box low: x=30 y=200 \"/2\"\nwire low.right x=150 y=20");
    QTest::newRow("a wire passes beside a label") << QStringLiteral("wire osc.bottom y=246 x=360");
    QTest::newRow("a shorter value needs less room")
        << QStringLiteral("room value \"1\"\nbox low: x=300 y=200 \"/2\"\nwire low.bottom y=280");
    QTest::newRow("two branches at one point")
        << QStringLiteral("wire main@x=160 y=20\nwire main@x=160 y=90");
    QTest::newRow("a text, a pin and a comment")
        << QStringLiteral("text x=350 y=200 \"# 1\" # beside it\npad pin: x=300 y=200\n\n");
    QTest::newRow("a defined place") << QStringLiteral("let here x=osc.right+30\nwire main@x=here y=250");
}

void TestTreeChecks::goodTrees()
{
    QFETCH(QString, added);
    QCOMPARE(problemsOf(sampleTree() + added), QString());
}

void TestTreeChecks::addedFaults_data()
{
    QTest::addColumn<QString>("added");
    QTest::addColumn<QString>("told");
    const auto row = [](const char* name, const char* added, const char* told) {
        QTest::newRow(name) << QString::fromUtf8(added) << QString::fromUtf8(told);
    };
    row("through a control", "wire main@x=120 y=20 x=330 y=120", "t.tree:5: the wire crosses out");
    row("through a label", "wire osc.top x=30", "t.tree:5: the wire cannot leave osc in this direction");
    row("over a label", "wire osc.top y=5", "t.tree:5: the wire crosses oscName");
    row("close below a label", "wire osc.left x=10 y=36 x=100 y=5", "t.tree:5: the wire crosses oscName");
    row("through the room of a value", "box low: x=300 y=200 \"/2\"\nwire low.bottom y=280",
        "t.tree:6: the wire crosses value");
    row("into what it leaves", "wire out.left x=350", "t.tree:5: the wire crosses out");
    row("through a multiplexer", "box low: x=30 y=120 \"/2\"\nwire low.right x=280",
        "t.tree:6: the wire crosses mux sel");
    row("a box on a label", "box big: x=30 y=22 \"/2\"", "t.tree:5: box big crosses oscName");
    row("a text on a wire", "text x=100 y=55 \"clock\"", "t.tree:2: the wire crosses text clock");
    row("out of the picture", "wire main@x=120 y=-20", "t.tree:5: the wire reaches out of the picture");
    row("a box out of the picture", "box big: x=395 y=200 \"/2\"",
        "t.tree:5: box big reaches out of the picture");
    row("diagonal", "wire osc.right b.in",
        "t.tree:5: the wire would run diagonally from (80, 55.5) to (193, 106.5): give it a bend");
    row("diagonal branch", "wire main@x=150 b.in",
        "t.tree:5: the wire would run diagonally from (150.5, 56.5) to (193, 106.5): give it a bend");
    row("on another wire", "box low: x=30 y=250 \"/2\"\nwire low.right x=120 y=80",
        "t.tree:6: the wire runs along the wire of t.tree:3");
    row("beside another wire", "wire main@x=124 y=250", "t.tree:5: the wire runs along the wire of t.tree:3");
    row("along its own signal", "wire main@x=100 x=140",
        "t.tree:5: the wire runs along the wire of t.tree:2");
    row("ends on another signal", "box low: x=160 y=250 \"/2\"\nwire low.top y=106",
        "t.tree:6: the wire touches without joining the wire of t.tree:3");
    row("turns on another signal", "box low: x=160 y=250 \"/2\"\nwire low.top y=56 x=140",
        "t.tree:6: the wire touches without joining the wire of t.tree:2");
    row("crosses its own signal", "wire main@x=160 y=150",
        "t.tree:5: the wire crosses its own signal, the wire of t.tree:3");
    row("a kink", "wire main@x=160 y=30 x=163 y=10", "t.tree:5: the wire has a kink");
    row("no room for the arrowhead", "wire main@x=160 y=48",
        "t.tree:5: the wire has no room for its arrowhead at its end");
    row("unknown control", "wire nowhere.right x=100", "t.tree:5: there is no control or figure nowhere");
    row("unknown radio", "mux more: right c", "t.tree:5: the page has no control c");
    row("unknown wire", "wire side@x=120 y=20", "t.tree:5: no wire side above this line passes x=120");
    row("branch beside its wire", "wire main@x=300 y=20",
        "t.tree:5: no wire main above this line passes x=300");
    row("input outside of multiplexers", "wire main@x=120 osc.in", "t.tree:5: osc lies in no multiplexer");
    row("offset beyond the side", "wire osc.right+20 x=100", "t.tree:5: the offset leaves the side of osc");
    row("wrong axis", "wire main@x=osc.top y=20", "t.tree:5: osc.top is no place along this axis");
    row("two bends in a row", "wire osc.bottom y=90 y=120",
        "t.tree:5: two bends in a row along the same axis");
    row("words behind the end", "wire main@x=160 out.left y=10",
        "t.tree:5: y=10 stands behind the wire's end");
    row("taken name", "box sel: x=30 y=250 \"/2\"", "t.tree:5: the name sel is taken");
    row("another signal's name", "wire main: osc.bottom y=100", "t.tree:5: the name main is taken");
    row("unknown keyword", "line osc.right x=100", "t.tree:5: line is no keyword");
    row("open quote", "text x=30 y=250 \"clock", "t.tree:5: the text has no closing quote");
    row("half a place", "pad pin: x=30", "t.tree:5: pad takes 2 words");
    row("no coordinate", "wire main@x=a+ y=20", "t.tree:5: a+ is no coordinate");
    row("crystal without room", "crystal osc oscName oscName",
        "t.tree:5: there is no room for a crystal at osc");
}

void TestTreeChecks::addedFaults()
{
    QFETCH(QString, added);
    QFETCH(QString, told);
    QCOMPARE(problemsOf(sampleTree() + added), told);
}

void TestTreeChecks::missingLines_data()
{
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QString>("told");
    QTest::newRow("no multiplexer") << "wire osc.bottom y=150 x=280 y=83 out.left"
                                    << "t.tree: a lies in no multiplexer\nt.tree: b lies in no multiplexer";
    QTest::newRow("no wires") << "mux sel: right a b"
                              << "t.tree: no wire enters at a\nt.tree: no wire enters at b\n"
                                 "t.tree: no wire ends at out";
}

void TestTreeChecks::missingLines()
{
    QFETCH(QString, tree);
    QFETCH(QString, told);
    QCOMPARE(problemsOf(tree), told);
}

QTEST_MAIN(TestTreeChecks)
#include "tst_treechecks.moc"
