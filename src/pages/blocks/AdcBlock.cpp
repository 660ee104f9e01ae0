#include "pages/blocks/AdcBlock.h"

#include "canvas/ZN64MCUPLL.h"
#include "canvas/appearance.h"

AdcBlock::AdcBlock(ClockTree& tree) : ClockBlock(tree)
{
    addControls("New_totadc", [this] { New_totadc(); });
}

void AdcBlock::New_totadc()
{
    m_toadc_Label = label(QStringLiteral("m_toadc_Label"));
    m_toadc_lineEdit = outputEdit(QStringLiteral("m_toadc_lineEdit"));
    m_toadcswitch_ComboBox = combo(QStringLiteral("m_toadcswitch_ComboBox"), switchItems());
    m_toadcswitch_ComboBox->setOffItem(0);
    addSetting(QStringLiteral("adcswitch"),
               settings::whole(
                   model(), MODEL_FIELD(ToADC_Switch),
                   [this](double on) { m_toadcswitch_ComboBox->setCurrentIndex(static_cast<int>(on)); },
                   settings::switched()));
}

void AdcBlock::ControlsConnectSlots()
{
    connect(m_toadcswitch_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(toadcswitch_ComboBox_currentIndexChanged(int)));
}

void AdcBlock::UI_Display()
{
    m_toadc_Label->setEnabled(on());
    m_toadc_lineEdit->setEnabled(on());
    // Also where nothing is calculated behind the switch, because a typed value is bad.
    paintOutput();
}

void AdcBlock::UpdateResultControls()
{
    paintOutput();
    appearance::setText(m_toadc_lineEdit, frequencyText(model().Get_ADCCLK_Value()));
}

std::optional<Remarks> AdcBlock::remarksOn(const QWidget* control) const
{
    return control == m_toadc_lineEdit ? std::make_optional(ClockBlock::remarksOn(ClockSource::Adc))
                                       : std::nullopt;
}

void AdcBlock::paintOutput()
{
    const Qt::GlobalColor used = outOfRange(ClockSource::Adc) ? Qt::red : Qt::darkGreen;
    ZN64MCUPLL::SetLineEditColor(m_toadc_lineEdit, on() ? used : Qt::gray);
}

void AdcBlock::toadcswitch_ComboBox_currentIndexChanged(int index)
{
    model().Set_ToADC_Switch(index != 0);
    tree().UI_Display();
    tree().UpdateCalculateResult();
}
