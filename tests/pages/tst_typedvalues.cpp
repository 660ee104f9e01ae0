#include "pagefixture.h"

#include <QRegularExpression>

class TestTypedValues : public QObject
{
    Q_OBJECT

private slots:
    void badHextChangesNothing_data();
    void badHextChangesNothing();
    void goodHext_data();
    void goodHext();
    void pllInputIsCorrected_data();
    void pllInputIsCorrected();
    void wantedSysclk_data();
    void wantedSysclk();
    void sourceChangeKeepsTheSystemClock();
    void dividersAreForcedUp();
    void pllParameters_data();
    void pllParameters();
    void unusedPllParametersAreNotChecked();
};

namespace {

const char msQuestion[] =
    "question | Warning | pll_ms input error, is it adjusted automatically?\nThe following "
    "condition must be met: \n2MHz <= pll_input / pll_ms <= 16MHz | Cancel, Yes";
const char nsQuestion[] =
    "question | Warning | pll_ns input error, is it adjusted automatically?\n\nThe following "
    "condition must be met: \n500MHz <= pll_input * pll_ns / pll_ms <= 1200MHz | Cancel, Yes";
const char pllInputError[] = "pll input clock source range 2-16MHz!";

const DialogAnswers::Answer ok = DialogAnswers::press("Ok");
const DialogAnswers::Answer yes = DialogAnswers::press("Yes");

} // namespace

void TestTypedValues::badHextChangesNothing_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QByteArray>("typed");
    for (const SeriesTraits& traits : seriesList())
        for (const char* typed : {"..", "1.2.3", "0", "3", "3.99999", "25.001", "99999999"})
            if (hasSeriesPage(traits.series))
                QTest::addRow("%s %s", traits.word, typed)
                    << QString::fromLatin1(traits.word) << QByteArray(typed);
}

void TestTypedValues::badHextChangesNothing()
{
    QFETCH(QString, word);
    QFETCH(QByteArray, typed);
    const PageFixture page(word);
    const auto others = [&] {
        return page.state().filter(QRegularExpression(QStringLiteral("^(?!m_hext_lineEdit)")));
    };
    const QStringList before = others();
    DialogAnswers answers{ok};
    page.type("m_hext_lineEdit", typed, false);
    QCOMPARE(answers.shown(), QStringList());
    for (bool committed : {false, true}) {
        QCOMPARE(page.color("m_hext_lineEdit"), QStringLiteral("red"));
        QCOMPARE(page.ground("m_hext_lineEdit"), QStringLiteral("pale"));
        QCOMPARE(page.text("m_hext_lineEdit"), QString::fromLatin1(typed));
        QCOMPARE(others(), before);
        if (!committed)
            QTest::keyClick(page.viewport(), Qt::Key_Return);
    }
    QCOMPARE(answers.shown(), QStringList(errorBox("hext input error!")));
    // The committed number turns it green again without Return.
    page.type("m_hext_lineEdit", page.model().series() == ZN64G174 ? "12.0" : "8.0", false);
    QCOMPARE(page.ground("m_hext_lineEdit"), QStringLiteral("green"));
    QCOMPARE(page.color("m_hext_lineEdit"), QStringLiteral("black"));
}

void TestTypedValues::goodHext_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QString>("sysclk");
    QTest::addColumn<QString>("color");
    const auto row = [](const char* name, const char* typed, const char* sysclk, const char* color) {
        QTest::newRow(name) << QByteArray(typed) << QString::fromLatin1(sysclk) << QString::fromLatin1(color);
    };
    row("G110 lowest", "4", "96.000", "darkGreen");
    row("G110 fraction", "8.33333", "200.000", "darkGreen");
    row("G110 above the series", "8.334", "200.016", "red");
    row("G110 highest PLL input", "16.0", "384.000", "red");
    row("G150 lower", "7", "252.000", "darkGreen");
}

void TestTypedValues::goodHext()
{
    QFETCH(QByteArray, typed);
    const PageFixture page(QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(' '), 0, 0));
    DialogAnswers answers{};
    page.type("m_hext_lineEdit", typed, false);
    QCOMPARE(page.ground("m_hext_lineEdit"), QStringLiteral("pale"));
    QCOMPARE(page.color("m_hext_lineEdit"), QStringLiteral("black"));
    QTest::keyClick(page.viewport(), Qt::Key_Return);
    QCOMPARE(page.ground("m_hext_lineEdit"), QStringLiteral("green"));
    QTEST(page.text("m_sclk_lineEdit"), "sysclk");
    QTEST(page.color("m_sclk_lineEdit"), "color");
    QTEST(page.color("m_todma_lineEdit"), "color");
    QCOMPARE(answers.shown(), QStringList());
}

void TestTypedValues::pllInputIsCorrected_data()
{
    QTest::addColumn<QByteArray>("leaves");
    QTest::addColumn<QByteArray>("returns");
    for (const char* word : {"G110", "G110R", "G114", "H110R", "G120"}) {
        if (!hasPage(QLatin1String(word)))
            continue;
        QTest::addRow("%s typed", word) << QByteArray() << QByteArray();
        QTest::addRow("%s PLL in use again", word)
            << QByteArray("m_sclkselect_hext_RadioButton") << QByteArray("m_sclkselect_pll_RadioButton");
        QTest::addRow("%s divider taken away", word)
            << QByteArray("m_pllhext_div_RadioButton") << QByteArray("m_pllhext_nodiv_RadioButton");
        QTest::addRow("%s PLL back from hick", word)
            << QByteArray("m_pllrcs_hick_RadioButton") << QByteArray("m_pllrcs_hext_RadioButton");
    }
}

void TestTypedValues::pllInputIsCorrected()
{
    QFETCH(QByteArray, leaves);
    QFETCH(QByteArray, returns);
    const PageFixture page(QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(' '), 0, 0));
    DialogAnswers answers{ok};
    // 25 MHz are good as long as they do not reach the PLL.
    if (!leaves.isEmpty()) {
        page.click(leaves.constData());
        if (leaves.contains("hick"))
            page.click("m_sclkselect_hext_RadioButton");
        page.type("m_hext_lineEdit", "25");
        QCOMPARE(answers.shown(), QStringList());
        QCOMPARE(page.model().Get_Hext_Input_Value(), 25.0);
        if (leaves.contains("hick"))
            page.click("m_sclkselect_pll_RadioButton");
        else if (leaves.contains("div"))
            page.type("m_sclk_lineEdit", "100");
        QCOMPARE(answers.shown(), QStringList());
        page.click(returns.constData());
    } else {
        page.type("m_hext_lineEdit", "25");
    }
    QCOMPARE(answers.shown(), QStringList(errorBox(pllInputError)));
    QCOMPARE(page.model().Get_Hext_Input_Value(), 16.0);
    QCOMPARE(page.text("m_hext_lineEdit"), QStringLiteral("16.000"));
    QCOMPARE(page.ground("m_hext_lineEdit"), QStringLiteral("green"));
    QCOMPARE(page.model().GetPllInPutValue(), 16.0);
    QCOMPARE(page.model().Get_SYSCLKValue(), 16.0 * page.model().Get_PLL_MUL());
    QCOMPARE(page.text("m_sclk_lineEdit"), QString::number(page.model().Get_SYSCLKValue(), 'f', 3));
}

void TestTypedValues::wantedSysclk_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QString>("reached");
    QTest::addColumn<bool>("fromHick");
    const auto row = [](const char* word, const char* typed, const char* reached, bool fromHick = false) {
        if (hasPage(QLatin1String(word)))
            QTest::addRow("%s %s%s", word, typed, fromHick ? " from hick" : "")
                << QByteArray(typed) << QString::fromLatin1(reached) << fromHick;
    };
    row("G110", "200", "200.000");
    row("G110", "100", "104.000"); // a half goes upward
    row("G110", "99.999", "96.000");
    row("G110", "4", "16.000");
    row("G110", "6", "8.000", true);
    row("G110", "200", "200.000", true);
    row("G150", "240", "240.000");
    row("G150", "100", "100.000");
    row("G150", "4", "15.625");
    row("G150", "288", "288.000", true);
    row("G152", "200", "200.000");
    // Refused: nothing is reached.
    row("G110", "200.001", "");
    row("G110", "3.999", "");
    row("G110", "1.1.1", "");
    row("G110R", "240.001", "");
    row("H110R", "240", "");
    row("G120", "200.001", "");
    row("G125", "150.001", "");
    row("G130", "120.001", "");
    row("G135", "96.001", "");
    row("D042", "80.001", "");
    row("G142", "3.999", "");
    row("G150", "288.001", "");
    row("G150", "3.9", "");
    row("G133", "150.001", "");
    row("G171", "216.001", "");
    row("G165", "192.001", "");
    row("P212", "180.001", "");
}

void TestTypedValues::wantedSysclk()
{
    QFETCH(QByteArray, typed);
    QFETCH(QString, reached);
    QFETCH(bool, fromHick);
    PageFixture page(QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(' '), 0, 0));
    if (fromHick)
        page.click("m_pllrcs_hick_RadioButton");
    const double before = page.model().Get_SYSCLKValue();
    DialogAnswers answers{ok};
    page.type("m_sclk_lineEdit", typed, false);
    QCOMPARE(page.color("m_sclk_lineEdit"),
             reached.isEmpty() ? QStringLiteral("red") : QStringLiteral("darkGreen"));
    QTest::keyClick(page.viewport(), Qt::Key_Return);
    if (reached.isEmpty()) {
        QCOMPARE(answers.shown(), QStringList(errorBox("sclk input error!")));
        QCOMPARE(page.text("m_sclk_lineEdit"), QString::fromLatin1(typed));
        QCOMPARE(page.ground("m_sclk_lineEdit"), QStringLiteral("pale"));
        QCOMPARE(page.model().Get_SYSCLKValue(), before);
        return;
    }
    QCOMPARE(answers.shown(), QStringList());
    for (const char* result : {"m_sclk_lineEdit", "m_todma_lineEdit", "m_toi2s_lineEdit"})
        QCOMPARE(page.text(result), reached);
    QCOMPARE(page.text("m_pllclk_Label"), reached + QStringLiteral("MHz"));
    QCOMPARE(page.ground("m_sclk_lineEdit"), QStringLiteral("green"));
}

void TestTypedValues::sourceChangeKeepsTheSystemClock()
{
    PageFixture page(ZN64G110);
    for (const char* source : {"m_pllhext_div_RadioButton", "m_pllrcs_hick_RadioButton"}) {
        page.click(source);
        QCOMPARE(page.text("m_sclk_lineEdit"), QStringLiteral("192.000"));
        QCOMPARE(page.text("m_pllmult_ComboBox"), QStringLiteral("* 48"));
    }
    // Set by the program, these selectors stay silent; that of the system clock does not.
    page.find<QRadioButton>(QStringLiteral("m_pllrcs_hext_RadioButton"))->setChecked(true);
    QCOMPARE(page.model().Get_PLLRC(), PLLRC_HICK);
    page.find<QRadioButton>(QStringLiteral("m_sclkselect_hick_RadioButton"))->setChecked(true);
    QCOMPARE(page.model().Get_SYSCLKSelect(), SYSCLK_HICK);
    QCOMPARE(page.text("m_sclk_lineEdit"), QStringLiteral("8.000"));
    QVERIFY(!page.enabled("m_sclk_lineEdit"));
    QCOMPARE(page.ground("m_sclk_lineEdit"), QStringLiteral("white"));
}

void TestTypedValues::dividersAreForcedUp()
{
    const PageFixture page(ZN64G110);
    const auto apb1 = [&page] {
        return QStringList{page.text("m_apb1div_ComboBox"), page.text("m_toapb1peripheral_lineEdit"),
                           page.text("m_toapb1tmr_mul"), page.text("m_toapb1tmr_lineEdit")}
            .join(QLatin1Char(' '));
    };
    page.choose("m_apb1div_ComboBox", "/1");
    QCOMPARE(apb1(), QStringLiteral("/2 96.000 * 2 192.000"));
    // A forced divider is not lowered when its cause has gone.
    page.type("m_sclk_lineEdit", "96");
    QCOMPARE(apb1(), QStringLiteral("/2 48.000 * 2 96.000"));
    page.choose("m_apb1div_ComboBox", "/1");
    QCOMPARE(apb1(), QStringLiteral("/1 96.000 * 1 96.000"));
    page.click("m_pllrcs_hick_RadioButton");
    page.type("m_sclk_lineEdit", "100");
    QCOMPARE(apb1(), QStringLiteral("/1 100.000 * 1 100.000"));
    page.type("m_sclk_lineEdit", "104");
    QCOMPARE(apb1(), QStringLiteral("/2 52.000 * 2 104.000"));
    page.choose("m_apb1div_ComboBox", "/8");
    page.type("m_sclk_lineEdit", "200");
    QCOMPARE(apb1(), QStringLiteral("/8 25.000 * 2 50.000"));
    page.choose("m_ahbdiv_ComboBox", "/64");
    QCOMPARE(page.text("m_tosystick_lineEdit"), QStringLiteral("0.391"));
}

void TestTypedValues::pllParameters_data()
{
    QTest::addColumn<bool>("ns");
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QByteArray>("presses");
    QTest::addColumn<QStringList>("boxes");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, bool ns, const char* typed, const char* presses, QStringList boxes,
                        const char* expected) {
        QTest::newRow(name) << ns << QByteArray(typed) << QByteArray(presses) << boxes
                            << QString::fromLatin1(expected);
    };
    const QString ms = QLatin1String(msQuestion);
    const QString ns = QLatin1String(nsQuestion);
    // Expected: both texts, MS and NS of the model, the system clock.
    row("ms 0", false, "0", "Ok", {errorBox("pll_ms input error!")}, "/0 *144 1 144 288.000");
    row("ms 16", false, "16", "Ok", {errorBox("pll_ms input error!")}, "/16 *144 1 144 288.000");
    row("ms with its sign", false, "/2", "", {}, "/2 *144 2 144 144.000");
    row("ms and ns corrected", false, "5", "Yes Yes", {ms, ns}, "/4 *250 4 250 125.000");
    row("ms cancelled", false, "5", "Cancel", {ms}, "/5 *144 1 144 288.000");
    row("ns cancelled behind ms", false, "5", "Yes Cancel", {ms, ns}, "/4 *144 4 144 288.000");
    row("ns 30", true, "30", "Ok", {errorBox("pll_ns input error!")}, "/1 *30 1 144 288.000");
    row("ns 501", true, "*501", "Ok", {errorBox("pll_ns input error!")}, "/1 *501 1 144 288.000");
    row("ns at the top", true, "150", "", {}, "/1 *150 1 150 300.000");
    row("ns above the top", true, "151", "Yes", {ns}, "/1 *150 1 150 300.000");
    row("ns below the VCO", true, "62", "Yes", {ns}, "/1 *63 1 63 126.000");
    row("ns cancelled", true, "62", "Cancel", {ns}, "/1 *62 1 144 288.000");
}

void TestTypedValues::pllParameters()
{
    QFETCH(bool, ns);
    QFETCH(QByteArray, typed);
    QFETCH(QByteArray, presses);
    QFETCH(QStringList, boxes);
    PageFixture page(ZN64G150);
    const char* edit = ns ? "m_pllns_lineEdit" : "m_pllms_lineEdit";
    page.type(edit, typed, false);
    const QString sign = QString::fromLatin1(ns ? "*" : "/");
    QCOMPARE(page.text(edit), sign + QString::fromLatin1(typed).remove(sign));
    QCOMPARE(page.ground(edit), QStringLiteral("pale"));
    QCOMPARE(page.color(edit), presses == "Ok" ? QStringLiteral("red") : QStringLiteral("black"));

    const QByteArray first = presses.split(' ').first();
    DialogAnswers answers{DialogAnswers::press(first.constData()),
                          DialogAnswers::press(presses.split(' ').last().constData())};
    QTest::keyClick(page.viewport(), Qt::Key_Return);
    QCOMPARE(answers.shown(), boxes);
    QTEST(QStringLiteral("%1 %2 %3 %4 %5")
              .arg(page.text("m_pllms_lineEdit"), page.text("m_pllns_lineEdit"))
              .arg(page.model().Get_PLL_MS())
              .arg(page.model().Get_PLL_NS())
              .arg(page.text("m_sclk_lineEdit")),
          "expected");
}

void TestTypedValues::unusedPllParametersAreNotChecked()
{
    const PageFixture page(ZN64G150);
    QCOMPARE(page.text("m_pllCFG_Value_lineEdit"), QStringLiteral("0x00422401"));
    page.choose("m_pllfr_ComboBox", "/32");
    QCOMPARE(page.text("m_pllCFG_Value_lineEdit"), QStringLiteral("0x00452401"));
    page.choose("m_pllfr_ComboBox", "/4");
    page.click("m_pllrcs_hick_RadioButton");
    QCOMPARE(page.text("m_pllCFG_Value_lineEdit"), QStringLiteral("0x00022401"));

    DialogAnswers answers{};
    page.type("m_pllns_lineEdit", "501", false);
    page.click("m_sclkselect_hick_RadioButton");
    QVERIFY(!page.enabled("m_pllns_lineEdit"));
    QCOMPARE(page.text("m_pllCFG_Value_lineEdit"), QString());
    QCOMPARE(page.text("m_sclk_lineEdit"), QStringLiteral("8.000"));
    QCOMPARE(answers.shown(), QStringList());
}

QTEST_MAIN(TestTypedValues)
#include "tst_typedvalues.moc"
