#include "series.h"

#include <QTest>

class TestSeriesTraits : public QObject
{
    Q_OBJECT

private slots:
    void highestSysclk();
    void names();
    void startValues();
};

void TestSeriesTraits::highestSysclk()
{
    using Row = std::pair<int, const char*>;
    for (const Row& row :
         {Row(288, "G150 G152"), Row(240, "G110R G114"), Row(216, "G171 G174 G190"), Row(180, "P212 P216"),
          Row(200, "G110 G120 H110R G142 G146"), Row(192, "G165 G166 G167"), Row(150, "G125 TQ125 G133 H133"),
          Row(120, "G130"), Row(96, "G135"), Row(80, "D042")})
        QCOMPARE(wordsWhere([&row](const SeriesTraits& traits) { return traits.sysclkMax == row.first; }),
                 wordsOf(row.second));
}

void TestSeriesTraits::names()
{
    for (const SeriesTraits& traits : seriesList()) {
        QCOMPARE(&seriesTraits(traits.series), &traits);
        QCOMPARE(seriesByName(traits.name()), &traits);
    }
    QCOMPARE(seriesName(ZN64G110R), QStringLiteral("ZN64G110R"));
    for (const char* wrong : {"", "ZN64", "G110", "zn64g110", "ZN64G110 ", "ZN64G1"})
        QVERIFY2(!seriesByName(QLatin1String(wrong)), wrong);
    for (int gap : {0, 1, 3, 6, 10, 27, 32, 35, -1}) {
        QVERIFY(seriesName(ZN64MCUSERIALS(gap)).isEmpty());
        QCOMPARE(ZN64ConfigCLK(ZN64MCUSERIALS(gap)).GetSYSCLKValidMaxValue(), 0);
    }
}

void TestSeriesTraits::startValues()
{
    for (const SeriesTraits& traits : seriesList()) {
        ZN64ConfigCLK model(traits.series);
        QCOMPARE(model.Get_Hick_Input_Value(), traits.series == ZN64G110 ? 8.0 : 48.0);
        QCOMPARE(model.Get_SYSCLKSelect(), SYSCLK_HICK);
        QCOMPARE(model.Get_ConfigMode(), PLLMODE_FLEXIBLE);
        QCOMPARE(model.Get_can1_Clock_Source(), CAN_CLOCK_SOURCE_PCLK);
        model.Set_PLL_MUL(30); // the start values leave it alone
        model.Set_PLL_NS(31);
        model.InitValue();
        QCOMPARE(model.Get_PLL_MUL(), 30);
        QCOMPARE(model.Get_PLL_NS(), 192);
    }
}

QTEST_GUILESS_MAIN(TestSeriesTraits)
#include "tst_seriestraits.moc"
