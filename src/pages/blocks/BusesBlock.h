#pragma once

#include "pages/blocks/ClockBlock.h"

/// The timers' multipliers and the fixed divider of systick.
class BusesBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit BusesBlock(ClockTree& tree);

    void UpdateResultControls() override;

private:
    void New_totmrmultiply();

    QLineEdit* m_tosystick_div = nullptr;
    QLineEdit* m_toapb1tmr_mul = nullptr;
    QLineEdit* m_toapb2tmr_mul = nullptr;
};
