#include "setups.h"

#include "codegen/hertz.h"
#include "model/seriestraits.h"

#include <QtTest>

/// The values that fragments put into the text: macros, frequencies, and the result comment.
class ValuesTest : public QObject
{
    Q_OBJECT

private slots:
    void macros_data();
    void macros();
    void ldoVoltage_data();
    void ldoVoltage();
    void hertz_data();
    void hertz();
    void commentsTheResult_data();
    void commentsTheResult();
};

namespace {
Clock clockOf(const QString& word)
{
    return Clock(seriesByName(QStringLiteral("ZN64") + word)->series);
}

Clock clockOf(const char* word)
{
    return clockOf(QString::fromLatin1(word));
}
} // namespace

void ValuesTest::macros_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("expected");
    const auto row = [](const QString& value, const char* expected) {
        QTest::addRow("%s", expected) << value << QString::fromLatin1(expected);
    };
    for (const auto& [megahertz, expected] : {
             std::pair{32.0,   "FLASH_WAIT_CYCLE_0"},
             std::pair{96.0,   "FLASH_WAIT_CYCLE_2"},
             std::pair{96.001, "FLASH_WAIT_CYCLE_3"},
             std::pair{216.0,  "FLASH_WAIT_CYCLE_6"},
             std::pair{216.5,  "FLASH_WAIT_CYCLE_7"}
    }) {
        Clock c = clockOf("G142");
        c.Set_SYSCLKValue(megahertz);
        row(c.GetOutPutString_OscInitType_FlashPsr(), expected);
    }
    for (const auto& [divider, expected] : {
             std::pair{1.5,  "CRM_USB_DIV_1_5"},
             std::pair{9.0,  "CRM_USB_DIV_9"  },
             std::pair{9.5,  "CRM_USB_DIV_1"  },
             std::pair{1.25, "CRM_USB_DIV_1"  }
    }) {
        Clock c = clockOf("G150");
        c.Set_USBDIV(divider);
        row(c.GetOutPutString_SysClkInitType_USBDivider(), expected);
    }
    for (const auto& [divider, expected] : {
             std::pair{12, "CRM_PLL_FU_12"},
             std::pair{13, "CRM_PLL_FU_13"},
             std::pair{15, "CRM_PLL_FU_11"}
    }) {
        Clock c = clockOf("G171");
        c.Set_PLL_FU(divider);
        row(c.GetOutPutString_OscInitType_PLLFU(), expected);
    }
    for (const auto& [divider, expected] : {
             std::pair{31, "CRM_ERTC_CLOCK_HEXT_DIV_31"},
             std::pair{0,  "CRM_ERTC_CLOCK_HEXT_DIV_2" },
             std::pair{32, "CRM_ERTC_CLOCK_HEXT_DIV_2" }
    }) {
        Clock c = clockOf("G150");
        c.Set_RTC_DIV(divider);
        row(c.GetOutPutString_ERTCDIV_Define_String(), expected);
    }
    struct Pin
    {
        const char* series;
        int pin;
        const char* expected;
    };
    for (const Pin& pin : {
             Pin{"G135", CLKOUTPIN_PB13, "GPIOB GPIO_PINS_13 GPIO_MUX_3"},
             Pin{"G130", CLKOUTPIN_PB13, "GPIOB GPIO_PINS_13 GPIO_MUX_0"},
             Pin{"G110", CLKOUTPIN_PC9,  "GPIOC GPIO_PINS_9 GPIO_MUX_0" },
             Pin{"D042", CLKOUTPIN_PF2,  "GPIOF GPIO_PINS_2 GPIO_MUX_0" },
             Pin{"G133", CLKOUTPIN_PA9,  "GPIOA GPIO_PINS_9 GPIO_MUX_0" },
             Pin{"G130", 99,             "GPIOA GPIO_PINS_0 GPIO_MUX_0" }
    }) {
        Clock c = clockOf(pin.series);
        c.Set_CLKOUT_PinSelect(pin.pin);
        row(c.GetOutPutString_CLKOUT_GPIO_type_String() + QLatin1Char(' ') +
                c.GetOutPutString_CLKOUT_GPIO_PINS_Num_String() + QLatin1Char(' ') +
                c.GetOutPutString_CLKOUT_gpio_mux_sel_type_String(),
            pin.expected);
    }
}

void ValuesTest::macros()
{
    QFETCH(QString, value);
    QTEST(value, "expected");
}

void ValuesTest::ldoVoltage_data()
{
    QTest::addColumn<QString>("series");
    QTest::addColumn<QString>("voltages"); // tenths of a volt just at and just above each limit
    const auto row = [](const char* series, const char* voltages) {
        QTest::newRow(series) << QString::fromLatin1(series) << QString::fromLatin1(voltages);
    };
    row("H133", "64:11 65:12 120:12 121:13");
    row("G190", "108:11 109:12 192:12 193:13");
    row("G166", "108:11 109:12 160:12 161:13");
    row("G152", "144:11 145:12 240:12 241:13");
    row("D042", "32:11 33:12 80:12 300:12");
    row("G146", "8:12 120:12 121:13");
    row("P216", "8:12 150:12 151:13 180:13 181:12");
}

void ValuesTest::ldoVoltage()
{
    QFETCH(QString, series);
    QFETCH(QString, voltages);
    for (const QString& pair : voltages.split(QLatin1Char(' '))) {
        Clock clock = clockOf(series);
        clock.Set_SYSCLKValue(pair.section(QLatin1Char(':'), 0, 0).toDouble());
        const QString voltage = pair.section(QLatin1Char(':'), 1);
        QCOMPARE(clock.GetOutPutString_PWC_LDO_OUTPUT_Define_String(),
                 QStringLiteral("PWC_LDO_OUTPUT_%1V%2").arg(voltage[0]).arg(voltage[1]));
    }
}

void ValuesTest::hertz_data()
{
    QTest::addColumn<double>("megahertz");
    QTest::addColumn<qint64>("crystal");
    QTest::addColumn<qint64>("clock");
    const qint64 most = std::numeric_limits<qint64>::max();
    QTest::newRow("half a MHz") << 12.5 << qint64(12500000) << qint64(12500000);
    QTest::newRow("rounded to kHz") << 191.99996 << qint64(191999960) << qint64(192000000);
    QTest::newRow("beyond 32 bits") << 4300.0 << qint64(4300000000) << qint64(4300000000);
    QTest::newRow("huge") << 1e300 << most << most / 1000 * 1000;
    QTest::newRow("endless") << -qInf() << -most << -(most / 1000 * 1000);
    QTest::newRow("no number") << qQNaN() << qint64(0) << qint64(0);
}

void ValuesTest::hertz()
{
    QFETCH(double, megahertz);
    QTEST(crystalHertz(megahertz), "crystal");
    QTEST(clockHertz(megahertz), "clock");
}

void ValuesTest::commentsTheResult_data()
{
    QTest::addColumn<QString>("series");
    QTest::addColumn<int>("mode");
    QTest::addColumn<Setup>("setup");
    QTest::addColumn<QString>("formula");
    QTest::addColumn<QString>("lastLines"); // the PLL's and the flash line, by their words
    const auto row = [](const char* series, int mode, const Setup& setup, const char* formula,
                        const char* last) {
        QTest::addRow("%s %d %s", series, mode, formula)
            << QString::fromLatin1(series) << mode << setup << QString::fromLatin1(formula)
            << QString::fromLatin1(last);
    };
    const Setup hext = [](Clock& c) { c.Set_SYSCLKSelect(SYSCLK_HEXT); };
    const Setup pllHext = [](Clock& c) { c.Set_SYSCLKSelect(SYSCLK_PLL); };
    const Setup pllDivided = [](Clock& c) {
        c.Set_SYSCLKSelect(SYSCLK_PLL);
        c.Set_PLLHEXTDIV(PLLHEXT_DIV);
    };
    const Setup pllHick = [](Clock& c) {
        c.Set_SYSCLKSelect(SYSCLK_PLL);
        c.Set_PLLRC(PLLRC_HICK);
    };
    const Setup hick48 = [](Clock& c) { c.Set_HICK_TO_SCLK(HICK_TO_SCLK_NODIV); };
    const Setup hick8 = [](Clock&) {};
    const int normal = PLLMODE_NORMAL;
    const int flexible = PLLMODE_FLEXIBLE;
    const char* const ranged = "pll_mult 24, pll_range GT72MHZ (greater than 72 mhz)";
    row("G110", normal, pllHick, "hick / 2 * pll_mult", ranged);
    row(
        "G110", normal,
        [=](Clock& c) {
            pllHext(c);
            c.Set_PLLCLKValue(72.0);
        },
        "hext * pll_mult", "pll_mult 24, pll_range LE72MHZ (less than 72 mhz or equal to 72 mhz)");
    row("G150", normal, pllHick, "hick / 6 * pll_mult", ranged);
    row("P212", normal, pllHick, "hick / 12 * pll_mult", ranged);
    row("G120", normal, pllDivided, "hext / 3 * pll_mult", ranged);
    row("G133", normal, pllHext, "hext * pll_mult", "pll_mult 24");
    row("G142", normal, pllHext, "hext * pll_mult", "pll_mult 24, flash_wtcyc 4 cycle");
    row("G135", normal, hick48, "(hick 48)", "flash_wtcyc 4 cycle");
    row("G110", normal, hick48, "(hick 8)", "");
    row("G130", normal, hext, "(hext)", "flash_wtcyc 4 cycle");
    row("G125", flexible, pllHick, "(hick / 12 * pll_ns)/(pll_ms * pll_fr)",
        "pll_ns 192, pll_ms 2, pll_fr 8");
    row("G125", flexible, pllDivided, "(hext / 3 * pll_ns)/(pll_ms * pll_fr)",
        "pll_ns 192, pll_ms 2, pll_fr 8");
    row("G165", flexible, pllHick, "(hick / 6 * pll_ns)/(pll_ms * pll_fp)", "pll_ns 192, pll_ms 2, pll_fp 2");
    row("G190", flexible, pllHext, "(hext * pll_ns)/(pll_ms * pll_fp)", "pll_ns 192, pll_ms 2, pll_fp 2");
    row("H133", flexible, pllHext, "(hext * pll_ns)/(pll_ms * pll_fr) / 2", "pll_ns 192, pll_ms 2, pll_fr 8");
    row("H133", flexible, pllHick, "(hick / 6 * pll_ns)/(pll_ms * pll_fr)", "pll_ns 192, pll_ms 2, pll_fr 8");
    row("P216", flexible, pllHext, "(hext * pll_ns)/(pll_ms * pll_fr)", "pll_ns 192, pll_ms 2, pll_fr 8");
    row("G174", flexible, hick48, "(hick 48 / 4)", "");
    row("P212", flexible, hick8, "(hick 8 / 4)", "");
    row("G150", flexible, hick8, "(hick 8)", "");
    row("G167", flexible, hext, "(hext / 3)", "");
    row("P212", flexible, hext, "(hext)", "");
}

void ValuesTest::commentsTheResult()
{
    QFETCH(QString, series);
    QFETCH(int, mode);
    QFETCH(Setup, setup);
    QFETCH(QString, formula);
    QFETCH(QString, lastLines);
    Clock clock = clockOf(series);
    clock.Set_ConfigMode(static_cast<PLLCONFIGMODE>(mode));
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
    QCOMPARE(lines.value(2), QStringLiteral("  *         system clock (sclk)   = ") + formula);
    const int last = lines.indexOf(QRegularExpression(QStringLiteral(".* apb2clk .*"))) + 1;
    QStringList words;
    for (const QString& line : lines.mid(last, lines.size() - last - 2))
        words << line.section(QLatin1Char('='), 0, 0).mid(14).trimmed() + line.section(QLatin1Char('='), 1);
    QCOMPARE(words.join(QStringLiteral(", ")), lastLines);
}

QTEST_GUILESS_MAIN(ValuesTest)
#include "tst_values.moc"
