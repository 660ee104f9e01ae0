#include "ClockOutputBlock.h"

#include "canvas/appearance.h"
#include "pages/ClockTreePage.h"

#include <algorithm>

namespace {

QString bracketed(double frequency, const char* unit)
{
    return QLatin1Char('(') + frequencyText(frequency) + QLatin1Char(' ') + QLatin1String(unit) +
           QLatin1Char(')');
}

} // namespace

ClockOutputBlock::ClockOutputBlock(ClockTreePage& page, const ClockOutputDescription& description)
    : ClockBlock(page), m_description(description)
{
    const QByteArray stem = QByteArray("New_") + description.stem;
    addControls((stem + "pinselect").constData(), [this] { New_clockoutpinselect(); });
    addControls(stem.constData(), [this] { New_clockout(); });
    for (const ClockOutputDivider& divider : description.dividers)
        addControls(divider.step, [this, &divider] { New_clockoutdiv(divider); });
}

QString ClockOutputBlock::member(const char* rest) const
{
    return QLatin1String("m_") + QLatin1String(m_description.stem) + QLatin1String(rest);
}

void ClockOutputBlock::New_clockoutpinselect()
{
    QStringList pins{QStringLiteral("none")};
    for (const char* pin : m_description.pins)
        pins << QLatin1String(pin);
    m_pin = combo(member("pin_ComboBox"), pins);
    label(member("pin_Label"));
    m_pinValue = label(member("_Value_QLabel"));
    ZN64MCUPLL::SetLabelColor(m_pinValue, Qt::darkGreen);
    addSetting(m_description.pinSetting,
               settings::whole(
                   model(), m_description.pinField,
                   [this](double index) { m_pin->setCurrentIndex(static_cast<int>(index)); },
                   settings::unchecked()));
}

void ClockOutputBlock::New_clockout()
{
    QButtonGroup* group = buttonGroup(member("_ButtonGroup"));
    for (const ClockOutputRow& source : m_description.rows) {
        m_rows.push_back(makeRow(source, group));
        m_choices.push_back({source.value, m_rows.back().radio});
    }
    m_title = label(member("_QLabel"));
    addSetting(m_description.setting,
               settings::radios(model(), m_description.field, m_choices,
                                settings::oneOf(valuesOf(m_choices), m_description.rows.front().value)));
}

ClockOutputBlock::Row ClockOutputBlock::makeRow(const ClockOutputRow& source, QButtonGroup* group) const
{
    const QString stem = member("_") + QLatin1String(source.name);
    QLabel* value = source.source == OutputSource::None ? nullptr : label(stem + QLatin1String("_QLabel"));
    return {source, radio(stem + QLatin1String("_RadioButton"), group),
            label(stem + QLatin1String("_QLabel1")), value};
}

void ClockOutputBlock::New_clockoutdiv(const ClockOutputDivider& divider)
{
    const QString stem = QLatin1String(divider.control);
    QLabel* name = label(stem + QLatin1String("_Label"));
    CustomComboBox1* box = combo(stem + QLatin1String("_ComboBox"), divisorItems(divider.divisors));
    m_dividers.push_back({divider, name, box});
    addSetting(divider.setting, settings::whole(
                                    model(), divider.field,
                                    [box, &divider](double divisor) {
                                        box->setCurrentIndex(indexIn(divider.divisors, divisor));
                                    },
                                    settings::oneOf(divider.divisors, divider.divisors.front())));
}

void ClockOutputBlock::ControlsConnectSlots()
{
    for (const Row& row : m_rows)
        connect(row.radio, SIGNAL(toggled(bool)), this, SLOT(clkout_RadioButton_checkSlot(bool)));
    connect(m_pin, SIGNAL(currentIndexChanged(int)), this,
            SLOT(clockoutPinSelectComboBox_currentIndexChanged(int)));
    for (const Divider& divider : m_dividers)
        connect(divider.combo, SIGNAL(currentIndexChanged(int)), this,
                SLOT(clockoutdiv_ComboBox_currentIndexChanged(int)));
}

const ClockOutputBlock::Row* ClockOutputBlock::checkedRow() const
{
    const auto row =
        std::find_if(m_rows.begin(), m_rows.end(), [](const Row& each) { return each.radio->isChecked(); });
    return row != m_rows.end() ? &*row : nullptr;
}

bool ClockOutputBlock::sourceIsOff(OutputSource source) const
{
    return (source == OutputSource::Usb && !page().usbOn()) ||
           (source == OutputSource::Adc && !page().adcOn());
}

void ClockOutputBlock::fallBackFromOffSource()
{
    const Row* row = checkedRow();
    if (row && sourceIsOff(row->source.source))
        checkValue(m_choices, m_description.fallback);
}

void ClockOutputBlock::UI_Display()
{
    fallBackFromOffSource();
    const bool set = pinSet();
    for (const Row& row : m_rows) {
        const bool on = set && !sourceIsOff(row.source.source);
        showRadios({row.radio}, on);
        row.name->setEnabled(on);
        if (row.value)
            row.value->setEnabled(on);
    }
    m_pinValue->setEnabled(set);
    m_title->setEnabled(set);
    for (const Divider& divider : m_dividers) {
        divider.label->setEnabled(set);
        divider.combo->setEnabledStatus(set);
    }
}

bool ClockOutputBlock::usesPll() const
{
    const Row* row = checkedRow();
    if (!row || !pinSet())
        return false;
    const OutputSource source = row->source.source;
    return source == OutputSource::Pll || source == OutputSource::PllDiv2 || source == OutputSource::PllDiv4;
}

bool ClockOutputBlock::usesHext() const
{
    const Row* row = checkedRow();
    return row && pinSet() && row->source.source == OutputSource::Hext;
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
    const std::optional<Frequency> frequency =
        checked ? frequencyOf(checked->source.source) : std::optional<Frequency>();
    if (checked && checked->value)
        appearance::setText(checked->value,
                            frequency ? bracketed(frequency->value, frequency->unit) : QString());
    appearance::setText(m_pinValue,
                        frequency ? bracketed(divided(frequency->value), frequency->unit) : QString());
}

std::optional<ClockOutputBlock::Frequency> ClockOutputBlock::frequencyOf(OutputSource source) const
{
    switch (source) {
    case OutputSource::None:
        return {};
    case OutputSource::Lick:
        return Frequency{model().Get_Lick_Input_Value(), "kHz"};
    case OutputSource::Lext:
        return Frequency{model().Get_Lext_Input_Value(), "kHz"};
    case OutputSource::Hick:
        return Frequency{hickFrequency(), "MHz"};
    case OutputSource::Hext:
        return Frequency{model().Get_Hext_Input_Value(), "MHz"};
    case OutputSource::Sclk:
        return Frequency{model().Get_SYSCLKValue(), "MHz"};
    case OutputSource::Usb:
        return Frequency{model().Get_USBCLKValue(), "MHz"};
    case OutputSource::Adc:
        // Without a divider of the ADC on the page nobody knows what the ADC makes of its clock.
        if (page().description().adcDivisors.empty())
            return {};
        return Frequency{model().Get_ADCCLK_Value(), "MHz"};
    case OutputSource::PllDiv2:
        return Frequency{model().Get_PLLCLKValue() / 2.0, "MHz"};
    case OutputSource::PllDiv4:
        return Frequency{model().Get_PLLCLKValue() / 4.0, "MHz"};
    case OutputSource::Pll:
        return Frequency{model().Get_PLLCLKValue(), "MHz"};
    }
    return {};
}

double ClockOutputBlock::hickFrequency() const
{
    if (m_description.hick == HickAtOutput::Always8)
        return 8.0;
    const bool undivided = page().usbFromHick() || (page().sclkFromHick() && page().hickUndivided()) ||
                           (page().sclkFromPll() && !page().hextFeedsPll());
    return undivided ? 48.0 : 8.0;
}

double ClockOutputBlock::divided(double frequency) const
{
    if (m_dividers.empty())
        return frequency;
    for (const ClockOutputDivider& divider : m_description.dividers)
        frequency /= divider.field.get(model());
    return frequency;
}

void ClockOutputBlock::clkout_RadioButton_checkSlot(bool on)
{
    page().UI_Display();
    if (!on)
        return;
    m_description.field.set(model(), checkedValue(m_choices));
    page().UpdateCalculateResult();
}

void ClockOutputBlock::clockoutPinSelectComboBox_currentIndexChanged(int)
{
    page().UI_Display();
    m_description.pinField.set(model(), m_pin->currentIndex());
    page().UpdateCalculateResult();
}

void ClockOutputBlock::clockoutdiv_ComboBox_currentIndexChanged(int)
{
    for (const Divider& divider : m_dividers)
        divider.description.field.set(model(),
                                      valueAt(divider.description.divisors, divider.combo->currentIndex()));
    page().UpdateCalculateResult();
}
