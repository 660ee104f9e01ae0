#pragma once

#include "pages/blocks/ClockBlock.h"

/// One divider of the tree: its label, its box, on some series a caption with the limit of the bus behind it.
class DividerBlock : public ClockBlock
{
    Q_OBJECT

public:
    /// inUse tells whether the box can be used at present; without it it always can.
    DividerBlock(ClockTree& tree, const Divider& divider, std::function<bool()> inUse);

    void ControlsConnectSlots() override;
    void UI_Display() override;
    void UpdateResultControls() override;
    void Update_Flexible_Controls() override;
    void ShowPllMode(bool flexible) override;

private slots:
    void ComboBox_currentIndexChanged(int index);

private:
    void New_divider();
    Setting setting();
    int indexOf(double divisor) const { return indexIn(m_divider.divisors, divisor); }
    void show(double divisor) { m_ComboBox->setCurrentIndex(indexOf(divisor)); }

    const Divider& m_divider;
    std::function<bool()> m_inUse;
    QLabel* m_Label = nullptr;
    CustomComboBox1* m_ComboBox = nullptr;
};
