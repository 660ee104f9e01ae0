#pragma once

#include "pages/blocks/ClockBlock.h"

/// The field that shows what the typed hext gives to the PHY of USB, committed or not.
class UsbPhyBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit UsbPhyBlock(ClockTree& tree);

    void UpdateResultControls() override;
    std::optional<Remarks> remarksOn(const QWidget* control) const override;

    /// The number in the field, MHz, as it is rounded there.
    double shown() const { return m_tousbhsphy_lineEdit->text().toDouble(); }

private:
    void New_tousbhsphy();

    QLineEdit* m_tousbhsphy_lineEdit = nullptr;
};
