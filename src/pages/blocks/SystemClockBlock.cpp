#include "pages/blocks/SystemClockBlock.h"

#include "canvas/ZN64MCUPLL.h"
#include "canvas/appearance.h"
#include "pages/blocks/styles.h"
#include "pages/description/inputlimits.h"

#include <QRegExpValidator>

namespace {
constexpr int editWidth = 80;
constexpr int editHeight = 28;
/// The warnings show above it, MHz.
constexpr double warnedSysclk = 240.0;
} // namespace

SystemClockBlock::SystemClockBlock(ClockTree& tree) : ClockBlock(tree)
{
    addControls("New_sclkselect", [this] { New_sclkselect(); });
    addControls("New_Result", [this] { New_Result(); });
}

void SystemClockBlock::New_sclkselect()
{
    label(QStringLiteral("m_sclkselect_Label"));
    QButtonGroup* group = buttonGroup(QStringLiteral("m_sclkselect_ButtonGroup"));
    m_sclkselect_hext_RadioButton = radio(QStringLiteral("m_sclkselect_hext_RadioButton"), group);
    m_sclkselect_pll_RadioButton = radio(QStringLiteral("m_sclkselect_pll_RadioButton"), group);
    m_sclkselect_hick_RadioButton = radio(QStringLiteral("m_sclkselect_hick_RadioButton"), group);
    m_sclkselectChoices = {
        {SYSCLK_HEXT, m_sclkselect_hext_RadioButton},
        {SYSCLK_PLL,  m_sclkselect_pll_RadioButton },
        {SYSCLK_HICK, m_sclkselect_hick_RadioButton}
    };
    addSetting(QStringLiteral("sclkselect"),
               settings::whole(
                   model(), MODEL_FIELD(SYSCLKSelect),
                   [this](double value) {
                       checkValue(m_sclkselectChoices, value);
                       m_sclk_lineEdit->setEnabled(pllSelected());
                   },
                   settings::oneOf(valuesOf(m_sclkselectChoices), SYSCLK_HEXT)));
}

void SystemClockBlock::New_Result()
{
    label(QStringLiteral("m_sclk_Label"));
    m_sclk_lineEdit = tree().placeEdit(QStringLiteral("m_sclk_lineEdit"));
    m_sclk_lineEdit->setFont(QFont(QStringLiteral("Arial"), 10, 75));
    m_sclk_lineEdit->setFixedSize(editWidth, editHeight);
    m_sclk_lineEdit->setMaxLength(9);
    m_sclk_lineEdit->setStyleSheet(styles::createdSysclk());
    m_sclk_lineEdit->setValidator(inputlimits::frequencyValidator(tree().widget()));
    labelIfPlaced(QStringLiteral("m_sclkRange_Label"));
    if (!description().sclkWarnings())
        return;
    for (const char* name : {"m_sclkWarning1_QLabel", "m_sclkWarning2_QLabel", "m_sclkWarning3_QLabel"}) {
        QLabel* warning = label(QLatin1String(name));
        warning->setText(tree().translated(warning->text().toLatin1().constData()));
        warning->setVisible(false);
        m_warnings.push_back(warning);
    }
}

void SystemClockBlock::ControlsConnectSlots()
{
    connect(m_sclkselect_hext_RadioButton, SIGNAL(toggled(bool)), this,
            SLOT(sclkselecthext_RadioButton_checkSlot(bool)));
    connect(m_sclkselect_pll_RadioButton, SIGNAL(toggled(bool)), this,
            SLOT(sclkselectpll_RadioButton_checkSlot(bool)));
    connect(m_sclkselect_hick_RadioButton, SIGNAL(toggled(bool)), this,
            SLOT(sclkselecthick_RadioButton_checkSlot(bool)));
    connect(m_sclk_lineEdit, SIGNAL(returnPressed()), this, SLOT(sclk_LineEdit_returnPressed()));
    connect(m_sclk_lineEdit, SIGNAL(textChanged(const QString&)), this,
            SLOT(sclk_LineEdit_textChanged(const QString&)));
}

void SystemClockBlock::UpdateResultControls()
{
    const double sysclk = model().Get_SYSCLKValue();
    if (tree().takingDesign() || (m_solved && m_solved->reached != sysclk))
        m_solved.reset();
    ZN64MCUPLL::SetLineEditColor(m_sclk_lineEdit, outOfRange(ClockSource::Sclk) ? Qt::red : Qt::darkGreen);
    appearance::setText(m_sclk_lineEdit, frequencyText(sysclk));
    for (QLabel* warning : m_warnings)
        warning->setVisible(sysclk > warnedSysclk);
}

bool SystemClockBlock::inRange(double sysclk) const
{
    const TypedSclk& range = description().typedSclk;
    return sysclk <= range.highest && (!range.lowest || sysclk >= *range.lowest);
}

bool SystemClockBlock::Result_SYSCLK_Valid(double& value)
{
    const double sysclk = typed();
    if (tree().takingDesign() || inRange(sysclk)) {
        value = sysclk;
        return true;
    }
    value = 0.0;
    tree().showError("sclk input error!");
    return false;
}

std::optional<Remarks> SystemClockBlock::remarksOn(const QWidget* control) const
{
    if (control != m_sclk_lineEdit)
        return {};
    Remarks remarks = ClockBlock::remarksOn(ClockSource::Sclk);
    if (!pllSelected())
        return remarks;
    remarks.lowest = description().typedSclk.lowest;
    remarks.highest = description().typedSclk.highest;
    remarks.waits = !committed();
    remarks.typed = typed();
    if (m_solved)
        remarks.wanted = m_solved->wanted;
    return remarks;
}

bool SystemClockBlock::committed() const
{
    return frequencyText(typed()) == frequencyText(model().Get_SYSCLKValue());
}

void SystemClockBlock::disableEdit()
{
    m_sclk_lineEdit->setEnabled(false);
    appearance::setSheet(m_sclk_lineEdit,
                         description().sclkSolidFrame ? styles::solidDisabled() : styles::disabled());
}

void SystemClockBlock::sclkselecthick_RadioButton_checkSlot(bool)
{
    tree().UI_Display();
    if (hickSelected()) {
        model().Set_SYSCLKSelect(SYSCLK_HICK);
        disableEdit();
        tree().UpdateCalculateResult();
    }
    tree().UpdateParam_From_ResultCLK();
}

void SystemClockBlock::sclkselecthext_RadioButton_checkSlot(bool)
{
    tree().UI_Display();
    if (hextSelected()) {
        model().Set_SYSCLKSelect(SYSCLK_HEXT);
        disableEdit();
        if (!tree().readHext())
            return;
        tree().UpdateCalculateResult();
    }
    tree().UpdateParam_From_ResultCLK();
}

void SystemClockBlock::sclkselectpll_RadioButton_checkSlot(bool)
{
    tree().UI_Display();
    if (pllSelected()) {
        model().Set_SYSCLKSelect(SYSCLK_PLL);
        m_sclk_lineEdit->setEnabled(true);
        appearance::setSheet(m_sclk_lineEdit,
                             description().sclkSolidFrame ? styles::solidCommitted() : styles::committed());
        if (!tree().readHextForPll())
            return;
        tree().UpdateCalculateResult();
    }
    tree().UpdateParam_From_ResultCLK();
}

void SystemClockBlock::sclk_LineEdit_returnPressed()
{
    if (!pllSelected())
        return;
    double sysclk = 0.0;
    if (!Result_SYSCLK_Valid(sysclk))
        return;
    model().Set_SYSCLKValue(sysclk);
    if (!tree().readHextForPll())
        return;
    model().CalculateParam_From_SYSCLK();
    tree().updatePllControls();
    appearance::setSheet(m_sclk_lineEdit, styles::committedSysclk());
    tree().UpdateResultControls();
    m_solved = Solved{sysclk, model().Get_SYSCLKValue()};
}

void SystemClockBlock::sclk_LineEdit_textChanged(const QString& text)
{
    if (!committed())
        appearance::setSheet(m_sclk_lineEdit, styles::pending());
    else
        appearance::setSheet(m_sclk_lineEdit,
                             m_sclk_lineEdit->isEnabled() ? styles::committed() : styles::disabled());
    ZN64MCUPLL::SetLineEditColor(m_sclk_lineEdit, inRange(text.toDouble()) ? Qt::darkGreen : Qt::red);
}
