#include "pages/description/captions.h"
#include "pages/description/pagedescription.h"

#include "model/divisors.h"

#include <QStringList>

#include <algorithm>

// What follows from what a series says: the places of columns, lists and rows, its dividers and its limits.

namespace {

// From an output edit to the list of its peripherals.
constexpr int listRight = 85;

// A peripheral's small tree, pixels from its corner: the names of the sources, their buttons, the switch, the
// result and its unit; one source below the other.
constexpr int sourceRadioRight = 80;
constexpr int switchRight = 115;
constexpr int resultRight = 194;
constexpr int unitRight = 278;
constexpr int firstSourceDown = 30;
constexpr int sourcePitch = 19;
constexpr int radioBelowName = 2;

/// Where the rows of the name stand, which must be as many as wanted.
std::vector<QPoint> rowsFor(const PageDescription& page, const char* name, std::size_t wanted)
{
    const std::vector<QPoint> rows = layout::rowsOf(page.parts(), name);
    if (rows.size() != wanted)
        qFatal("the parts of %s have %d rows of %s, which wants %d", qPrintable(page.word()),
               static_cast<int>(rows.size()), name, static_cast<int>(wanted));
    return rows;
}

void addOutputs(PageDescription& page)
{
    const QStringList names = QString::fromLatin1(page.outputs).split(QLatin1Char(' '));
    const std::vector<QPoint> rows = rowsFor(page, "outputs", static_cast<std::size_t>(names.size()));
    for (int i = 0; i < names.size(); ++i) {
        const QPoint& at = rows[static_cast<std::size_t>(i)];
        const QString edit = QStringLiteral("m_to%1_lineEdit").arg(names[i]);
        page.places.add({edit.toLatin1().constData(), at.x(), at.y()});
        page.outputRows.push_back({edit, at.x(), at.y()});
    }
    for (const ListNames& list : listNames()) {
        const Control& output = page.places.at(QLatin1String(list.output));
        page.places.add({list.group, rows.front().x() + listRight, output.y + (page.lists.*list.list).down});
    }
}

Control spokenAs(const QString& spoken, Control control)
{
    control.spoken = spoken;
    return control;
}

void addSources(PageDescription& page, const ClockOutput& output)
{
    const SourceColumns columns = layout::columnsOf(page.parts(), output.stem);
    const std::vector<QPoint> rows = rowsFor(page, output.stem, output.rows.size());
    QString spoken = QLatin1String(output.stem);
    spoken.replace(QLatin1String("clockout"), QLatin1String("clock output "));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const ClockOutputRow& row = output.rows[i];
        const int y = rows[i].y();
        page.places.add(output.member(row, "RadioButton"),
                        spokenAs(spoken.trimmed() + QLatin1String(" from ") + QLatin1String(row.text),
                                 {ControlType::Radio, columns.radioX, y, QString()}));
        page.places.add(output.member(row, "QLabel1"),
                        {ControlType::Label, columns.nameX, y + columns.labelsDown, QLatin1String(row.text)});
        if (row.source != ClockSource::None)
            page.places.add(
                output.member(row, "QLabel"),
                {ControlType::Label, columns.valueX + row.valueRight, y + columns.labelsDown, QString()});
    }
}

void addPeripheral(Places& places, const PeripheralClock& clock, const QPoint& corner)
{
    const QString stem = QLatin1String(clock.stem);
    places.add(clock.titleLabel(), {ControlType::Label, corner.x(), corner.y(), clock.title});
    int y = corner.y() + firstSourceDown;
    for (const PeripheralSource& source : clock.sources) {
        const QString name = QLatin1String(source.name);
        places.add(clock.sourceLabel(source), {ControlType::Label, corner.x(), y, name});
        places.add(clock.sourceRadio(source), spokenAs(stem + QLatin1String(" clock from ") + name,
                                                       {ControlType::Radio, corner.x() + sourceRadioRight,
                                                        y + radioBelowName, QString()}));
        y += sourcePitch;
    }
    const int middle = (corner.y() + firstSourceDown + y) / 2;
    places.add(clock.switchBox(),
               spokenAs(stem + QLatin1String(" switch"),
                        {ControlType::Combo, corner.x() + switchRight, middle - 14, QString(), 70, 1}));
    places.add(clock.result(),
               spokenAs(clock.spokenResult("MHz"),
                        {ControlType::Output, corner.x() + resultRight, middle - 14, QString(), 0, 0, 9}));
    places.add(clock.unit(),
               {ControlType::Label, corner.x() + unitRight, middle - 10, QStringLiteral("(MHz)"), 0, 0, 9});
}

void addPlaces(PageDescription& page)
{
    page.places = layout::placesOf(page.parts());
    addOutputs(page);
    for (const ClockOutput& output : page.clockOutputs)
        addSources(page, output);
    const std::vector<QPoint> corners = rowsFor(page, "peripherals", page.peripherals.size());
    for (std::size_t i = 0; i < corners.size(); ++i)
        addPeripheral(page.places, page.peripherals[i], corners[i]);
    page.places.move(page.moved);
    page.places.setFonts(page.fonts);
    page.places.rename(QStringLiteral("m_hext_lineEdit"), QLatin1String(page.hextEdit));
    page.places.changeTexts([&page](const QString& text) { return caption(text, page); });
}

/// Every divider with a place but those of USB and the clock outputs.
void addDividers(PageDescription& page)
{
    const Divider candidates[] = {
        dividers::rtc(),        page.pllHextDivider() ? dividers::hextToPll() : dividers::hextToSclk(),
        dividers::hickToSclk(), dividers::pllFr(),
        dividers::pllFp(),      dividers::ahb(),
        dividers::apb1(),       dividers::apb2(),
        dividers::apb3(),       page.adcDivider.value_or(dividers::adc(listOf(divisors::adc))),
    };
    for (const Divider& divider : candidates)
        if (page.places.has(divider.box()))
            page.dividers.push_back(divider);
    if (!page.has("m_tousbswitch_ComboBox"))
        return;
    const Divider ofPll = page.usbDivider.value_or(dividers::usb(listOf(divisors::usbHalfStepsTo4)));
    page.usb = UsbPart{page.has("m_pllfu_ComboBox") ? dividers::pllFu() : ofPll,
                       page.has("m_tousb_hick_RadioButton")};
    const std::vector<double>& all = page.usb->divider.divisors;
    const auto [least, most] = std::minmax_element(all.begin(), all.end() - page.usb->divider.withoutItem);
    const SeriesTraits& traits = seriesTraits(page.series);
    if (*least != traits.usbDivMin || *most != traits.usbDivMax)
        qFatal("%s offers other divisors of USB than the model takes", qPrintable(page.word()));
}

} // namespace

PageDescription complete(PageDescription page)
{
    addPlaces(page);
    addDividers(page);
    limits::derive(page);
    return page;
}
