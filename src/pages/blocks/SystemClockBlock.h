#pragma once

#include "pages/blocks/ClockBlock.h"

/// The system clock: its selector, the edit that shows the result and takes a wanted value, and the warnings.
class SystemClockBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit SystemClockBlock(ClockTree& tree);

    void ControlsConnectSlots() override;
    void UpdateResultControls() override;
    std::optional<Remarks> remarksOn(const QWidget* control) const override;
    bool usesHext() const override { return hextSelected(); }

    bool hextSelected() const { return m_sclkselect_hext_RadioButton->isChecked(); }
    bool pllSelected() const { return m_sclkselect_pll_RadioButton->isChecked(); }
    bool hickSelected() const { return m_sclkselect_hick_RadioButton->isChecked(); }

    /// Parses the typed clock. Out of the series' range: value 0 and false after the error box. While a
    /// design file is read every number passes.
    bool Result_SYSCLK_Valid(double& value);
    /// The typed clock, MHz, and whether it lies in the series' range.
    double typed() const { return m_sclk_lineEdit->text().toDouble(); }
    bool inRange(double sysclk) const;

private slots:
    void sclkselecthext_RadioButton_checkSlot(bool);
    void sclkselectpll_RadioButton_checkSlot(bool);
    void sclkselecthick_RadioButton_checkSlot(bool);
    void sclk_LineEdit_returnPressed();
    void sclk_LineEdit_textChanged(const QString& text);

private:
    void New_sclkselect();
    void New_Result();
    void disableEdit();
    /// Whether the typed clock is the one that the design has.
    bool committed() const;

    /// What was typed last, MHz, and what the solver came to.
    struct Solved
    {
        double wanted;
        double reached;
    };

    QRadioButton* m_sclkselect_hext_RadioButton = nullptr;
    QRadioButton* m_sclkselect_pll_RadioButton = nullptr;
    QRadioButton* m_sclkselect_hick_RadioButton = nullptr;
    std::vector<RadioChoice> m_sclkselectChoices;
    QLineEdit* m_sclk_lineEdit = nullptr;
    std::vector<QLabel*> m_warnings;
    std::optional<Solved> m_solved;
};
