#include "pages/blocks/UsbPhyBlock.h"

#include "canvas/ZN64MCUPLL.h"
#include "canvas/appearance.h"

UsbPhyBlock::UsbPhyBlock(ClockTree& tree) : ClockBlock(tree)
{
    addControls("New_tousbhsphy", [this] { New_tousbhsphy(); });
}

void UsbPhyBlock::New_tousbhsphy()
{
    m_tousbhsphy_lineEdit = outputEdit(QStringLiteral("m_tousbhsphy_lineEdit"));
    label(QStringLiteral("m_tousbhsphy_Label"));
}

void UsbPhyBlock::UpdateResultControls()
{
    const double hext = tree().typedHext();
    ZN64MCUPLL::SetLineEditColor(m_tousbhsphy_lineEdit, hext == usbPhyClockMHz ? Qt::darkGreen : Qt::red);
    appearance::setText(m_tousbhsphy_lineEdit, frequencyText(hext));
}

std::optional<Remarks> UsbPhyBlock::remarksOn(const QWidget* control) const
{
    if (control != m_tousbhsphy_lineEdit)
        return {};
    return Remarks{tree().typedHext(), {limits::usbPhyClock()}};
}
