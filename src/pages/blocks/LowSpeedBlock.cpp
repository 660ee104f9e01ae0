#include "pages/blocks/LowSpeedBlock.h"

#include "canvas/ZN64MCUPLL.h"
#include "canvas/appearance.h"
#include "pages/blocks/styles.h"
#include "pages/description/arithmetic.h"

namespace {
const QString off = QStringLiteral("0");
} // namespace

LowSpeedBlock::LowSpeedBlock(ClockTree& tree) : ClockBlock(tree)
{
    addControls("New_lick", [this] { New_lick(); });
    addControls("New_towdt", [this] { New_towdt(); });
    addControls("New_tortc", [this] { New_tortc(); });
    addControls("New_lext", [this] { New_lext(); });
    addControls("New_lextbypass", [this] { New_lextbypass(); });
    addControls("New_rtcsel", [this] { New_rtcsel(); });
}

void LowSpeedBlock::New_lick()
{
    label(QStringLiteral("m_lick_Label"));
    m_lick_lineEdit = boxEdit(QStringLiteral("m_lick_lineEdit"));
    m_lick_lineEdit->setReadOnly(true);
    m_lick_lineEdit->setStyleSheet(styles::plainBox());
}

void LowSpeedBlock::New_towdt()
{
    m_towdt_lineEdit = outputEdit(QStringLiteral("m_towdt_lineEdit"));
    m_towdt_lineEdit->setText(m_lick_lineEdit->text());
    ZN64MCUPLL::SetLineEditColor(m_towdt_lineEdit, Qt::darkGreen);
}

void LowSpeedBlock::New_tortc()
{
    m_tortc_ComboBox = combo(QStringLiteral("m_tortc_ComboBox"), switchItems());
    m_tortc_ComboBox->setOffItem(0);
    m_tortc_lineEdit = outputEdit(QStringLiteral("m_tortc_lineEdit"));
    m_tortc_lineEdit->setText(m_lick_lineEdit->text());
    m_tortc_Label = label(QStringLiteral("m_tortc_Label"));
    addSetting(QStringLiteral("rtcswitch"),
               settings::whole(
                   model(), MODEL_FIELD(ToRTC_Switch),
                   [this](double on) { m_tortc_ComboBox->setCurrentIndex(static_cast<int>(on)); },
                   settings::switched()));
}

void LowSpeedBlock::New_lext()
{
    m_lext_Label1 = label(QStringLiteral("m_lext_Label1"));
    m_lext_lineEdit = boxEdit(QStringLiteral("m_lext_lineEdit"));
    m_lext_lineEdit->setReadOnly(true);
    m_lext_lineEdit->setStyleSheet(styles::plainBox());
    m_lext_In = label(QStringLiteral("m_lext_In"));
    m_lext_Out = label(QStringLiteral("m_lext_Out"));
    showPin(m_lext_In, true);
    showPin(m_lext_Out, true);
}

void LowSpeedBlock::New_lextbypass()
{
    m_lextbypass_Label = label(QStringLiteral("m_lextbypass_Label"));
    m_lextbypass_ComboBox = combo(QStringLiteral("m_lextbypass_ComboBox"), switchItems());
    addSetting(QStringLiteral("lextbypass"),
               settings::whole(
                   model(), MODEL_FIELD(Lext_Bypass_Value),
                   [this](double on) { m_lextbypass_ComboBox->setCurrentIndex(static_cast<int>(on)); },
                   settings::switched()));
}

void LowSpeedBlock::New_rtcsel()
{
    m_rtcsel_Label = label(QStringLiteral("m_rtcsel_Label"));
    QButtonGroup* group = buttonGroup(QStringLiteral("m_rtcsel_ButtonGroup"));
    m_rtcsel_lick_RadioButton = radio(QStringLiteral("m_rtcsel_lick_RadioButton"), group);
    m_rtcsel_lext_RadioButton = radio(QStringLiteral("m_rtcsel_lext_RadioButton"), group);
    m_rtcsel_hext_RadioButton = radio(QStringLiteral("m_rtcsel_hext_RadioButton"), group);
    m_rtcsel_lick_RadioButton->setChecked(true);
    m_rtcselChoices = {
        {RTCSEL_LICK, m_rtcsel_lick_RadioButton},
        {RTCSEL_LEXT, m_rtcsel_lext_RadioButton},
        {RTCSEL_HEXT, m_rtcsel_hext_RadioButton}
    };
    addSetting(QStringLiteral("rtcsel"),
               settings::radios(model(), MODEL_FIELD(RTCSEL), m_rtcselChoices,
                                settings::oneOf(valuesOf(m_rtcselChoices), RTCSEL_LICK)));
}

void LowSpeedBlock::ControlsConnectSlots()
{
    for (const RadioChoice& choice : m_rtcselChoices)
        connect(choice.radio, SIGNAL(clicked(bool)), this, SLOT(rtcsel_RadioButton_checkSlot(bool)));
    connect(m_tortc_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(rtcswitch_ComboBox_currentIndexChanged(int)));
    connect(m_lextbypass_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(lextbypass_ComboBox_currentIndexChanged(int)));
}

void LowSpeedBlock::UI_Display()
{
    Show_lext(rtcOn() && lextSelected());
    Show_rtc(rtcOn());
}

void LowSpeedBlock::Show_lext(bool on)
{
    appearance::setSheet(m_lext_lineEdit, on ? styles::plainBox() : styles::greyLextBox());
    m_lext_Label1->setEnabled(on);
    m_lext_lineEdit->setEnabled(on);
    m_lextbypass_Label->setEnabled(on);
    m_lextbypass_ComboBox->setEnabledStatus(on);
    showPin(m_lext_In, on);
    showPin(m_lext_Out, on && m_lextbypass_ComboBox->currentIndex() == 0);
}

void LowSpeedBlock::Show_rtc(bool on)
{
    m_rtcsel_Label->setEnabled(on);
    showRadios({m_rtcsel_lick_RadioButton, m_rtcsel_lext_RadioButton, m_rtcsel_hext_RadioButton}, on);
    m_tortc_Label->setEnabled(on);
    m_tortc_lineEdit->setEnabled(on);
    ZN64MCUPLL::SetLineEditColor(m_tortc_lineEdit, on ? Qt::darkGreen : Qt::gray);
}

void LowSpeedBlock::UpdateRTCParam()
{
    if (!rtcOn()) {
        appearance::setText(m_tortc_lineEdit, off);
    } else if (lextSelected()) {
        appearance::setText(m_tortc_lineEdit, m_lext_lineEdit->text());
    } else if (hextSelected()) {
        double hext = 0.0;
        const bool valid = tree().Hext_Value_Valid(hext);
        appearance::setText(m_tortc_lineEdit,
                            valid ? frequencyText(arithmetic::rtcFromHext(description(), model(), hext))
                                  : off);
    } else {
        appearance::setText(m_tortc_lineEdit, m_lick_lineEdit->text());
    }
}

void LowSpeedBlock::rtcsel_RadioButton_checkSlot(bool)
{
    tree().UI_Display();
    model().Set_RTCSEL(static_cast<RTCSEL>(checkedValue(m_rtcselChoices)));
    if (hextSelected())
        tree().hext_LineEdit_returnPressed();
    UpdateRTCParam();
}

void LowSpeedBlock::rtcswitch_ComboBox_currentIndexChanged(int index)
{
    tree().UI_Display();
    model().Set_ToRTC_Switch(index != 0);
    if (index != 0 && hextSelected())
        tree().hext_LineEdit_returnPressed();
    UpdateRTCParam();
}

void LowSpeedBlock::lextbypass_ComboBox_currentIndexChanged(int index)
{
    showPin(m_lext_Out, index == 0);
    model().Set_Lext_Bypass_Value(index != 0);
}
