#include "series.h"

#include <QTest>

class TestSeriesTraits : public QObject
{
    Q_OBJECT

private slots:
    void highestSysclk();
    void names();
};

void TestSeriesTraits::highestSysclk()
{
    using Row = std::pair<int, const char*>;
    for (const auto& [highest, words] :
         {Row(288, "G150 G152"), Row(240, "G110R G114"), Row(216, "G171 G174 G190"), Row(180, "P212 P216"),
          Row(200, "G110 G120 H110R G142 G146"), Row(192, "G165 G166 G167"), Row(150, "G125 TQ125 G133 H133"),
          Row(120, "G130"), Row(96, "G135"), Row(80, "D042")})
        for (const ZN64ConfigCLK& model : modelsOf(words))
            QVERIFY2(model.GetSYSCLKValidMaxValue() == highest, words);
}

void TestSeriesTraits::names()
{
    for (const char* wrong : {"", "ZN64", "G110", "zn64g110", "ZN64G110 ", "ZN64G1"})
        QVERIFY2(!seriesByName(QLatin1String(wrong)), wrong);
    for (int gap : {0, 10, 35, -1})
        QVERIFY(seriesName(ZN64MCUSERIALS(gap)).isEmpty());
}

QTEST_GUILESS_MAIN(TestSeriesTraits)
#include "tst_seriestraits.moc"
