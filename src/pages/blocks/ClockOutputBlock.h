#pragma once

#include "pages/blocks/ClockBlock.h"

/// One clock output: its pin, its source, and the frequencies at the source and at the pin.
class ClockOutputBlock : public ClockBlock
{
    Q_OBJECT

public:
    ClockOutputBlock(ClockTree& tree, const ClockOutput& output);

    void ControlsConnectSlots() override;
    void UI_Display() override;
    void UpdateResultControls() override;
    bool usesPll() const override;
    bool usesHext() const override;

    bool pinSet() const { return m_pin->currentIndex() != 0; }

private slots:
    void clkout_RadioButton_checkSlot(bool on);
    void clockoutPinSelectComboBox_currentIndexChanged(int index);

private:
    struct Row
    {
        const ClockOutputRow& source;
        QRadioButton* radio;
        QLabel* name;
        QLabel* value; ///< null for no clock
    };

    void New_clockoutpinselect();
    void New_clockout();
    Row makeRow(const ClockOutputRow& source, QButtonGroup* group) const;
    void showPinOf(int number);
    const Row* checkedRow() const;
    bool isOff(const ClockOutputRow& source) const;
    void fallBackFromOffSource();
    std::optional<ClockReading> reading(ClockSource source) const;

    const ClockOutput& m_output;
    CustomComboBox1* m_pin = nullptr;
    QLabel* m_pinValue = nullptr;
    QLabel* m_title = nullptr;
    std::vector<Row> m_rows;
    std::vector<RadioChoice> m_choices;
};
