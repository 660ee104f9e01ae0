#include "pagefixture.h"

// What the page shows behind a row of steps, and which boxes came up on the way.

class TestEdits : public QObject
{
    Q_OBJECT

private slots:
    void frequencies_data();
    void frequencies() { run(); }
    void hext_data();
    void hext() { run(); }
    void sysclk_data();
    void sysclk() { run(); }
    void pllParameters_data();
    void pllParameters() { run(); }
    void buses_data();
    void buses() { run(); }
    void usbAndRtc_data();
    void usbAndRtc() { run(); }
    void clockOutputs_data();
    void clockOutputs() { run(); }
    void modes_data();
    void modes() { run(); }
    void peripherals_data();
    void peripherals() { run(); }
    void settingASelectorByProgram();
    void paintsByTheModel();

private:
    void run();
};

namespace {

// The fields of a row: series, steps, boxes each with the button that is pressed, what shows in the end.
const QHash<QString, QString> boxes{
    {QStringLiteral("hext"),    errorBox(QStringLiteral("hext input error!"))                    },
    {QStringLiteral("sclk"),    errorBox(QStringLiteral("sclk input error!"))                    },
    {QStringLiteral("input"),   errorBox(QStringLiteral("pll input clock source range 2-16MHz!"))},
    {QStringLiteral("ms"),      errorBox(QStringLiteral("pll_ms input error!"))                  },
    {QStringLiteral("ns"),      errorBox(QStringLiteral("pll_ns input error!"))                  },
    {QStringLiteral("ms?"),
     QStringLiteral("question | Warning | pll_ms input error, is it adjusted automatically?\nThe following "
                    "condition must be met: \n2MHz <= pll_input / pll_ms <= 16MHz | Cancel, Yes")},
    {QStringLiteral("ns?"),
     QStringLiteral(
         "question | Warning | pll_ns input error, is it adjusted automatically?\n\nThe following condition "
         "must be met: \n500MHz <= pll_input * pll_ns / pll_ms <= 1200MHz | Cancel, Yes")        },
    {QStringLiteral("ns1000?"),
     QStringLiteral(
         "question | Warning | pll_ns input error, is it adjusted automatically?\n\nThe following condition "
         "must be met: \n500MHz <= pll_input * pll_ns / pll_ms <= 1000MHz | Cancel, Yes")        },
};

} // namespace

void TestEdits::run()
{
    QFETCH(QStringList, fields);
    const PageFixture& page = resetPage(fields.at(0));
    DialogAnswers answers;
    QStringList expectedBoxes;
    for (const QString& box : fields.at(2).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        expectedBoxes += boxes.value(box.section(QLatin1Char(':'), 0, 0));
        answers.add(DialogAnswers::press(box.section(QLatin1Char(':'), 1).toLatin1().constData()));
    }
    page.take(fields.at(1));
    QCOMPARE(answers.shown(), expectedBoxes);
    QCOMPARE(page.shows(fields.at(3)).trimmed(), fields.at(3));
}

void TestEdits::frequencies_data()
{
    rows({
        "G110 | | | sclk_lineEdit?: 192.000 darkGreen green; toi2s_lineEdit: 192.000; tosystick_lineEdit: "
        "24.000",
        "G110 | | | toapb1peripheral_lineEdit?: 96.000 darkGreen; apb1div_ComboBox: /2; toapb1tmr_mul: * 2",
        "G110 | | | toapb1tmr_lineEdit: 192.000; toadc_lineEdit?: 0.000 gray; pllclk_Label?: 192.000MHz "
        "darkGreen",
        "G150 G152 | | | sclk_lineEdit: 288.000; toadc_lineEdit?: 288.000 darkGreen; pllclk_Label?: "
        "288.000MHz darkGreen",
        "G150 G152 | | | toapb2peripheral_lineEdit?: 144.000 darkGreen; pllCFG_Value_lineEdit: 0x00422401",
    });
}

void TestEdits::hext_data()
{
    rows({
        // A bad text colours at once; Return tells, and changes nothing.
        "G110 G130 G133 G150 G165 | hext_lineEdit~.. | | hext_lineEdit?: .. red pale",
        "G110 G130 G133 G150 G165 | hext_lineEdit=1.2.3 | hext:Ok | hext_lineEdit?: 1.2.3 red pale",
        "G110 G130 G133 G150 G165 | hext_lineEdit=3.99999 | hext:Ok | hext_lineEdit?: 3.99999 red pale",
        "G110 G130 G133 G150 G165 | hext_lineEdit=25.001 | hext:Ok | hext_lineEdit?: 25.001 red pale",
        "G110 | hext_lineEdit=3 | hext:Ok | Hext_Input_Value: 8; sclk_lineEdit: 192.000; PLL_MUL: 24",
        "G110 | hext_lineEdit=3 hext_lineEdit~8.0 | hext:Ok | hext_lineEdit?: 8.0 black green",
        "G110 | hext_lineEdit~8.00001 | | hext_lineEdit?: 8.00001 black pale; sclk_lineEdit: 192.000",
        "G110 | hext_lineEdit=4 | | hext_lineEdit?: 4 black green; sclk_lineEdit: 96.000; todma_lineEdit: "
        "96.000",
        "G150 | hext_lineEdit=7 | | hext_lineEdit?: 7 black green; sclk_lineEdit: 252.000",
        "G110 | hext_lineEdit~3 sclkselect_hick ahbdiv=/2 | | todma_lineEdit: 4.000",
        "G110 | hext_lineEdit~3 ahbdiv=/2 | hext:Ok | todma_lineEdit: 192.000; AHBDIV: 2",
        // The PLL's input is corrected to 16 MHz, whatever brings it above.
        "G110 G120 | hext_lineEdit=25 | input:Ok | hext_lineEdit?: 16.000 black green; Hext_Input_Value: 16",
        "G110 | sclkselect_hext hext_lineEdit=25 | | sclk_lineEdit: 25.000; Hext_Input_Value: 25",
        "G110 | sclkselect_hext hext_lineEdit=25 sclkselect_pll | input:Ok | hext_lineEdit?: 16.000 black "
        "green",
        "G110 | pllhext_div hext_lineEdit=25 sclk_lineEdit=100 | | sclk_lineEdit: 100.000; Hext_Input_Value: "
        "25",
        "G110 | pllhext_div hext_lineEdit=25 sclk_lineEdit=100 pllhext_nodiv | input:Ok | sclk_lineEdit: "
        "64.000; PLL_MUL: 4",
        "G110 | pllrcs_hick sclkselect_hext hext_lineEdit=25 sclkselect_pll pllrcs_hext | input:Ok | "
        "Hext_Input_Value: 16",
        "G110 | hext_lineEdit=16 | | sclk_lineEdit?: 384.000 red green; pllclk_Label?: 384.000MHz red",
    });
}

void TestEdits::sysclk_data()
{
    rows({
        "G110 | sclk_lineEdit~200 | | sclk_lineEdit?: 200 darkGreen pale; todma_lineEdit: 192.000",
        "G110 | sclk_lineEdit=200 | | sclk_lineEdit?: 200.000 darkGreen green; todma_lineEdit?: 200.000 "
        "darkGreen; PLL_MUL: 25",
        "G110 | sclk_lineEdit=100 | | sclk_lineEdit: 104.000; pllmult_ComboBox: * 13",
        "G110 | sclk_lineEdit=99.999 | | sclk_lineEdit: 96.000; pllmult_ComboBox: * 12",
        "G110 | sclk_lineEdit=4 | | sclk_lineEdit: 16.000; pllclk_Label: 16.000MHz",
        "G110 | pllrcs_hick sclk_lineEdit=6 | | sclk_lineEdit: 8.000; PLL_MUL: 2",
        "G110 | sclk_lineEdit~192 | | sclk_lineEdit?: 192 darkGreen green",
        "G110 | sclk_lineEdit=200.001 | sclk:Ok | sclk_lineEdit?: 200.001 red pale; SYSCLKValue: 192; "
        "todma_lineEdit: 192.000",
        "G110 | sclk_lineEdit=3.999 | sclk:Ok | sclk_lineEdit?: 3.999 red pale; SYSCLKValue: 192",
        "G110 | sclk_lineEdit=1.1.1 | sclk:Ok | sclk_lineEdit?: 1.1.1 red pale; SYSCLKValue: 192",
        "G110 | hext_lineEdit~3 sclk_lineEdit=100 | hext:Ok | todma_lineEdit: 192.000; PLL_MUL: 24",
        "G150 G152 | sclk_lineEdit=240 | | sclk_lineEdit: 240.000; toadc_lineEdit: 240.000; pllclk_Label: "
        "240.000MHz",
        "G150 | sclk_lineEdit=4 | | sclk_lineEdit: 15.625; pllfr_ComboBox: /32",
        "G150 | pllrcs_hick sclk_lineEdit=200 | | sclk_lineEdit: 200.000; pllclk_Label: 200.000MHz",
        "G142 G146 | sclk_lineEdit=3.999 | sclk:Ok | SYSCLKValue: 200",
        "G150 G152 | sclk_lineEdit=3.9 | sclk:Ok | SYSCLKValue: 288",
        // A changed source searches for the same clock again.
        "G110 | pllhext_div | | sclk_lineEdit: 192.000; pllmult_ComboBox: * 48",
        "G110 | pllrcs_hick | | sclk_lineEdit: 192.000; pllmult_ComboBox: * 48",
        "G110 | sclkselect_hick | | sclk_lineEdit?: 8.000 darkGreen white; pllclk_Label: ; toi2s_lineEdit: "
        "8.000",
        "G150 | sclkselect_hick | | sclk_lineEdit?: 8.000 darkGreen white; pllCFG_Value_lineEdit: ",
        "G150 | sclkselect_hick hicktosclk | | sclk_lineEdit: 48.000; toadc_lineEdit: 48.000",
    });
}

void TestEdits::pllParameters_data()
{
    rows({
        "G150 | pllms_lineEdit~0 | | pllms_lineEdit?: /0 red pale",
        "G150 | pllms_lineEdit=0 | ms:Ok | pllms_lineEdit?: /0 red pale; PLL_MS: 1",
        "G150 | pllms_lineEdit=16 | ms:Ok | pllms_lineEdit?: /16 red pale; PLL_MS: 1",
        "G150 | pllms_lineEdit=/2 | | pllms_lineEdit?: /2 black white; PLL_MS: 2; sclk_lineEdit: 144.000",
        "G150 | pllms_lineEdit=5 | ms?:Yes ns?:Yes | pllms_lineEdit?: /4 black white; pllns_lineEdit?: *250 "
        "black white; PLL_MS: 4; PLL_NS: 250; sclk_lineEdit: 125.000",
        "G150 | pllms_lineEdit=5 | ms?:Cancel | pllms_lineEdit?: /5 black pale; PLL_MS: 1; sclk_lineEdit: "
        "288.000",
        "G150 | pllms_lineEdit=5 | ms?:Yes ns?:Cancel | pllms_lineEdit: /4; PLL_MS: 4; PLL_NS: 144; "
        "sclk_lineEdit: 288.000",
        "G150 | hext_lineEdit=25 | ms?:Yes ns?:Yes | pllms_lineEdit?: /2 black white; pllns_lineEdit?: *96 "
        "black white; sclk_lineEdit: 300.000",
        // What another field commits or finds shows as committed too.
        "G150 | pllns_lineEdit~72 pllms_lineEdit=1 | | pllns_lineEdit?: *72 black white",
        "G150 | pllns_lineEdit~120 sclk_lineEdit=240 | | pllns_lineEdit?: *120 black white",
        "G150 | pllns_lineEdit~72 | | pllns_lineEdit?: *72 black pale; PLL_NS: 144",
        "G150 | pllns_lineEdit=30 | ns:Ok | pllns_lineEdit?: *30 red pale; PLL_NS: 144",
        "G150 | pllns_lineEdit=*501 | ns:Ok | pllns_lineEdit?: *501 red pale; PLL_NS: 144",
        "G150 | pllns_lineEdit=150 | | pllns_lineEdit?: *150 black white; sclk_lineEdit?: 300.000 red green",
        "G150 | pllns_lineEdit=151 | ns?:Yes | pllns_lineEdit: *150; PLL_NS: 150",
        "G150 | pllns_lineEdit=62 | ns?:Yes | pllns_lineEdit: *63; sclk_lineEdit: 126.000",
        "G150 | pllns_lineEdit=62 | ns?:Cancel | pllns_lineEdit: *62; PLL_NS: 144; sclk_lineEdit: 288.000",
        // A PLL that is not in use may hold anything.
        "G150 | pllns_lineEdit~501 sclkselect_hick | | pllns_lineEdit: *144; sclk_lineEdit: 8.000",
        "G150 | pllfr=/32 | | pllCFG_Value_lineEdit: 0x00452401; sclk_lineEdit: 36.000",
        // Off the system clock, a changed source recalculates; but these pages ask for USB, which is off.
        "P212 | clockoutpin=PA8 clockout_pll sclkselect_hick hext_lineEdit=6 pllrcs_hick | | pllclk_Label: "
        "180.000MHz",
        "G165 | clockoutpin=PA8 clockout_pll sclkselect_hick hext_lineEdit=6 pllrcs_hick | | pllclk_Label: "
        "144.000MHz",
        "G171 | clockoutpin=PA8 clockout_pll sclkselect_hick hext_lineEdit=6 pllrcs_hick | | pllclk_Label: "
        "162.000MHz",
        "G150 | clockout1pin=PE4 clockout1_pll sclkselect_hick hext_lineEdit=6 pllrcs_hick | | pllclk_Label: "
        "216.000MHz",
        "G150 | pllrcs_hick | | pllCFG_Value_lineEdit: 0x00022401; sclk_lineEdit: 288.000",
    });
}

void TestEdits::buses_data()
{
    rows({
        // A divider is forced up when its bus would pass its limit, and never lowered.
        "G110 | apb1div=/1 | | apb1div_ComboBox: /2; toapb1peripheral_lineEdit: 96.000; APB1DIV: 2",
        "G110 | sclk_lineEdit=96 | | apb1div_ComboBox: /2; toapb1peripheral_lineEdit: 48.000; "
        "toapb1tmr_lineEdit: 96.000",
        "G110 | sclk_lineEdit=96 apb1div=/1 | | apb1div_ComboBox: /1; toapb1peripheral_lineEdit: 96.000; "
        "toapb1tmr_mul: * 1",
        "G110 | pllrcs_hick sclk_lineEdit=100 apb2div=/1 | | apb2div_ComboBox: /1; "
        "toapb2peripheral_lineEdit?: 100.000 darkGreen",
        "G110 | pllrcs_hick sclk_lineEdit=100 apb2div=/1 sclk_lineEdit=104 | | apb2div_ComboBox: /2; "
        "toapb2tmr_lineEdit: 104.000",
        "G110 | apb1div=/8 sclk_lineEdit=200 | | apb1div_ComboBox: /8; toapb1peripheral_lineEdit: 25.000; "
        "toapb1tmr_lineEdit: 50.000",
        "G150 | pllns_lineEdit=72 apb1div=/1 | | apb1div_ComboBox: /1; toapb1peripheral_lineEdit?: 144.000 "
        "darkGreen",
        "G110 | ahbdiv=/64 | | tosystick_lineEdit: 0.375; todma_lineEdit: 3.000; toi2s_lineEdit: 192.000",
        "G110 | pllmult=*_10 | | sclk_lineEdit: 80.000; PLL_MUL: 10",
        // Red above the limit.
        "G110 | hext_lineEdit=8.334 | | sclk_lineEdit?: 200.016 red green; todma_lineEdit?: 200.016 red; "
        "toapb2tmr_lineEdit?: 200.016 red",
        "G110 | hext_lineEdit=8.334 | | toapb1peripheral_lineEdit?: 100.008 red; tosystick_lineEdit?: 25.002 "
        "red",
        "G110 | hext_lineEdit=8.334 ahbdiv=/2 | | toi2s_lineEdit?: 200.016 red; todma_lineEdit?: 100.008 "
        "darkGreen",
        "G150 | pllns_lineEdit=145 | | toadc_lineEdit?: 290.000 red; toapb1peripheral_lineEdit?: 145.000 "
        "red; pllclk_Label?: 290.000MHz red",
        "G110 | sclk_lineEdit=112 toadcswitch=enable | | toadc_lineEdit?: 28.000 darkGreen",
        "G110 | sclk_lineEdit=120 toadcswitch=enable | | toadc_lineEdit?: 30.000 red",
        "G110 | sclk_lineEdit=120 toadcswitch=enable toadcdiv=/12 | | toadc_lineEdit?: 5.000 darkGreen; "
        "ToADCDIV: 12",
        "G110 | toadcswitch=enable toadcswitch=disable | | toadc_lineEdit?: 0.000 gray; ToADC_Switch: 0",
    });
}

void TestEdits::usbAndRtc_data()
{
    rows({
        "G110 | tousbswitch=enable | | usbclock_Label?: 48.000 MHz darkGreen; usbdiv_ComboBox: /4",
        "G110 | tousbswitch=enable usbdiv=/3.5 | | usbclock_Label?: 54.857 MHz red; sclk_lineEdit: 192.000",
        "G110 | tousbswitch=enable sclk_lineEdit=72 | | usbclock_Label?: 48.000 MHz darkGreen; "
        "usbdiv_ComboBox: /1.5",
        "G110 | sclkselect_hick tousbswitch=enable usbdiv=/1.5 | | usbclock_Label: 48.000 MHz; "
        "pllmult_ComboBox: * 9",
        "G110 | sclkselect_hick tousbswitch=enable pllrcs_hick usbdiv=/3 | | pllmult_ComboBox: * 36; "
        "usbclock_Label: 48.000 MHz",
        "G110 | sclkselect_hick tousbswitch=enable hext_lineEdit=12 | | pllmult_ComboBox: * 16; "
        "usbclock_Label: 48.000 MHz",
        "G150 | tousbswitch=enable | | usbclock_Label?: 48.000 MHz darkGreen; usbdiv_ComboBox: /6; "
        "sclk_lineEdit: 288.000",
        "G150 | tousbswitch=enable sclk_lineEdit=168 | | usbclock_Label: 48.000 MHz; usbdiv_ComboBox: /3.5",
        "G150 | tousbswitch=enable usbdiv=/5 tousb_hick | | usbclock_Label?: 48.000 MHz darkGreen; "
        "HICK_TO_USB: 1",
        "G150 | sclkselect_hick tousbswitch=enable usbdiv=/2.5 | | usbclock_Label: 48.000 MHz; pllclk_Label: "
        "120.000MHz",
        // Here USB moves a PLL that drives the system clock, once it is switched on or put back to it.
        "G110R G114 | tousbswitch=enable | | sclk_lineEdit: 192.000; usbclock_Label?: 48.000 MHz darkGreen",
        "G110R | tousbswitch=enable tousb_hick sclk_lineEdit=240 | | sclk_lineEdit: 240.000; "
        "usbclock_Label?: 48.000 MHz darkGreen",
        "G110R | tousbswitch=enable tousb_hick sclk_lineEdit=240 tousb_pll | | sclk_lineEdit: 192.000; "
        "usbdiv_ComboBox: /4",
        "G120 | tousbswitch=enable | | usbclock_Label?: 48.000 MHz darkGreen; sclk_lineEdit: 192.000",
        "G135 | tousbswitch=enable | | usbclock_Label?: 48.000 MHz darkGreen; sclk_lineEdit: 96.000",
        "G135 | sclk_lineEdit=90 tousbswitch=enable | | usbclock_Label?: 48.000 MHz darkGreen; "
        "sclk_lineEdit: 96.000",
        "G125 | sclk_lineEdit=104 tousbswitch=enable | | sclk_lineEdit: 104.000",
        "G135 | pllmode=flexible sclkselect_hick tousbswitch=enable usbdiv=/3 | | usbclock_Label?: 48.000 "
        "MHz darkGreen; pllmult_ComboBox: * 12; pllfr_ComboBox: /4",
        "G125 | tousbswitch=enable | | usbclock_Label?: 48.000 MHz darkGreen; sclk_lineEdit: 144.000",
        // Red, and right.
        "G133 H133 | tousbswitch=enable | | usbclock_Label?: 50.000 MHz red; sclk_lineEdit: 150.000",
        "G165 G166 G167 | tousbswitch=enable | | usbclock_Label?: 72.000 MHz red; sclk_lineEdit: 192.000",
        "G171 G174 G190 | tousbswitch=enable | | usbclock_Label?: 48.000 MHz darkGreen; PLL_FU: 18",
        "G171 | tousbswitch=enable pllfu=/13 | | usbclock_Label?: 66.462 MHz red; sclk_lineEdit: 216.000; "
        "PLL_FU: 13",
        "G171 | sclkselect_hick tousbswitch=enable pllfu=/13 | | usbclock_Label?: 48.000 MHz darkGreen; "
        "pllfu_ComboBox: /13",
        "G133 | tousbswitch=enable tousb_hick | | usbclock_Label?: 48.000 MHz darkGreen; sclk_lineEdit: "
        "150.000",
        "G110 | tortc=enable | | tortc_lineEdit?: 40 darkGreen; ToRTC_Switch: 1",
        "G130 | tortc=enable rtcsel_hext | | tortc_lineEdit: 250.000",
        "G125 G135 D042 G142 | tortc=enable rtcsel_hext | | tortc_lineEdit: 62.500",
        "G165 | tortc=enable rtcsel_hext rtcdiv=/31 | | tortc_lineEdit: 258.065",
        "G110 | tortc=enable rtcsel_lext | | tortc_lineEdit: 32.768; RTCSEL: 1",
        "G110 | tortc=enable rtcsel_hext hext_lineEdit=10 | | tortc_lineEdit: 78.125",
        "G110 | tortc=enable rtcsel_hext tortc=disable | | tortc_lineEdit?: 0 gray",
        // Told by the commit and by the output that needs it.
        "G110 | hext_lineEdit~3 sclkselect_hick tortc=enable rtcsel_hext | hext:Ok hext:Ok | tortc_lineEdit: "
        "0; Hext_Input_Value: 8",
        "G150 | tortc=enable rtcsel_hext | | tortc_lineEdit: 4000.000",
        "G150 | tortc=enable rtcsel_hext rtcdiv=/31 | | tortc_lineEdit: 258.065; RTC_DIV: 31",
    });
}

void TestEdits::clockOutputs_data()
{
    rows({
        "G110 | clockoutpin=PA8 clockout_hick | | clockout_hick_QLabel: (8.000 MHz); clockout_Value_QLabel?: "
        "(8.000 MHz) darkGreen",
        "G110 | clockoutpin=PA8 clockout_hick clockout_noclk | | clockout_Value_QLabel: ; CLKOUT: 0",
        "G110 | clockoutpin=PA8 clockout_hext hext_lineEdit=10 | | clockout_Value_QLabel: (10.000 MHz)",
        "G110 | clockoutpin=PA8 clockout_sclk clockoutpin=none sclkselect_hick | | clockout_Value_QLabel: "
        "(192.000 MHz)",
        "G110 | clockoutpin=PA8 clockout_plldiv2 | | clockout_plldiv2_QLabel: (96.000 MHz); "
        "CLKOUT_PinSelect: 1",
        "G150 | clockout1pin=PE4 clockout1_pll clockout1div1=/3 clockout1div2=/16 | | "
        "clockout1_Value_QLabel: (6.000 MHz); CLKOUT1_PinSelect: 2",
        "G150 | clockout1pin=PA8 | | clockout1_hick_QLabel: (8.000 MHz)",
        "G150 | clockout1pin=PA8 pllrcs_hick | | clockout1_hick_QLabel: (48.000 MHz)",
        "G150 | clockout1pin=PA8 sclkselect_hick hicktosclk | | clockout1_hick_QLabel: (48.000 MHz)",
        "G150 | clockout1pin=PA8 sclkselect_hick | | clockout1_hick_QLabel: (8.000 MHz)",
        "G133 H133 | clockoutpin=PA8 clockout_hick sclkselect_hick hicktosclk | | clockout_Value_QLabel: "
        "(8.000 MHz)",
        "G150 | clockout1pin=PA8 tousbswitch=enable tousb_hick | | clockout1_hick_QLabel: (48.000 MHz)",
        "G150 | clockout1pin=PA8 tousbswitch=enable tousb_hick tousbswitch=disable | | "
        "clockout1_hick_QLabel: (8.000 MHz)",
        "G150 | clockout2pin=PC9 clockout2div1=/5 | | clockout2_sclk_QLabel: (288.000 MHz); "
        "clockout2_Value_QLabel: (57.600 MHz)",
        "G150 | clockout2pin=PC9 clockout2_lick clockout2div1=/4 | | clockout2_lick_QLabel: (40.000 kHz); "
        "clockout2_Value_QLabel: (10.000 kHz)",
        "G150 | clockout2pin=PC9 clockout2_adcclk | | clockout2_adcclk_QLabel: ; clockout2_Value_QLabel: ",
        "G110R G125 G130 G135 G142 | clockoutpin=PA8 clockout_lick clockoutdiv=/4 | | clockout_lick_QLabel: "
        "(40.000 kHz); clockout_Value_QLabel: (10.000 kHz)",
        // lext shows while the RTC uses it.
        "G110R G120 G125 G142 | clockoutpin=PA8 clockout_lext | | clockout_lext_QLabel: ; "
        "clockout_Value_QLabel: ",
        "G110R | tortc=enable rtcsel_lext clockoutpin=PA8 clockout_lext | | clockout_Value_QLabel: (32.768 "
        "kHz)",
        "D042 | clockoutpin=PB13 clockout_lext | | clockout_Value_QLabel: (32.768 kHz); CLKOUT_PinSelect: 3",
        "G110R G130 | clockoutpin=PA8 clockout_hick | | clockout_hick_QLabel: (8.000 MHz)",
        "G110R G130 | clockoutpin=PA8 clockout_hick pllrcs_hick | | clockout_hick_QLabel: (48.000 MHz)",
        "G110R | clockoutpin=PA8 clockout_hick tousbswitch=enable tousb_hick clockoutdiv=/2 | | "
        "clockout_Value_QLabel: (24.000 MHz)",
        "D042 P212 G165 | clockoutpin=PA9 clockout_hick | | clockout_hick_QLabel: (48.000 MHz)",
        "G133 G171 | clockoutpin=PA9 clockout_hick | | clockout_hick_QLabel: (8.000 MHz)",
        "G133 G171 | clockoutpin=PA9 clockout_hick tousbswitch=enable tousb_hick | | clockout_hick_QLabel: "
        "(48.000 MHz)",
        "G133 | clockoutpin=PC9 clockoutdiv1=/2 clockoutdiv2=/4 | | clockout_Value_QLabel: (18.750 MHz); "
        "CLKOUT_PinSelect: 4",
        "G165 | clockoutpin=PE4 clockout_adc | | clockout_adc_QLabel: (0.000 MHz); CLKOUT_PinSelect: 6; "
        "CLKOUT: 7",
        "P212 | clockoutpin=PF2 | | CLKOUT_PinSelect: 5; CLKOUT: 5",
        "G171 | clockoutpin=PA8 tousbswitch=enable clockout_usbfs | | CLKOUT: 11",
        "G171 | clockoutpin=PA8 tousbswitch=enable clockout_usbfs tousbswitch=disable | | CLKOUT: 5",
        "G165 | clockoutpin=PA8 tousbswitch=enable clockout_usb tousbswitch=disable | | CLKOUT: 5",
        // A source that is switched off makes room.
        "G110 | clockoutpin=PA8 tousbswitch=enable clockout_usb tousbswitch=disable | | CLKOUT: 0; "
        "clockout_Value_QLabel: ",
        "G110 | clockoutpin=PA8 tousbswitch=enable clockout_usb clockoutpin=none | | CLKOUT: 6",
        "G110 | clockoutpin=PA8 tousbswitch=enable clockout_usb clockoutpin=none tousbswitch=disable | | "
        "CLKOUT: 0",
        "G110 | clockoutpin=PA8 toadcswitch=enable clockout_adcclk toadcswitch=disable | | CLKOUT: 0",
        "G150 G152 | clockout2pin=PC9 tousbswitch=enable clockout2_usb tousbswitch=disable | | CLKOUT2: 4; "
        "clockout2_hick_QLabel: (8.000 MHz)",
    });
}

void TestEdits::modes_data()
{
    rows({
        // A change of mode searches for the system clock that stands there.
        "G125 TQ125 | pllmode=flexible | | sclk_lineEdit: 144.000; pllms_lineEdit: /1; pllns_lineEdit: *72; "
        "pllfr_ComboBox: /4; pllCFG_Value_lineEdit: 0x00421201",
        "G142 G146 | pllmode=flexible | | sclk_lineEdit: 200.000; pllns_lineEdit: *100; pllfr_ComboBox: /4",
        "G130 | pllmode=flexible | | sclk_lineEdit: 120.000; ConfigMode: 1",
        "G135 | pllmode=flexible sclk_lineEdit=50 pllmode=normal | | sclk_lineEdit: 48.000; "
        "pllmult_ComboBox: * 6",
        "D042 | hext_lineEdit~3 pllmode=flexible | hext:Ok | ConfigMode: 1; sclk_lineEdit: 80.000; PLL_NS: "
        "80",
        "G125 | sclk_lineEdit~999 pllmode=flexible | sclk:Ok | ConfigMode: 1; PLL_NS: 72",
        "G125 | pllmode=flexible pllns_lineEdit~80 | | pllns_lineEdit?: *80 black pale; PLL_NS: 72",
        "G125 | pllmode=flexible pllns_lineEdit=126 | ns1000?:Yes | pllns_lineEdit: *125; sclk_lineEdit: "
        "250.000",
        "G133 | pllns_lineEdit=126 | ns1000?:Yes | pllns_lineEdit: *125; sclk_lineEdit: 250.000",
        "G165 | pllns_lineEdit=151 | ns?:Yes | pllns_lineEdit: *150",
        "G171 | pllns_lineEdit=126 | ns1000?:Cancel | pllns_lineEdit: *126; PLL_NS: 108",
        // The lower limit counts in the normal mode alone; the limit itself is good.
        "G125 D042 | sclk_lineEdit=4 | | pllclk_Label?: 16.000MHz darkGreen",
        "G125 D042 | pllrcs_hick sclk_lineEdit=8 | | pllclk_Label?: 8.000MHz red; sclk_lineEdit: 8.000",
        "G125 | pllmode=flexible sclk_lineEdit=4 | | pllclk_Label?: 15.625MHz darkGreen",
        // Pre-dividers. The typed clock is kept behind that of the PLL.
        "G110R | sclk_lineEdit=100 pllhext_div hextdiv=/4 | | sclk_lineEdit: 104.000; HEXT_DIV: 4; "
        "pllmult_ComboBox: * 52",
        "G110R H110R | pllhext_div hextdiv=/5 | input:Ok | hext_lineEdit?: 10.000 black green; HEXT_DIV: 5",
        "G120 | pllhext_div | | sclk_lineEdit: 200.000; pllmult_ComboBox: * 50",
        "G133 P212 G171 G165 | sclkselect_hext hextdiv=/4 | | sclk_lineEdit: 2.000; HEXT_DIV: 4",
        "G133 P212 G171 G165 | sclkselect_hick hickdiv=/16 | | sclk_lineEdit: 0.500; SCLKHICK_DIV: 16",
        "G133 P212 G171 G165 | sclkselect_hick hicktosclk hickdiv=/2 | | sclk_lineEdit: 24.000",
        "G171 | pllfp=/8 | | sclk_lineEdit: 108.000; PLL_FP: 8",
        "G171 | hext_lineEdit~3 pllfp=/8 | hext:Ok | PLL_FP: 4; pllfp_ComboBox: /8",
        "G133 P212 G165 | sclk_lineEdit=3 | | PLLRC: 0",
        // A wanted clock that cannot be searched for is stored, and the buses stay.
        "G133 | hext_lineEdit~3 sclk_lineEdit=100 | hext:Ok | SYSCLKValue: 100; AHBCLKValue: 150",
        "G133 G171 | apb1div=/1 | | apb1div_ComboBox: /2; APB1DIV: 2",
        "G142 | apb3div=/2 | | toapb3peripheral_lineEdit?: 100.000 red",
        "G165 | apb3div=/1 | | toapb3peripheral_lineEdit?: 192.000 red",
        "G166 G167 | apb3div=/1 | | toapb3peripheral_lineEdit?: 192.000 darkGreen",
        "P212 | apb3div=/1 | | toapb3peripheral_lineEdit?: 180.000 red",
    });
}

void TestEdits::peripherals_data()
{
    rows({
        // The second USART is written by the switch of the first.
        "D042 | usart2switch=enable | | tousart2_lineEdit: ; USART2_Switch: 1",
        "D042 | apb2div=/2 usart2switch=enable usart1switch=enable | | tousart1_lineEdit?: 40.000 darkGreen; "
        "tousart2_lineEdit?: 80.000 darkGreen; tousart2_Label: (MHz)",
        "D042 | usart1switch=enable | | tousart2_lineEdit: 80.000; USART2_Switch: 0",
        "D042 | usart1switch=enable usart1clocksel_hick48 | | tousart1_lineEdit?: 48.000 darkGreen; "
        "usart1_Clock_Source: 2",
        "D042 | usart1switch=enable usart1clocksel_lext | | tousart1_lineEdit: 32.768; tousart1_Label: "
        "(kHz); usart1_Clock_Source: 3",
        "D042 | i2c1switch=enable i2c1clocksel_hick48 | | toi2c1_lineEdit: 48.000; i2c1_Clock_Source: 2",
        "D042 | i2c1switch=enable pllmult=*_11 | | toi2c1_lineEdit?: 88.000 red",
        "D042 | i2c1switch=enable i2c1switch=disable sclk_lineEdit=40 | | toi2c1_lineEdit: 80.000; "
        "I2C1_Switch: 0",
        // Red looks at 180 where the page allows 200, and at the system clock where "pll" is shown.
        "G142 G146 | canswitch=enable canclocksel_pll | | tocan_lineEdit?: 200.000 red; can1_Clock_Source: 1",
        "G142 | canswitch=enable canclocksel_hext | | tocan_lineEdit?: 8.000 darkGreen; can1_Clock_Source: 0",
        "G142 | canswitch=enable apb1div=/2 | | tocan_lineEdit?: 100.000 darkGreen; can1_Clock_Source: 2",
        "P212 P216 | canswitch=enable canclocksel_pll | | tocan_lineEdit?: 180.000 darkGreen; tocan_Label: "
        "(MHz)",
        "G133 | usart1switch=enable usart1clocksel_hick | | tousart1_lineEdit?: 8.000 darkGreen; "
        "usart1_Clock_Source: 4",
        "G133 | usart1switch=enable usart1clocksel_hick tousbswitch=enable tousb_hick | | tousart1_lineEdit: "
        "48.000",
        "G133 | usart1switch=enable usart2switch=enable usart3switch=enable | | tousart1_lineEdit: 150.000; "
        "tousart2_lineEdit: 75.000; tousart3_lineEdit: 75.000",
        "G133 | usart3switch=enable usart3clocksel_lext | | tousart3_lineEdit: 32.768; tousart3_Label: "
        "(kHz); usart3_Clock_Source: 3",
        "G133 | i2c1switch=enable i2c1clocksel_hick | | toi2c1_lineEdit: 8.000; i2c1_Clock_Source: 3",
        "G133 | adcswitch=enable adcclocksel_pllclk | | toadc_lineEdit?: 300.000 darkGreen; "
        "adc_Clock_Source: 1",
        "G133 | adcswitch=enable pllns_lineEdit=80 adcclocksel_pllclk | | toadc_lineEdit?: 320.000 red",
        "G133 | adcswitch=enable pllns_lineEdit=80 | | toadc_lineEdit?: 160.000 darkGreen",
        "G171 | i2sf5switch=enable | | toi2sf5_lineEdit?: 216.000 darkGreen; i2sf5_Clock_Source: 0",
        "G171 | i2sf5switch=enable pllns_lineEdit=110 | | toi2sf5_lineEdit?: 220.000 red",
        "G171 | i2sf5switch=enable i2sf5clocksel_hick | | toi2sf5_lineEdit: 8.000; i2sf5_Clock_Source: 2",
        "G165 | i2sf5switch=enable i2sf5clocksel_hick | | toi2sf5_lineEdit: 48.000",
        "G165 G171 | i2sf5switch=enable i2sf5clocksel_external | | toi2sf5_lineEdit?: Actual value "
        "darkGreen; i2sf5_Clock_Source: 3",
        "G165 | can2switch=enable can2clocksel_pllu | | tocan2_lineEdit?: 72.000 darkGreen; "
        "can2_Clock_Source: 1",
        // By the system clock, not by the clock shown.
        "G165 | can1switch=enable can1clocksel_pllu pllns_lineEdit=148 | | tocan1_lineEdit?: 74.000 red",
        "G165 | can3switch=enable can3clocksel_pclk apb1div=/2 | | tocan3_lineEdit?: 96.000 darkGreen",
    });
}

void TestEdits::settingASelectorByProgram()
{
    const PageFixture page(QStringLiteral("G110"));
    const auto check = [&page](const char* radio) {
        page.find<QRadioButton>(QLatin1String(radio))->setChecked(true);
    };
    // The PLL's selectors listen to clicks only, that of the system clock to every change.
    check("pllrcs_hick_RadioButton");
    check("pllhext_div_RadioButton");
    check("rtcsel_hext_RadioButton");
    QCOMPARE(page.shows(QStringLiteral("PLLRC; PLLHEXTDIV; RTCSEL")),
             QStringLiteral("PLLRC: 0; PLLHEXTDIV: 0; RTCSEL: 0"));
    check("sclkselect_hick_RadioButton");
    check("clockout_sclk_RadioButton");
    QCOMPARE(page.shows(QStringLiteral("SYSCLKSelect; CLKOUT")),
             QStringLiteral("SYSCLKSelect: 2; CLKOUT: 5"));
}

void TestEdits::paintsByTheModel()
{
    const PageFixture page(QStringLiteral("G150"));
    const auto shown = [&page](double sysclk, double usb) {
        page.model().Set_SYSCLKValue(sysclk);
        page.model().Set_USBCLKValue(usb);
        page.tree().UpdateResultControls();
        int warnings = 0;
        for (const char* warning : {"sclkWarning1_QLabel", "sclkWarning2_QLabel", "sclkWarning3_QLabel"})
            warnings += page.find(QLatin1String(warning))->isHidden() ? 0 : 1;
        return QString::number(warnings) +
               page.shows(QStringLiteral("usbclock_Label?")).section(QLatin1Char(' '), -1);
    };
    QCOMPARE(shown(240.0, 48.0), QStringLiteral("0darkGreen"));
    QCOMPARE(shown(240.001, 47.9999), QStringLiteral("3red"));
    QCOMPARE(shown(288.0, 48.0001), QStringLiteral("3red"));
    QCOMPARE(shown(8.0, 48.0), QStringLiteral("0darkGreen"));
}

QTEST_MAIN(TestEdits)
#include "tst_edits.moc"
