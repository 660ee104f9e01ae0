#include "model/divisors.h"
#include "model/numbers.h"
#include "series.h"

#include <QTest>

#include <limits>

using Int = std::numeric_limits<int>;
using Double = std::numeric_limits<double>;

// Design files may put any number into any field. Nothing may crash, hang or overflow on it.
class TestHostileValues : public QObject
{
    Q_OBJECT

private slots:
    void anyNumber();
};

static void fill(ZN64ConfigCLK& m, int i, double d)
{
    m.Set_Hick_Input_Value(d), m.Set_Hext_Input_Value(d), m.Set_USBDIV(d);
    m.Set_SYSCLKValue(d), m.Set_PLLCLKValue(d);
    m.Set_HEXT_DIV(i), m.Set_SCLKHICK_DIV(i), m.Set_PLLHEXTDIV(i), m.Set_HICK_TO_SCLK(i);
    m.Set_PLL_MS(i), m.Set_PLL_NS(i), m.Set_PLL_FR(i), m.Set_PLL_FP(i), m.Set_PLL_FU(i), m.Set_PLL_MUL(i);
    m.Set_AHBDIV(i), m.Set_APB1DIV(i), m.Set_APB2DIV(i), m.Set_APB3DIV(i), m.Set_ToADCDIV(i);
    m.Set_CLKOUT(i), m.Set_CLKOUT_PinSelect(i), m.Set_CLKOUT1(i), m.Set_CLKOUT2(i);
    m.Set_ToADC_Switch(true);
}

// Two sources of the system clock and no source at all, in both modes of the PLL.
static void tryNumbers(ZN64MCUSERIALS series, int select, PLLCONFIGMODE mode, int i, double d)
{
    ZN64ConfigCLK model(series);
    fill(model, i, d);
    model.Set_SYSCLKSelect(select), model.Set_ConfigMode(mode);
    int ms = -99, ns = -99;
    QVERIFY(!model.PLL_MS_Valid_Check(i, ms) || ms == 1);
    QVERIFY(!model.PLL_NS_Valid_Check(i, i, ns) || ns == 31);
    QVERIFY(ms >= 1 && ns >= 0);
    model.CalculateCLK();
    QCOMPARE(model.Get_APB1DIV(), i); // no number here is a divider of 1
    QCOMPARE(model.Get_CRM_PLLCFG_Value().size(), 10);
    model.CalculateParam_From_USBCLK();
    fill(model, i, d);
    model.CalculateParam_From_SYSCLK();
    if (select == SYSCLK_PLL && mode == PLLMODE_NORMAL)
        QVERIFY(divisors::indexOf(divisors::pllMul, model.Get_PLL_MUL()) >= 0);
    else if (select == SYSCLK_PLL)
        QVERIFY(model.Get_PLL_MS() >= 0 && model.Get_PLL_MS() <= 15);
    if (model.traits().pll_fp_output)
        QVERIFY(divisors::indexOf(divisors::pllFu, model.Get_PLL_FU()) >= 0);
}

void TestHostileValues::anyNumber()
{
    using Row = std::pair<double, int>;
    for (const auto& [value, part] : {Row(-0.9, 0), Row(2147483646.9, Int::max() - 1), Row(1e300, Int::max()),
                                      Row(-1e300, Int::min()), Row(Double::quiet_NaN(), 0)})
        QCOMPARE(integerPart(value), part);
    for (int i : {0, -1, 7, 2000000, Int::max(), Int::min()})
        for (double d : {0.0, -25.0, 1e-300, 1e9, -1e300, Double::infinity(), Double::quiet_NaN()})
            for (const SeriesTraits& traits : seriesList())
                for (int select : {int(SYSCLK_PLL), int(SYSCLK_HEXT), i})
                    for (PLLCONFIGMODE mode : {PLLMODE_NORMAL, PLLMODE_FLEXIBLE})
                        tryNumbers(traits.series, select, mode, i, d);
}

QTEST_GUILESS_MAIN(TestHostileValues)
#include "tst_hostilevalues.moc"
