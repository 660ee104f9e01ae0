#include "pages/blocks/PllMultiplierBlock.h"

#include "model/divisors.h"

namespace {
constexpr int firstMultiplier = divisors::pllMul.front();
constexpr int droppedBy = 50; // pixels, while it is out of use
} // namespace

PllMultiplierBlock::PllMultiplierBlock(ClockTree& tree) : ClockBlock(tree)
{
    addControls("New_pll_mult", [this] { New_pll_mult(); });
}

void PllMultiplierBlock::New_pll_mult()
{
    m_pllmult_Label = label(QStringLiteral("m_pllmult_Label"));
    m_pllmult_ComboBox = combo(QStringLiteral("m_pllmult_ComboBox"),
                               divisorItems(listOf(divisors::pllMul), QStringLiteral("  * ")));
    addSetting(QStringLiteral("pllmult"), multiplierSetting());
}

Setting PllMultiplierBlock::multiplierSetting()
{
    Setting setting = settings::whole(
        model(), MODEL_FIELD(PLL_MUL),
        [this](double multiplier) {
            m_pllmult_ComboBox->setCurrentIndex(static_cast<int>(multiplier) - firstMultiplier);
        },
        settings::unchecked());
    setting.offers = [this](double multiplier) {
        return multiplier >= firstMultiplier && multiplier < firstMultiplier + m_pllmult_ComboBox->count();
    };
    // The model follows through the combo's slot alone. There is no lower bound: a number below the first one
    // takes the combo's selection away.
    setting.read = [this](const QString& text) {
        const int multiplier = text.toInt(nullptr, 10);
        const bool listed = multiplier < firstMultiplier + m_pllmult_ComboBox->count();
        m_pllmult_ComboBox->setCurrentIndex(listed ? qMax(multiplier, -firstMultiplier) - firstMultiplier
                                                   : 0);
    };
    return setting;
}

void PllMultiplierBlock::ControlsConnectSlots()
{
    connect(m_pllmult_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(pllmult_ComboBox_currentIndexChanged(int)));
}

void PllMultiplierBlock::UI_Display()
{
    const bool on = tree().pllInUse();
    m_pllmult_Label->setEnabled(on);
    m_pllmult_ComboBox->setEnabledStatus(on);
}

void PllMultiplierBlock::Set_pllmult_Hidden(bool hidden)
{
    setHiddenAt(m_pllmult_Label, hidden, 0);
    setHiddenAt(m_pllmult_ComboBox, hidden, droppedBy);
}

void PllMultiplierBlock::Update_Normal_Controls()
{
    const int index = model().Get_PLL_MUL() - firstMultiplier;
    m_pllmult_ComboBox->setCurrentIndex(index < m_pllmult_ComboBox->count() ? index : 0);
}

void PllMultiplierBlock::pllmult_ComboBox_currentIndexChanged(int)
{
    if (!tree().readHextForPll())
        return;
    model().Set_PLL_MUL(m_pllmult_ComboBox->currentIndex() + firstMultiplier);
    tree().UpdateCalculateResult();
}
