#pragma once

#include "pages/blocks/ClockBlock.h"

/// The choice between the PLL's normal mode, by a multiplier, and its flexible mode, by MS, NS and FR.
class PllModeBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit PllModeBlock(ClockTree& tree);

    void ControlsConnectSlots() override;
    void UI_Display() override;
    void ShowPllMode(bool flexible) override;

private slots:
    void pllmode_ComboBox_currentIndexChanged(int index);

private:
    void New_pll_mode();

    QLabel* m_pllmode_Label = nullptr;
    CustomComboBox1* m_pllmode_ComboBox = nullptr;
};
