#include "series.h"

#include <QTest>

struct Answer
{
    bool (ZN64ConfigCLK::*question)() const;
    const char* words;
    Setup setup;
};
Q_DECLARE_METATYPE(Answer)

class TestUsage : public QObject
{
    Q_OBJECT

private slots:
    void pll_data();
    void pll() { answer(); }
    void oscillators_data();
    void oscillators() { answer(); }

private:
    void answer();
};

#define CLASSIC_USB "G120 G125 TQ125 G110R G114 H110R G135 "
#define NEW_USB "G133 H133 G171 G174 G190 G165 G166 G167 "
#define DUAL "G150 G152 "
#define NO_USB "G130 D042 G142 G146 "
#define P_SERIES "P212 P216 "
#define SINGLE_OUTPUT "G110 " CLASSIC_USB NO_USB NEW_USB P_SERIES
#define ALL SINGLE_OUTPUT DUAL

// Each row starts from hext as the system clock, hext as the PLL's source and USB off, and lists the series
// that answer yes.
void TestUsage::answer()
{
    QFETCH(Answer, a);
    QCOMPARE(wordsWhere([&a](const SeriesTraits& traits) {
                 ZN64ConfigCLK model(traits.series);
                 model.Set_SYSCLKSelect(SYSCLK_HEXT);
                 model.Set_TO_USB_Switch(TO_USB_SWITCH_DISABLE);
                 a.setup(model);
                 return (model.*a.question)();
             }),
             wordsOf(a.words));
}

static Setup out(CLKOUT source, int pin = CLKOUTPIN_PE4)
{
    return
        [=](auto& m) { m.Set_SYSCLKSelect(SYSCLK_HICK), m.Set_CLKOUT(source), m.Set_CLKOUT_PinSelect(pin); };
}

static Setup can(int number, CAN_CLOCK_SOURCE source)
{
    return [=](auto& m) {
        m.Set_CAN1_Switch(number == 1), m.Set_CAN2_Switch(number == 2), m.Set_CAN3_Switch(number == 3);
        m.Set_can1_Clock_Source(source), m.Set_can2_Clock_Source(source), m.Set_can3_Clock_Source(source);
    };
}

static const Setup onPll = [](auto& m) { m.Set_SYSCLKSelect(SYSCLK_PLL), m.Set_PLLHEXTDIV(1); };
static const Setup onPllHick = [](auto& m) { onPll(m), m.Set_PLLRC(PLLRC_HICK); };
static const Setup usb = [](auto& m) { m.Set_SYSCLKSelect(SYSCLK_HICK), m.Set_TO_USB_Switch(0); };
static const Setup usbHick = [](auto& m) { m.Set_TO_USB_Switch(0), m.Set_HICK_TO_USB(1); };
static const Setup out2 = [](auto& m) { m.Set_CLKOUT2(CLKOUT2_PLL), m.Set_CLKOUT2_PinSelect(1); };

void TestUsage::pll_data()
{
    QTest::addColumn<Answer>("a");
    const auto row = [](const char* name, const char* words, const Setup& setup) {
        QTest::newRow(name) << Answer{&ZN64ConfigCLK::pll_isEnable, words, setup};
    };
    row("sysclk", ALL, onPll);
    row("usb", "G110 " CLASSIC_USB DUAL NEW_USB, usb);
    row("output", NEW_USB P_SERIES, out(CLKOUT_PLL));
    row("output / 4", "G110 " CLASSIC_USB NO_USB, out(CLKOUT_PLLDIV4));
    row("output / 2, no pin", "", out(CLKOUT_PLLDIV2, CLKOUTPIN_NONE));
    row("CLKOUT1", DUAL, [](auto& m) { m.Set_CLKOUT1(CLKOUT1_PLL), m.Set_CLKOUT1_PinSelect(1); });
    row("CLKOUT2", DUAL, out2);
    row("CLKOUT2, no pin", "", [](auto& m) { m.Set_CLKOUT2(CLKOUT2_PLL); });
    row("adc on AHB", "", [](auto& m) { m.Set_ToADC_Switch(true); });
    row("adc", "G133 H133",
        [](auto& m) { m.Set_ToADC_Switch(true), m.Set_adc_Clock_Source(ADC_CLOCK_SOURCE_PLLCLK); });
    row("i2sf5", "G171 G174 G190 G165 G166 G167", [](auto& m) { m.Set_I2SF5_Switch(true); });
    row("can1", "G165 G166 G167 " P_SERIES, can(1, CAN_CLOCK_SOURCE_PLL));
    row("can1 on PCLK", "G165 G166 G167", can(1, CAN_CLOCK_SOURCE_PCLK));
    row("can2", "G165 G166 G167", can(2, CAN_CLOCK_SOURCE_PLL));
    row("can3", "G165 G166 G167", can(3, CAN_CLOCK_SOURCE_PCLK));
    row("can3 on hext", "", can(3, CAN_CLOCK_SOURCE_HEXT));
}

void TestUsage::oscillators_data()
{
    QTest::addColumn<Answer>("a");
    const auto usbpll = &ZN64ConfigCLK::usbpll_isEnable;
    const auto hext = &ZN64ConfigCLK::hext_isEnable;
    const auto hick = &ZN64ConfigCLK::hick_isEnable;
    const auto hextdiv = &ZN64ConfigCLK::hextdiv_isEnable;
    const Setup onHick = [](auto& m) { m.Set_SYSCLKSelect(SYSCLK_HICK); };
    const Setup usbOn = [](auto& m) { m.Set_TO_USB_Switch(0); };
    const Setup usbPllHick = [](auto& m) { m.Set_TO_USB_Switch(0), m.Set_PLLRC(PLLRC_HICK); };
    const Setup out2PllHick = [](auto& m) { out2(m), m.Set_PLLRC(PLLRC_HICK); };
    QTest::newRow("usbpll") << Answer{usbpll, "G110 " CLASSIC_USB DUAL NEW_USB P_SERIES, usb};
    QTest::newRow("usbpll: hick takes over") << Answer{usbpll, "G110", usbHick};
    QTest::newRow("hext: idle") << Answer{hext, "", onHick};
    QTest::newRow("hext: sysclk") << Answer{hext, ALL, [](auto&) {}};
    QTest::newRow("hext: PLL") << Answer{hext, ALL, onPll};
    QTest::newRow("hext: PLL on hick") << Answer{hext, "", onPllHick};
    QTest::newRow("hext: usb") << Answer{hext, "G110 " CLASSIC_USB DUAL NEW_USB, usb};
    QTest::newRow("hext: output") << Answer{hext, SINGLE_OUTPUT, out(CLKOUT_HEXT)};
    QTest::newRow("hext: no pin") << Answer{hext, "", out(CLKOUT_HEXT, CLKOUTPIN_NONE)};
    QTest::newRow("hext: PLL output") << Answer{hext, "", out(CLKOUT_PLL)};
    QTest::newRow("hext: PLL / 2 output") << Answer{hext, SINGLE_OUTPUT, out(CLKOUT_PLLDIV2)};
    QTest::newRow("hick: idle") << Answer{hick, "", out2};
    QTest::newRow("hick: PLL from hext") << Answer{hick, "", usbOn};
    QTest::newRow("hick: PLL") << Answer{hick, ALL, onPllHick};
    QTest::newRow("hick: usb") << Answer{hick, CLASSIC_USB DUAL NEW_USB, usbHick};
    QTest::newRow("hick: usb by PLL") << Answer{hick, "G110 " CLASSIC_USB DUAL NEW_USB, usbPllHick};
    QTest::newRow("hick: CLKOUT2") << Answer{hick, DUAL, out2PllHick};
    QTest::newRow("hextdiv") << Answer{hextdiv, "G110 " CLASSIC_USB NO_USB, onPll};
    QTest::newRow("hextdiv: PLL on hick") << Answer{hextdiv, "", onPllHick};
}

QTEST_GUILESS_MAIN(TestUsage)
#include "tst_usage.moc"
