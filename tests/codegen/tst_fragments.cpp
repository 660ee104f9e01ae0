#include "setups.h"

#include <QtTest>

using Fragment = bool (Clock::*)(QString&) const;

/// The fragments where series differ, on texts as short as they can be.
class FragmentsTest : public QObject
{
    Q_OBJECT

private slots:
    void pll();
    void usbAndSclk();
    void clockOutputs();
    void peripherals();
};

namespace {
/// Expects the text that a fragment makes of another, on a series with a setup.
void expect(
    const char* word, Fragment fragment, const char* text, const char* expected,
    const Setup& setup = [](Clock&) {})
{
    Clock clock = clockOf(QLatin1String(word));
    setup(clock);
    QString edited = QLatin1String(text);
    QVERIFY((clock.*fragment)(edited));
    QCOMPARE(edited, QLatin1String(expected));
}

void usePll(Clock& c)
{
    c.Set_SYSCLKSelect(SYSCLK_PLL);
    c.Set_PLLHEXTDIV(PLLHEXT_DIV);
    c.Set_HEXT_DIV(5);
    c.Set_PLL_MUL(9);
}

void feedUsbFromHick(Clock& c)
{
    usePll(c);
    c.Set_HICK_TO_USB(HICK_TO_USB_ENABLE);
}
} // namespace

void FragmentsTest::pll()
{
    const char* const both =
        "[#enable pll]\n[#pll normal]\ncrm_pll_config(A, B);\n[/#pll normal]\n"
        "[#pll flexible]\ncrm_pll_config2(A, 1, 2, B);\n[/#pll flexible]\non;\n[/#enable pll]\n";
    const Setup normal = [](Clock& c) {
        usePll(c);
        c.Set_ConfigMode(PLLMODE_NORMAL);
    };
    expect("D042", &Clock::GenerateCode_pll, both,
           "crm_pll_config(CRM_PLL_SOURCE_HEXT_DIV, CRM_PLL_MULT_9);\n\non;\n\n", normal);
    expect("G142", &Clock::GenerateCode_pll, both,
           "crm_pll_config2(CRM_PLL_SOURCE_HEXT_DIV, 192, 2, CRM_PLL_FR_8);\n\non;\n\n", usePll);
    expect("G190", &Clock::GenerateCode_pll,
           "[#enable pll]\ncrm_pll_config(A, 1, 2, B);\ncrm_pllu_div_set(CRM_PLL_FU_11);\n[/#enable pll]\n",
           "crm_pll_config(CRM_PLL_SOURCE_HEXT, 192, 2, CRM_PLL_FP_2);\ncrm_pllu_div_set(CRM_PLL_FU_18);\n\n",
           usePll);
    const char* const pllu = "crm_pllu_div_set(CRM_PLL_FU_11);";
    const Setup canOnPll = [](Clock& c) {
        feedUsbFromHick(c);
        c.Set_can3_Clock_Source(CAN_CLOCK_SOURCE_PLL);
    };
    // A CAN on the PLL needs FU even while it is off; a series whose CAN does without pllu does not.
    expect("G165", &Clock::GenerateCode_plludiv, pllu, "crm_pllu_div_set(CRM_PLL_FU_18);", canOnPll);
    expect("G171", &Clock::GenerateCode_plludiv, pllu, pllu, canOnPll);
    expect("G114", &Clock::GenerateCode_hextdiv,
           "[#enable hextdiv]\ncrm_hext_clock_div_set(A);\n[/#enable hextdiv]\n",
           "crm_hext_clock_div_set(CRM_HEXT_DIV_5);\n\n", usePll);
}

void FragmentsTest::usbAndSclk()
{
    const char* const pllu =
        "[#pll usbclock]\non;\n  [#pllu usbclock]\n  select;\n  [/#pllu usbclock]\n[/#pll usbclock]\n\nx\n";
    expect("G166", &Clock::GenerateCode_pllusbclock, pllu, "on;\n    select;\n  \nx\n");
    // For CAN alone pllu runs, but USB does not select it.
    expect("G166", &Clock::GenerateCode_pllusbclock, pllu, "on;\n  x\n", [](Clock& c) {
        c.Set_TO_USB_Switch(TO_USB_SWITCH_DISABLE);
        c.Set_CAN2_Switch(true);
        c.Set_can2_Clock_Source(CAN_CLOCK_SOURCE_PLL);
    });
    expect("P212", &Clock::GenerateCode_hextsysclock,
           "[#hext sysclock]\ncrm_hext_sclk_div_set(A);\n[/#hext sysclock]\n",
           "crm_hext_sclk_div_set(CRM_HEXT_SCLK_DIV_32);\n\n", [](Clock& c) {
               c.Set_SYSCLKSelect(SYSCLK_HEXT);
               c.Set_HEXT_DIV(32);
           });
    const char* const hick =
        "[#hick sysclock]\n[#hick48]\nfast;\n[/#hick48]\n\ncrm_hick_sclk_div_set(A);\n[/#hick sysclock]\n";
    expect("G165", &Clock::GenerateCode_hicksysclock, hick,
           "fast;\n\ncrm_hick_sclk_div_set(CRM_HICK_SCLK_DIV_16);\n\n", [](Clock& c) {
               c.Set_HICK_TO_SCLK(HICK_TO_SCLK_NODIV);
               c.Set_SCLKHICK_DIV(16);
           });
}

void FragmentsTest::clockOutputs()
{
    expect(
        "P216", &Clock::GenerateCode_clockout,
        "[#clkout function]\ncrm_periph_clock_enable(A, B);\ngpio_init_struct.gpio_pins = A;\n"
        "gpio_init(A, &b);\ngpio_pin_mux_config(A, B, C);\ncrm_clock_out_set(A);\n"
        "crm_clkout_div_set(A, B);\n[/#clkout function]\n",
        "crm_periph_clock_enable(CRM_GPIOE_PERIPH_CLOCK, TRUE);\ngpio_init_struct.gpio_pins = GPIO_PINS_4;\n"
        "gpio_init(GPIOE, &gpio_init_struct);\ngpio_pin_mux_config(GPIOE, GPIO_PINS_SOURCE4, GPIO_MUX_0);\n"
        "crm_clock_out_set(CRM_CLKOUT_NOCLK);\ncrm_clkout_div_set(CRM_CLKOUT_DIV1_3, "
        "CRM_CLKOUT_DIV2_512);\n\n",
        [](Clock& c) {
            c.Set_CLKOUT_PinSelect(CLKOUTPIN_PE4);
            c.Set_CLKOUT_Div1(3);
            c.Set_CLKOUT_Div2(512);
        });
}

void FragmentsTest::peripherals()
{
    expect("H133", &Clock::GenerateCode_mainFunc,
           "  mx_clkout_init();\n\n  delay_ms(60);\n\n  mx_rtc_clock_init();\n\n  mx_adc_clock_init();\n\n"
           "  mx_i2c_clock_init();\n\n  mx_usart_clock_init();\n\n  end",
           "  delay_ms(60);\n\n  mx_usart_clock_init();\n\n  end",
           [](Clock& c) { c.Set_USART3_Switch(true); });
    const char* const can = "[#can function]\n  crm_can_clock_select(CRM_CAN1, A);\n"
                            "  crm_can_clock_select(CRM_CAN2, A);\n  crm_can_clock_select(CRM_CAN3, A);\n}\n"
                            "[/#can function]\n";
    const Setup twoCans = [](Clock& c) {
        c.Set_CAN1_Switch(true);
        c.Set_can1_Clock_Source(CAN_CLOCK_SOURCE_PLL);
        c.Set_CAN3_Switch(true);
    };
    expect("G167", &Clock::GenerateCode_can, can,
           "  crm_can_clock_select(CRM_CAN1, CRM_CAN_CLOCK_SOURCE_PLLU);\n"
           "  crm_can_clock_select(CRM_CAN3, CRM_CAN_CLOCK_SOURCE_HEXT);\n}\n\n",
           twoCans);
    // A USART that is off and set to lext keeps the block of lext while another is on.
    expect(
        "D042", &Clock::GenerateCode_usart,
        "[#usart function]\n[#usart lext]\n{\n[#lext bypass]\nbypass;\n[/#lext bypass]\non;\n[/#usart lext]\n"
        "  crm_usart_clock_select(CRM_USART1, A);\n  crm_usart_clock_select(CRM_USART2, A);\n"
        "}\n[/#usart function]\n",
        "{\nbypass;\n\non;\n  crm_usart_clock_select(CRM_USART2, CRM_USART_CLOCK_SOURCE_HICK);\n}\n\n",
        [](Clock& c) {
            c.Set_usart1_Clock_Source(USART_CLOCK_SOURCE_LEXT);
            c.Set_usart2_Clock_Source(USART_CLOCK_SOURCE_HICK);
            c.Set_Lext_Bypass_Value(true);
            c.Set_USART2_Switch(true);
        });
    // No blank behind the comma.
    expect("G133", &Clock::GenerateCode_i2c,
           "[#i2c function]\ncrm_i2c_clock_select(CRM_I2C1, A);\n[/#i2c function]\n",
           "crm_i2c_clock_select(CRM_I2C1,CRM_I2C_CLOCK_SOURCE_HICK);\n\n", [](Clock& c) {
               c.Set_I2C1_Switch(true);
               c.Set_i2c1_Clock_Source(I2C1_CLOCK_SOURCE_HICK);
           });
    expect("H133", &Clock::GenerateCode_adc, "[#adc function]\ncrm_adc_clock_select(A);\n[/#adc function]\n",
           "crm_adc_clock_select(CRM_ADC_CLOCK_SOURCE_PLLCLK);\n\n", [](Clock& c) {
               c.Set_ToADC_Switch(true);
               c.Set_adc_Clock_Source(ADC_CLOCK_SOURCE_PLLCLK);
           });
    // The line of the crystal alone, with its blanks.
    expect("G174", &Clock::GenerateCode_hextdefine,
           "#define  HEXT_VALUE \t ((uint32_t)12000000) /* x */\n#define HICK_VALUE ((uint32_t)12000000)\n",
           "#define  HEXT_VALUE \t ((uint32_t)8000000) /* x */\n#define HICK_VALUE ((uint32_t)12000000)\n");
    // An alternative that lacks its bypass section is a miss: its markers stay.
    expect("G125", &Clock::GenerateCode_rtc,
           "[#rtc function]\n[#rtc lick]\na\n[/#rtc lick]\n[#rtc lext]\nb\n[/#rtc lext]\n[/#rtc function]\n",
           "[#rtc lext]\nb\n[/#rtc lext]\n\n", [](Clock& c) {
               c.Set_ToRTC_Switch(true);
               c.Set_RTCSEL(RTCSEL_LEXT);
           });
}

QTEST_GUILESS_MAIN(FragmentsTest)
#include "tst_fragments.moc"
