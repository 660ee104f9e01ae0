#include "seriesfacts.h"

#include "treepainter/inventory.h"

#include "model/divisors.h"
#include "model/seriestraits.h"
#include "pages/ClockTreePage.h"
#include "pages/description/inputlimits.h"

#include <QJsonArray>

namespace {

template <class List>
QJsonArray numbers(const List& list)
{
    QJsonArray array;
    for (const auto& each : list)
        array.append(each);
    return array;
}

/// The divisors that the box offers.
QJsonArray itemsOf(const Divider& divider)
{
    QJsonArray items = numbers(divider.divisors);
    for (int i = 0; i < divider.withoutItem; ++i)
        items.removeLast();
    return items;
}

/// A divider under the caption that it has on the page.
QJsonObject dividerFacts(const Divider& divider, const PageDescription& page)
{
    QJsonObject facts;
    facts[QLatin1String("caption")] = page.places.at(divider.label()).text;
    facts[QLatin1String("divisors")] = itemsOf(divider);
    return facts;
}

QJsonArray dividersOf(const std::vector<Divider>& dividers, const PageDescription& page)
{
    QJsonArray array;
    for (const Divider& divider : dividers)
        array.append(dividerFacts(divider, page));
    return array;
}

QJsonObject limitFacts(const Limit& limit)
{
    const char* const bounds[] = {"above", "below", "exactly"};
    QJsonObject facts;
    facts[QLatin1String("clock")] = clockName(limit.clock);
    facts[QLatin1String("bound")] = QLatin1String(bounds[static_cast<int>(limit.bound)]);
    facts[QLatin1String("compared")] = limit.compared;
    facts[QLatin1String("shown")] = limit.question ? QJsonValue() : QJsonValue(limit.shown);
    return facts;
}

QJsonArray limitsOf(const Limits& limits)
{
    QJsonArray array;
    for (const Limit& limit : limits)
        array.append(limitFacts(limit));
    return array;
}

QJsonObject pllFacts(const PageDescription& page, const SeriesTraits& traits)
{
    QJsonObject pll;
    pll[QLatin1String("normal")] = page.pllMultiplier();
    pll[QLatin1String("flexible")] = page.pllParameters();
    pll[QLatin1String("checksHext")] = page.checksPllInput();
    pll[QLatin1String("hextDivided")] = page.pllHextDivider();
    pll[QLatin1String("inputMin")] = inputlimits::pllInputMin;
    pll[QLatin1String("inputMax")] = inputlimits::pllInputMax;
    pll[QLatin1String("vcoMin")] = vcoMinMHz;
    pll[QLatin1String("vcoMax")] = traits.vcoTop();
    pll[QLatin1String("half")] = traits.sysclk_half_pll;
    if (page.pllMultiplier())
        pll[QLatin1String("multiplier")] = QJsonArray{divisors::pllMul.front(), divisors::pllMul.back()};
    if (page.pllParameters()) {
        pll[QLatin1String("ms")] = QJsonArray{divisors::pllMsMin, divisors::pllMsMax};
        pll[QLatin1String("ns")] = QJsonArray{divisors::pllNsMin, divisors::pllNsMax};
    }
    return pll;
}

QJsonValue usbFacts(const PageDescription& page)
{
    if (!page.usb)
        return {};
    QJsonObject facts;
    facts[QLatin1String("hick")] = page.usb->hickRoute;
    facts[QLatin1String("divider")] = dividerFacts(page.usb->divider, page);
    facts[QLatin1String("phy")] = page.usbPhy();
    facts[QLatin1String("movesPll")] = page.usbMovesBusyPll;
    return facts;
}

QJsonArray clockOutputFacts(const PageDescription& page)
{
    QJsonArray array;
    for (const ClockOutput& output : page.clockOutputs) {
        QStringList pins;
        for (const PinChoice& pin : output.pins)
            pins << QLatin1String(pin.text);
        QStringList sources;
        for (const ClockOutputRow& row : output.rows)
            if (row.source != ClockSource::None)
                sources << QLatin1String(row.text);
        QJsonObject facts;
        facts[QLatin1String("stem")] = QLatin1String(output.stem);
        facts[QLatin1String("pins")] = QJsonArray::fromStringList(pins);
        facts[QLatin1String("sources")] = QJsonArray::fromStringList(sources);
        facts[QLatin1String("dividers")] = dividersOf(output.dividers, page);
        array.append(facts);
    }
    return array;
}

QJsonArray peripheralFacts(const PageDescription& page)
{
    QJsonArray array;
    for (const PeripheralClock& clock : page.peripherals) {
        QStringList sources;
        for (const PeripheralSource& source : clock.sources)
            sources << QLatin1String(source.name);
        QJsonObject facts;
        facts[QLatin1String("stem")] = QLatin1String(clock.stem);
        facts[QLatin1String("sources")] = QJsonArray::fromStringList(sources);
        facts[QLatin1String("limit")] = *clock.limit;
        array.append(facts);
    }
    return array;
}

QJsonObject startFacts(const ClockTreePage& page)
{
    QJsonObject start;
    for (const SettingRow& row : page.startOrder())
        start.insert(row.name, row.start);
    for (const ClockSource clock : {ClockSource::Sclk, ClockSource::Ahb, ClockSource::Apb1, ClockSource::Apb2,
                                    ClockSource::Apb3, ClockSource::Pll})
        start.insert(clockName(clock), clockValue(clock, page.model()));
    return start;
}

} // namespace

QJsonObject factsOf(const ClockTreePage& page)
{
    const PageDescription& description = page.description();
    const SeriesTraits& traits = seriesTraits(description.series);
    const TypedSclk& typed = description.typedSclk;
    QJsonObject facts;
    facts[QLatin1String("word")] = QLatin1String(traits.word);
    facts[QLatin1String("name")] = traits.name();
    facts[QLatin1String("stem")] = description.stem();
    facts[QLatin1String("hext")] = QJsonArray{inputlimits::hextMin, inputlimits::hextMax};
    facts[QLatin1String("hick")] = traits.hickStart();
    facts[QLatin1String("sclk")] =
        QJsonArray{typed.lowest ? QJsonValue(*typed.lowest) : QJsonValue(), typed.highest};
    facts[QLatin1String("warnsSclk")] = description.sclkWarnings();
    facts[QLatin1String("painted")] = limitsOf(description.painted);
    facts[QLatin1String("saving")] = limitsOf(description.onSaving);
    facts[QLatin1String("generating")] = limitsOf(description.onGenerating);
    facts[QLatin1String("generatedApb3")] =
        description.generatedApb3 ? QJsonValue(*description.generatedApb3) : QJsonValue();
    facts[QLatin1String("pll")] = pllFacts(description, traits);
    facts[QLatin1String("dividers")] = dividersOf(description.dividers, description);
    facts[QLatin1String("rtcFixed")] =
        description.rtcDivider() ? QJsonValue() : QJsonValue(description.rtcHextDivisor);
    facts[QLatin1String("raisesApbAtHalf")] = traits.apb_half_rule;
    facts[QLatin1String("raisesApb1At120")] = traits.apb1_120_rule;
    facts[QLatin1String("hickToSclk")] = description.hickToSclk();
    facts[QLatin1String("usb")] = usbFacts(description);
    facts[QLatin1String("adcSwitch")] = description.adcSwitch();
    facts[QLatin1String("clockOutputs")] = clockOutputFacts(description);
    facts[QLatin1String("peripherals")] = peripheralFacts(description);
    facts[QLatin1String("start")] = startFacts(page);
    return facts;
}
