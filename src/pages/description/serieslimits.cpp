#include "pages/description/pagedescription.h"

// The lists of limits of a series, from what its file says.

namespace {

bool hasApb3(const PageDescription& page)
{
    return page.has("m_apb3div_ComboBox");
}

/// Red above: the system clock, AHB and both timers' clocks at one number, the APB buses at theirs.
Limits paintedOf(const PageDescription& page, double top)
{
    const SeriesLimits& series = page.limits;
    Limits painted{
        limits::above(ClockSource::Sclk, top),         limits::above(ClockSource::Ahb, top),
        limits::above(ClockSource::Apb1Timer, top),    limits::above(ClockSource::Apb2Timer, top),
        limits::above(ClockSource::Apb1, series.apb1), limits::above(ClockSource::Apb2, series.apb2)};
    if (series.pllPainted)
        painted.push_back(limits::above(ClockSource::Pll, top));
    if (page.pllModes())
        painted.push_back(limits::belowInNormalMode());
    if (hasApb3(page))
        painted.push_back(limits::above(ClockSource::Apb3, series.paintedApb3));
    if (page.adcSwitch())
        painted.push_back(limits::above(ClockSource::Adc, adcLimitMHz));
    return painted;
}

/// What saving and generating have in common behind the buses.
void addRest(const PageDescription& page, double top, const char* adcQuestion, Limits& list)
{
    if (page.limits.pllRefused)
        list.push_back(limits::above(ClockSource::Pll, top));
    if (page.pllModes())
        list.push_back(limits::belowInNormalMode());
    if (page.usb)
        list.push_back(limits::usbClock());
    if (page.usbPhy())
        list.push_back(limits::usbPhyClock());
    if (page.adcSwitch())
        list.push_back(limits::adcClock(adcLimitMHz, adcQuestion));
    if (page.limits.askedAdc)
        list.push_back(limits::adcClock(*page.limits.askedAdc, limits::adc80));
}

} // namespace

void limits::derive(PageDescription& page)
{
    const SeriesLimits& series = page.limits;
    const double top = seriesTraits(page.series).sysclkMax;
    const auto apb = [&series](ClockSource bus, double compared) {
        return series.apbTold ? above(bus, compared, *series.apbTold) : above(bus, compared);
    };
    page.typedSclk = {series.lowestTyped, top};
    page.painted = paintedOf(page, top);
    page.onSaving = {above(ClockSource::Sclk, top), apb(ClockSource::Apb1, series.apb1),
                     apb(ClockSource::Apb2, series.apb2)};
    addRest(page, top, series.adcCommaOnSaving ? adc28Comma : adc28, page.onSaving);
    page.onGenerating = {above(ClockSource::Sclk, top), above(ClockSource::Apb1, series.apb1),
                         series.generatingSkipsApb2 ? above(ClockSource::Apb3, apb3LimitMHz)
                                                    : above(ClockSource::Apb2, series.apb2)};
    addRest(page, top, adc28, page.onGenerating);
    if (hasApb3(page))
        page.generatedApb3 = apb3LimitMHz;
    for (PeripheralClock& clock : page.peripherals)
        clock.limit = clock.limit.value_or(top);
}
