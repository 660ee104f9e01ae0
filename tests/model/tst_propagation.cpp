#include "series.h"

#include <QTest>

class TestPropagation : public QObject
{
    Q_OBJECT

private slots:
    void forcedDividers();
    void wholeTree();
    void pllChecks();
};

#define CLASSIC "G120 G125 TQ125 G110R G114 H110R G130 G135 D042 G142 G146 "

void TestPropagation::forcedDividers()
{
    using Row = std::tuple<const char*, double, int, int, int, int>; // words, AHB, dividers before and after
    for (const auto& [words, ahb, div1, div2, forced1, forced2] :
         {Row("G150 G152", 144.0, 1, 1, 1, 1), Row("G125 TQ125", 75.001, 1, 1, 2, 2),
          Row("G110 G120 G110R G114 H110R", 150.0, 1, 2, 2, 2), Row("G110R G150 G152", 300.0, 2, 1, 2, 2),
          Row("G133 H133 G171 G174 G190", 150.0, 1, 1, 2, 1), Row("G133 G171", 120.0, 1, 1, 1, 1),
          Row("G171", 200.0, 4, 1, 4, 1),
          Row("G165 G166 G167 G130 G135 D042 G142 G146 P212 P216", 300.0, 1, 1, 1, 1)}) {
        for (ZN64ConfigCLK& model : modelsOf(words)) {
            model.Set_SYSCLKSelect(SYSCLK_HEXT), model.Set_HEXT_DIV(1);
            model.Set_Hext_Input_Value(2.0 * ahb), model.Set_AHBDIV(2);
            model.Set_APB1DIV(div1), model.Set_APB2DIV(div2);
            model.CalculateCLK();
            QVERIFY2(model.Get_APB1DIV() == forced1, qPrintable(model.traits().name()));
            QVERIFY2(model.Get_APB2DIV() == forced2, qPrintable(model.traits().name()));
            QCOMPARE(model.Get_APB1CLKValue(), ahb / forced1);
            QCOMPARE(model.Get_APB1TMR_MUL(), forced1 == 1 ? 1 : 2);
            QCOMPARE(model.Get_APB2TMRCLK_Value(), (forced2 == 1 ? 1 : 2) * (ahb / forced2));
        }
    }
}

void TestPropagation::wholeTree()
{
    ZN64ConfigCLK model(ZN64G171);
    model.Set_SYSCLKSelect(SYSCLK_PLL);
    model.Set_PLL_MS(1), model.Set_PLL_NS(108), model.Set_PLL_FP(4);
    model.Set_APB2DIV(4), model.Set_APB3DIV(8), model.Set_ToADCDIV(6), model.Set_ToADC_Switch(true);
    model.CalculateCLK();
    QCOMPARE(model.Get_APB3CLKValue(), 27.0);
    QCOMPARE(model.Get_ADCCLK_Value(), 9.0);

    model.Set_SYSCLKSelect(SYSCLK_HICK), model.Set_SCLKHICK_DIV(1);
    model.Set_HICK_TO_USB(HICK_TO_USB_ENABLE), model.Set_ToADC_Switch(false), model.Set_PLL_NS(54);
    model.CalculateCLK();
    QCOMPARE(model.Get_ADCCLK_Value(), 0.0);
    QCOMPARE(model.Get_APB1DIV(), 2); // once forced, never lowered
    // What is out of use keeps its last value.
    QCOMPARE(model.Get_PLLCLKValue(), 216.0);
    QCOMPARE(model.Get_USBCLKValue(), 48.0);
}

void TestPropagation::pllChecks()
{
    // Words, input, NS or 0 to check MS, MS, answer, correction.
    using Row = std::tuple<const char*, double, int, int, bool, int>;
    for (const auto& [words, in, ns, ms, good, corrected] :
         {Row("G150", 16.0, 0, 1, true, 1), Row("G150", 8.0, 0, 5, false, 4),
          Row("G150", 25.0, 0, 1, false, 2), Row("G150", 1000.0, 0, 3, false, 1),
          Row("G125", 8.0, 40, 1, false, 63), Row("G125", 8.0, 125, 1, true, 31),
          Row(CLASSIC "G133 G171 P212", 8.0, 126, 1, false, 125),
          Row("G150 G152 G165 G166 G167", 8.0, 150, 1, true, 31), Row("G171", 0.5, 31, 1, false, 31)}) {
        for (ZN64ConfigCLK& model : modelsOf(words)) {
            model.Set_Hext_Input_Value(in);
            int answer = -99;
            const bool valid =
                ns ? model.PLL_NS_Valid_Check(ns, ms, answer) : model.PLL_MS_Valid_Check(ms, answer);
            QVERIFY2(
                valid == good && answer == corrected,
                qPrintable(
                    QStringLiteral("%1: %2 * %3 / %4").arg(QLatin1String(words)).arg(in).arg(ns).arg(ms)));
        }
    }
}

QTEST_GUILESS_MAIN(TestPropagation)
#include "tst_propagation.moc"
