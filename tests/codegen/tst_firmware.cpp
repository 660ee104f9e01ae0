#include "designs.h"
#include "firmware/firmwarebuild.h"
#include "model/divisors.h"
#include "model/seriestraits.h"
#include "testdata.h"

#include <QtTest>

#include <QTemporaryDir>

#include <random>

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
} // namespace

/// Many generated programs, compiled without warnings and run on the stand-in chip: what they set must be
/// what the model calculated.
class FirmwareTest : public QObject
{
    Q_OBJECT

private slots:
    void runsAsCalculated_data()
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
                            QTest::addRow("series %d sclk %d pll %d usb %d seed %u", series, sclk, pllSource,
                                          usb, seed)
                                << series << sclk << pllSource << usb << seed;
    }

    void runsAsCalculated()
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
        if (usb != 0)
            QVERIFY(near("usb", usb == 2 ? clock.Get_Hick_Input_Value() : clock.Get_USBCLKValue()));
        const bool rtc = clock.Get_ToRTC_Switch();
        QCOMPARE(run.clocks.value("pll"_s) != 0, clock.pll_isEnable());
        QCOMPARE(run.clocks.value("hext"_s) != 0,
                 clock.hext_isEnable() || (rtc && clock.Get_RTCSEL() == RTCSEL_HEXT));
        QCOMPARE(run.clocks.value("lext"_s) != 0, rtc && clock.Get_RTCSEL() == RTCSEL_LEXT);
        const QString codes[] = {"2"_s, "1"_s, "3"_s}; // of the register, by RTCSEL
        QCOMPARE(run.calls.filter("rtc_clock_select"_s).join(u'/').section(u' ', 1, 1),
                 rtc ? codes[clock.Get_RTCSEL()] : QString());
    }

    /// The stand-in chip is no check if it accepts everything.
    void findsFaults()
    {
        ZN64ConfigCLK clock = namedDesign("g150_pll"_s);
        using Row = std::tuple<const char*, const char*, const char*, const char*>;
        const char* const source = "src/zn64g150_152_clock.c";
        for (const auto& [file, from, to, message] :
             {Row(source, "  crm_clock_source_enable(CRM_CLOCK_SOURCE_HEXT, TRUE);", "",
                  "waits for a source that is off"),
              Row(source, "step_mode_enable(TRUE)", "step_mode_enable(FALSE)", "step mode does not fit"),
              Row(source, "CRM_APB1_DIV_4", "CRM_APB2_DIV_4", "implicit conversion"),
              Row("src/main.c", "  system_clock_config();", "  [#rtc hext]", "error")}) {
            QTemporaryDir base;
            QVERIFY(firmware::generate(clock, base.path(), stemOf(clock)));
            QFile edited(base.filePath(QLatin1String(file)));
            QVERIFY(edited.open(QIODevice::ReadWrite));
            QByteArray text = edited.readAll();
            QVERIFY(text.contains(from));
            QVERIFY(edited.resize(0));
            edited.write(text.replace(from, to));
            edited.close();
            const QString errors = firmware::run(base.path(), stemOf(clock)).errors;
            QVERIFY2(errors.contains(QLatin1String(message)), qPrintable(errors));
        }
    }
};

QTEST_GUILESS_MAIN(FirmwareTest)
#include "tst_firmware.moc"
