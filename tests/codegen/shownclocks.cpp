#include "shownclocks.h"

#include "testdata.h"

#include <cmath>

namespace {
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
        if (m_description.adcSwitch() && model.Get_ToADC_Switch())
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
            const bool ownSource = !m_description.adcSwitch() && model.Get_ToADC_Switch();
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
        const bool normal = model.Get_ConfigMode() == PLLMODE_NORMAL && m_description.pllMultiplier();
        // A system clock above its limit takes the buses along on the steps to it.
        static const QMap<ClockSource, QString> names{
            {ClockSource::Sclk, "sclk ahb ldo apb1 apb2"_s},
            {ClockSource::Apb1, "apb1"_s                  },
            {ClockSource::Apb2, "apb2"_s                  },
            {ClockSource::Apb3, "apb3"_s                  },
            {ClockSource::Pll,  "pll"_s                   }
        };
        for (const Limits* limits : {&m_description.onGenerating, &m_description.painted})
            for (const Limit& limit : *limits)
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
} // namespace

Shown readPage(const PageFixture& page)
{
    return Reader(page).read();
}

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
