#include "setups.h"

#include "codegen/hertz.h"

#include <QtTest>

/// The values that fragments put into the text: macros, frequencies, and the result comment.
class ValuesTest : public QObject
{
    Q_OBJECT

private slots:
    void macros();
    void outputPins();
    void ldoVoltage();
    void hertz();
    void commentsTheResult();
};

template <typename Value>
static void expectMacros(const char* series, void (Clock::*set)(Value), QString (Clock::*macro)() const,
                         std::initializer_list<std::pair<Value, const char*>> rows)
{
    Clock clock = clockOf(QLatin1String(series));
    for (const auto& [value, expected] : rows) {
        (clock.*set)(value);
        QCOMPARE((clock.*macro)(), QLatin1String(expected));
    }
}

// A value that its table lacks gives the first row, a clock beyond the last limit the last one.
void ValuesTest::macros()
{
    using Row = std::pair<double, const char*>;
    using Divider = std::pair<int, const char*>;
    expectMacros("G142", &Clock::Set_SYSCLKValue, &Clock::GetOutPutString_OscInitType_FlashPsr,
                 {Row(96.0, "FLASH_WAIT_CYCLE_2"), Row(96.001, "FLASH_WAIT_CYCLE_3"),
                  Row(216.5, "FLASH_WAIT_CYCLE_7")});
    expectMacros("G150", &Clock::Set_USBDIV, &Clock::GetOutPutString_SysClkInitType_USBDivider,
                 {Row(9.0, "CRM_USB_DIV_9"), Row(9.5, "CRM_USB_DIV_1"), Row(1.25, "CRM_USB_DIV_1")});
    expectMacros("G171", &Clock::Set_PLL_FU, &Clock::GetOutPutString_OscInitType_PLLFU,
                 {Divider(12, "CRM_PLL_FU_12"), Divider(13, "CRM_PLL_FU_13"), Divider(15, "CRM_PLL_FU_11")});
    expectMacros("G150", &Clock::Set_RTC_DIV, &Clock::GetOutPutString_ERTCDIV_Define_String,
                 {Divider(31, "CRM_ERTC_CLOCK_HEXT_DIV_31"), Divider(32, "CRM_ERTC_CLOCK_HEXT_DIV_2")});
}

void ValuesTest::outputPins()
{
    using Row = std::tuple<const char*, int, const char*>;
    for (const auto& [series, pin, expected] : {Row("G135", CLKOUTPIN_PB13, "GPIOB GPIO_PINS_13 GPIO_MUX_3"),
                                                Row("G130", CLKOUTPIN_PB13, "GPIOB GPIO_PINS_13 GPIO_MUX_0"),
                                                Row("G110", CLKOUTPIN_PC9, "GPIOC GPIO_PINS_9 GPIO_MUX_0"),
                                                Row("D042", CLKOUTPIN_PF2, "GPIOF GPIO_PINS_2 GPIO_MUX_0"),
                                                Row("G130", 99, "GPIOA GPIO_PINS_0 GPIO_MUX_0")}) {
        Clock c = clockOf(QLatin1String(series));
        c.Set_CLKOUT_PinSelect(pin);
        const QStringList macros{c.GetOutPutString_CLKOUT_GPIO_type_String(),
                                 c.GetOutPutString_CLKOUT_GPIO_PINS_Num_String(),
                                 c.GetOutPutString_CLKOUT_gpio_mux_sel_type_String()};
        QCOMPARE(macros.join(QLatin1Char(' ')), QLatin1String(expected));
    }
}

void ValuesTest::ldoVoltage()
{
    using Row = std::pair<const char*, const char*>;
    // Tenths of a volt just at and just above each limit.
    for (const auto& [series, voltages] :
         {Row("H133", "64:11 65:12 120:12 121:13"), Row("G190", "108:11 109:12 192:12 193:13"),
          Row("G166", "108:11 109:12 160:12 161:13"), Row("G152", "144:11 145:12 240:12 241:13"),
          Row("D042", "32:11 33:12 300:12"), Row("G146", "8:12 120:12 121:13"),
          Row("P216", "8:12 150:12 151:13 180:13 181:12")}) {
        Clock clock = clockOf(QLatin1String(series));
        for (const QString& pair : QString::fromLatin1(voltages).split(QLatin1Char(' '))) {
            clock.Set_SYSCLKValue(pair.section(QLatin1Char(':'), 0, 0).toDouble());
            const QString voltage = pair.section(QLatin1Char(':'), 1);
            QCOMPARE(clock.GetOutPutString_PWC_LDO_OUTPUT_Define_String(),
                     QStringLiteral("PWC_LDO_OUTPUT_%1V%2").arg(voltage[0]).arg(voltage[1]));
        }
    }
}

void ValuesTest::hertz()
{
    const qint64 most = std::numeric_limits<qint64>::max();
    using Row = std::tuple<double, qint64, qint64>;
    for (const auto& [megahertz, crystal, clock] :
         {Row(12.5, 12500000, 12500000), Row(191.99996, 191999960, 192000000),
          Row(4300.0, 4300000000, 4300000000), Row(1e300, most, most / 1000 * 1000),
          Row(-qInf(), -most, -(most / 1000 * 1000)), Row(qQNaN(), 0, 0)}) {
        QCOMPARE(crystalHertz(megahertz), crystal);
        QCOMPARE(clockHertz(megahertz), clock);
    }
}

void ValuesTest::commentsTheResult()
{
    const Setup hext = [](Clock& c) { c.Set_SYSCLKSelect(SYSCLK_HEXT); };
    const Setup pllHext = [](Clock& c) { c.Set_SYSCLKSelect(SYSCLK_PLL); };
    const Setup pllAt72 = [](Clock& c) { c.Set_SYSCLKSelect(SYSCLK_PLL), c.Set_PLLCLKValue(72.0); };
    const Setup pllDivided = [](Clock& c) { c.Set_SYSCLKSelect(SYSCLK_PLL), c.Set_PLLHEXTDIV(PLLHEXT_DIV); };
    const Setup pllHick = [](Clock& c) { c.Set_SYSCLKSelect(SYSCLK_PLL), c.Set_PLLRC(PLLRC_HICK); };
    const Setup hick48 = [](Clock& c) { c.Set_HICK_TO_SCLK(HICK_TO_SCLK_NODIV); };
    const PLLCONFIGMODE normal = PLLMODE_NORMAL;
    const PLLCONFIGMODE flexible = PLLMODE_FLEXIBLE;
    const char* const ranged = "pll_mult 24, pll_range GT72MHZ (greater than 72 mhz)";
    // Series, mode, setup, the formula, and the words of the PLL's and the flash line.
    using Row = std::tuple<const char*, PLLCONFIGMODE, Setup, const char*, const char*>;
    for (const auto& [series, mode, setup, formula, lastLines] :
         {Row("G110", normal, pllHick, "hick / 2 * pll_mult", ranged),
          Row("G110", normal, pllAt72, "hext * pll_mult",
              "pll_mult 24, pll_range LE72MHZ (less than 72 mhz or equal to 72 mhz)"),
          Row("P212", normal, pllHick, "hick / 12 * pll_mult", ranged),
          Row("G120", normal, pllDivided, "hext / 3 * pll_mult", ranged),
          Row("G133", normal, pllHext, "hext * pll_mult", "pll_mult 24"),
          Row("G135", normal, hick48, "(hick 48)", "flash_wtcyc 4 cycle"),
          Row("G125", flexible, pllHick, "(hick / 12 * pll_ns)/(pll_ms * pll_fr)",
              "pll_ns 192, pll_ms 2, pll_fr 8"),
          Row("G165", flexible, pllHick, "(hick / 6 * pll_ns)/(pll_ms * pll_fp)",
              "pll_ns 192, pll_ms 2, pll_fp 2"),
          Row("H133", flexible, pllHext, "(hext * pll_ns)/(pll_ms * pll_fr) / 2",
              "pll_ns 192, pll_ms 2, pll_fr 8"),
          Row("H133", flexible, pllHick, "(hick / 6 * pll_ns)/(pll_ms * pll_fr)",
              "pll_ns 192, pll_ms 2, pll_fr 8"),
          Row("G174", flexible, hick48, "(hick 48 / 4)", ""), Row("G167", flexible, hext, "(hext / 3)", ""),
          Row("P212", flexible, hext, "(hext)", "")}) {
        Clock clock = clockOf(QLatin1String(series));
        clock.Set_ConfigMode(mode);
        clock.Set_TO_USB_Switch(TO_USB_SWITCH_DISABLE);
        clock.Set_HEXT_DIV(3);
        clock.Set_SCLKHICK_DIV(4);
        clock.Set_PLL_MUL(24);
        clock.Set_SYSCLKValue(200.0);
        clock.Set_PLLCLKValue(72.001);
        setup(clock);
        QString text = QStringLiteral("* @brief  system clock config program\n  * @retval none");
        QVERIFY(clock.GenerateCode_result(text));
        const QStringList lines = text.split(QLatin1Char('\n'));
        QCOMPARE(lines.value(2),
                 QStringLiteral("  *         system clock (sclk)   = ") + QLatin1String(formula));
        const int last = lines.indexOf(QRegularExpression(QStringLiteral(".* apb2clk .*"))) + 1;
        QStringList words;
        for (const QString& line : lines.mid(last, lines.size() - last - 2))
            words << line.section(QLatin1Char('='), 0, 0).mid(14).trimmed() +
                         line.section(QLatin1Char('='), 1);
        QCOMPARE(words.join(QStringLiteral(", ")), QLatin1String(lastLines));
    }
}

QTEST_GUILESS_MAIN(ValuesTest)
#include "tst_values.moc"
