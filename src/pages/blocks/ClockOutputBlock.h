#pragma once

#include "ClockBlock.h"
#include "pages/pagedescription.h"

/// One clock output: its pin, source, dividers, and the frequencies at the source and at the pin.
class ClockOutputBlock : public ClockBlock
{
    Q_OBJECT

public:
    ClockOutputBlock(ClockTreePage& page, const ClockOutputDescription& description);

    void ControlsConnectSlots() override;
    void UI_Display() override;
    void UpdateResultControls() override;
    bool usesPll() const override;
    bool usesHext() const override;

    bool pinSet() const { return m_pin->currentIndex() != 0; }

private slots:
    void clkout_RadioButton_checkSlot(bool on);
    void clockoutPinSelectComboBox_currentIndexChanged(int);
    void clockoutdiv_ComboBox_currentIndexChanged(int);

private:
    struct Row
    {
        ClockOutputRow source;
        QRadioButton* radio;
        QLabel* name;
        QLabel* value; ///< null for no clock
    };
    struct Divider
    {
        const ClockOutputDivider& description;
        QLabel* label;
        CustomComboBox1* combo;
    };
    /// A frequency at a source with its unit; nothing where it has none to show.
    struct Frequency
    {
        double value;
        const char* unit;
    };

    void New_clockoutpinselect();
    void New_clockout();
    void New_clockoutdiv(const ClockOutputDivider& divider);
    Row makeRow(const ClockOutputRow& source, QButtonGroup* group) const;
    QString member(const char* rest) const;
    const Row* checkedRow() const;
    bool sourceIsOff(OutputSource source) const;
    void fallBackFromOffSource();
    std::optional<Frequency> frequencyOf(OutputSource source) const;
    double hickFrequency() const;
    double divided(double frequency) const;

    const ClockOutputDescription& m_description;
    CustomComboBox1* m_pin = nullptr;
    QLabel* m_pinValue = nullptr;
    QLabel* m_title = nullptr;
    std::vector<Row> m_rows;
    std::vector<RadioChoice> m_choices;
    std::vector<Divider> m_dividers;
};
