#pragma once

#include "ClockBlock.h"

/// AHB and the APB buses with their dividers, the timers' multipliers and the fixed divider of systick.
class BusesBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit BusesBlock(ClockTreePage& page);

    void ControlsConnectSlots() override;
    void UpdateResultControls() override { UpdateAPBControls(); }

    /// Shows the dividers, which the model may have raised, and the multipliers that follow from them.
    void UpdateAPBControls();

private slots:
    void ahbdiv_ComboBox_currentIndexChanged(int);
    void apb1div_ComboBox_currentIndexChanged(int);
    void apb2div_ComboBox_currentIndexChanged(int);

private:
    void New_ahbdiv();
    void New_apb1div();
    void New_apb2div();
    void New_totmrmultiply();
    CustomComboBox1* makeDivider(const char* setting, ModelField field, const std::vector<double>& divisors);

    CustomComboBox1* m_ahbdiv_ComboBox = nullptr;
    CustomComboBox1* m_apb1div_ComboBox = nullptr;
    CustomComboBox1* m_apb2div_ComboBox = nullptr;
    QLineEdit* m_tosystick_div = nullptr;
    QLineEdit* m_toapb1tmr_mul = nullptr;
    QLineEdit* m_toapb2tmr_mul = nullptr;
};
