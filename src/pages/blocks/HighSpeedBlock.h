#pragma once

#include "pages/blocks/ClockBlock.h"

/// hext with its typed frequency and bypass, and hick.
class HighSpeedBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit HighSpeedBlock(ClockTree& tree);

    void ControlsConnectSlots() override;
    void UI_Display() override;
    std::optional<Remarks> remarksOn(const QWidget* control) const override;

    /// Parses the typed hext. Out of 4 to 25 MHz: value 0 and false after the error box. While a design file
    /// is read every number passes.
    bool Hext_Value_Valid(double& value);
    /// The typed hext, MHz; 0 for a text that is no number.
    double typed() const { return m_hext_lineEdit->text().toDouble(); }
    /// Writes a corrected hext, MHz, into the model and the edit, and commits it.
    void correct(double hext);

public slots:
    void hext_LineEdit_returnPressed();

private slots:
    void hext_LineEdit_textChanged(const QString& text);
    void hextbypass_ComboBox_currentIndexChanged(int index);

private:
    void New_hext();
    void New_hextbypass();
    void New_hick();
    Setting hextSetting();
    void Show_hext(bool on);
    /// Whether the typed hext is the design's.
    bool committed() const;

    QLabel* m_hext_Label1 = nullptr;
    QLineEdit* m_hext_lineEdit = nullptr;
    QLabel* m_hextbypass_Label = nullptr;
    CustomComboBox1* m_hextbypass_ComboBox = nullptr;
    QLabel* m_hext_In = nullptr;
    QLabel* m_hext_Out = nullptr;
    QLabel* m_hick_Label = nullptr;
    QLineEdit* m_hick_lineEdit = nullptr;
};
