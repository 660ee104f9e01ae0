#include "series.h"

#include <QTest>

#include <cmath>
#include <limits>

class TestSolvers : public QObject
{
    Q_OBJECT

private slots:
    void multiplier();
    void usbFollowsSysclk();
    void flexiblePll();
    void examples();
    void registerValue();
};

static QVector<int> pllOf(const ZN64ConfigCLK& model)
{
    return {model.Get_PLL_MS(), model.Get_PLL_NS(), model.Get_PLL_FR(), model.Get_PLL_FP()};
}

// The two passes over NS, as they read on paper.
static void literalNsRange(double top, double in, double ms, int& upper, int& lower)
{
    upper = 500;
    lower = 31;
    const auto good = [=](int ns) { return (ns * in) / ms >= 500.0 && (ns * in) / ms <= top; };
    for (int ns = 500; ns >= 31; --ns)
        if (good(ns))
            lower = ns;
    for (int ns = 31; ns <= 500; ++ns)
        if (good(ns))
            upper = ns;
}

// The whole search as it reads on paper: MS, NS, FR, FP.
static QVector<int> literalSearch(bool fp, double top, double in, double target)
{
    const QVector<int> table = fp ? QVector<int>{30, 28, 26, 24, 22, 20, 18, 16, 14, 12, 10, 8, 6, 4, 2, 1}
                                  : QVector<int>{32, 16, 8, 4, 2, 1};
    const auto goodMs = [in](int ms) { return in / ms >= 2.0 && in / ms <= 16.0; };
    bool anyMs = false;
    for (int ms = 1; ms <= 15; ++ms)
        anyMs = anyMs || goodMs(ms);
    double best = 10000.0;
    QVector<int> found{0, 0, 0, 0};
    for (int divider : table) {
        for (int ms = 1; ms <= 15; ++ms) {
            int nsUpper = 0, nsLower = 0;
            literalNsRange(top, in, ms, nsUpper, nsLower);
            for (int ns = nsLower; ns <= nsUpper && (goodMs(ms) || !anyMs); ++ns) {
                const double difference = std::fabs((ns * in) / (divider * ms) - target);
                if (best > difference) {
                    found = {ms, ns, fp ? 0 : divider, fp ? divider : 0};
                    best = difference;
                }
            }
        }
    }
    return found;
}

void TestSolvers::multiplier()
{
    // Input, for USB or not, the wanted clock or the USB divider, multiplier, PLL output.
    using Row = std::tuple<double, int, double, int, double>;
    for (const auto& [in, forUsb, wanted, mul, reached] :
         {Row(8.0, 0, 100.0, 13, 104.0), Row(8.0, 0, 4.0, 2, 16.0), Row(4.0, 0, 1e3, 64, 256.0),
          Row(7.3729, 0, 100.0, 14, 103.208), Row(8.0, 1, 4.5, 27, 216.0)}) {
        ZN64ConfigCLK model(ZN64G110);
        model.Set_SYSCLKValue(forUsb ? 1.25 : wanted);
        model.Set_USBDIV(wanted);
        model.CalculateParam_From_ResultCLK_Normal(in, forUsb);
        QCOMPARE(model.Get_PLL_MUL(), mul);
        QVERIFY(model.Get_PLLCLKValue() == reached);
        QVERIFY(model.Get_SYSCLKValue() == (forUsb ? 1.25 : reached));
    }
}

void TestSolvers::usbFollowsSysclk()
{
    // Words, SYSCLK, FP, the divider and USB. A fraction of SYSCLK is cut for the choice; 15 is no FU.
    using Row = std::tuple<const char*, double, int, double, double>;
    for (const auto& [words, sysclk, fp, divider, usb] :
         {Row("G110 G135", 72.0, 0, 1.5, 48.0), Row("G110 G120 TQ125", 240.0, 0, 4.0, 60.0),
          Row("G150 G152", 360.0, 0, 7.0, 360.0 / 7.0), Row("G133 H133", 144.0, 0, 6.0, 48.0),
          Row("H133", 24.9, 0, 2.0, 24.9), Row("G171 G167", 216.0, 4, 18.0, 48.0),
          Row("G171", 120.0, 6, 16.0, 45.0), Row("G190", 192.0, 30, 20.0, 288.0),
          Row("G165", 48.0, 2, 11.0, 96.0 / 11.0)}) {
        for (ZN64ConfigCLK& model : modelsOf(words)) {
            model.Set_SYSCLKValue(sysclk); // hick is the source: the value is taken as it stands
            model.Set_PLL_FP(fp), model.Set_PLL_FU(19), model.Set_USBDIV(3.0);
            model.CalculateParam_From_SYSCLK();
            QCOMPARE(model.traits().pll_fp_output ? model.Get_PLL_FU() : model.Get_USBDIV(), divider);
            QVERIFY2(model.Get_USBCLKValue() == usb, qPrintable(model.traits().name()));
            QVERIFY2(model.Get_AHBCLKValue() == sysclk, qPrintable(model.traits().name()));
        }
    }
}

static void compareNsRanges(const ZN64ConfigCLK& model, double top)
{
    const double inf = std::numeric_limits<double>::infinity();
    QVector<double> inputs{0.0, -8.0, 1e-300, 1e300, inf, -inf, std::nan("")};
    for (double in = 0.5; in <= 26.0; in += 0.0625)
        inputs << in << std::nextafter(in, 0.0) << std::nextafter(in, inf);
    // Inputs whose VCO meets a limit exactly, or misses it by a rounding.
    for (int ns = 31; ns <= 500; ns += 7)
        inputs << top / ns << 3500.0 / ns << std::nextafter(top / ns, inf);
    for (double in : qAsConst(inputs)) {
        for (double ms : {1.0, 2.0, 3.0, 5.0, 6.0, 7.0, 11.0, 13.0, 15.0, 0.0, -1.0, 2.5}) {
            int upper = 0, lower = 0, literalUpper = 0, literalLower = 0;
            model.Get_PLL_NS_ValidRange(in, ms, upper, lower);
            literalNsRange(top, in, ms, literalUpper, literalLower);
            QCOMPARE(qMakePair(lower, upper), qMakePair(literalLower, literalUpper));
        }
    }
}

static void compareSearches(ZN64ConfigCLK& model, double top, double factor)
{
    const bool fp = model.traits().pll_fp_output;
    for (double in : {0.5, 1.9, 4.0, 8.0, 11.0592, 17.0, 25.0, 1e7}) {
        for (double wanted : {0.0, 47.3, 96.0, 137.0}) {
            model.Set_SYSCLKValue(wanted);
            model.CalculateParam_From_ResultCLK_Flexible(in, 0);
            const QVector<int> found = literalSearch(fp, top, in, factor * wanted);
            QCOMPARE(pllOf(model), found);
            const double reached = (found[1] * in) / ((found[2] + found[3]) * found[0]);
            // Nothing is within reach of some inputs.
            QVERIFY(found[0] == 0 || model.Get_SYSCLKValue() == reached / factor);
        }
    }
}

void TestSolvers::flexiblePll()
{
    // The top of the VCO is lower while USB divides it; a factor leads from the system clock to the PLL.
    using Row = std::tuple<const char*, TO_USB_SWITCH, HICK_TO_USB, double, double>;
    const auto on = TO_USB_SWITCH_ENABLE;
    const auto pll = HICK_TO_USB_DISABLE;
    for (const auto& [word, usb, usbSource, vcoTop, factor] :
         {Row("G125", on, pll, 1000.0, 1.0), Row("G150", on, pll, 1200.0, 1.0),
          Row("G133", on, pll, 1000.0, 2.0), Row("G171", TO_USB_SWITCH_DISABLE, pll, 1000.0, 1.0),
          Row("G165", on, HICK_TO_USB_ENABLE, 1200.0, 1.0), Row("G165", on, pll, 960.0, 1.0)}) {
        ZN64ConfigCLK model = modelsOf(word).front();
        model.Set_TO_USB_Switch(usb);
        model.Set_HICK_TO_USB(usbSource);
        compareNsRanges(model, vcoTop);
        compareSearches(model, vcoTop, factor);
        if (QTest::currentTestFailed())
            QFAIL(word);
    }
}

void TestSolvers::examples()
{
    // TQ125 is held down to its highest clock. With FP the VCO goes first and FP follows; where two VCOs are
    // equally near, as in the last row, the larger NS wins.
    const double between = 1056.0 / 265.0;
    const SYSCLKSelect onPll = SYSCLK_PLL;
    const SYSCLKSelect onHick = SYSCLK_HICK;
    // For USB or not, series, selection, input, USB divider, wanted clock, MS, NS, FR, FP, reached clock.
    using Row = std::tuple<bool, ZN64MCUSERIALS, SYSCLKSelect, double, double, double, QVector<int>, double>;
    for (const auto& [forUsb, series, select, hext, divider, wanted, pll, reached] :
         {Row(false, ZN64TQ125, onPll, 8.0, 1.0, 500.0, {1, 75, 4, 0}, 150.0),
          Row(true, ZN64G125, onHick, 8.0, 1.5, 33.0, {1, 72, 8, 0}, 33.0),
          Row(true, ZN64G133, onPll, 8.0, 6.0, 10.0, {1, 72, 2, 0}, 144.0),
          Row(true, ZN64G171, onPll, 8.0, 16.0, 100.0, {1, 96, 0, 8}, 96.0),
          Row(true, ZN64G165, onHick, 8.0, 20.0, 33.0, {1, 120, 0, 6}, 33.0),
          Row(true, ZN64G171, onPll, between, 11.0, 264.0, {1, 133, 0, 2}, 133 * between / 2)}) {
        ZN64ConfigCLK model(series);
        model.Set_SYSCLKSelect(select);
        model.Set_Hext_Input_Value(hext);
        model.Set_USBDIV(divider), model.Set_PLL_FU(int(divider));
        model.Set_SYSCLKValue(wanted);
        forUsb ? model.CalculateParam_From_USBCLK() : model.CalculateParam_From_SYSCLK();
        QCOMPARE(pllOf(model), pll);
        QCOMPARE(model.Get_SYSCLKValue(), reached);
    }
}

void TestSolvers::registerValue()
{
    // Series, FR or FP, FU, hick to USB, PLL source.
    using Row = std::tuple<ZN64MCUSERIALS, int, int, int, int, const char*>;
    for (const auto& [series, divider, fu, hickToUsb, source, value] :
         {Row(ZN64G150, 4, 20, 0, 0, "0x00422401"), Row(ZN64G125, 32, 20, 0, 1, "0x00052401"),
          Row(ZN64G165, 30, 13, 1, 0, "0x401f2401"), Row(ZN64G190, 5, 12, 0, 1, "0x20202401")}) {
        ZN64ConfigCLK model(series);
        model.Set_PLL_MS(1), model.Set_PLL_NS(144), model.Set_PLL_FU(fu);
        model.Set_PLL_FR(divider), model.Set_PLL_FP(divider);
        model.Set_HICK_TO_USB(hickToUsb), model.Set_PLLRC(source);
        QCOMPARE(model.Get_CRM_PLLCFG_Value(), QLatin1String(value));
    }
}

QTEST_GUILESS_MAIN(TestSolvers)
#include "tst_solvers.moc"
