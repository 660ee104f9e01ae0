#include "pages/blocks/PllSourceBlock.h"

#include "pages/description/inputlimits.h"

#include <QScopedValueRollback>

PllSourceBlock::PllSourceBlock(ClockTree& tree) : ClockBlock(tree)
{
    if (description().pllHextDivider())
        addControls("New_pllhextdiv", [this] { New_pllhextdiv(); });
    addControls("New_pllrcs", [this] { New_pllrcs(); });
}

void PllSourceBlock::New_pllhextdiv()
{
    m_pllhextdiv_Label = label(QStringLiteral("m_pllhextdiv_Label"));
    QButtonGroup* group = buttonGroup(QStringLiteral("m_pllhextdiv_ButtonGroup"));
    m_pllhext_nodiv_RadioButton = radio(QStringLiteral("m_pllhext_nodiv_RadioButton"), group);
    m_pllhext_div_RadioButton = radio(QStringLiteral("m_pllhext_div_RadioButton"), group);
    m_pllhext_nodiv_RadioButton->setChecked(true);
    m_pllhextdivChoices = {
        {PLLHEXT_NODIV, m_pllhext_nodiv_RadioButton},
        {PLLHEXT_DIV,   m_pllhext_div_RadioButton  }
    };
    addSetting(QStringLiteral("pllhextdiv"),
               settings::radios(model(), MODEL_FIELD(PLLHEXTDIV), m_pllhextdivChoices, settings::switched()));
}

void PllSourceBlock::New_pllrcs()
{
    m_pllrc_Label = label(QStringLiteral("m_pllrc_Label"));
    QButtonGroup* group = buttonGroup(QStringLiteral("m_pllrc_ButtonGroup"));
    m_pllrcs_hext_RadioButton = radio(QStringLiteral("m_pllrcs_hext_RadioButton"), group);
    m_pllrcs_hick_RadioButton = radio(QStringLiteral("m_pllrcs_hick_RadioButton"), group);
    m_pllrcs_hext_RadioButton->setChecked(true);
    m_pllrcsChoices = {
        {PLLRC_HEXT, m_pllrcs_hext_RadioButton},
        {PLLRC_HICK, m_pllrcs_hick_RadioButton}
    };
    addSetting(QStringLiteral("pllrcs"),
               settings::radios(model(), MODEL_FIELD(PLLRC), m_pllrcsChoices, settings::switched()));
}

void PllSourceBlock::ControlsConnectSlots()
{
    for (const RadioChoice& choice : m_pllhextdivChoices)
        connect(choice.radio, SIGNAL(clicked(bool)), this, SLOT(pllhextdiv_RadioButton_checkSlot(bool)));
    for (const RadioChoice& choice : m_pllrcsChoices)
        connect(choice.radio, SIGNAL(clicked(bool)), this, SLOT(pllrcs_RadioButton_checkSlot(bool)));
}

void PllSourceBlock::UI_Display()
{
    const bool on = tree().pllInUse();
    m_pllrc_Label->setEnabled(on);
    showRadios({m_pllrcs_hext_RadioButton, m_pllrcs_hick_RadioButton}, on);
    if (m_pllhextdiv_Label) {
        m_pllhextdiv_Label->setEnabled(on && hextSelected());
        showRadios({m_pllhext_nodiv_RadioButton, m_pllhext_div_RadioButton}, on && hextSelected());
    }
}

bool PllSourceBlock::PLLInputSourceClockCheck()
{
    if (tree().takingDesign() || !model().pll_isEnable() || !hextSelected())
        return true;
    const double input = model().GetPllInPutValue();
    if (input >= inputlimits::pllInputMin && input <= inputlimits::pllInputMax)
        return true;
    if (m_correcting)
        qFatal("a corrected hext gives the PLL an input of %g MHz", input);
    const QScopedValueRollback<bool> correcting(m_correcting, true);
    tree().showError("pll input clock source range 2-16MHz!");
    // Too high: 16 whatever divider is chosen, for the undivided limit is good with any of them.
    tree().correctHext(input < inputlimits::pllInputMin ? 2 * model().Get_HEXT_DIV()
                                                        : inputlimits::pllInputMax);
    return false;
}

void PllSourceBlock::pllhextdiv_RadioButton_checkSlot(bool)
{
    tree().UI_Display();
    model().Set_PLLHEXTDIV(checkedValue(m_pllhextdivChoices));
    if (tree().readHextForPll())
        tree().keepTypedSysclk();
}

void PllSourceBlock::pllrcs_RadioButton_checkSlot(bool)
{
    tree().UI_Display();
    model().Set_PLLRC(checkedValue(m_pllrcsChoices));
    if (tree().readHextForPll())
        tree().keepTypedSysclk();
}
