#include "pages/blocks/DividerBlock.h"

#include <algorithm>

namespace {
constexpr int droppedBy = 40; // pixels, while the PLL's mode leaves the divider out of use
}

DividerBlock::DividerBlock(ClockTree& tree, const Divider& divider, std::function<bool()> inUse)
    : ClockBlock(tree), m_divider(divider), m_inUse(std::move(inUse))
{
    addControls(divider.routine, [this] { New_divider(); });
}

void DividerBlock::New_divider()
{
    m_Label = label(m_divider.label());
    labelIfPlaced(m_divider.limitLabel());
    std::vector<double> items = m_divider.divisors;
    items.resize(items.size() - static_cast<std::size_t>(m_divider.withoutItem));
    m_ComboBox = combo(m_divider.box(), divisorItems(items, QLatin1String(m_divider.itemPrefix)));
    addSetting(QLatin1String(m_divider.setting), setting());
}

Setting DividerBlock::setting()
{
    std::vector<double> accepted = m_divider.divisors;
    for (double unread : m_divider.unread)
        accepted.erase(std::remove(accepted.begin(), accepted.end(), unread), accepted.end());
    const auto shower = [this](double divisor) { show(divisor); };
    const Acceptance accept = settings::oneOf(std::move(accepted), m_divider.fallback);
    Setting setting = m_divider.decimal ? settings::decimal(model(), m_divider.field, shower, accept)
                                        : settings::whole(model(), m_divider.field, shower, accept);
    setting.offers = [this](double divisor) {
        return indexOf(divisor) < m_ComboBox->count() &&
               valueAt(m_divider.divisors, indexOf(divisor)) == divisor;
    };
    return setting;
}

void DividerBlock::ControlsConnectSlots()
{
    connect(m_ComboBox, SIGNAL(currentIndexChanged(int)), this, SLOT(ComboBox_currentIndexChanged(int)));
}

void DividerBlock::UI_Display()
{
    if (!m_inUse)
        return;
    const bool on = m_inUse();
    m_Label->setEnabled(on);
    m_ComboBox->setEnabledStatus(on);
}

void DividerBlock::UpdateResultControls()
{
    if (m_divider.follows == DividerFollows::Results)
        show(m_divider.field.get(model()));
}

void DividerBlock::Update_Flexible_Controls()
{
    if (m_divider.follows == DividerFollows::PllSearch)
        show(m_divider.field.get(model()));
}

void DividerBlock::ShowPllMode(bool flexible)
{
    if (m_divider.effect != DividerEffect::HextThenPll)
        return;
    m_Label->setHidden(!flexible);
    setHiddenAt(m_ComboBox, !flexible, droppedBy);
}

void DividerBlock::ComboBox_currentIndexChanged(int index)
{
    // A divisor from a design file may have no item: the box then shows nothing, and nobody chose anything.
    if (index < 0)
        return;
    if (m_divider.effect == DividerEffect::HextThenPll && !tree().readHextForPll())
        return;
    m_divider.field.set(model(), valueAt(m_divider.divisors, index));
    switch (m_divider.effect) {
    case DividerEffect::ShowRtc:
        return tree().UpdateRTCParam();
    case DividerEffect::KeepSclk:
        if (tree().readHextForPll())
            tree().keepTypedSysclk();
        return;
    case DividerEffect::ServeUsb:
        return tree().serveUsb();
    case DividerEffect::HextThenPll:
    case DividerEffect::Recalculate:
        return tree().UpdateCalculateResult();
    }
}
