#include "BusesBlock.h"

#include "canvas/appearance.h"
#include "model/divisors.h"
#include "pages/ClockTreePage.h"

namespace {

const std::vector<double>& ahbDivisors()
{
    static const std::vector<double> list = listOf(divisors::ahb);
    return list;
}

const std::vector<double>& apbDivisors()
{
    static const std::vector<double> list = listOf(divisors::apb);
    return list;
}

QString multiplierText(int multiplier)
{
    return QStringLiteral("* %1").arg(multiplier);
}

} // namespace

BusesBlock::BusesBlock(ClockTreePage& page) : ClockBlock(page)
{
    addControls("New_ahbdiv", [this] { New_ahbdiv(); });
    addControls("New_apb1div", [this] { New_apb1div(); });
    addControls("New_apb2div", [this] { New_apb2div(); });
    addControls("New_totmrmultiply", [this] { New_totmrmultiply(); });
}

CustomComboBox1* BusesBlock::makeDivider(const char* setting, ModelField field,
                                         const std::vector<double>& divisors)
{
    const QString stem = QLatin1String("m_") + QLatin1String(setting);
    label(stem + QLatin1String("_Label"));
    labelIfPlaced(stem + QLatin1String("Max_Label"));
    CustomComboBox1* box = combo(stem + QLatin1String("_ComboBox"), divisorItems(divisors));
    addSetting(setting,
               settings::whole(
                   model(), field,
                   [box, &divisors](double divisor) { box->setCurrentIndex(indexIn(divisors, divisor)); },
                   settings::oneOf(divisors, divisors.front())));
    return box;
}

void BusesBlock::New_ahbdiv()
{
    m_ahbdiv_ComboBox = makeDivider("ahbdiv", MODEL_FIELD(AHBDIV), ahbDivisors());
}

void BusesBlock::New_apb1div()
{
    m_apb1div_ComboBox = makeDivider("apb1div", MODEL_FIELD(APB1DIV), apbDivisors());
}

void BusesBlock::New_apb2div()
{
    m_apb2div_ComboBox = makeDivider("apb2div", MODEL_FIELD(APB2DIV), apbDivisors());
}

void BusesBlock::New_totmrmultiply()
{
    m_tosystick_div = multiplierEdit(QStringLiteral("m_tosystick_div"));
    m_toapb1tmr_mul = multiplierEdit(QStringLiteral("m_toapb1tmr_mul"));
    m_toapb2tmr_mul = multiplierEdit(QStringLiteral("m_toapb2tmr_mul"));
    // Not in design files: the multipliers follow from the dividers. The reset starts them at 1.
    Setting setting;
    setting.set = [this](double multiplier) {
        m_tosystick_div->setText(QStringLiteral("/ 8"));
        m_toapb1tmr_mul->setText(multiplierText(static_cast<int>(multiplier)));
        m_toapb2tmr_mul->setText(multiplierText(static_cast<int>(multiplier)));
        model().Set_APB1TMR_MUL(static_cast<int>(multiplier));
        model().Set_APB2TMR_MUL(static_cast<int>(multiplier));
    };
    addSetting("tmrmultiply", setting);
}

void BusesBlock::ControlsConnectSlots()
{
    connect(m_ahbdiv_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(ahbdiv_ComboBox_currentIndexChanged(int)));
    connect(m_apb1div_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(apb1div_ComboBox_currentIndexChanged(int)));
    connect(m_apb2div_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(apb2div_ComboBox_currentIndexChanged(int)));
}

void BusesBlock::UpdateAPBControls()
{
    m_apb1div_ComboBox->setCurrentIndex(indexIn(apbDivisors(), model().Get_APB1DIV()));
    m_apb2div_ComboBox->setCurrentIndex(indexIn(apbDivisors(), model().Get_APB2DIV()));
    appearance::setText(m_toapb1tmr_mul, multiplierText(model().Get_APB1TMR_MUL()));
    appearance::setText(m_toapb2tmr_mul, multiplierText(model().Get_APB2TMR_MUL()));
}

void BusesBlock::ahbdiv_ComboBox_currentIndexChanged(int)
{
    model().Set_AHBDIV(static_cast<int>(valueAt(ahbDivisors(), m_ahbdiv_ComboBox->currentIndex())));
    page().UpdateCalculateResult();
}

void BusesBlock::apb1div_ComboBox_currentIndexChanged(int)
{
    model().Set_APB1DIV(static_cast<int>(valueAt(apbDivisors(), m_apb1div_ComboBox->currentIndex())));
    page().UpdateCalculateResult();
}

void BusesBlock::apb2div_ComboBox_currentIndexChanged(int)
{
    model().Set_APB2DIV(static_cast<int>(valueAt(apbDivisors(), m_apb2div_ComboBox->currentIndex())));
    page().UpdateCalculateResult();
}
