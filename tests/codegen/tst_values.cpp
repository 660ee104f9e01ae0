#include "setups.h"
#include "testdata.h"

#include "codegen/hertz.h"

#include <QtTest>

#include <cmath>

/// Writes a value into a field and tells what the text gets for it.
using MacroOf = std::function<QString(Clock&, double)>;
using Expected = std::function<QString(int)>;
Q_DECLARE_METATYPE(MacroOf)
Q_DECLARE_METATYPE(Expected)

namespace {
QStringList wordsOf(const char* text)
{
    return QString::fromLatin1(text).split(u' ');
}

template <class Value>
MacroOf of(void (Clock::*set)(Value), QString (Clock::*macro)() const, PLLCONFIGMODE mode = PLLMODE_FLEXIBLE)
{
    return [=](Clock& clock, double value) {
        clock.Set_ConfigMode(mode);
        (clock.*set)(static_cast<Value>(value));
        return (clock.*macro)();
    };
}

template <class Value>
MacroOf of(QString (Clock::*macro)(Value) const)
{
    return [=](Clock& clock, double value) {
        return (clock.*macro)(static_cast<Value>(static_cast<int>(value)));
    };
}

/// The macro names the value itself; one that is not among the words stands for the first of them.
Expected listed(const char* pattern, const char* words)
{
    return [pattern = QString::fromLatin1(pattern), all = wordsOf(words)](int value) {
        const QString word = QString::number(value);
        return pattern.arg(all.contains(word) ? word : all.first());
    };
}

/// The macro names the word at the value's place; a value beyond them stands for one of them.
Expected counted(const char* pattern, const char* words, int first = 0, int otherwise = 0)
{
    return [=, pattern = QString::fromLatin1(pattern), all = wordsOf(words)](int value) {
        return pattern.arg(value < first ? all[otherwise] : all.value(value - first, all[otherwise]));
    };
}

/// Series separated by blanks get a row each.
void row(const char* name, const MacroOf& macro, const Expected& expected, const char* series = "G110")
{
    for (const QString& word : wordsOf(series))
        QTest::addRow("%s %s", name, qPrintable(word)) << word << macro << expected;
}

#define FIELD(field, macro) #field "-" #macro, of(&Clock::Set_##field, &Clock::GetOutPutString_##macro)
#define NORMAL(field, macro)                                                                                 \
    "normal " #field, of(&Clock::Set_##field, &Clock::GetOutPutString_##macro, PLLMODE_NORMAL)
#define NUMBER(macro) #macro, of(&Clock::GetOutPutString_##macro)

void pllRows()
{
    row(FIELD(PLLRC, OscInitType_PLLRC), counted("CRM_PLL_SOURCE_%1", "HEXT_DIV HICK", 0, 1));
    row(FIELD(PLLHEXTDIV, OscInitType_PLLRC), counted("CRM_PLL_SOURCE_%1", "HEXT HEXT_DIV", 0, 1));
    row(FIELD(SYSCLKSelect, OscInitType_PLLRC), counted("CRM_PLL_SOURCE_%1", "HEXT HEXT_DIV"), "G130");
    row(FIELD(HEXT_DIV, OscInitType_HextDiv), counted("%1", ""), "G150");
    row(FIELD(PLL_MUL, OscInitType_PLLMULT), counted("%1", ""));
    row(NORMAL(PLL_MS, OscInitType_PLLMS), listed("%1", "1"));
    row(NORMAL(PLL_NS, OscInitType_PLLNS), listed("%1", "31"));
    row(NORMAL(PLL_FR, OscInitType_PLLFR), listed("CRM_PLL_FR_%1", "1"));
    row(NORMAL(PLL_FP, OscInitType_PLLFP), listed("CRM_PLL_FP_%1", "1"), "G171");
    row(NORMAL(PLL_FU, OscInitType_PLLFU), listed("CRM_PLL_FU_%1", "11"), "G171");
    row(FIELD(SYSCLKSelect, OscInitType_PLLOutputRange), counted("%1", " CRM_PLL_OUTPUT_RANGE_LE72MHZ"),
        "G130");
}

void busRows()
{
    row(FIELD(SYSCLKSelect, SysClkInitType_SYSCLKSel), counted("CRM_SCLK_%1", "HEXT PLL HICK", 0, 1));
    const auto usb = [](double quarters) {
        return [=](Clock& clock, double value) {
            clock.Set_USBDIV(value / 2 + quarters / 4);
            return clock.GetOutPutString_SysClkInitType_USBDivider();
        };
    };
    const char* const halves = "1 1_5 2 2_5 3 3_5 4 4_5 5 5_5 6 6_5 7 7_5 8 8_5 9";
    row("halves", usb(0), counted("CRM_USB_DIV_%1", halves, 2), "G110 G150");
    row("quarters", usb(1), counted("CRM_USB_DIV_%1", "1"), "G110");
    row("no USB", usb(0), counted("CRM_USB_DIV_%1", "1"), "G130 D042");
    row(FIELD(HICK_TO_USB, SysClkInitType_USBDivider), counted("CRM_USB_DIV_%1", "3 1", 0, 1));
    row(FIELD(TO_USB_Switch, SysClkInitType_USBDivider), counted("CRM_USB_DIV_%1", "3 1", 0, 1));
}

void outputRows()
{
    row(NUMBER(CLKOUT_INDEX_Num_String), listed("CRM_CLKOUT_INDEX_%1", "1 2"));

    const char* const ports = "A A A B C F E";
    const char* const pins = "0 8 9 13 9 2 4";
    row("pin", of(&Clock::GetCLKOUTPINTextFromEnum), counted("%1", "NONE PA8 PA9 PB13 PC9 PF2 PE4"));
    row(FIELD(CLKOUT_PinSelect, CLKOUT_GPIO_clock_type_String), counted("CRM_GPIO%1_PERIPH_CLOCK", ports));
    row(FIELD(CLKOUT_PinSelect, CLKOUT_GPIO_type_String), counted("GPIO%1", ports));
    row(FIELD(CLKOUT_PinSelect, CLKOUT_GPIO_PINS_Num_String), counted("GPIO_PINS_%1", pins));
    row(FIELD(CLKOUT_PinSelect, CLKOUT_gpio_pins_source_type_String), counted("GPIO_PINS_SOURCE%1", pins));
    const auto mux = [](const char* numbers, const char* series) {
        row(FIELD(CLKOUT_PinSelect, CLKOUT_gpio_mux_sel_type_String), counted("GPIO_MUX_%1", numbers),
            series);
    };
    mux("0 0 5 0 0 0 0", "G130 G142 G146");
    mux("0 0 5 3 0 0 0", "G135 D042");
    mux("0", "G110 G120 G125 TQ125 G110R G114 H110R G133 H133 G171 G174 G190 G165 G166 G167 P212 P216");
    row(FIELD(CLKOUT1_PinSelect, CLKOUT1_GPIO_clock_type_String),
        counted("CRM_GPIO%1_PERIPH_CLOCK", "A A E"));
    row(FIELD(CLKOUT1_PinSelect, CLKOUT1_GPIO_type_String), counted("GPIO%1", "A A E"));
    row(FIELD(CLKOUT1_PinSelect, CLKOUT1_GPIO_PINS_Num_String), counted("GPIO_PINS_%1", "0 8 4"));
    row(FIELD(CLKOUT1_PinSelect, CLKOUT1_gpio_pins_source_type_String),
        counted("GPIO_PINS_SOURCE%1", "0 8 4"));
    row(FIELD(CLKOUT1_PinSelect, CLKOUT1_gpio_mux_sel_type_String), counted("GPIO_MUX_%1", "0"));
}

void peripheralRows()
{
    QStringList rtc;
    for (int divisor = 2; divisor <= 31; ++divisor)
        rtc += QString::number(divisor);
    row(FIELD(RTC_DIV, ERTCDIV_Define_String),
        listed("CRM_ERTC_CLOCK_HEXT_DIV_%1", qPrintable(rtc.join(u' '))));
    row(FIELD(ToADCDIV, ADCDIV_Define_String), listed("CRM_ADC_DIV_%1", "2 3 4 5 6 8 12 16"));
}

/// The first word of an item in the result comment.
MacroOf commented(const char* item, void (Clock::*set)(double))
{
    return [=](Clock& clock, double megahertz) {
        (clock.*set)(megahertz);
        QString text = "* @brief  system clock config program\n  * @retval none"_s;
        clock.GenerateCode_result(text);
        return text.section(QLatin1String(item), 1).section("= "_s, 1).section(u' ', 0, 0);
    };
}

QString ldo(Clock& clock, double sysclk)
{
    clock.Set_SYSCLKValue(sysclk);
    return clock.GetOutPutString_PWC_LDO_OUTPUT_Define_String().remove("PWC_LDO_OUTPUT_"_s);
}

QString flashDivider(Clock& clock, double sysclk)
{
    clock.Set_SYSCLKValue(sysclk);
    QString text = "flash_clock_divider_set(none);"_s;
    return clock.GenerateCode_flashclkdiv(text) ? text.mid(24).chopped(2) : QString();
}

QString autoStep(Clock& clock, double sysclk)
{
    clock.Set_SYSCLKValue(sysclk);
    QString text = "[#enable auto step mode]\non\n[/#enable auto step mode]\n"
                   "[#disable auto step mode]\noff\n[/#disable auto step mode]\n"_s;
    return clock.GenerateCode_autostepmode(text) ? text.simplified().remove(u' ') : QString();
}

QString sysclkSwitch(Clock& clock, double sysclk)
{
    clock.Set_SYSCLKValue(sysclk);
    QString text = "[#pll sysclock]\n[#sysclock < 168]\nplain;\n[/#sysclock < 168]\n"
                   "[#sysclock >= 168]\nsteps;\n[/#sysclock >= 168]\n[/#pll sysclock]\n"_s;
    const bool done = clock.GenerateCode_pllsysclock(text);
    return QLatin1String(done && text.contains("plain;"_s) ? "plain" : "") +
           QLatin1String(done && text.contains("steps;"_s) ? "steps" : "");
}
} // namespace

/// The values that fragments put into the text: macros, frequencies, and the result comment.
class ValuesTest : public QObject
{
    Q_OBJECT

private slots:
    void macros_data()
    {
        QTest::addColumn<QString>("series");
        QTest::addColumn<MacroOf>("macro");
        QTest::addColumn<Expected>("expected");
        pllRows();
        busRows();
        outputRows();
        peripheralRows();
    }

    void macros()
    {
        QFETCH(QString, series);
        QFETCH(MacroOf, macro);
        QFETCH(Expected, expected);
        Clock clock = clockOf(series);
        clock.Set_SYSCLKSelect(SYSCLK_PLL);
        clock.Set_PLLHEXTDIV(PLLHEXT_DIV);
        clock.Set_TO_USB_Switch(TO_USB_SWITCH_ENABLE);
        clock.Set_HICK_TO_USB(HICK_TO_USB_DISABLE);
        clock.Set_USBDIV(3.0);
        // Beyond the ends of every field.
        for (int value = -3; value <= 600; ++value)
            QCOMPARE(QPair(value, macro(clock, value)), QPair(value, expected(value)));
    }

    void thresholds_data()
    {
        QTest::addColumn<QString>("series");
        QTest::addColumn<MacroOf>("told");
        QTest::addColumn<QStringList>("steps");
        // What is told up to a limit, the limit, what is told above it, and so on; "<" keeps the limit itself
        // out. Some series have steps of their own.
        const auto kind = [](const char* name, const MacroOf& told, const char* others,
                             const char* rows = ":") {
            for (const SeriesTraits& traits : seriesList()) {
                QString steps = QString::fromLatin1(others);
                for (const QString& row : QString::fromLatin1(rows).split("; "_s))
                    if (row.section(u':', 0, 0).split(u' ').contains(QLatin1String(traits.word)))
                        steps = row.section(": "_s, 1);
                QTest::addRow("%s %s", name, traits.word)
                    << QString::fromLatin1(traits.word) << told << steps.split(u' ');
            }
        };
        kind("flash", of(&Clock::Set_SYSCLKValue, &Clock::GetOutPutString_OscInitType_FlashPsr),
             "FLASH_WAIT_CYCLE_0 32 FLASH_WAIT_CYCLE_1 64 FLASH_WAIT_CYCLE_2 96 FLASH_WAIT_CYCLE_3 128 "
             "FLASH_WAIT_CYCLE_4 160 FLASH_WAIT_CYCLE_5 192 FLASH_WAIT_CYCLE_6 216 FLASH_WAIT_CYCLE_7");
        kind("LDO", ldo, "",
             "D042: 1V1 32 1V2; G133 H133: 1V1 64 1V2 120 1V3; G171 G174 G190: 1V1 108 1V2 192 1V3; "
             "G165 G166 G167: 1V1 108 1V2 160 1V3; G150 G152: 1V1 144 1V2 240 1V3; "
             "G142 G146: 1V2 120 1V3; P212 P216: 1V2 150 1V3 180 1V2");
        kind("flash divider", flashDivider, "none", "G150 G152: FLASH_CLOCK_DIV_2 208 FLASH_CLOCK_DIV_3");
        kind("auto step mode", autoStep, " 108 onoff");
        kind("switch", sysclkSwitch, "plainsteps", "G110: plain <168 steps");
        kind("PLL range", of(&Clock::Set_PLLCLKValue, &Clock::GetOutPutString_OscInitType_PLLOutputRange),
             "CRM_PLL_OUTPUT_RANGE_LE72MHZ 72 CRM_PLL_OUTPUT_RANGE_GT72MHZ");
        kind("commented PLL range", commented("pll_range", &Clock::Set_PLLCLKValue), "LE72MHZ 72 GT72MHZ",
             "G125 TQ125 G130 G135 D042 G142 G146 G133 H133: ");
        kind("commented flash", commented("flash_wtcyc", &Clock::Set_SYSCLKValue), "",
             "G125 TQ125 G130 G135 D042 G142 G146: 0 32 1 64 2 96 3 128 4");
    }

    void thresholds()
    {
        QFETCH(QString, series);
        QFETCH(MacroOf, told);
        QFETCH(QStringList, steps);
        Clock clock = clockOf(series);
        clock.Set_SYSCLKSelect(SYSCLK_PLL);
        clock.Set_ConfigMode(PLLMODE_NORMAL);
        QCOMPARE(told(clock, 1.0), steps.first());
        QCOMPARE(told(clock, 1000.0), steps.last());
        for (int i = 1; i < steps.size(); i += 2) {
            const bool below = steps[i].startsWith(u'<');
            const double limit = steps[i].mid(below).toDouble();
            QCOMPARE(told(clock, below ? std::nextafter(limit, 0.0) : limit), steps[i - 1]);
            QCOMPARE(told(clock, below ? limit : std::nextafter(limit, 1e3)), steps[i + 1]);
        }
    }

    void hertz()
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

    void commentsTheResult()
    {
        const Setup hext = [](Clock& c) { c.Set_SYSCLKSelect(SYSCLK_HEXT); };
        const Setup pllHext = [](Clock& c) { c.Set_SYSCLKSelect(SYSCLK_PLL); };
        const Setup pllAt72 = [](Clock& c) { c.Set_SYSCLKSelect(SYSCLK_PLL), c.Set_PLLCLKValue(72.0); };
        const Setup pllDivided = [](Clock& c) {
            c.Set_SYSCLKSelect(SYSCLK_PLL), c.Set_PLLHEXTDIV(PLLHEXT_DIV);
        };
        const Setup pllHick = [](Clock& c) { c.Set_SYSCLKSelect(SYSCLK_PLL), c.Set_PLLRC(PLLRC_HICK); };
        const Setup hick48 = [](Clock& c) { c.Set_HICK_TO_SCLK(HICK_TO_SCLK_NODIV); };
        const PLLCONFIGMODE normal = PLLMODE_NORMAL;
        const PLLCONFIGMODE flexible = PLLMODE_FLEXIBLE;
        const char* const ranged = "pll_mult 24, pll_range GT72MHZ (greater than 72 mhz)";
        // Series, mode, setup, the formula, and the words of the PLL's and the flash line.
        using Row = std::tuple<const char*, PLLCONFIGMODE, Setup, const char*, const char*>;
        for (const auto& [series, mode, setup, formula, lastLines] :
             {Row("G110", normal, pllHick, "hick / 2 * pll_mult", ranged),
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
              Row("G174", flexible, hick48, "(hick 48 / 4)", ""),
              Row("G167", flexible, hext, "(hext / 3)", ""), Row("P212", flexible, hext, "(hext)", "")}) {
            Clock clock = clockOf(QLatin1String(series));
            clock.Set_ConfigMode(mode);
            clock.Set_TO_USB_Switch(TO_USB_SWITCH_DISABLE);
            clock.Set_HEXT_DIV(3);
            clock.Set_SCLKHICK_DIV(4);
            clock.Set_PLL_MUL(24);
            clock.Set_SYSCLKValue(200.0);
            clock.Set_PLLCLKValue(72.001);
            setup(clock);
            QString text = "* @brief  system clock config program\n  * @retval none"_s;
            QVERIFY(clock.GenerateCode_result(text));
            const QStringList lines = text.split(u'\n');
            QCOMPARE(lines.value(2), "  *         system clock (sclk)   = "_s + QLatin1String(formula));
            const int last = lines.indexOf(QRegularExpression(".* apb2clk .*"_s)) + 1;
            QStringList words;
            for (const QString& line : lines.mid(last, lines.size() - last - 2))
                words << line.section(u'=', 0, 0).mid(14).trimmed() + line.section(u'=', 1);
            QCOMPARE(words.join(", "_s), QLatin1String(lastLines));
        }
    }
};

QTEST_GUILESS_MAIN(ValuesTest)
#include "tst_values.moc"
