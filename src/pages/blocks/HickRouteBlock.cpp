#include "pages/blocks/HickRouteBlock.h"

HickRouteBlock::HickRouteBlock(ClockTree& tree) : ClockBlock(tree)
{
    addControls("New_hicktosclk", [this] { New_hicktosclk(); });
}

void HickRouteBlock::New_hicktosclk()
{
    m_hicktosclk_Label = label(QStringLiteral("m_hicktosclk_Label"));
    QButtonGroup* group = buttonGroup(QStringLiteral("m_hicktosclk_ButtonGroup"));
    m_hicktosclk_div6_RadioButton = radio(QStringLiteral("m_hicktosclk_div6_RadioButton"), group);
    m_hicktosclk_RadioButton = radio(QStringLiteral("m_hicktosclk_RadioButton"), group);
    m_hicktosclkChoices = {
        {HICK_TO_SCLK_DIV6,  m_hicktosclk_div6_RadioButton},
        {HICK_TO_SCLK_NODIV, m_hicktosclk_RadioButton     }
    };
    addSetting(QStringLiteral("hicktosclk"),
               settings::radios(model(), MODEL_FIELD(HICK_TO_SCLK), m_hicktosclkChoices,
                                settings::oneOf(valuesOf(m_hicktosclkChoices), HICK_TO_SCLK_DIV6)));
}

void HickRouteBlock::ControlsConnectSlots()
{
    for (const RadioChoice& choice : m_hicktosclkChoices)
        connect(choice.radio, SIGNAL(toggled(bool)), this, SLOT(hicktosclk_RadioButton_checkSlot(bool)));
}

void HickRouteBlock::UI_Display()
{
    const bool on = tree().sclkFromHick();
    m_hicktosclk_Label->setEnabled(on);
    showRadios({m_hicktosclk_div6_RadioButton, m_hicktosclk_RadioButton}, on);
}

void HickRouteBlock::hicktosclk_RadioButton_checkSlot(bool)
{
    model().Set_HICK_TO_SCLK(checkedValue(m_hicktosclkChoices));
    tree().UpdateCalculateResult();
}
