#pragma once

#include "pages/blocks/ClockBlock.h"

/// The flexible PLL: MS, NS, and the register value that they make with the output divider.
class FlexiblePllBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit FlexiblePllBlock(ClockTree& tree);

    void ControlsConnectSlots() override;
    void UI_Display() override;
    void UpdateResultControls() override;
    std::optional<Remarks> remarksOn(const QWidget* control) const override;

    /// Shows the parameters that a solver found.
    void Update_Flexible_Controls() override;
    void ShowPllMode(bool flexible) override;
    /// Checks the typed MS and NS and takes them over. A value in range that breaks a limit of the PLL is
    /// corrected if the user agrees. False if a value stays bad.
    bool takeTypedParameters();

private slots:
    void pllms_LineEdit_returnPressed();
    void pllns_LineEdit_returnPressed();
    void pllms_LineEdit_textChanged(const QString&);
    void pllns_LineEdit_textChanged(const QString&);

private:
    /// One of the two typed parameters.
    struct Parameter
    {
        QLineEdit* edit = nullptr;
        QLabel* name = nullptr;
        QLabel* range = nullptr;
        QChar sign; ///< stands before the number
        int lowest = 0;
        int highest = 0;
        ModelField field;
        const char* error = nullptr;

        int typed() const;
        bool inRange(int value) const { return value >= lowest && value <= highest; }
        void write(int value) const;
    };

    void New_pll_ms();
    void New_pll_ns();
    void New_pll_CFG();
    void makeParameter(Parameter& parameter, const QString& stem);
    Setting parameterSetting(const Parameter& parameter);
    void show(const Parameter& parameter, bool on);
    void setHidden(const Parameter& parameter, bool hidden);
    void Set_pllCFG_Hidden(bool hidden);
    void commit(const Parameter& parameter);
    void paintTyped(const Parameter& parameter);
    /// Whether the typed value is the design's.
    bool committed(const Parameter& parameter) const;
    /// Puts a good value into the model, and the field shows it as committed.
    void takeOver(const Parameter& parameter, int value);
    /// Takes the look of a pending value from a field whose value the model now has.
    void showCommitted(const Parameter& parameter);
    bool takeMs(int& ms);
    bool takeNs(int ms);

    Parameter m_ms;
    Parameter m_ns;
    QLabel* m_pllCFG_Label = nullptr;
    QLineEdit* m_pllCFG_Value_lineEdit = nullptr;
};
