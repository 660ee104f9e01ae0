#include "firmware/firmwarebuild.h"
#include "pages/pagefixture.h"
#include "testdata.h"

#include <QTemporaryDir>

#include <cmath>

namespace {
/// A number as a page shows it, with three decimals of its unit.
struct Reading
{
    double value = 0.0;
    double inMegahertz = 1.0;
};

/// What a page shows of a design, and what its limits say of it.
struct Shown
{
    /// By output; what the page cannot say or says of another clock is not in it.
    QMap<QString, Reading> clocks;
    /// All that is switched on.
    QSet<QString> on;
    QMap<QString, QString> pins;
    QSet<QString> brokenLimits;
    /// hick passes 48 MHz before its divider is set: the wait cycles are those of the slower clock already.
    bool passes48 = false;
    /// The outputs for which alone the PLL is started, on a hext that nothing starts: the program waits for
    /// it for good, as it should.
    QStringList waitsFor;
};

std::optional<Reading> readingOf(const QString& text)
{
    static const QRegularExpression number(QStringLiteral(R"(\d+(\.\d+)?)"));
    const auto match = number.match(text);
    if (!match.hasMatch())
        return {};
    return Reading{match.captured().toDouble(), text.contains("kHz"_s) ? 0.001 : 1.0};
}

/// Reads a page as a user does.
class Reader
{
public:
    explicit Reader(const PageFixture& page) : m_page(page), m_description(page.page->description()) {}

    Shown read()
    {
        const ZN64ConfigCLK& model = m_page.model();
        take("sclk"_s, "m_sclk_lineEdit"_s);
        take("ahb"_s, "m_todma_lineEdit"_s);
        for (const char* bus : {"apb1", "apb2", "apb3"})
            if (exists(busEdit(bus)))
                take(QLatin1String(bus), busEdit(bus));
        take("apb1tmr"_s, "m_toapb1tmr_lineEdit"_s);
        take("apb2tmr"_s, "m_toapb2tmr_lineEdit"_s);
        if (m_page.tree().usbOn())
            take("usb"_s, "m_usbclock_Label"_s);
        if (model.Get_ToRTC_Switch())
            take("rtc"_s, "m_tortc_lineEdit"_s, " kHz"_s);
        if (m_description.adcDivider && model.Get_ToADC_Switch())
            take("adc"_s, "m_toadc_lineEdit"_s);
        for (const ClockOutput& output : m_description.clockOutputs)
            readOutput(output);
        for (const PeripheralClock& clock : m_description.peripherals)
            readPeripheral(clock);
        readLimits();
        m_shown.passes48 = model.traits().sclk_prediv && m_page.tree().sclkFromHick() &&
                           model.Get_HICK_TO_SCLK() == HICK_TO_SCLK_NODIV && model.Get_SYSCLKValue() <= 32.0;
        if (model.pll_isEnable() && model.Get_PLLRC() == PLLRC_HEXT && !model.hext_isEnable())
            m_shown.waitsFor = m_fromPll.isEmpty() ? QStringList("nothing"_s) : m_fromPll;
        return m_shown;
    }

private:
    static QString busEdit(const char* bus)
    {
        return QStringLiteral("m_to%1peripheral_lineEdit").arg(QLatin1String(bus));
    }
    bool exists(const QString& control) const { return m_page.page->findChild<QWidget*>(control); }

    void take(const QString& output, const QString& control, const QString& unit = {})
    {
        m_shown.on += output;
        const auto* widget = m_page.page->findChild<QWidget*>(control);
        if (!widget)
            qFatal("no control %s", qPrintable(control));
        if (const auto reading = readingOf(widget->property("text").toString() + unit))
            m_shown.clocks.insert(output, *reading);
    }

    void readOutput(const ClockOutput& output)
    {
        const ZN64ConfigCLK& model = m_page.model();
        const double pin = output.pinField.get(model);
        if (pin == 0.0)
            return;
        const QString name = QLatin1String(output.stem);
        for (const PinChoice& choice : output.pins)
            if (choice.number == pin)
                m_shown.pins.insert(name, QLatin1String(choice.text));
        for (const ClockOutputRow& row : output.rows) {
            if (row.value != output.field.get(model) || row.source == ClockSource::None)
                continue;
            take(name, QStringLiteral("m_%1_Value_QLabel").arg(name));
            if (row.source == ClockSource::Pll)
                m_fromPll += name;
            // Where the ADC has a source of its own, the model's ADC clock is not the ADC's.
            const bool ownSource = !m_description.adcDivider && model.Get_ToADC_Switch();
            if (row.source == ClockSource::Untold || (row.source == ClockSource::Adc && ownSource))
                m_shown.clocks.remove(name);
        }
    }

    void readPeripheral(const PeripheralClock& clock)
    {
        const ZN64ConfigCLK& model = m_page.model();
        if (clock.on.get(model) == 0.0)
            return;
        // One result is kept up by the switch of another peripheral.
        const bool written = !clock.writtenWhile.get || clock.writtenWhile.get(model) != 0.0;
        const QString stem = QLatin1String(clock.stem);
        const QString name = stem == "can"_s ? "can1"_s : stem;
        for (const PeripheralSource& source : clock.sources) {
            if (source.number != clock.source.get(model))
                continue;
            // With three CAN blocks the clock of the bus counts as the PLL's user too.
            const bool oneOfThree = stem.startsWith("can"_s) && stem != "can"_s;
            if (QByteArray(source.name).startsWith("pll") ||
                (oneOfThree && source.shown == ClockSource::Apb1))
                m_fromPll += name;
            if (source.shown != ClockSource::Outside)
                take(name, QStringLiteral("m_to%1_lineEdit").arg(stem),
                     source.shown == ClockSource::Lext ? " kHz"_s : QString());
            // Shown is the system clock, taken is the PLL's.
            const bool otherClock = qstrcmp(source.name, "pll") == 0 && source.shown == ClockSource::Sclk &&
                                    !m_page.tree().sclkFromPll();
            if (otherClock || !written)
                m_shown.clocks.remove(name);
        }
    }

    void readLimits()
    {
        const ZN64ConfigCLK& model = m_page.model();
        const bool normal = model.Get_ConfigMode() == PLLMODE_NORMAL && m_description.pllMultiplier;
        // A system clock above its limit takes the buses along on the steps to it.
        static const QMap<ClockSource, QString> names{
            {ClockSource::Sclk, "sclk ahb ldo apb1 apb2"_s},
            {ClockSource::Apb1, "apb1"_s                  },
            {ClockSource::Apb2, "apb2"_s                  },
            {ClockSource::Apb3, "apb3"_s                  },
            {ClockSource::Pll,  "pll"_s                   }
        };
        for (const Limit& limit : m_description.onGenerating + m_description.painted)
            if (!limit.question && limits::breaks(limit, clockValue(limit.clock, model), normal))
                breakLimits(names.value(limit.clock));
        if (m_description.generatedApb3 && model.Get_APB3CLKValue() > *m_description.generatedApb3)
            breakLimits("apb3"_s);
        const double input = model.GetPllInPutValue() / (normal ? 1 : model.Get_PLL_MS());
        const double vco = input * model.Get_PLL_NS();
        if (!(input >= 2.0 && input <= 16.0))
            m_shown.brokenLimits += "pll input"_s;
        if (!normal && !(vco >= 500.0 && vco <= model.traits().vcoTop()))
            m_shown.brokenLimits += "vco"_s;
    }

    void breakLimits(const QString& names)
    {
        for (const QString& name : names.split(u' ', Qt::SkipEmptyParts))
            m_shown.brokenLimits += name;
    }

    const PageFixture& m_page;
    const PageDescription& m_description;
    Shown m_shown;
    QStringList m_fromPll;
};

/// Nothing that a page lets a user choose starts these: an output has no clock then, as it should.
bool mayBeOff(const QString& output, const QString& source)
{
    return output.startsWith("clockout"_s)
               ? source == "lick"_s || source == "lext"_s
               : output.startsWith("can"_s) && (source == "hext"_s || source == "pll"_s);
}

/// What differs between the page and the chip; empty if nothing does.
QStringList differences(const Shown& shown, const firmware::Run& run)
{
    QStringList lines = run.faults;
    const QSet<QString> known = shown.passes48 ? QSet<QString>{"flash"_s} : QSet<QString>();
    for (const QString& limit : run.limits - shown.brokenLimits - known)
        lines += "limit "_s + limit;
    if (run.stuck != (shown.waitsFor.isEmpty() ? QString() : "pll"_s))
        lines += "waits for '%1'"_s.arg(run.stuck);
    if (shown.waitsFor.contains("nothing"_s))
        lines += "starts a PLL for nothing"_s;
    if (!run.stuck.isEmpty())
        return lines;
    for (auto dead = run.dead.begin(); dead != run.dead.end(); ++dead)
        if (!mayBeOff(dead.key(), dead.value()))
            lines += dead.key() + " without a clock from "_s + dead.value();
    for (auto clock = shown.clocks.begin(); clock != shown.clocks.end(); ++clock) {
        const double real = run.clocks.value(clock.key(), 0.0) / clock->inMegahertz;
        if (!run.dead.contains(clock.key()) && std::abs(real - clock->value) > 0.00051)
            lines += QStringLiteral("%1: shown %2, is %3").arg(clock.key()).arg(clock->value).arg(real);
    }
    for (const QString& output : run.clocks.keys() + run.dead.keys())
        if (!shown.on.contains(output))
            lines += output + " is on, the page shows it off"_s;
    if (shown.pins != run.pins)
        lines += "pins "_s + run.pins.values().join(u' ');
    return lines;
}

QByteArray counts(const QMap<QString, int>& numbers)
{
    QStringList words;
    for (auto each = numbers.begin(); each != numbers.end(); ++each)
        words += QStringLiteral("%1 %2").arg(each.key()).arg(*each);
    return words.join(", "_s).toUtf8();
}

int designsPerSeries()
{
    const int wanted = qEnvironmentVariableIntValue("CLOCKWRIGHT_DESIGNS");
    return wanted > 0 ? wanted : 20;
}
} // namespace

/// Generated programs of all series, compiled without warnings and run on the stand-in chip: what they set
/// must be what the page shows, and no step on the way may break a limit.
class FirmwareTest : public QObject
{
    Q_OBJECT

private slots:
    void runsAsShown_data() { pageRows(); }
    void runsAsShown()
    {
        QFETCH(QString, word);
        const PageFixture page(word);
        const QString stem = QLatin1String(page.page->description().stem);
        QRandomGenerator random(static_cast<quint32>(page.model().series()));
        const QTemporaryDir base;
        QVector<Shown> shown;
        for (int design = 0; design < designsPerSeries(); ++design) {
            // From time to time from the start: a walk may stay long in one corner.
            if (design % 8 == 0)
                page.page->InitAllControl();
            if (design > 0)
                page.takeRandomSteps(12, random);
            shown += Reader(page).read();
            QVERIFY(firmware::generateDesign(page.model(), base.path(), design, stem));
        }
        QString errors;
        const QVector<firmware::Run> runs = firmware::run(base.path(), shown.size(), stem, word, errors);
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
        QCOMPARE(runs.size(), shown.size());
        int within = 0;
        QMap<QString, int> waiting;
        int passing = 0;
        QMap<QString, int> withoutClock;
        QMap<QString, int> over;
        QMap<QString, int> compared;
        QStringList lines;
        for (int design = 0; design < shown.size(); ++design) {
            for (const QString& line : differences(shown[design], runs[design]))
                lines += QStringLiteral("design %1: %2").arg(design).arg(line);
            within += runs[design].limits.isEmpty() && runs[design].stuck.isEmpty();
            if (!runs[design].stuck.isEmpty())
                ++waiting[shown[design].waitsFor.join(u'+')];
            passing += shown[design].passes48;
            for (auto dead = runs[design].dead.begin(); dead != runs[design].dead.end(); ++dead)
                ++withoutClock[dead.key() + " on "_s + dead.value()];
            for (const QString& limit : runs[design].limits)
                ++over[limit];
            for (const QString& output : shown[design].clocks.keys())
                compared[output] += runs[design].stuck.isEmpty() && !runs[design].dead.contains(output);
        }
        qInfo(
            "%d designs, %d to the end within all limits; over: %s; waiting for a PLL whose hext is off: %s; "
            "passing 48 MHz of hick: %d; without a clock: %s; compared: %s",
            int(shown.size()), within, counts(over).constData(), counts(waiting).constData(), passing,
            counts(withoutClock).constData(), counts(compared).constData());
        QVERIFY2(lines.isEmpty(), qPrintable(lines.join(u'\n')));
        QVERIFY(within > 0);
    }

    /// The stand-in chip is no check if it accepts everything: one fault each in good code of some series.
    void findsFaults_data()
    {
        QTest::addColumn<QString>("steps"); // the series, then what is taken on its page
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QString>("found");
        const auto row = [](const char* name, const char* steps, const char* from, const char* to,
                            const char* found) {
            QTest::newRow(name) << QString::fromUtf8(steps) << QString::fromUtf8(from)
                                << QString::fromUtf8(to) << QString::fromUtf8(found);
        };
        const char* const enable = "crm_clock_source_enable(CRM_CLOCK_SOURCE_%1, TRUE);";
        const QByteArray hext = QString::fromUtf8(enable).arg("HEXT"_s).toUtf8();
        const QByteArray pll = QString::fromUtf8(enable).arg("PLL"_s).toUtf8();
        const char* const pllFlag = "while(crm_flag_get(CRM_PLL_STABLE_FLAG) != SET)";
        row("pll without a wait", "G133", pllFlag, "if(FALSE)", "source that is not ready");
        row("hext without a wait", "G142", "while(crm_hext_stable_wait() == ERROR)", "if(FALSE)",
            "waits for");
        row("hext left off", "G150", hext.constData(), "", "waits for");
        row("pll set while it runs", "G120", "crm_pll_config(", (pll + " crm_pll_config(").constData(),
            "pll changed while it runs");
        row("switch before the pll", "P212", pll.constData(),
            (" crm_sysclk_switch(CRM_SCLK_PLL); " + pll).constData(), "source that is not ready");
        row("wrong range", "G110R", "RANGE_GT72MHZ", "RANGE_LE72MHZ", "wrong output range");
        row("wrong multiplier", "G125", "CRM_PLL_MULT_18", "CRM_PLL_MULT_17", "sclk: shown 144, is 136");
        row("wrong ns", "G171", "108, 1, CRM_PLL_FP_4", "109, 1, CRM_PLL_FP_4", "sclk: shown 216, is 218");
        row("input too slow", "D042 pllmode=flexible", "80, 1, CRM_PLL_FR_8", "160, 15, CRM_PLL_FR_1",
            "limit pll input");
        row("vco too fast", "G165", "crm_pll_config(CRM_PLL_SOURCE_HEXT, 144, 1, CRM_PLL_FP_6)",
            "crm_pll_config(CRM_PLL_SOURCE_HEXT, 192, 1, CRM_PLL_FP_8)", "limit vco");
        row("a wait cycle too few", "G142", "FLASH_WAIT_CYCLE_6", "FLASH_WAIT_CYCLE_5", "limit flash");
        row("a wait cycle too many", "G130", "FLASH_WAIT_CYCLE_3", "FLASH_WAIT_CYCLE_4", "without need");
        row("flash clock", "G152", "FLASH_CLOCK_DIV_3", "FLASH_CLOCK_DIV_2", "flash clock too fast");
        row("low voltage", "G190", "PWC_LDO_OUTPUT_1V3", "PWC_LDO_OUTPUT_1V2", "limit ldo");
        row("voltage without its clock", "G133", "crm_periph_clock_enable(CRM_PWC_PERIPH_CLOCK, TRUE);", "",
            "ldo without the clock of pwc");
        row("no step mode", "G114", "step_mode_enable(TRUE)", "step_mode_enable(FALSE)",
            "step mode does not fit");
        row("step mode left on", "G146", "step_mode_enable(FALSE)", "step_mode_enable(TRUE)",
            "step mode left on");
        row("no written step", "G110", "CRM_AHB_DIV_8", "CRM_AHB_DIV_4", "without a step");
        row("bus too fast on the way", "G150", "CRM_APB1_DIV_2", "CRM_APB1_DIV_1", "limit apb1");
        row("wrong divisor of a bus", "G166", "CRM_APB3_DIV_4", "CRM_APB3_DIV_8", "apb3: shown 48, is 24");
        row("divider of another bus", "G135", "CRM_APB1_DIV_1", "CRM_APB2_DIV_1", "implicit conversion");
        row("wrong divisor of usb", "TQ125 tousbswitch=enable", "CRM_USB_DIV_3", "CRM_USB_DIV_3_5",
            "usb: shown 48");
        row("pllu without a wait", "G167 tousbswitch=enable",
            "while(crm_flag_get(CRM_PLLU_STABLE_FLAG) == RESET)", "if(FALSE)",
            "usb on a source that is not ready");
        row("wrong source of the rtc", "P216 tortc=enable", "crm_ertc_clock_select(CRM_ERTC_CLOCK_LICK)",
            "crm_ertc_clock_select(CRM_ERTC_CLOCK_LEXT)", "rtc without a clock from lext");
        row("rtc left out", "H110R tortc=enable", "mx_rtc_clock_init();", "", "rtc: shown 40, is 0");
        row("call of another stem", "G174", "crm_reset();", "crm_reset(); crm_apb3_div_set(1);",
            "implicit declaration");
        row("a marker left", "H133", "system_clock_config();", "[#rtc hext]", "error");
        row("wrong crystal", "G110", "8000000) /*!< value of the high speed ex",
            "8100000) /*!< value of the high speed ex", "sclk: shown 192");
    }

    void findsFaults()
    {
        QFETCH(QString, steps);
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(QString, found);
        const QString word = steps.section(u' ', 0, 0);
        const PageFixture page(word);
        page.take(steps.section(u' ', 1));
        const QString stem = QLatin1String(page.page->description().stem);
        const QTemporaryDir base;
        const Shown shown = Reader(page).read();
        for (int design : {0, 1})
            QVERIFY(firmware::generateDesign(page.model(), base.path(), design, stem));
        bool planted = false;
        const QDir folder(firmware::folderOf(base.path(), 1));
        for (const QString& name : folder.entryList(QDir::Files)) {
            QByteArray text = contentOf(folder.filePath(name));
            if (!planted && text.contains(from.toUtf8())) {
                planted = true;
                QVERIFY(writeFile(folder.filePath(name), text.replace(from.toUtf8(), to.toUtf8())));
            }
        }
        QVERIFY(planted);
        QString told;
        const auto runs = firmware::run(base.path(), 2, stem, word, told);
        if (told.isEmpty()) {
            QCOMPARE(differences(shown, runs[0]), QStringList());
            told = differences(shown, runs[1]).join(u'\n');
        }
        QVERIFY2(told.contains(found), qPrintable(told));
    }
};

QTEST_MAIN(FirmwareTest)
#include "tst_firmware.moc"
