#include "pages/blocks/PllOutputBlock.h"

#include "canvas/ZN64MCUPLL.h"
#include "canvas/appearance.h"

PllOutputBlock::PllOutputBlock(ClockTree& tree) : ClockBlock(tree)
{
    addControls("New_pllclk", [this] { m_pllclk_Label = label(QStringLiteral("m_pllclk_Label")); });
}

void PllOutputBlock::UI_Display()
{
    m_pllclk_Label->setEnabled(tree().pllInUse());
}

void PllOutputBlock::UpdateResultControls()
{
    if (!shown()) {
        appearance::setText(m_pllclk_Label, QString());
        return;
    }
    const double pll = model().Get_PLLCLKValue();
    appearance::setText(m_pllclk_Label, frequencyText(pll) + QLatin1String("MHz"));
    ZN64MCUPLL::SetLabelColor(m_pllclk_Label, outOfRange(ClockSource::Pll) ? Qt::red : Qt::darkGreen);
}

std::optional<Remarks> PllOutputBlock::remarksOn(const QWidget* control) const
{
    return control == m_pllclk_Label ? std::make_optional(ClockBlock::remarksOn(ClockSource::Pll))
                                     : std::nullopt;
}
