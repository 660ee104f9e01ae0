#pragma once

#include "pages/blocks/ClockBlock.h"

/// The ADC clock behind its divider of APB2: switch and output.
class AdcBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit AdcBlock(ClockTree& tree);

    void ControlsConnectSlots() override;
    void UI_Display() override;
    void UpdateResultControls() override;
    std::optional<Remarks> remarksOn(const QWidget* control) const override;

    bool on() const { return m_toadcswitch_ComboBox->currentIndex() != 0; }

private slots:
    void toadcswitch_ComboBox_currentIndexChanged(int index);

private:
    void New_totadc();
    void paintOutput();

    CustomComboBox1* m_toadcswitch_ComboBox = nullptr;
    QLabel* m_toadc_Label = nullptr;
    QLineEdit* m_toadc_lineEdit = nullptr;
};
