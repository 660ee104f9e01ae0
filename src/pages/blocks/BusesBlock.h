#pragma once

#include "pages/blocks/ClockBlock.h"

/// The timers' multipliers, on some series fixed steps before them, and the fixed divider of systick.
class BusesBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit BusesBlock(ClockTree& tree);

    void UpdateResultControls() override;

private:
    void New_totmrmultiply();
    void New_totmrdivide();

    QLineEdit* m_tosystick_div = nullptr;
    QLineEdit* m_toapb1tmr_mul = nullptr;
    QLineEdit* m_toapb2tmr_mul = nullptr;
};
