#include "pages/blocks/FlexiblePllBlock.h"

#include "canvas/ZN64MCUPLL.h"
#include "canvas/appearance.h"
#include "model/divisors.h"
#include "model/seriestraits.h"
#include "pages/blocks/styles.h"
#include "pages/description/inputlimits.h"

namespace {
constexpr int editWidth = 60;
constexpr int editHeight = 25;
constexpr int registerWidth = 100;
constexpr int registerHeight = 20;
constexpr int droppedBy = 50; // pixels, while they are out of use
} // namespace

int FlexiblePllBlock::Parameter::typed() const
{
    QString text = edit->text();
    if (text.startsWith(sign))
        text.remove(0, 1);
    return text.toInt();
}

void FlexiblePllBlock::Parameter::write(int value) const
{
    appearance::setText(edit, sign + QString::number(value));
}

FlexiblePllBlock::FlexiblePllBlock(ClockTree& tree) : ClockBlock(tree)
{
    m_ms.sign = QLatin1Char('/');
    m_ms.lowest = divisors::pllMsMin;
    m_ms.highest = divisors::pllMsMax;
    m_ms.field = MODEL_FIELD(PLL_MS);
    m_ms.error = "pll_ms input error!";
    m_ns.sign = QLatin1Char('*');
    m_ns.lowest = divisors::pllNsMin;
    m_ns.highest = divisors::pllNsMax;
    m_ns.field = MODEL_FIELD(PLL_NS);
    m_ns.error = "pll_ns input error!";
    addControls("New_pll_ms", [this] { New_pll_ms(); });
    addControls("New_pll_ns", [this] { New_pll_ns(); });
    addControls("New_pll_CFG", [this] { New_pll_CFG(); });
}

void FlexiblePllBlock::New_pll_ms()
{
    makeParameter(m_ms, QStringLiteral("m_pllms"));
    m_ms.edit->setValidator(inputlimits::pllMsValidator(tree().widget()));
    addSetting(QStringLiteral("pllms"), parameterSetting(m_ms));
}

void FlexiblePllBlock::New_pll_ns()
{
    makeParameter(m_ns, QStringLiteral("m_pllns"));
    m_ns.edit->setValidator(inputlimits::pllNsValidator(tree().widget()));
    addSetting(QStringLiteral("pllns"), parameterSetting(m_ns));
}

void FlexiblePllBlock::makeParameter(Parameter& parameter, const QString& stem)
{
    parameter.name = label(stem + QLatin1String("_Label1"));
    parameter.edit = tree().placeEdit(stem + QLatin1String("_lineEdit"));
    parameter.edit->setFixedSize(editWidth, editHeight);
    parameter.edit->setStyleSheet(styles::createdPllEdit());
    parameter.range = label(stem + QLatin1String("_Label2"));
}

Setting FlexiblePllBlock::parameterSetting(const Parameter& parameter)
{
    Setting setting = settings::whole(
        model(), parameter.field, [&parameter](double value) { parameter.write(static_cast<int>(value)); },
        settings::unchecked());
    setting.offers = [&parameter](double value) { return parameter.inRange(static_cast<int>(value)); };
    setting.read = [this, &parameter](const QString& text) {
        const int value = text.toInt(nullptr, 10);
        const bool good = parameter.inRange(value);
        parameter.field.set(model(), good ? value : parameter.lowest);
        parameter.edit->setText(parameter.sign + (good ? text : QString::number(parameter.lowest)));
    };
    return setting;
}

void FlexiblePllBlock::New_pll_CFG()
{
    // The edit reaches below the end of the label: the label lies on top, and the digits keep to the right of
    // it.
    m_pllCFG_Value_lineEdit = tree().placeEdit(QStringLiteral("m_pllCFG_Value_lineEdit"));
    m_pllCFG_Value_lineEdit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_pllCFG_Value_lineEdit->setReadOnly(true);
    m_pllCFG_Value_lineEdit->setFixedSize(registerWidth, registerHeight);
    m_pllCFG_Value_lineEdit->setStyleSheet(styles::registerValue());
    m_pllCFG_Label = label(QStringLiteral("m_pllCFG_Label"));
}

void FlexiblePllBlock::ControlsConnectSlots()
{
    connect(m_ms.edit, SIGNAL(returnPressed()), this, SLOT(pllms_LineEdit_returnPressed()));
    connect(m_ms.edit, SIGNAL(textChanged(const QString&)), this,
            SLOT(pllms_LineEdit_textChanged(const QString&)));
    connect(m_ns.edit, SIGNAL(returnPressed()), this, SLOT(pllns_LineEdit_returnPressed()));
    connect(m_ns.edit, SIGNAL(textChanged(const QString&)), this,
            SLOT(pllns_LineEdit_textChanged(const QString&)));
}

void FlexiblePllBlock::UI_Display()
{
    const bool on = tree().pllInUse();
    show(m_ms, on);
    show(m_ns, on);
    m_pllCFG_Label->setEnabled(on);
    m_pllCFG_Value_lineEdit->setEnabled(on);
}

void FlexiblePllBlock::show(const Parameter& parameter, bool on)
{
    appearance::setSheet(parameter.edit, on ? styles::pllEdit() : styles::greyPllEdit());
    parameter.name->setEnabled(on);
    parameter.edit->setEnabled(on);
    parameter.range->setEnabled(on);
}

void FlexiblePllBlock::ShowPllMode(bool flexible)
{
    setHidden(m_ms, !flexible);
    setHidden(m_ns, !flexible);
    Set_pllCFG_Hidden(!flexible);
}

void FlexiblePllBlock::setHidden(const Parameter& parameter, bool hidden)
{
    parameter.name->setHidden(hidden);
    setHiddenAt(parameter.edit, hidden, droppedBy);
    parameter.range->setHidden(hidden);
}

void FlexiblePllBlock::Set_pllCFG_Hidden(bool hidden)
{
    m_pllCFG_Label->setHidden(hidden);
    m_pllCFG_Value_lineEdit->setHidden(hidden);
}

void FlexiblePllBlock::UpdateResultControls()
{
    appearance::setText(m_pllCFG_Value_lineEdit,
                        m_pllCFG_Label->isEnabled() ? model().Get_CRM_PLLCFG_Value() : QString());
}

void FlexiblePllBlock::Update_Flexible_Controls()
{
    for (const Parameter* each : {&m_ms, &m_ns}) {
        each->write(static_cast<int>(each->field.get(model())));
        showCommitted(*each);
    }
}

bool FlexiblePllBlock::takeTypedParameters()
{
    int ms = 0;
    return takeMs(ms) && takeNs(ms);
}

bool FlexiblePllBlock::takeMs(int& ms)
{
    ms = m_ms.typed();
    if (!m_ms.inRange(ms)) {
        tree().showError(m_ms.error);
        return false;
    }
    int corrected = 0;
    if (!model().PLL_MS_Valid_Check(ms, corrected)) {
        if (!tree().askToContinue(QMessageBox::Question,
                                  "pll_ms input error, is it adjusted automatically?\nThe following "
                                  "condition must be met: \n2MHz <= pll_input / pll_ms <= 16MHz"))
            return false;
        ms = corrected;
    }
    takeOver(m_ms, ms);
    return true;
}

bool FlexiblePllBlock::takeNs(int ms)
{
    int ns = m_ns.typed();
    if (!m_ns.inRange(ns)) {
        tree().showError(m_ns.error);
        return false;
    }
    int corrected = 0;
    if (!model().PLL_NS_Valid_Check(ns, ms, corrected)) {
        const bool wide = model().traits().vco_1200;
        if (!tree().askToContinue(QMessageBox::Question,
                                  wide ? "pll_ns input error, is it adjusted automatically?\n\nThe following "
                                         "condition must be met: \n500MHz <= pll_input * pll_ns / pll_ms <= "
                                         "1200MHz"
                                       : "pll_ns input error, is it adjusted automatically?\n\nThe following "
                                         "condition must be met: \n500MHz <= pll_input * pll_ns / pll_ms <= "
                                         "1000MHz"))
            return false;
        ns = corrected;
    }
    takeOver(m_ns, ns);
    return true;
}

void FlexiblePllBlock::takeOver(const Parameter& parameter, int value)
{
    // The model first: what the field shows is compared with it.
    parameter.field.set(model(), value);
    if (parameter.typed() != value)
        parameter.write(value);
    showCommitted(parameter);
}

void FlexiblePllBlock::showCommitted(const Parameter& parameter)
{
    // A text that is the same as the one typed tells nobody. All other looks than this one are of committed
    // values, and to exchange them would only cost time.
    if (parameter.edit->styleSheet() == styles::pendingPllEdit())
        paintTyped(parameter);
}

void FlexiblePllBlock::commit(const Parameter& parameter)
{
    if (!parameter.inRange(parameter.typed())) {
        tree().showError(parameter.error);
        return;
    }
    if (!tree().readHextForPll())
        return;
    tree().UpdateCalculateResult();
    paintTyped(parameter);
}

void FlexiblePllBlock::paintTyped(const Parameter& parameter)
{
    if (!parameter.edit->isEnabled())
        return;
    const QString text = parameter.edit->text();
    if (!text.startsWith(parameter.sign)) {
        // Setting the text raises the slot again, which then paints.
        parameter.edit->setText(parameter.sign + text);
        return;
    }
    appearance::setSheet(parameter.edit,
                         committed(parameter) ? styles::committedPllEdit() : styles::pendingPllEdit());
    ZN64MCUPLL::SetLineEditColor(parameter.edit, parameter.inRange(parameter.typed()) ? Qt::black : Qt::red);
}

std::optional<Remarks> FlexiblePllBlock::remarksOn(const QWidget* control) const
{
    for (const Parameter* each : {&m_ms, &m_ns})
        if (each->edit == control) {
            Remarks remarks;
            remarks.lowest = each->lowest;
            remarks.highest = each->highest;
            remarks.typed = each->typed();
            remarks.unit = "";
            remarks.waits = !committed(*each);
            return remarks;
        }
    return {};
}

bool FlexiblePllBlock::committed(const Parameter& parameter) const
{
    return parameter.typed() == static_cast<int>(parameter.field.get(model()));
}

void FlexiblePllBlock::pllms_LineEdit_returnPressed()
{
    commit(m_ms);
}

void FlexiblePllBlock::pllns_LineEdit_returnPressed()
{
    commit(m_ns);
}

void FlexiblePllBlock::pllms_LineEdit_textChanged(const QString&)
{
    paintTyped(m_ms);
}

void FlexiblePllBlock::pllns_LineEdit_textChanged(const QString&)
{
    paintTyped(m_ns);
}
