#include "pages/blocks/HighSpeedBlock.h"

#include "canvas/ZN64MCUPLL.h"
#include "canvas/appearance.h"
#include "pages/blocks/styles.h"
#include "pages/description/inputlimits.h"

HighSpeedBlock::HighSpeedBlock(ClockTree& tree) : ClockBlock(tree)
{
    addControls("New_hext", [this] { New_hext(); });
    addControls("New_hextbypass", [this] { New_hextbypass(); });
    addControls("New_hick", [this] { New_hick(); });
}

void HighSpeedBlock::New_hext()
{
    m_hext_Label1 = label(QStringLiteral("m_hext_Label1"));
    m_hext_lineEdit = boxEdit(QLatin1String(description().hextEdit));
    m_hext_lineEdit->setFont(QFont(QStringLiteral("Arial"), 10, 75));
    m_hext_lineEdit->setMaxLength(8);
    m_hext_lineEdit->setStyleSheet(styles::createdHext());
    m_hext_lineEdit->setValidator(inputlimits::frequencyValidator(tree().widget()));
    m_hext_In = label(QStringLiteral("m_hext_In"));
    m_hext_Out = label(QStringLiteral("m_hext_Out"));
    showPin(m_hext_In, true);
    showPin(m_hext_Out, true);
    addSetting(QStringLiteral("hext"), hextSetting());
}

Setting HighSpeedBlock::hextSetting()
{
    Setting setting;
    setting.text = [this] { return QString::number(model().Get_Hext_Input_Value(), 'f', 6); };
    setting.read = [this](const QString& text) {
        model().Set_Hext_Input_Value(text.toDouble());
        m_hext_lineEdit->setText(text);
    };
    setting.set = [this](double hext) {
        model().Set_Hext_Input_Value(hext);
        m_hext_lineEdit->setText(QString::number(hext));
    };
    setting.offers = inputlimits::hextInRange;
    return setting;
}

void HighSpeedBlock::New_hextbypass()
{
    m_hextbypass_Label = label(QStringLiteral("m_hextbypass_Label"));
    m_hextbypass_ComboBox = combo(QStringLiteral("m_hextbypass_ComboBox"), switchItems());
    addSetting(QStringLiteral("hextbypass"),
               settings::whole(
                   model(), MODEL_FIELD(Hext_Bypass_Value),
                   [this](double on) { m_hextbypass_ComboBox->setCurrentIndex(static_cast<int>(on)); },
                   settings::switched()));
}

void HighSpeedBlock::New_hick()
{
    m_hick_Label = label(QStringLiteral("m_hick_Label"));
    m_hick_lineEdit = boxEdit(QStringLiteral("m_hick_lineEdit"));
    m_hick_lineEdit->setReadOnly(true);
    m_hick_lineEdit->setStyleSheet(styles::plainBox());
}

void HighSpeedBlock::ControlsConnectSlots()
{
    connect(m_hext_lineEdit, SIGNAL(returnPressed()), this, SLOT(hext_LineEdit_returnPressed()));
    connect(m_hext_lineEdit, SIGNAL(textChanged(const QString&)), this,
            SLOT(hext_LineEdit_textChanged(const QString&)));
    connect(m_hextbypass_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(hextbypass_ComboBox_currentIndexChanged(int)));
}

void HighSpeedBlock::UI_Display()
{
    Show_hext(tree().hextInUse());
}

void HighSpeedBlock::Show_hext(bool on)
{
    tree().tellHextInUse(on);
    if (on)
        hext_LineEdit_textChanged(m_hext_lineEdit->text());
    else
        appearance::setSheet(m_hext_lineEdit, styles::disabledHext());
    m_hext_Label1->setEnabled(on);
    m_hext_lineEdit->setEnabled(on);
    m_hextbypass_Label->setEnabled(on);
    m_hextbypass_ComboBox->setEnabledStatus(on);
    showPin(m_hext_In, on);
    showPin(m_hext_Out, on && m_hextbypass_ComboBox->currentIndex() == 0);
}

bool HighSpeedBlock::Hext_Value_Valid(double& value)
{
    const double hext = typed();
    if (inputlimits::hextInRange(hext)) {
        value = hext;
        return true;
    }
    value = 0.0;
    if (!tree().takingDesign())
        tree().showError("hext input error!");
    return false;
}

void HighSpeedBlock::correct(double hext)
{
    model().Set_Hext_Input_Value(hext);
    m_hext_lineEdit->setText(frequencyText(hext));
    hext_LineEdit_returnPressed();
}

void HighSpeedBlock::hext_LineEdit_returnPressed()
{
    if (!tree().readHext())
        return;
    if (!tree().sclkFromPll() && tree().usbFromPll())
        tree().searchUsb();
    tree().UpdateCalculateResult();
    tree().UpdateRTCParam();
    appearance::setSheet(m_hext_lineEdit, styles::committed());
}

bool HighSpeedBlock::committed() const
{
    return QString::number(typed(), 'f', 5) == QString::number(model().Get_Hext_Input_Value(), 'f', 5);
}

void HighSpeedBlock::hext_LineEdit_textChanged(const QString& text)
{
    appearance::setSheet(m_hext_lineEdit, committed() ? styles::committed() : styles::pending());
    ZN64MCUPLL::SetLineEditColor(m_hext_lineEdit,
                                 inputlimits::hextInRange(text.toDouble()) ? Qt::black : Qt::red);
}

std::optional<Remarks> HighSpeedBlock::remarksOn(const QWidget* control) const
{
    if (control != m_hext_lineEdit)
        return {};
    Remarks remarks;
    remarks.lowest = inputlimits::hextMin;
    remarks.highest = inputlimits::hextMax;
    remarks.typed = typed();
    remarks.waits = !committed();
    return remarks;
}

void HighSpeedBlock::hextbypass_ComboBox_currentIndexChanged(int index)
{
    showPin(m_hext_Out, index == 0);
    model().Set_Hext_Bypass_Value(index != 0);
}
