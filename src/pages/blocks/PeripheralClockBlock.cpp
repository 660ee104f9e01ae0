#include "pages/blocks/PeripheralClockBlock.h"

#include "canvas/ZN64MCUPLL.h"
#include "canvas/appearance.h"
#include "pages/description/signalnames.h"

#include <algorithm>

PeripheralClockBlock::PeripheralClockBlock(ClockTree& tree, const PeripheralClock& clock)
    : ClockBlock(tree), m_clock(clock)
{
    addControls(("New_" + clock.sourceSetting().toLatin1()).constData(), [this] { New_clocksel(); });
}

void PeripheralClockBlock::New_clocksel()
{
    m_title = label(m_clock.titleLabel());
    QButtonGroup* group = buttonGroup(m_clock.selector() + QLatin1String("_ButtonGroup"));
    for (const PeripheralSource& source : m_clock.sources) {
        m_names.push_back(label(m_clock.sourceLabel(source)));
        m_radios.push_back(radio(m_clock.sourceRadio(source), group));
        m_choices.push_back({source.number, m_radios.back()});
    }
    m_switch = combo(m_clock.switchBox(), switchItems());
    m_switch->setOffItem(0);
    m_result = outputEdit(m_clock.result());
    m_unit = label(m_clock.unit());
    addSetting(m_clock.sourceSetting(), sourceSetting());
    addSetting(m_clock.switchSetting(),
               settings::whole(
                   model(), m_clock.on,
                   [this](double on) { m_switch->setCurrentIndex(static_cast<int>(on)); },
                   settings::switched()));
}

Setting PeripheralClockBlock::sourceSetting()
{
    Setting setting = settings::radios(model(), m_clock.source, m_choices, settings::unchecked());
    setting.read = [this](const QString& text) { readSource(text.toInt(nullptr, 10)); };
    return setting;
}

void PeripheralClockBlock::readSource(int number)
{
    const auto has = [number](const auto& each) { return each.number == number; };
    const auto listed = std::find_if(m_clock.readNumbers.begin(), m_clock.readNumbers.end(), has);
    PeripheralNumber taken{number, number};
    if (listed != m_clock.readNumbers.end())
        taken = *listed;
    else if (!m_clock.readNumbers.empty() ||
             std::none_of(m_clock.sources.begin(), m_clock.sources.end(), has)) {
        if (!m_clock.fallback)
            return;
        taken = {*m_clock.fallback, *m_clock.fallback};
    }
    // The button's slot stores the button's own number first.
    checkValue(m_choices, taken.checks);
    (taken.strays ? m_clock.strayField : m_clock.source).set(model(), taken.number);
}

void PeripheralClockBlock::ControlsConnectSlots()
{
    for (QRadioButton* button : m_radios)
        connect(button, SIGNAL(toggled(bool)), this, SLOT(clocksel_RadioButton_checkSlot(bool)));
    connect(m_switch, SIGNAL(currentIndexChanged(int)), this, SLOT(switch_ComboBox_currentIndexChanged(int)));
}

void PeripheralClockBlock::UI_Display()
{
    m_title->setEnabled(on());
    showRadios(m_radios, on());
    for (QLabel* name : m_names)
        name->setEnabled(on());
    m_result->setEnabled(on());
    m_unit->setEnabled(on());
}

bool PeripheralClockBlock::isWritten() const
{
    return m_clock.writtenWhile.get ? m_clock.writtenWhile.get(model()) != 0.0 : on();
}

const PeripheralSource& PeripheralClockBlock::checkedSource() const
{
    const auto checked = std::find_if(m_radios.begin(), m_radios.end(),
                                      [](const QRadioButton* each) { return each->isChecked(); });
    return checked != m_radios.end() ? m_clock.sources[static_cast<std::size_t>(checked - m_radios.begin())]
                                     : m_clock.sources.front();
}

bool PeripheralClockBlock::usesPllU() const
{
    return on() && checkedSource().shown == ClockSource::PllU;
}

void PeripheralClockBlock::UpdateResultControls()
{
    if (!isWritten())
        return;
    const PeripheralSource& source = checkedSource();
    const std::optional<ClockReading> clock = frequencyOf(source.shown, model(), tree().hickAtOutputs());
    const bool red = clockValue(source.limited, model()) > *m_clock.limit;
    ZN64MCUPLL::SetLineEditColor(m_result, red ? Qt::red : Qt::darkGreen);
    appearance::setText(m_result,
                        clock->words ? tree().translated(clock->words) : frequencyText(clock->value));
    appearance::setText(m_unit, QLatin1Char('(') + QLatin1String(clock->unit) + QLatin1Char(')'));
    tree().speakOf(m_result, m_clock.spokenResult(clock->unit));
}

std::optional<Remarks> PeripheralClockBlock::remarksOn(const QWidget* control) const
{
    if (control != m_result)
        return {};
    const PeripheralSource& source = checkedSource();
    Remarks remarks;
    if (source.taken && *source.taken != source.shown)
        remarks.shows = signalName(source.shown);
    if (source.limited == ClockSource::None)
        return remarks;
    remarks.shown = clockValue(source.limited, model());
    remarks.limits = {limits::above(source.limited, *m_clock.limit)};
    if (source.limited != source.shown)
        remarks.decidedBy = signalName(source.limited);
    return remarks;
}

void PeripheralClockBlock::clocksel_RadioButton_checkSlot(bool on)
{
    if (!on)
        return;
    tree().UI_Display();
    m_clock.source.set(model(), checkedSource().number);
    tree().UpdateCalculateResult();
}

void PeripheralClockBlock::switch_ComboBox_currentIndexChanged(int index)
{
    m_clock.on.set(model(), index != 0);
    tree().UI_Display();
    clocksel_RadioButton_checkSlot(true);
}
