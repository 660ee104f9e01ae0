#include "PllOutputBlock.h"

#include "canvas/appearance.h"
#include "pages/ClockTreePage.h"

PllOutputBlock::PllOutputBlock(ClockTreePage& page) : ClockBlock(page)
{
    addControls("New_pllclk", [this] { m_pllclk_Label = label(QStringLiteral("m_pllclk_Label")); });
}

void PllOutputBlock::UI_Display()
{
    m_pllclk_Label->setEnabled(page().pllInUse());
}

void PllOutputBlock::UpdateResultControls()
{
    if (!shown()) {
        appearance::setText(m_pllclk_Label, QString());
        return;
    }
    const double pll = model().Get_PLLCLKValue();
    appearance::setText(m_pllclk_Label, frequencyText(pll) + QLatin1String("MHz"));
    ZN64MCUPLL::SetLabelColor(m_pllclk_Label,
                              pll > page().description().limits.pll ? Qt::red : Qt::darkGreen);
}
