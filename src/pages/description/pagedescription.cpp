#include "pages/description/pagedescription.h"

#include <algorithm>

namespace {

// From an output edit to the list of its peripherals.
constexpr int listRight = 85;

void addOutputs(PageDescription& page)
{
    for (const OutputRow& row : page.outputs.rows) {
        const QByteArray edit = outputEdit(row).toLatin1();
        page.places = page.places + Places{
                                        {edit.constData(), page.outputs.x + row.right, row.y}
        };
    }
    for (const ListNames& names : listNames())
        page.places =
            page.places + Places{
                              {names.group, page.outputs.x + listRight, (page.lists.*names.list).y}
        };
}

Control spokenAs(const QString& spoken, Control control)
{
    control.spoken = spoken;
    return control;
}

void addRow(Places& places, const ClockOutput& output, const ClockOutputRow& row)
{
    const QString stem = QStringLiteral("m_%1_%2").arg(QLatin1String(output.stem), QLatin1String(row.name));
    const ClockOutputColumn& column = output.column;
    const int labelY = row.y + column.labelsDown;
    QString spoken = QLatin1String(output.stem);
    spoken.replace(QLatin1String("clockout"), QLatin1String("clock output "));
    spoken = spoken.trimmed() + QLatin1String(" from ") + QLatin1String(row.text);
    places.add(stem + QLatin1String("_RadioButton"),
               spokenAs(spoken, {ControlType::Radio, column.radioX, row.y, QString()}));
    places.add(stem + QLatin1String("_QLabel1"),
               {ControlType::Label, column.nameX, labelY, QString::fromLatin1(row.text)});
    if (row.source != ClockSource::None)
        places.add(stem + QLatin1String("_QLabel"),
                   {ControlType::Label, column.valueX + row.valueRight, labelY, QString()});
}

std::vector<StartValue> parseStart(const char* text)
{
    std::vector<StartValue> values;
    for (const QString& each : QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const int equals = each.indexOf(QLatin1Char('='));
        values.push_back({each.left(equals), each.mid(equals + 1).toDouble()});
    }
    return values;
}

// A peripheral's small tree, pixels from its corner: the names of the sources, their buttons, the switch, the
// result and its unit; one source below the other.
constexpr int sourceRadioRight = 78;
constexpr int switchRight = 115;
constexpr int resultRight = 196;
constexpr int unitRight = 280;
constexpr int firstSourceDown = 30;
constexpr int sourcePitch = 19;
constexpr int radioBelowName = 2;

void addPeripheral(Places& places, const PeripheralClock& clock)
{
    const QString selector = QStringLiteral("m_") + QLatin1String(clock.sourceSetting);
    const QString stem = QLatin1String(clock.stem);
    places.add(selector + QLatin1String("_Label"),
               {ControlType::Label, clock.x, clock.y, QString::fromLatin1(clock.title)});
    int y = clock.y + firstSourceDown;
    for (const PeripheralSource& source : clock.sources) {
        const QString row = selector + QLatin1Char('_') + QLatin1String(source.name);
        places.add(row + QLatin1String("_QLabel"),
                   {ControlType::Label, clock.x, y, QString::fromLatin1(source.name)});
        places.add(row + QLatin1String("_RadioButton"),
                   spokenAs(stem + QLatin1String(" clock from ") + QLatin1String(source.name),
                            {ControlType::Radio, clock.x + sourceRadioRight, y + radioBelowName, QString()}));
        y += sourcePitch;
    }
    const int middle = (clock.y + firstSourceDown + y) / 2;
    places.add(QLatin1String("m_") + stem + QLatin1String("switch_ComboBox"),
               spokenAs(stem + QLatin1String(" switch"),
                        {ControlType::Combo, clock.x + switchRight, middle - 14, QString(), 70, 1}));
    places.add(QLatin1String("m_to") + stem + QLatin1String("_lineEdit"),
               spokenAs(stem + QLatin1String(" clock, MHz"),
                        {ControlType::Output, clock.x + resultRight, middle - 14, QString(), 0, 0, 9}));
    places.add(QLatin1String("m_to") + stem + QLatin1String("_Label"),
               {ControlType::Label, clock.x + unitRight, middle - 10, QStringLiteral("(MHz)"), 0, 0, 9});
}

} // namespace

const std::vector<ListNames>& listNames()
{
    // Two of the groups have lost the last letter of their name.
    static const std::vector<ListNames> names = {
        {"m_toapb1peripheral_List_Button", "m_toapb1periphera_list_group", "m_toapb1peripheral_lineEdit",
         &PeripheralLists::apb1      },
        {"m_toapb1tmr_List_Button",        "m_toapb1tmr_list_group",       "m_toapb1tmr_lineEdit",
         &PeripheralLists::apb1Timers},
        {"m_toapb2peripheral_List_Button", "m_toapb2periphera_list_group", "m_toapb2peripheral_lineEdit",
         &PeripheralLists::apb2      },
        {"m_toapb2tmr_List_Button",        "m_toapb2tmr_list_group",       "m_toapb2tmr_lineEdit",
         &PeripheralLists::apb2Timers},
    };
    return names;
}

std::vector<StartValue> PageDescription::startValues() const
{
    std::vector<StartValue> values = parseStart(start);
    for (const StartValue& own : parseStart(ownStart)) {
        const auto value = std::find_if(values.begin(), values.end(), [&own](const StartValue& each) {
            return each.setting == own.setting;
        });
        if (value == values.end())
            qFatal("the family starts without %s", qPrintable(own.setting));
        value->value = own.value;
    }
    return values;
}

ClockOutput singleClockOutput()
{
    return {"clockout", "clkout", "clkoutpinselect", MODEL_FIELD(CLKOUT), MODEL_FIELD(CLKOUT_PinSelect)};
}

QString outputEdit(const OutputRow& row)
{
    return QStringLiteral("m_%1_lineEdit").arg(QLatin1String(row.name));
}

PageDescription complete(PageDescription page)
{
    addOutputs(page);
    for (const ClockOutput& output : page.clockOutputs)
        for (const ClockOutputRow& row : output.rows)
            addRow(page.places, output, row);
    for (const PeripheralClock& clock : page.peripherals)
        addPeripheral(page.places, clock);
    return page;
}
