#pragma once

#include "pages/blocks/ClockBlock.h"

/// lick, lext and the RTC: selector, switch, and the outputs to the watchdog and the RTC.
class LowSpeedBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit LowSpeedBlock(ClockTree& tree);

    void ControlsConnectSlots() override;
    void UI_Display() override;

    bool rtcOn() const { return m_tortc_ComboBox->currentIndex() != 0; }
    bool lextSelected() const { return m_rtcsel_lext_RadioButton->isChecked(); }
    bool hextSelected() const { return m_rtcsel_hext_RadioButton->isChecked(); }
    void UpdateRTCParam();

private slots:
    void rtcsel_RadioButton_checkSlot(bool);
    void rtcswitch_ComboBox_currentIndexChanged(int index);
    void lextbypass_ComboBox_currentIndexChanged(int index);

private:
    void New_lick();
    void New_towdt();
    void New_tortc();
    void New_lext();
    void New_lextbypass();
    void New_rtcsel();
    void Show_lext(bool on);
    void Show_rtc(bool on);

    QLineEdit* m_lick_lineEdit = nullptr;
    QLineEdit* m_towdt_lineEdit = nullptr;
    CustomComboBox1* m_tortc_ComboBox = nullptr;
    QLineEdit* m_tortc_lineEdit = nullptr;
    QLabel* m_tortc_Label = nullptr;
    QLabel* m_lext_Label1 = nullptr;
    QLineEdit* m_lext_lineEdit = nullptr;
    QLabel* m_lextbypass_Label = nullptr;
    CustomComboBox1* m_lextbypass_ComboBox = nullptr;
    QLabel* m_lext_In = nullptr;
    QLabel* m_lext_Out = nullptr;
    QLabel* m_rtcsel_Label = nullptr;
    QRadioButton* m_rtcsel_lick_RadioButton = nullptr;
    QRadioButton* m_rtcsel_lext_RadioButton = nullptr;
    QRadioButton* m_rtcsel_hext_RadioButton = nullptr;
    std::vector<RadioChoice> m_rtcselChoices;
};
