#pragma once

#include "pages/blocks/ClockBlock.h"

/// The multiplier of the PLL's normal mode.
class PllMultiplierBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit PllMultiplierBlock(ClockTree& tree);

    void ControlsConnectSlots() override;
    void UI_Display() override;

    /// Shows the multiplier that a solver found.
    void Update_Normal_Controls() override;
    void ShowPllMode(bool flexible) override { Set_pllmult_Hidden(flexible); }

private slots:
    void pllmult_ComboBox_currentIndexChanged(int);

private:
    void New_pll_mult();
    void Set_pllmult_Hidden(bool hidden);
    Setting multiplierSetting();

    QLabel* m_pllmult_Label = nullptr;
    CustomComboBox1* m_pllmult_ComboBox = nullptr;
};
