#include "testdata.h"
#include "treepainter/builder.h"
#include "treepainter/checks.h"
#include "treepainter/pagelayout.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

/// A page of 400 by 300 pixels: an oscillator, a multiplexer's two radio buttons, an output, and a label that
/// shows a value later.
PageLayout samplePage()
{
    PageLayout page{QSize(400, 300), {}};
    const auto add = [&page](const char* name, ControlKind kind, const QRectF& rect) -> PlacedControl& {
        page.controls.push_back({QString::fromLatin1(name), kind, rect});
        return page.controls.back();
    };
    add("osc", ControlKind::Field, {20, 40, 60, 30});
    add("m_osc_Label", ControlKind::Label, {20, 20, 40, 15});
    add("a", ControlKind::Radio, {200, 50, 12, 12});
    add("b", ControlKind::Radio, {200, 100, 12, 12});
    add("out", ControlKind::Field, {300, 70, 60, 25}).bus = QStringLiteral("ahb");
    add("value", ControlKind::Label, {250, 250, 9, 15}).empty = true;
    return page;
}

/// The outline of a page with a clock output, a peripheral's selector and a bus.
PageLayout selectorPage()
{
    PageLayout page{QSize(400, 300), {}};
    const auto add = [&page](const char* name, ControlKind kind, const QRectF& rect, const char* bus = "") {
        page.controls.push_back({QString::fromLatin1(name), kind, rect});
        page.controls.back().bus = QString::fromLatin1(bus);
    };
    add("m_clockout_hick_RadioButton", ControlKind::Radio, {240, 20, 12, 12});
    add("m_clockout_hick_QLabel1", ControlKind::Label, {300, 18, 26, 16});
    add("m_clockout_hick_QLabel", ControlKind::Label, {330, 18, 26, 16});
    add("m_clockout_noclk_RadioButton", ControlKind::Radio, {240, 50, 12, 12});
    add("m_clockout_noclk_QLabel1", ControlKind::Label, {300, 48, 26, 16});
    add("m_clockoutpin_ComboBox", ControlKind::Field, {90, 28, 40, 25});
    add("m_clockoutdiv2_ComboBox", ControlKind::Field, {150, 28, 20, 25});
    add("m_clockoutdiv1_ComboBox", ControlKind::Field, {190, 28, 20, 25});
    add("m_i2c1_pclk_QLabel", ControlKind::Label, {10, 120, 26, 16});
    add("m_i2c1_pclk_RadioButton", ControlKind::Radio, {70, 122, 12, 12});
    add("m_i2c1_hick_QLabel", ControlKind::Label, {10, 137, 26, 16});
    add("m_i2c1_hick_RadioButton", ControlKind::Radio, {70, 139, 12, 12});
    add("title", ControlKind::Label, {60, 90, 30, 16});
    add("switch", ControlKind::Field, {120, 132, 40, 25});
    add("result", ControlKind::Field, {200, 132, 40, 25});
    add("sdio", ControlKind::Field, {300, 120, 40, 25}, "ahb");
    add("xmc", ControlKind::Field, {300, 160, 40, 25}, "ahb");
    add("apb", ControlKind::Field, {300, 200, 40, 25}, "apb1");
    return page;
}

/// A tree of that page with nothing to mend.
QString sampleTree()
{
    return QStringLiteral("mux sel: right a b\n"
                          "wire main: osc.right a.in\n"
                          "wire main: main@x=120 y=b b.in\n"
                          "wire sel.nose out.left\n");
}

/// What the painter tells of a tree of a page with these states, a line each.
QString problemsOf(const QString& text, const std::vector<PageLayout>& states)
{
    PageLayout page = together(states);
    Problems problems;
    const Drawing drawing = buildDrawing(parseTree(text, QStringLiteral("t.tree"), problems), page, problems);
    checkDrawing(drawing, states, QStringLiteral("t.tree"), problems);
    QStringList lines;
    for (const Problem& problem : problems)
        lines << problem.text();
    return lines.join(QLatin1Char('\n'));
}

} // namespace

/// Trees of the sample page: the points of wires, and what is told of their faults.
class TestTrees : public QObject
{
    Q_OBJECT

private slots:
    void routes_data();
    void routes();
    void joins_data();
    void joins();
    void checks_data();
    void checks();
    void pages_data();
    void pages();
    void grid_data();
    void grid();
};

void TestTrees::routes_data()
{
    QTest::addColumn<QString>("wire");
    QTest::addColumn<QString>("points");
    const auto row = [](const char* wire, const char* points) {
        QTest::newRow(wire) << QString::fromUtf8(wire) << QString::fromUtf8(points);
    };
    row("wire osc.right a.in", "80,55.5 196,55.5");
    row("wire osc.right+8 x=130 a.in", "80,63.5 130.5,63.5 130.5,56.5 196,56.5");
    row("wire osc.right x=100 b.in", "80,55.5 100.5,55.5 100.5,106.5 196,106.5");
    row("wire sel.nose out.left-10", "223,72.5 300,72.5");
    row("wire sel.nose x=330 out.bottom", "223,81.5 330.5,81.5 330.5,95");
    row("wire sel.nose x=260 out.bottom", "");
    row("wire osc.right x=osc.right+20 y=osc-30", "80,55.5 100.5,55.5 100.5,25.5");
    row("wire out.right value.right+2", "");
    row("chain osc a.in sel.nose x=260", "80,55.5 196,55.5 223,55.5 260.5,55.5");
    row("chain y=57 out x=260", "");
    row("chain y=75 out x=260", "300,75.5 260.5,75.5");
    row("chain osc x=100 out", "");
    row("chain osc a.in out", "");
    row("chain osc x=100 behind out", "");
    row("wire osc.right x=120 a.in", "80,55.5 196,55.5");
    row("steps way: osc\nchain way x=150", "80,55.5 150.5,55.5");
    row("wire late@x=120 y=90\nwire late: osc.right x=150", "80,55.5 150.5,55.5 120.5,55.5 120.5,90.5");
}

void TestTrees::routes()
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

void TestTrees::joins_data()
{
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QString>("joins");
    const auto row = [](const char* tree, const char* joins) {
        QTest::newRow(tree) << QString::fromUtf8(tree) << QString::fromUtf8(joins);
    };
    row("clockout clockout",
        "clockout m_clockoutdiv1_ComboBox 40, m_clockoutdiv1_ComboBox m_clockoutdiv2_ComboBox 40, "
        "m_clockoutdiv2_ComboBox m_clockoutpin_ComboBox 40, m_clockoutpin_ComboBox clockoutpad 40, "
        "m_clockout_hick_QLabel1 m_clockout_hick_RadioButton 26, no m_clockout_noclk_RadioButton 56");
    row("sources i2c1: m_i2c1_ switch result title\nwire switch.top y=i2c1.top",
        "i2c1 switch 144, switch result 144, m_i2c1_pclk_QLabel m_i2c1_pclk_RadioButton 128, "
        "m_i2c1_hick_QLabel m_i2c1_hick_RadioButton 144, switch - 132 to 111");
    row("chain result ahb: x=270\nfan ahb: \"AHB\" apb\nchain ahb@y=apb apb",
        "result - 144, - - 144 to 125, - - 144 to 219, - sdio 132, - xmc 172, - apb 212");
    row("spine switch result x=380 behind sdio", "switch result 138, result - 138 behind sdio");
    row("?sdio tag low: right x=270 y=144 \"low\"\n?!sdio chain switch apb\n?sdio ?!m_lost chain result low",
        "result low 144");
    row("clockout clockout9", "t.tree:1: the page has no radio buttons m_clockout9_...");
    row("chain y=138 switch result apb", "t.tree:1: the row y=138.5 misses apb");
    row("fan ahb: \"AHB\"", "t.tree:1: no wire ahb stops free");
}

void TestTrees::joins()
{
    QFETCH(QString, tree);
    PageLayout page = selectorPage();
    Problems problems;
    const Drawing drawing = buildDrawing(parseTree(tree, QStringLiteral("t.tree"), problems), page, problems);
    QStringList joins;
    const auto nameOf = [](const QString& name) { return name.isEmpty() ? QStringLiteral("-") : name; };
    for (const Wire& wire : drawing.wires) {
        const QString from = wire.end == WireEnd::Idle ? QStringLiteral("no") : nameOf(wire.from);
        joins << from + QLatin1Char(' ') + nameOf(wire.to);
        const int start = int(wire.points.first().y());
        const int end = int(wire.points.last().y());
        joins.last() += QStringLiteral(" %1").arg(start);
        if (end != start)
            joins.last() += QStringLiteral(" to %1").arg(end);
        if (!wire.behind.isEmpty())
            joins.last() += QLatin1String(" behind ") + wire.behind.join(QLatin1Char(' '));
    }
    for (const Problem& problem : problems)
        joins << problem.text();
    QTEST(joins.join(QStringLiteral(", ")), "joins");
}

void TestTrees::checks_data()
{
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QString>("told");
    const auto row = [](const char* name, const char* added, const char* told = "") {
        QTest::newRow(name) << sampleTree() + QString::fromUtf8(added) << QString::fromUtf8(told);
    };
    row("nothing to mend", "");
    row("two wires cross at right angles", "box low: x=30 y=200 \"/2\"\nwire low.right x=150 y=20");
    row("a wire passes beside a label", "wire osc.bottom y=246 x=360");
    row("a shorter value needs less room",
        "room value \"1\"\nbox low: x=300 y=200 \"/2\"\nwire low.bottom y=280");
    row("two branches at one point", "wire main@x=160 y=20\nwire main@x=160 y=90");
    row("a crossing that the tree allows", "allow over out\nwire over: main@x=120 y=20 x=330 y=120");
    row("a text, a pin, a comment and a defined place",
        "text x=350 y=200 \"# 1\" # beside it\npad pin: x=300 y=200\n\n"
        "let here x=osc.right+30\nwire main@x=here y=250");

    row("through a control", "wire main@x=120 y=20 x=330 y=120", "t.tree:5: the wire crosses out");
    row("over a label", "wire osc.top y=5", "t.tree:5: the wire crosses m_osc_Label");
    row("close below a label", "wire osc.left x=10 y=36 x=100 y=5", "t.tree:5: the wire crosses m_osc_Label");
    row("through the room of a value", "box low: x=300 y=200 \"/2\"\nwire low.bottom y=280",
        "t.tree:6: the wire crosses value");
    row("through a multiplexer", "box low: x=30 y=120 \"/2\"\nwire low.right x=280",
        "t.tree:6: the wire crosses mux sel");
    row("a box on a label", "box big: x=30 y=22 \"/2\"", "t.tree:5: box big crosses m_osc_Label");
    row("a text on a wire", "text x=100 y=55 \"clock\"", "t.tree:2: the wire crosses text clock");
    row("out of the picture", "wire main@x=120 y=-20", "t.tree:5: the wire reaches out of the picture");
    row("diagonal", "wire osc.right b.in",
        "t.tree:5: the wire would run diagonally from (80, 55.5) to (196, 106.5): give it a bend");
    row("on another wire", "box low: x=30 y=250 \"/2\"\nwire low.right x=120 y=80",
        "t.tree:6: the wire runs along the wire of t.tree:3");
    row("beside another wire", "wire main@x=124 y=250", "t.tree:5: the wire runs along the wire of t.tree:3");
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
    row("offset beyond the side", "wire osc.right+20 x=100", "t.tree:5: the offset leaves the side of osc");
    row("two bends in a row", "wire osc.bottom y=90 y=120",
        "t.tree:5: two bends in a row along the same axis");
    row("a part without what it needs", "needs pll main\ngives main", "t.tree:5: no part gives pll");
    row("a part without what it gives", "gives pll sel", "t.tree:5: the part does not give pll");
    row("two parts that give the same", "gives main\ngives main", "t.tree:6: main is given twice");
    row("open quote", "text x=30 y=250 \"clock", "t.tree:5: the text has no closing quote");
    row("crystal without room", "crystal osc m_osc_Label m_osc_Label",
        "t.tree:5: there is no room for a crystal at osc");

    QTest::newRow("no multiplexer") << "wire osc.bottom y=150 x=280 y=83 out.left"
                                    << "t.tree: a lies in no multiplexer\nt.tree: b lies in no multiplexer";
    QTest::newRow("no wires") << "mux sel: right a b"
                              << "t.tree: no wire enters at a\nt.tree: no wire enters at b\n"
                                 "t.tree: no wire ends at out";
}

void TestTrees::checks()
{
    QFETCH(QString, tree);
    QTEST(problemsOf(tree, {samplePage()}), "told");
}

void TestTrees::pages_data()
{
    QTest::addColumn<QRectF>("place");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("told");
    const auto row = [](const char* name, const QRectF& place, const char* first, const char* line,
                        const char* told) {
        QTest::newRow(name) << place << QString::fromUtf8(first) << QString::fromUtf8(line)
                            << QString::fromUtf8(told);
    };
    const QRectF onRow(240, 70, 30, 25);
    row("overlaps", QRectF(20, 60, 60, 30), "same", "", "t.tree: osc and m_other_ComboBox overlap");
    row("allowed", QRectF(20, 60, 60, 30), "same", "allow m_other_ComboBox osc", "");
    row("allowed for nothing", QRectF(100, 200, 60, 30), "same", "allow m_other_ComboBox osc",
        "t.tree:5: nothing needs this allowance of m_other_ComboBox and osc");
    row("too close to a label", QRectF(62, 10, 60, 25), "same", "",
        "t.tree: m_osc_Label stands too close to m_other_ComboBox");
    row("out of the picture", QRectF(380, 200, 60, 25), "same", "",
        "t.tree: m_other_ComboBox reaches out of the picture");
    row("off its middle", QRectF(100, 200, 60, 30), "same", "wire m_other_ComboBox.left-8 x=20 y=250",
        "t.tree:5: the wire meets m_other_ComboBox off its middle");
    row("a step in the row", QRectF(100, 200, 60, 30), "same",
        "wire m_other_ComboBox.left-2 x=20 y=250\nwire main@x=110 y=150 x=180 y=217 m_other_ComboBox.right",
        "t.tree:5: the row steps by 4 at m_other_ComboBox");
    row("allowed off its middle", QRectF(100, 200, 60, 30), "same",
        "allow middle m_other_ComboBox\nwire m_other_ComboBox.left-8 x=20 y=250", "");
    row("in the way of a state", onRow, "hides it", "",
        "t.tree:4: the wire crosses m_other_ComboBox, while other");
    row("in front of the wire", onRow, "hides it", "behind m_other_ComboBox", "");
    row("in front, off its middle", onRow.translated(0, 6), "hides it", "behind m_other_ComboBox",
        "t.tree:4: the wire crosses m_other_ComboBox, while other");
    row("nothing in front", QRectF(100, 200, 60, 30), "hides it", "behind m_other_ComboBox",
        "t.tree:4: the wire does not run behind m_other_ComboBox, while other");
    row("hidden end", QRectF(100, 200, 60, 30), "hides it", "wire m_other_ComboBox.left x=20 y=250",
        "t.tree:5: the wire ends at m_other_ComboBox, which is hidden, while first");
    row("moved end", QRectF(100, 200, 60, 30), "moves it", "wire m_other_ComboBox.left x=20 y=280",
        "t.tree:5: the wire does not reach m_other_ComboBox, while other");
}

void TestTrees::pages()
{
    QFETCH(QRectF, place);
    QFETCH(QString, first);
    QFETCH(QString, line);
    std::vector<PageLayout> states{samplePage()};
    if (first != QLatin1String("same"))
        states.push_back(samplePage());
    states.back().controls.push_back({QStringLiteral("m_other_ComboBox"), ControlKind::Field, place});
    if (first == QLatin1String("moves it"))
        states.front().controls.push_back(
            {QStringLiteral("m_other_ComboBox"), ControlKind::Field, place.translated(0, 30)});
    states.front().state = QStringLiteral("first");
    states.back().state = QStringLiteral("other");
    const bool behind = line.startsWith(QLatin1String("behind"));
    const QString tree = behind ? sampleTree().trimmed() + QLatin1Char(' ') + line : sampleTree() + line;
    QTEST(problemsOf(tree, states), "told");
}

void TestTrees::grid_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QRectF>("place");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("told");
    const auto row = [](const char* name, const char* control, const QRectF& place, const char* line,
                        const char* told) {
        QTest::newRow(name) << QString::fromUtf8(control) << place << QString::fromUtf8(line)
                            << QString::fromUtf8(told);
    };
    const QRectF aside(350, 250, 30, 15);
    row("nothing to mend", "m_other_Label", aside, "", "");
    row("a title close to the nose", "title", QRectF(60, 95, 30, 16), "",
        "t.tree:1: the nose of mux i2c1 is 5.5 off its middle");
    row("allowed", "title", QRectF(60, 95, 30, 16), "allow i2c1 nose", "");
    row("a title a little over the edge", "title", QRectF(60, 97, 30, 16), "",
        "t.tree:1: the nose of mux i2c1 is 4.5 off its middle");
    row("the next block's field", "m_other_Label", QRectF(0, 137, 5, 15), "",
        "t.tree:1: the gutter between m_other_Label and tag m_i2c1_hick_QLabel is 2");
    row("a label at the edge", "m_other_Label", QRectF(94, 120, 20, 15), "",
        "t.tree:1: m_other_Label stands too close to mux i2c1");
    row("between pixels", "m_i2c1_pclk_RadioButton", QRectF(200.25, 122, 12, 12), "",
        "t.tree:1: the outline of mux i2c1 lies between pixels");
}

/// What the eye finds uneven in a peripheral's small tree.
void TestTrees::grid()
{
    QFETCH(QString, control);
    QFETCH(QRectF, place);
    QFETCH(QString, line);
    PageLayout page = selectorPage();
    page.controls.erase(std::remove_if(page.controls.begin(), page.controls.end(),
                                       [](const PlacedControl& each) { return !each.bus.isEmpty(); }),
                        page.controls.end());
    if (PlacedControl* placed = page.find(control))
        placed->rect = place;
    else
        page.controls.push_back({control, ControlKind::Label, place});
    const QString title =
        page.find(QStringLiteral("m_sel_Label")) ? QStringLiteral("m_sel_Label") : QString();
    const QStringList lines =
        problemsOf(QStringLiteral("sources i2c1: m_i2c1_ switch result title\nclockout clockout\n") + line,
                   {page})
            .split(QLatin1Char('\n'));
    QTEST(
        lines.filter(QRegularExpression(QStringLiteral("nose|gutter|too close to mux i2c1|pixels|allowance")))
            .join(QLatin1Char('\n')),
        "told");
}

QTEST_MAIN(TestTrees)
#include "tst_trees.moc"
