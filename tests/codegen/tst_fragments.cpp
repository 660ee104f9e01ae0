#include "setups.h"

#include "model/seriestraits.h"

#include <QtTest>

/// The fragments where series differ, on texts as short as they can be, and what each series' chains need.
class FragmentsTest : public QObject
{
    Q_OBJECT

private slots:
    void edits_data();
    void edits();
    void chainsTouchTheirSections_data();
    void chainsTouchTheirSections();

private:
    void pllRows();
    void usbAndSclkRows();
    void mainFileRows();
};

namespace {
void row(
    const char* name, int series, Fragment fragment, const char* text, const char* expected,
    const Setup& setup = [](Clock&) {})
{
    QTest::newRow(name) << series << setup << fragment << QString::fromLatin1(text)
                        << QString::fromLatin1(expected);
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

void FragmentsTest::pllRows()
{
    const char* const both =
        "[#enable pll]\n[#pll normal]\ncrm_pll_config(A, B);\n[/#pll normal]\n"
        "[#pll flexible]\ncrm_pll_config2(A, 1, 2, B);\n[/#pll flexible]\non;\n[/#enable pll]\n";
    const Setup normal = [](Clock& c) {
        usePll(c);
        c.Set_ConfigMode(PLLMODE_NORMAL);
    };
    row("normal mode", ZN64D042, &Clock::GenerateCode_pll, both,
        "crm_pll_config(CRM_PLL_SOURCE_HEXT_DIV, CRM_PLL_MULT_9);\n\non;\n\n", normal);
    row("flexible mode", ZN64G142, &Clock::GenerateCode_pll, both,
        "crm_pll_config2(CRM_PLL_SOURCE_HEXT_DIV, 192, 2, CRM_PLL_FR_8);\n\non;\n\n", usePll);
    row("both modes go with the PLL", ZN64G130, &Clock::GenerateCode_pll, both, "");
    row("FR", ZN64G133, &Clock::GenerateCode_pll,
        "[#enable pll]\ncrm_pll_config(A, 1, 2, B);\n[/#enable pll]\n",
        "crm_pll_config(CRM_PLL_SOURCE_HEXT, 192, 2, CRM_PLL_FR_8);\n\n", usePll);
    row("FP and FU", ZN64G190, &Clock::GenerateCode_pll,
        "[#enable pll]\ncrm_pll_config(A, 1, 2, B);\ncrm_pllu_div_set(CRM_PLL_FU_11);\n[/#enable pll]\n",
        "crm_pll_config(CRM_PLL_SOURCE_HEXT, 192, 2, CRM_PLL_FP_2);\ncrm_pllu_div_set(CRM_PLL_FU_18);\n\n",
        usePll);
    const char* const pllu = "crm_pllu_div_set(CRM_PLL_FU_11);";
    const Setup canOnPll = [](Clock& c) {
        feedUsbFromHick(c);
        c.Set_can3_Clock_Source(CAN_CLOCK_SOURCE_PLL);
    };
    row("FU for a CAN that is off", ZN64G165, &Clock::GenerateCode_plludiv, pllu,
        "crm_pllu_div_set(CRM_PLL_FU_18);", canOnPll);
    row("FU not for CAN", ZN64G171, &Clock::GenerateCode_plludiv, pllu, pllu, canOnPll);
    row("FU missing", ZN64G171, &Clock::GenerateCode_plludiv, "", nullptr, canOnPll);
    row("hext divider", ZN64G114, &Clock::GenerateCode_hextdiv,
        "[#enable hextdiv]\ncrm_hext_clock_div_set(A);\n[/#enable hextdiv]\n",
        "crm_hext_clock_div_set(CRM_HEXT_DIV_5);\n\n", usePll);
}

void FragmentsTest::usbAndSclkRows()
{
    const char* const pllu =
        "[#pll usbclock]\non;\n  [#pllu usbclock]\n  select;\n  [/#pllu usbclock]\n[/#pll usbclock]\n\nx\n";
    row("pllu for USB", ZN64G166, &Clock::GenerateCode_pllusbclock, pllu, "on;\n    select;\n  \nx\n");
    row("pllu for CAN alone", ZN64G166, &Clock::GenerateCode_pllusbclock, pllu, "on;\n  x\n", [](Clock& c) {
        c.Set_TO_USB_Switch(TO_USB_SWITCH_DISABLE);
        c.Set_CAN2_Switch(true);
        c.Set_can2_Clock_Source(CAN_CLOCK_SOURCE_PLL);
    });
    const char* const divider = "[#pll usbclock]\ncrm_usb_clock_div_set(A);\n[/#pll usbclock]\n";
    row("USB from FU", ZN64G174, &Clock::GenerateCode_pllusbclock, divider, "crm_usb_clock_div_set(A);\n\n");
    row("USB from hick", ZN64G120, &Clock::GenerateCode_pllusbclock, divider, "", feedUsbFromHick);
    row("no route from hick", ZN64G110, &Clock::GenerateCode_pllusbclock, divider,
        "crm_usb_clock_div_set(CRM_USB_DIV_1);\n\n", feedUsbFromHick);
    row("hext to sclk", ZN64P212, &Clock::GenerateCode_hextsysclock,
        "[#hext sysclock]\ncrm_hext_sclk_div_set(A);\n[/#hext sysclock]\n",
        "crm_hext_sclk_div_set(CRM_HEXT_SCLK_DIV_32);\n\n", [](Clock& c) {
            c.Set_SYSCLKSelect(SYSCLK_HEXT);
            c.Set_HEXT_DIV(32);
        });
    const char* const hick =
        "[#hick sysclock]\n[#hick48]\nfast;\n[/#hick48]\n\ncrm_hick_sclk_div_set(A);\n[/#hick sysclock]\n";
    row("hick48 and its divider", ZN64G165, &Clock::GenerateCode_hicksysclock, hick,
        "fast;\n\ncrm_hick_sclk_div_set(CRM_HICK_SCLK_DIV_16);\n\n", [](Clock& c) {
            c.Set_HICK_TO_SCLK(HICK_TO_SCLK_NODIV);
            c.Set_SCLKHICK_DIV(16);
        });
    row("hick8 without divider", ZN64G135, &Clock::GenerateCode_hicksysclock, hick,
        "crm_hick_sclk_div_set(A);\n\n");
}

void FragmentsTest::mainFileRows()
{
    const char* const pin =
        "crm_periph_clock_enable(A, B);\n[#clkout function]\ngpio_init_struct.gpio_pins  = A\n"
        "gpio_init(A, &b);\ngpio_pin_mux_config(A, B, C);\ncrm_clock_out_set(A);\n"
        "crm_clkout_div_set(A);\n[/#clkout function]\n";
    const Setup pa9 = [](Clock& c) {
        c.Set_CLKOUT_PinSelect(CLKOUTPIN_PA9);
        c.Set_CLKOUT(CLKOUT_USBFS);
        c.Set_CLKOUT_Div(64);
    };
    row("pin", ZN64G146, &Clock::GenerateCode_clockout, pin,
        "crm_periph_clock_enable(A, B);\ngpio_init_struct.gpio_pins = GPIO_PINS_9;\n"
        "gpio_init(GPIOA, &gpio_init_struct);\ngpio_pin_mux_config(GPIOA, GPIO_PINS_SOURCE9, GPIO_MUX_5);\n"
        "crm_clock_out_set(CRM_CLKOUT_USBFS);\ncrm_clkout_div_set(CRM_CLKOUT_DIV_64);\n\n",
        pa9);
    row("divider call of two missing", ZN64P216, &Clock::GenerateCode_clockout, pin, nullptr, pa9);
    row("two dividers", ZN64P216, &Clock::GenerateCode_clockout,
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
    row("main keeps the delay", ZN64H133, &Clock::GenerateCode_mainFunc,
        "  mx_clkout_init();\n\n  delay_ms(60);\n\n  mx_rtc_clock_init();\n\n  mx_adc_clock_init();\n\n"
        "  mx_i2c_clock_init();\n\n  mx_usart_clock_init();\n\n  end",
        "  delay_ms(60);\n\n  mx_usart_clock_init();\n\n  end", [](Clock& c) { c.Set_USART3_Switch(true); });
    const char* const can = "[#can function]\n  crm_can_clock_select(CRM_CAN1, A);\n"
                            "  crm_can_clock_select(CRM_CAN2, A);\n  crm_can_clock_select(CRM_CAN3, A);\n}\n"
                            "[/#can function]\n";
    const Setup twoCans = [](Clock& c) {
        c.Set_CAN1_Switch(true);
        c.Set_can1_Clock_Source(CAN_CLOCK_SOURCE_PLL);
        c.Set_CAN3_Switch(true);
    };
    row("two of three CAN", ZN64G167, &Clock::GenerateCode_can, can,
        "  crm_can_clock_select(CRM_CAN1, CRM_CAN_CLOCK_SOURCE_PLLU);\n"
        "  crm_can_clock_select(CRM_CAN3, CRM_CAN_CLOCK_SOURCE_HEXT);\n}\n\n",
        twoCans);
    row("one CAN of a series with one", ZN64P212, &Clock::GenerateCode_can,
        "[#can function]\n  crm_can_clock_select(CRM_CAN1, A);\n[/#can function]\n",
        "  crm_can_clock_select(CRM_CAN1, CRM_CAN_CLOCK_SOURCE_PLL);\n\n", twoCans);
    row("lext of a USART that is off", ZN64D042, &Clock::GenerateCode_usart,
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
    row("I2C without a blank", ZN64G133, &Clock::GenerateCode_i2c,
        "[#i2c function]\ncrm_i2c_clock_select(CRM_I2C1, A);\n[/#i2c function]\n",
        "crm_i2c_clock_select(CRM_I2C1,CRM_I2C_CLOCK_SOURCE_HICK);\n\n", [](Clock& c) {
            c.Set_I2C1_Switch(true);
            c.Set_i2c1_Clock_Source(I2C1_CLOCK_SOURCE_HICK);
        });
    row("ADC source", ZN64H133, &Clock::GenerateCode_adc,
        "[#adc function]\ncrm_adc_clock_select(A);\n[/#adc function]\n",
        "crm_adc_clock_select(CRM_ADC_CLOCK_SOURCE_PLLCLK);\n\n", [](Clock& c) {
            c.Set_ToADC_Switch(true);
            c.Set_adc_Clock_Source(ADC_CLOCK_SOURCE_PLLCLK);
        });
    row("crystal, its line once and with its blanks", ZN64G174, &Clock::GenerateCode_hextdefine,
        "#define  HEXT_VALUE \t ((uint32_t)12000000) /* x */\n#define HICK_VALUE ((uint32_t)12000000)\n",
        "#define  HEXT_VALUE \t ((uint32_t)8000000) /* x */\n#define HICK_VALUE ((uint32_t)12000000)\n");
    row("crystal of another default", ZN64G165, &Clock::GenerateCode_hextdefine,
        "#define HEXT_VALUE ((uint32_t)12000000)\n", nullptr);
    row("rtc alternatives back to back", ZN64G125, &Clock::GenerateCode_rtc,
        "[#rtc function]\n[#rtc lick]\na\n[/#rtc lick]\n[#rtc lext]\nb\n[/#rtc lext]\n}\n[/#rtc function]\n",
        "a\n}\n\n", [](Clock& c) { c.Set_ToRTC_Switch(true); });
    row("an inner miss leaves its markers", ZN64G125, &Clock::GenerateCode_rtc,
        "[#rtc function]\n[#rtc lick]\na\n[/#rtc lick]\n[#rtc lext]\nb\n[/#rtc lext]\n[/#rtc function]\n",
        "[#rtc lext]\nb\n[/#rtc lext]\n\n", [](Clock& c) {
            c.Set_ToRTC_Switch(true);
            c.Set_RTCSEL(RTCSEL_LEXT);
        });
}

void FragmentsTest::edits_data()
{
    QTest::addColumn<int>("series");
    QTest::addColumn<Setup>("setup");
    QTest::addColumn<Fragment>("fragment");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected"); // null for false
    pllRows();
    usbAndSclkRows();
    mainFileRows();
}

void FragmentsTest::edits()
{
    QFETCH(int, series);
    QFETCH(Setup, setup);
    QFETCH(Fragment, fragment);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    Clock clock(static_cast<ZN64MCUSERIALS>(series));
    setup(clock);
    QCOMPARE((clock.*fragment)(text), !expected.isNull());
    if (!expected.isNull())
        QCOMPARE(text, expected);
}

void FragmentsTest::chainsTouchTheirSections_data()
{
    QTest::addColumn<QString>("series");
    QTest::addColumn<QString>("clock"); // what a clock source of these series must carry, beside the buses
    QTest::addColumn<QString>("main");
    const auto row = [](const char* series, const char* clock, const char* main) {
        QTest::newRow(series) << QString::fromLatin1(series) << QString::fromLatin1(clock)
                              << QString::fromLatin1(main);
    };
    const char* const plainMain = "clkout rtc adc";
    row("G110", "bypass hext hick pll usb", plainMain);
    row("G110R G114 H110R", "bypass hext hick hextdiv pll step usb hickusb", plainMain);
    row("G120", "bypass hext hick pll step usb hickusb", plainMain);
    row("G130", "psr bypass hext hick pll step", plainMain);
    row("G135 G125 TQ125", "psr bypass hext hick pll step usb hickusb", plainMain);
    row("D042", "psr ldo bypass hext hick pll", "clkout rtc adc i2c usart");
    row("G133 H133", "psr ldo bypass hext hick pll step usb hickusb", "clkout rtc adc i2c usart");
    row("G171 G174 G190", "psr ldo bypass hext hick pll step usb hickusb", "clkout rtc i2sf5");
    row("G165 G166 G167", "psr ldo bypass hext hick pll step usb hickusb apb3", "clkout rtc can i2sf5");
    row("P212 P216", "psr ldo bypass hext hick pll step apb3", "clkout rtc can");
    row("G142 G146", "psr ldo bypass hext hick pll step apb3", "clkout rtc adc can");
    row("G150 G152", "ldo flash bypass hext hick pll step usb hickusb", "clkout1 clkout2 rtc");
}

namespace {
/// The text that a word of the table stands for: lines from templates, sections given by their names alone.
QString clockPiece(const QString& word)
{
    static const QMap<QString, QString> pieces{
        {QStringLiteral("psr"),     QStringLiteral("[#flash psr]\nflash_psr_set(A);\n[/#flash psr]\n")},
        {QStringLiteral("ldo"),     QStringLiteral("pwc_ldo_output_voltage_set(A);\n")                },
        {QStringLiteral("flash"),   QStringLiteral("flash_clock_divider_set(A);\n")                   },
        {QStringLiteral("bypass"),  QStringLiteral("hext bypass")                                     },
        {QStringLiteral("hext"),    QStringLiteral("enable hext,hext sysclock")                       },
        {QStringLiteral("hick"),    QStringLiteral("enable hick,hick sysclock")                       },
        {QStringLiteral("hextdiv"), QStringLiteral("enable hextdiv")                                  },
        {QStringLiteral("pll"),     QStringLiteral("enable pll,pll sysclock")                         },
        {QStringLiteral("step"),    QStringLiteral("enable auto step mode,disable auto step mode")    },
        {QStringLiteral("usb"),     QStringLiteral("pll usbclock")                                    },
        {QStringLiteral("hickusb"), QStringLiteral("hick usbclock")                                   },
        {QStringLiteral("apb3"),    QStringLiteral("crm_apb3_div_set(A);\n")                          },
        {QStringLiteral("buses"),
         QStringLiteral("crm_ahb_div_set(A);\ncrm_apb1_div_set(A);\ncrm_apb2_div_set(A);\n")          },
        {QStringLiteral("comment"),
         QStringLiteral("* @brief  system clock config program\n  * @retval none\n")                  }
    };
    const QString piece = pieces.value(word);
    if (piece.endsWith(QLatin1Char('\n')))
        return piece;
    QString sections;
    for (const QString& name : piece.split(QLatin1Char(',')))
        sections += QStringLiteral("[#%1]\nx;\n[/#%1]\n\n").arg(name);
    return sections;
}

QString mainPiece(const QString& word)
{
    const bool output = word.startsWith(QLatin1String("clkout"));
    return QStringLiteral("[#%1 function]\nx;\n[/#%1 function]\n\n  mx_%2_init();\n\n  x;\n")
        .arg(word, output ? word : word + QStringLiteral("_clock"));
}

/// What is wrong with a chain: it must resolve the text of all words, and refuse a text that lacks one.
QString chainFault(const Clock& clock, const QStringList& words, Fragment generate,
                   QString (*piece)(const QString&))
{
    for (int missing = -1; missing < words.size(); ++missing) {
        QString text;
        for (int i = 0; i < words.size(); ++i)
            text += i == missing ? QString() : piece(words[i]);
        const bool good = (clock.*generate)(text);
        if (good && missing >= 0)
            return QStringLiteral("does not need ") + words[missing];
        if (missing < 0 && (!good || text.contains(QRegularExpression(QStringLiteral(R"(#|\(A\)|mx_)")))))
            return QStringLiteral("leaves ") + text;
    }
    return {};
}
} // namespace

void FragmentsTest::chainsTouchTheirSections()
{
    QFETCH(QString, series);
    QFETCH(QString, clock);
    QFETCH(QString, main);
    clock += QStringLiteral(" buses comment");
    for (const QString& word : series.split(QLatin1Char(' '))) {
        const SeriesTraits* traits = seriesByName(QStringLiteral("ZN64") + word);
        QVERIFY(traits);
        Clock design(traits->series);
        design.Set_SYSCLKSelect(7); // none of the three: every section goes away
        design.Set_TO_USB_Switch(TO_USB_SWITCH_DISABLE);
        const QLatin1Char blank(' ');
        QCOMPARE(chainFault(design, clock.split(blank), &Clock::GenerateClockSource, clockPiece), QString());
        QCOMPARE(chainFault(design, main.split(blank), &Clock::GenerateMainSource, mainPiece), QString());
    }
}

QTEST_GUILESS_MAIN(FragmentsTest)
#include "tst_fragments.moc"
