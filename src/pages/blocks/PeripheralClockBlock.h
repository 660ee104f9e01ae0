#pragma once

#include "pages/blocks/ClockBlock.h"

/// A peripheral's clock: its switch, its sources, and the result with its unit.
class PeripheralClockBlock : public ClockBlock
{
    Q_OBJECT

public:
    PeripheralClockBlock(ClockTree& tree, const PeripheralClock& clock);

    void ControlsConnectSlots() override;
    void UI_Display() override;
    void UpdateResultControls() override;
    std::optional<Remarks> remarksOn(const QWidget* control) const override;
    bool usesPllU() const override;

private slots:
    void clocksel_RadioButton_checkSlot(bool on);
    void switch_ComboBox_currentIndexChanged(int index);

private:
    void New_clocksel();
    Setting sourceSetting();
    void readSource(int number);
    bool on() const { return m_switch->currentIndex() != 0; }
    bool isWritten() const;
    const PeripheralSource& checkedSource() const;

    const PeripheralClock& m_clock;
    QLabel* m_title = nullptr;
    CustomComboBox1* m_switch = nullptr;
    QLineEdit* m_result = nullptr;
    QLabel* m_unit = nullptr;
    std::vector<QLabel*> m_names;
    std::vector<QRadioButton*> m_radios;
    std::vector<RadioChoice> m_choices;
};
