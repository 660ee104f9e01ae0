#include "pages/blocks/ClockOutputBlock.h"

#include "canvas/ZN64MCUPLL.h"
#include "canvas/appearance.h"
#include "pages/description/arithmetic.h"

#include <algorithm>

namespace {

QString bracketed(double frequency, const char* unit)
{
    return QLatin1Char('(') + frequencyText(frequency) + QLatin1Char(' ') + QLatin1String(unit) +
           QLatin1Char(')');
}

} // namespace

ClockOutputBlock::ClockOutputBlock(ClockTree& tree, const ClockOutput& output)
    : ClockBlock(tree), m_output(output)
{
    const QByteArray routine = QByteArray("New_") + output.stem;
    addControls((routine + "pinselect").constData(), [this] { New_clockoutpinselect(); });
    addControls(routine.constData(), [this] { New_clockout(); });
}

void ClockOutputBlock::New_clockoutpinselect()
{
    QStringList pins{QStringLiteral("none")};
    for (const PinChoice& pin : m_output.pins)
        pins << QLatin1String(pin.text);
    m_pin = combo(m_output.member("pin_ComboBox"), pins);
    m_pin->setOffItem(0);
    label(m_output.member("pin_Label"));
    m_pinValue = label(m_output.member("_Value_QLabel"));
    ZN64MCUPLL::SetLabelColor(m_pinValue, Qt::darkGreen);
    Setting setting = settings::whole(
        model(), m_output.pinField, [this](double number) { showPinOf(static_cast<int>(number)); },
        settings::unchecked());
    // The reset knows no other pin than none, for which a text says nothing.
    setting.set = [this](double none) {
        m_pin->setCurrentIndex(static_cast<int>(none));
        m_output.pinField.set(model(), none);
    };
    addSetting(QLatin1String(m_output.pinSetting), setting);
}

void ClockOutputBlock::showPinOf(int number)
{
    if (!m_output.pinsByText) {
        m_pin->setCurrentIndex(number);
        return;
    }
    // A pin that the series lacks leaves the box alone; so does "NONE", which is not the text of an item.
    const auto pin = std::find_if(m_output.pins.begin(), m_output.pins.end(),
                                  [number](const PinChoice& each) { return each.number == number; });
    if (pin != m_output.pins.end())
        m_pin->setCurrentText(QLatin1String(pin->text));
}

void ClockOutputBlock::New_clockout()
{
    QButtonGroup* group = buttonGroup(m_output.member("_ButtonGroup"));
    for (const ClockOutputRow& source : m_output.rows) {
        m_rows.push_back(makeRow(source, group));
        m_choices.push_back({source.value, m_rows.back().radio});
    }
    m_title = label(m_output.member("_QLabel"));
    addSetting(QLatin1String(m_output.setting),
               settings::radios(model(), m_output.field, m_choices,
                                settings::oneOf(valuesOf(m_choices), m_output.rows.front().value)));
}

ClockOutputBlock::Row ClockOutputBlock::makeRow(const ClockOutputRow& source, QButtonGroup* group) const
{
    QLabel* value = source.source == ClockSource::None ? nullptr : label(m_output.member(source, "QLabel"));
    return {source, radio(m_output.member(source, "RadioButton"), group),
            label(m_output.member(source, "QLabel1")), value};
}

void ClockOutputBlock::ControlsConnectSlots()
{
    for (const Row& row : m_rows)
        connect(row.radio, SIGNAL(toggled(bool)), this, SLOT(clkout_RadioButton_checkSlot(bool)));
    connect(m_pin, SIGNAL(currentIndexChanged(int)), this,
            SLOT(clockoutPinSelectComboBox_currentIndexChanged(int)));
}

const ClockOutputBlock::Row* ClockOutputBlock::checkedRow() const
{
    const auto row =
        std::find_if(m_rows.begin(), m_rows.end(), [](const Row& each) { return each.radio->isChecked(); });
    return row != m_rows.end() ? &*row : nullptr;
}

bool ClockOutputBlock::isOff(const ClockOutputRow& source) const
{
    switch (source.gate) {
    case RowGate::None:
        return false;
    case RowGate::Usb:
        return !tree().usbOn();
    case RowGate::Adc:
        return !tree().adcOn();
    }
    return false;
}

void ClockOutputBlock::fallBackFromOffSource()
{
    const Row* row = checkedRow();
    if (row && isOff(row->source))
        checkValue(m_choices, m_output.fallback);
}

void ClockOutputBlock::UI_Display()
{
    fallBackFromOffSource();
    const bool set = pinSet();
    for (const Row& row : m_rows) {
        const bool on = set && !isOff(row.source);
        showRadios({row.radio}, on);
        row.name->setEnabled(on);
        if (row.value)
            row.value->setEnabled(on);
    }
    m_pinValue->setEnabled(set);
    m_title->setEnabled(set);
}

bool ClockOutputBlock::usesPll() const
{
    const Row* row = checkedRow();
    if (!row || !pinSet())
        return false;
    const ClockSource source = row->source.source;
    return source == ClockSource::Pll || source == ClockSource::PllDiv2 || source == ClockSource::PllDiv4;
}

bool ClockOutputBlock::usesHext() const
{
    const Row* row = checkedRow();
    return row && pinSet() && row->source.source == ClockSource::Hext;
}

void ClockOutputBlock::UpdateResultControls()
{
    // With no pin the last frequency stays at it.
    if (!pinSet())
        return;
    const Row* checked = checkedRow();
    for (const Row& row : m_rows)
        if (row.value)
            row.value->setVisible(&row == checked);
    const std::optional<ClockReading> clock =
        checked ? reading(checked->source.source) : std::optional<ClockReading>();
    if (checked && checked->value)
        appearance::setText(checked->value, clock ? bracketed(clock->value, clock->unit) : QString());
    appearance::setText(
        m_pinValue,
        clock ? bracketed(arithmetic::divided(clock->value, m_output.dividers, model()), clock->unit)
              : QString());
}

std::optional<ClockReading> ClockOutputBlock::reading(ClockSource source) const
{
    if (source == ClockSource::Lext && m_output.lextNeedsRtc && !(tree().rtcOn() && tree().rtcFromLext()))
        return {};
    return frequencyOf(source, model(), tree().hickAtOutputs());
}

void ClockOutputBlock::clkout_RadioButton_checkSlot(bool on)
{
    tree().UI_Display();
    if (!on)
        return;
    m_output.field.set(model(), checkedValue(m_choices));
    tree().UpdateCalculateResult();
}

void ClockOutputBlock::clockoutPinSelectComboBox_currentIndexChanged(int index)
{
    tree().UI_Display();
    const auto place = static_cast<std::size_t>(index);
    m_output.pinField.set(
        model(), index > 0 && place <= m_output.pins.size() ? m_output.pins[place - 1].number : index);
    tree().UpdateCalculateResult();
}
