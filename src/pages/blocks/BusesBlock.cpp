#include "pages/blocks/BusesBlock.h"

#include "canvas/appearance.h"
#include "pages/description/outputs.h"

namespace {

QString multiplierText(int multiplier)
{
    return QStringLiteral("* %1").arg(multiplier);
}

} // namespace

BusesBlock::BusesBlock(ClockTree& tree) : ClockBlock(tree)
{
    addControls("New_totmrmultiply", [this] { New_totmrmultiply(); });
    if (description().timerHalves())
        addControls("New_totmrdivide", [this] { New_totmrdivide(); });
}

void BusesBlock::New_totmrmultiply()
{
    m_tosystick_div = multiplierEdit(QStringLiteral("m_tosystick_div"));
    m_toapb1tmr_mul = multiplierEdit(QStringLiteral("m_toapb1tmr_mul"));
    m_toapb2tmr_mul = multiplierEdit(QStringLiteral("m_toapb2tmr_mul"));
    // Not in design files: the multipliers follow from the dividers. The reset starts them at 1.
    Setting setting;
    setting.set = [this](double multiplier) {
        m_tosystick_div->setText(
            QStringLiteral("/ %1").arg(outputEntry(QStringLiteral("m_tosystick_lineEdit")).divisor));
        m_toapb1tmr_mul->setText(multiplierText(static_cast<int>(multiplier)));
        m_toapb2tmr_mul->setText(multiplierText(static_cast<int>(multiplier)));
        model().Set_APB1TMR_MUL(static_cast<int>(multiplier));
        model().Set_APB2TMR_MUL(static_cast<int>(multiplier));
    };
    addSetting(QStringLiteral("tmrmultiply"), setting);
}

void BusesBlock::New_totmrdivide()
{
    for (const char* step : {"m_toapb1tmr_div", "m_toapb2tmr_div"})
        multiplierEdit(QLatin1String(step))->setText(QStringLiteral("/ 2"));
}

void BusesBlock::UpdateResultControls()
{
    appearance::setText(m_toapb1tmr_mul, multiplierText(model().Get_APB1TMR_MUL()));
    appearance::setText(m_toapb2tmr_mul, multiplierText(model().Get_APB2TMR_MUL()));
}
