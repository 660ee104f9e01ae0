#include "pages/blocks/PllModeBlock.h"

#include "canvas/ZN64MCUPLL.h"

namespace {
// Pixels to the left, where the flexible mode needs more room for its parameters.
constexpr int flexibleLeft = 50;
} // namespace

PllModeBlock::PllModeBlock(ClockTree& tree) : ClockBlock(tree)
{
    addControls("New_pll_mode", [this] { New_pll_mode(); });
}

void PllModeBlock::New_pll_mode()
{
    m_pllmode_Label = label(QStringLiteral("m_pllmode_Label"));
    m_pllmode_ComboBox =
        combo(QStringLiteral("m_pllmode_ComboBox"), {QStringLiteral("normal"), QStringLiteral("flexible")});
    const ModelField field = MODEL_FIELD(ConfigMode);
    Setting setting = settings::whole(
        model(), field, [this](double mode) { m_pllmode_ComboBox->setCurrentIndex(static_cast<int>(mode)); },
        settings::oneOf({PLLMODE_NORMAL, PLLMODE_FLEXIBLE}, PLLMODE_NORMAL));
    setting.set = [this, set = setting.set](double mode) {
        set(mode);
        tree().showPllMode();
    };
    addSetting(QStringLiteral("pllmode"), setting);
}

void PllModeBlock::ControlsConnectSlots()
{
    connect(m_pllmode_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(pllmode_ComboBox_currentIndexChanged(int)));
}

void PllModeBlock::UI_Display()
{
    const bool on = tree().pllInUse();
    m_pllmode_Label->setEnabled(on);
    m_pllmode_ComboBox->setEnabledStatus(on);
}

void PllModeBlock::ShowPllMode(bool flexible)
{
    for (QWidget* control :
         {static_cast<QWidget*>(m_pllmode_Label), static_cast<QWidget*>(m_pllmode_ComboBox)}) {
        const Control& place = description().places.at(control->objectName());
        ZN64MCUPLL::proxyOf(control)->setPos(place.x - (flexible ? flexibleLeft : 0), place.y);
    }
}

void PllModeBlock::pllmode_ComboBox_currentIndexChanged(int index)
{
    model().Set_ConfigMode(index == 0 ? PLLMODE_NORMAL : PLLMODE_FLEXIBLE);
    tree().showPllMode();
    // The system clock that stands there is searched for in the new mode.
    if (tree().readHextForPll())
        tree().keepTypedSysclk();
}
