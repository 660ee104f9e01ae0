#include "AdcBlock.h"

#include "canvas/appearance.h"
#include "pages/ClockTreePage.h"

AdcBlock::AdcBlock(ClockTreePage& page) : ClockBlock(page)
{
    addControls("New_totadc", [this] { New_totadc(); });
}

void AdcBlock::New_totadc()
{
    const std::vector<double>& divisors = page().description().adcDivisors;
    m_toadc_Label = label(QStringLiteral("m_toadc_Label"));
    m_toadc_lineEdit = outputEdit(QStringLiteral("m_toadc_lineEdit"));
    m_toadcdiv_Label = label(QStringLiteral("m_toadcdiv_Label"));
    m_toadcdiv_ComboBox =
        combo(QStringLiteral("m_toadcdiv_ComboBox"), divisorItems(divisors, QStringLiteral(" /")));
    m_toadcswitch_ComboBox = combo(QStringLiteral("m_toadcswitch_ComboBox"), switchItems());
    addSetting("adcswitch",
               settings::whole(
                   model(), MODEL_FIELD(ToADC_Switch),
                   [this](double on) { m_toadcswitch_ComboBox->setCurrentIndex(static_cast<int>(on)); },
                   settings::switched()));
    addSetting("adcdiv", settings::whole(
                             model(), MODEL_FIELD(ToADCDIV),
                             [this, &divisors](double divisor) {
                                 m_toadcdiv_ComboBox->setCurrentIndex(indexIn(divisors, divisor));
                             },
                             settings::oneOf(divisors, divisors.front())));
}

void AdcBlock::ControlsConnectSlots()
{
    connect(m_toadcswitch_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(toadcswitch_ComboBox_currentIndexChanged(int)));
    connect(m_toadcdiv_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(toadcdiv_ComboBox_currentIndexChanged(int)));
}

void AdcBlock::UI_Display()
{
    m_toadcdiv_Label->setEnabled(on());
    m_toadcdiv_ComboBox->setEnabledStatus(on());
    m_toadc_Label->setEnabled(on());
    m_toadc_lineEdit->setEnabled(on());
}

void AdcBlock::UpdateResultControls()
{
    const double adc = model().Get_ADCCLK_Value();
    const bool inRange = !(adc > page().description().limits.adc);
    ZN64MCUPLL::SetLineEditColor(m_toadc_lineEdit, !on() ? Qt::gray : inRange ? Qt::darkGreen : Qt::red);
    appearance::setText(m_toadc_lineEdit, frequencyText(adc));
}

void AdcBlock::toadcswitch_ComboBox_currentIndexChanged(int index)
{
    model().Set_ToADC_Switch(index != 0);
    page().UI_Display();
    page().UpdateCalculateResult();
}

void AdcBlock::toadcdiv_ComboBox_currentIndexChanged(int index)
{
    model().Set_ToADCDIV(static_cast<int>(valueAt(page().description().adcDivisors, index)));
    page().UpdateCalculateResult();
}
