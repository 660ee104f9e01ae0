#include "designs.h"
#include "firmware/firmwarebuild.h"
#include "model/divisors.h"
#include "model/seriestraits.h"

#include <QtTest>

#include <QTemporaryDir>

#include <random>

/// Many generated programs, compiled without warnings and run on the stand-in chip: what they set must be
/// what the model calculated.
class FirmwareTest : public QObject
{
    Q_OBJECT

private slots:
    void runsAsCalculated_data();
    void runsAsCalculated();
    void switchesInSteps_data();
    void switchesInSteps();
    void findsFaults_data();
    void findsFaults();
};

namespace {
/// The rest of a design at random, in values that the pages offer.
class Dice
{
public:
    explicit Dice(unsigned seed) : m_numbers(seed) {}
    int upTo(int last) { return static_cast<int>(m_numbers() % static_cast<unsigned>(last + 1)); }
    bool coin() { return upTo(1) != 0; }
    template <class List>
    typename List::value_type of(const List& list)
    {
        return list[static_cast<std::size_t>(upTo(static_cast<int>(list.size()) - 1))];
    }

private:
    std::mt19937 m_numbers;
};

void throwDividers(ZN64ConfigCLK& clock, Dice& dice)
{
    clock.Set_Hext_Input_Value(4.0 + dice.upTo(42) * 0.5);
    clock.Set_AHBDIV(dice.of(divisors::ahb));
    clock.Set_APB1DIV(dice.of(divisors::apb));
    clock.Set_APB2DIV(dice.of(divisors::apb));
    clock.Set_PLL_MUL(2 + dice.upTo(62));
    clock.Set_PLL_NS(31 + dice.upTo(200));
    clock.Set_PLL_MS(1 + dice.upTo(3));
    clock.Set_PLL_FR(dice.of(divisors::pllFr));
    clock.Set_USBDIV(dice.of(divisors::usbHalfStepsTo4));
    clock.Set_ToADCDIV(dice.of(divisors::adc));
}

void throwMainFile(ZN64ConfigCLK& clock, Dice& dice)
{
    clock.Set_Hext_Bypass_Value(dice.coin());
    clock.Set_Lext_Bypass_Value(dice.coin());
    clock.Set_ToRTC_Switch(dice.coin());
    clock.Set_RTCSEL(static_cast<RTCSEL>(dice.upTo(2)));
    clock.Set_RTC_DIV(dice.of(divisors::rtc));
    clock.Set_ToADC_Switch(dice.coin());
    clock.Set_CLKOUT_PinSelect(dice.upTo(1));
    clock.Set_CLKOUT(dice.upTo(9));
    clock.Set_CLKOUT1_PinSelect(dice.upTo(2));
    clock.Set_CLKOUT1(dice.upTo(3));
    clock.Set_CLKOUT1_Div1(dice.of(divisors::clockOutputFirst));
    clock.Set_CLKOUT1_Div2(dice.of(divisors::clockOutput));
    clock.Set_CLKOUT2_PinSelect(dice.upTo(1));
    clock.Set_CLKOUT2(dice.upTo(7));
    clock.Set_CLKOUT2_Div1(dice.of(divisors::clockOutputFirst));
    clock.Set_CLKOUT2_Div2(dice.of(divisors::clockOutput));
}

bool usbOn(const ZN64ConfigCLK& clock)
{
    return clock.Get_TO_USB_Switch() == TO_USB_SWITCH_ENABLE;
}

/// The calls that the main file should have made for RTC, ADC and clock outputs, in order.
QStringList expectedMainCalls(const ZN64ConfigCLK& clock)
{
    QStringList calls;
    const auto add = [&calls](const QString& name, std::initializer_list<int> values) {
        QString call = name;
        for (int value : values)
            call += QLatin1Char(' ') + QString::number(value);
        calls << call;
    };
    const bool dual = clock.traits().dual_clkout;
    const QString divider = QStringLiteral("crm_clkout_div_set");
    if (!dual && clock.Get_CLKOUT_PinSelect() != CLKOUTPIN_NONE)
        add(QStringLiteral("crm_clock_out_set"), {clock.Get_CLKOUT()});
    if (dual && clock.Get_CLKOUT1_PinSelect() != CLKOUT1PIN_NONE) {
        add(QStringLiteral("crm_clock_out1_set"), {clock.Get_CLKOUT1()});
        add(divider, {1, clock.Get_CLKOUT1_Div1(), clock.Get_CLKOUT1_Div2()});
    }
    if (dual && clock.Get_CLKOUT2_PinSelect() != CLKOUT2PIN_NONE) {
        add(QStringLiteral("crm_clock_out2_set"), {clock.Get_CLKOUT2()});
        add(divider, {2, clock.Get_CLKOUT2_Div1(), clock.Get_CLKOUT2_Div2()});
    }
    const int rtcCode[] = {2, 1, 3}; // the register's code by RTCSEL
    if (clock.Get_ToRTC_Switch() && dual)
        add(QStringLiteral("crm_ertc_clock_select"),
            {rtcCode[clock.Get_RTCSEL()], clock.Get_RTCSEL() == RTCSEL_HEXT ? clock.Get_RTC_DIV() : 0});
    if (clock.Get_ToRTC_Switch() && !dual)
        add(QStringLiteral("crm_rtc_clock_select"), {rtcCode[clock.Get_RTCSEL()]});
    if (clock.Get_ToADC_Switch() && !dual)
        add(QStringLiteral("crm_adc_clock_div_set"), {clock.Get_ToADCDIV()});
    return calls;
}
} // namespace

void FirmwareTest::runsAsCalculated_data()
{
    QTest::addColumn<int>("series");
    QTest::addColumn<int>("sclk");
    QTest::addColumn<int>("pllSource");
    QTest::addColumn<int>("usb"); // 0 off, 1 from the PLL, 2 from hick
    QTest::addColumn<unsigned>("seed");
    unsigned seed = 1;
    for (int series : {ZN64G110, ZN64G150})
        for (int sclk : {SYSCLK_HEXT, SYSCLK_PLL, SYSCLK_HICK})
            for (int pllSource : {PLLRC_HEXT, PLLRC_HICK})
                for (int usb = 0; usb <= (series == ZN64G110 ? 1 : 2); ++usb)
                    for (int i = 0; i < 2; ++i, ++seed)
                        QTest::addRow("series %d sclk %d pll %d usb %d seed %u", series, sclk, pllSource, usb,
                                      seed)
                            << series << sclk << pllSource << usb << seed;
}

void FirmwareTest::runsAsCalculated()
{
    QFETCH(int, series);
    QFETCH(int, sclk);
    QFETCH(int, pllSource);
    QFETCH(int, usb);
    QFETCH(unsigned, seed);
    Dice dice(seed);
    ZN64ConfigCLK clock = pageDesign(static_cast<ZN64MCUSERIALS>(series));
    throwDividers(clock, dice);
    throwMainFile(clock, dice);
    clock.Set_SYSCLKSelect(sclk);
    clock.Set_PLLRC(pllSource);
    clock.Set_PLLHEXTDIV(dice.upTo(1));
    clock.Set_HICK_TO_SCLK(series == ZN64G110 ? int(HICK_TO_SCLK_NODIV) : dice.upTo(1));
    clock.Set_TO_USB_Switch(usb == 0 ? TO_USB_SWITCH_DISABLE : TO_USB_SWITCH_ENABLE);
    clock.Set_HICK_TO_USB(usb == 2 ? HICK_TO_USB_ENABLE : HICK_TO_USB_DISABLE);
    clock.CalculateCLK();

    QTemporaryDir base;
    QVERIFY(firmware::generate(clock, base.path(), stemOf(clock)));
    const firmware::Run run = firmware::run(base.path(), stemOf(clock));
    QCOMPARE(run.errors, QString());
    const auto near = [&run](const char* name, double megahertz) {
        const qint64 wanted = qRound64(megahertz * 1e6);
        return qAbs(run.clocks.value(QLatin1String(name), -1) - wanted) <= 1;
    };
    QVERIFY(near("sclk", clock.Get_SYSCLKValue()));
    QVERIFY(near("ahb", clock.Get_AHBCLKValue()));
    QVERIFY(near("apb1", clock.Get_APB1CLKValue()));
    QVERIFY(near("apb2", clock.Get_APB2CLKValue()));
    if (usbOn(clock))
        QVERIFY(near("usb", usb == 2 ? clock.Get_Hick_Input_Value() : clock.Get_USBCLKValue()));
    const bool rtc = clock.Get_ToRTC_Switch();
    QCOMPARE(run.clocks.value(QStringLiteral("pll")) != 0, clock.pll_isEnable());
    QCOMPARE(run.clocks.value(QStringLiteral("hext")) != 0,
             clock.hext_isEnable() || (rtc && clock.Get_RTCSEL() == RTCSEL_HEXT));
    QCOMPARE(run.clocks.value(QStringLiteral("lext")) != 0, rtc && clock.Get_RTCSEL() == RTCSEL_LEXT);
    const QStringList calls =
        run.calls.filter(QRegularExpression(QStringLiteral("clock_out|clkout|rtc_|adc_")));
    QCOMPARE(calls, expectedMainCalls(clock));
}

void FirmwareTest::switchesInSteps_data()
{
    QTest::addColumn<int>("series");
    QTest::addColumn<double>("sysclk");
    QTest::addColumn<QStringList>("calls");
    const QString ahb = QStringLiteral("crm_ahb_div_set ");
    const QString step = QStringLiteral("crm_auto_step_mode_enable ");
    const QString pll = QStringLiteral("crm_sysclk_switch 2");
    const QStringList stepped{ahb + QLatin1Char('8'), pll, ahb + QLatin1Char('2'), ahb + QLatin1Char('4')};
    const QStringList automatic{ahb + QLatin1Char('4'), step + QLatin1Char('1'), pll,
                                step + QLatin1Char('0')};
    QTest::newRow("G110 168") << int(ZN64G110) << 168.0 << stepped;
    QTest::newRow("G110 below 168") << int(ZN64G110) << 167.999 << QStringList{ahb + QLatin1Char('4'), pll};
    QTest::newRow("G150 108") << int(ZN64G150) << 108.0 << QStringList{ahb + QLatin1Char('4'), pll};
    QTest::newRow("G150 above 108") << int(ZN64G150) << 108.5 << automatic;
}

void FirmwareTest::switchesInSteps()
{
    QFETCH(int, series);
    QFETCH(double, sysclk);
    QFETCH(QStringList, calls);
    // The crystal makes the system clock with the multiplier of 16 in both series.
    ZN64ConfigCLK clock = pageDesign(static_cast<ZN64MCUSERIALS>(series));
    clock.Set_Hext_Input_Value(sysclk / 16.0);
    clock.Set_PLL_MUL(16);
    clock.Set_PLL_NS(64);
    clock.Set_AHBDIV(4);
    clock.CalculateCLK();
    QTemporaryDir base;
    QVERIFY(firmware::generate(clock, base.path(), stemOf(clock)));
    const firmware::Run run = firmware::run(base.path(), stemOf(clock));
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.calls.filter(QRegularExpression(QStringLiteral("ahb|step|sysclk_switch"))), calls);
}

void FirmwareTest::findsFaults_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* file, const char* from, const char* to, const char* message) {
        QTest::newRow(message) << QString::fromLatin1(file) << QString::fromLatin1(from)
                               << QString::fromLatin1(to) << QString::fromLatin1(message);
    };
    const char* const source = "src/zn64g150_152_clock.c";
    row(source, "  crm_clock_source_enable(CRM_CLOCK_SOURCE_HEXT, TRUE);", "",
        "waits for a source that is off");
    row(source, "crm_auto_step_mode_enable(TRUE)", "crm_auto_step_mode_enable(FALSE)",
        "step mode does not fit");
    row(source, "CRM_APB1_DIV_4", "CRM_APB2_DIV_4", "implicit conversion");
    row("src/main.c", "  system_clock_config();", "  [#rtc hext]", "error");
}

/// The stand-in chip is no check if it accepts everything.
void FirmwareTest::findsFaults()
{
    QFETCH(QString, file);
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QString, message);
    ZN64ConfigCLK clock = namedDesign(QStringLiteral("g150_pll"));
    QTemporaryDir base;
    QVERIFY(firmware::generate(clock, base.path(), stemOf(clock)));
    QFile source(base.filePath(file));
    QVERIFY(source.open(QIODevice::ReadWrite));
    const QString text = QString::fromUtf8(source.readAll());
    QVERIFY(text.contains(from));
    source.resize(0);
    source.write(QString(text).replace(from, to).toUtf8());
    source.close();
    const firmware::Run run = firmware::run(base.path(), stemOf(clock));
    QVERIFY2(run.errors.contains(message), qPrintable(run.errors));
}

QTEST_GUILESS_MAIN(FirmwareTest)
#include "tst_firmware.moc"
