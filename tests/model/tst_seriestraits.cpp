#include "series.h"

#include <QTest>

// What sets one series apart: which blocks its selectors put to use.
class TestSeriesTraits : public QObject
{
    Q_OBJECT

private slots:
    void names();
    void pll();
    void oscillators();
};

#define CLASSIC_USB "G120 G125 TQ125 G110R G114 H110R G135 "
#define NEW_USB "G133 H133 G171 G174 G190 G165 G166 G167 "
#define DUAL "G150 G152 "
#define NO_USB "G130 D042 G142 G146 "
#define P_SERIES "P212 P216 "
#define SINGLE_OUTPUT "G110 " CLASSIC_USB NO_USB NEW_USB P_SERIES

// The question starts from hext as the system clock, hext as the PLL's source and USB off. Those series
// answer yes whose words are listed.
static void ask(const char* name, bool (ZN64ConfigCLK::*question)() const, const char* words,
                const Setup& setup)
{
    for (const SeriesTraits& traits : seriesList()) {
        ZN64ConfigCLK model(traits.series);
        model.Set_SYSCLKSelect(SYSCLK_HEXT);
        model.Set_TO_USB_Switch(TO_USB_SWITCH_DISABLE);
        setup(model);
        QVERIFY2((model.*question)() == wordsOf(words).contains(QLatin1String(traits.word)),
                 qPrintable(QLatin1String(name) + u' ' + traits.name()));
    }
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

static const Setup usb = [](auto& m) { m.Set_SYSCLKSelect(SYSCLK_HICK), m.Set_TO_USB_Switch(0); };
static const Setup usbHick = [](auto& m) { m.Set_TO_USB_Switch(0), m.Set_HICK_TO_USB(1); };
static const Setup out2 = [](auto& m) { m.Set_CLKOUT2(CLKOUT2_PLL), m.Set_CLKOUT2_PinSelect(1); };

void TestSeriesTraits::pll()
{
    const auto row = [](const char* name, const char* words, const Setup& setup) {
        ask(name, &ZN64ConfigCLK::pll_isEnable, words, setup);
    };
    row("usb", "G110 " CLASSIC_USB DUAL NEW_USB, usb);
    row("output", NEW_USB P_SERIES, out(CLKOUT_PLL));
    row("output / 4", "G110 " CLASSIC_USB NO_USB, out(CLKOUT_PLLDIV4));
    row("output / 2, no pin", "", out(CLKOUT_PLLDIV2, CLKOUTPIN_NONE));
    row("CLKOUT1", DUAL, [](auto& m) { m.Set_CLKOUT1(CLKOUT1_PLL), m.Set_CLKOUT1_PinSelect(1); });
    row("CLKOUT2", DUAL, out2);
    row("no pins", "", [](auto& m) { m.Set_CLKOUT1(CLKOUT1_PLL), m.Set_CLKOUT2(CLKOUT2_PLL); });
    row("adc", "G133 H133",
        [](auto& m) { m.Set_ToADC_Switch(true), m.Set_adc_Clock_Source(ADC_CLOCK_SOURCE_PLLCLK); });
    row("i2sf5", "G171 G174 G190 G165 G166 G167", [](auto& m) { m.Set_I2SF5_Switch(true); });
    row("can1", "G165 G166 G167 " P_SERIES, can(1, CAN_CLOCK_SOURCE_PLL));
    row("can1 on PCLK", "G165 G166 G167", can(1, CAN_CLOCK_SOURCE_PCLK));
    row("can3 on hext", "", can(3, CAN_CLOCK_SOURCE_HEXT));
    row("can3", "G165 G166 G167", can(3, CAN_CLOCK_SOURCE_PCLK));
}

void TestSeriesTraits::oscillators()
{
    const Setup onPll = [](auto& m) { m.Set_SYSCLKSelect(SYSCLK_PLL), m.Set_PLLHEXTDIV(1); };
    const Setup onPllHick = [=](auto& m) { onPll(m), m.Set_PLLRC(PLLRC_HICK); };
    const Setup out2PllHick = [](auto& m) { out2(m), m.Set_PLLRC(PLLRC_HICK); };
    ask("usbpll", &ZN64ConfigCLK::usbpll_isEnable, "G110 " CLASSIC_USB DUAL NEW_USB P_SERIES, usb);
    ask("usbpll: hick takes over", &ZN64ConfigCLK::usbpll_isEnable, "G110", usbHick);
    const auto hext = &ZN64ConfigCLK::hext_isEnable;
    ask("hext: PLL on hick", hext, "", onPllHick);
    ask("hext: usb", hext, "G110 " CLASSIC_USB DUAL NEW_USB, usb);
    ask("hext: output", hext, SINGLE_OUTPUT, out(CLKOUT_HEXT));
    ask("hext: PLL output", hext, "", out(CLKOUT_PLL));
    ask("hext: PLL / 2 output", hext, SINGLE_OUTPUT, out(CLKOUT_PLLDIV2));
    const auto hick = &ZN64ConfigCLK::hick_isEnable;
    ask("hick: PLL on hext", hick, "", out2);
    ask("hick: usb", hick, CLASSIC_USB DUAL NEW_USB, usbHick);
    ask("hick: CLKOUT2", hick, DUAL, out2PllHick);
    ask("hextdiv", &ZN64ConfigCLK::hextdiv_isEnable, "G110 " CLASSIC_USB NO_USB, onPll);
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
