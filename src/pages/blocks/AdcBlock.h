#pragma once

#include "ClockBlock.h"

/// The ADC clock: divider of APB2, switch and output.
class AdcBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit AdcBlock(ClockTreePage& page);

    void ControlsConnectSlots() override;
    void UI_Display() override;
    void UpdateResultControls() override;

    bool on() const { return m_toadcswitch_ComboBox->currentIndex() != 0; }

private slots:
    void toadcswitch_ComboBox_currentIndexChanged(int index);
    void toadcdiv_ComboBox_currentIndexChanged(int index);

private:
    void New_totadc();

    QLabel* m_toadcdiv_Label = nullptr;
    CustomComboBox1* m_toadcdiv_ComboBox = nullptr;
    CustomComboBox1* m_toadcswitch_ComboBox = nullptr;
    QLabel* m_toadc_Label = nullptr;
    QLineEdit* m_toadc_lineEdit = nullptr;
};
