#include "pages/ClockTreePage.h"

#include "canvas/appearance.h"
#include "model/seriestraits.h"
#include "pages/blocks/FlexiblePllBlock.h"
#include "pages/blocks/LowSpeedBlock.h"
#include "pages/blocks/OutputsBlock.h"
#include "pages/blocks/PllSourceBlock.h"
#include "pages/layout/spokennames.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>

ClockTreePage::ClockTreePage(const PageDescription& description, QWidget* parent)
    : ZN64MCUPLL(description.series, QLatin1String(":/image/") + description.pictureName(), parent),
      m_description(description)
{
}

// The blocks go before the controls that they point to.
ClockTreePage::~ClockTreePage()
{
    m_blocks.clear();
}

void ClockTreePage::build()
{
    createBlocks();
    NewAllControl();
    orderSettings();
    speak();
    InitAllControl();
    ControlsConnectSlots();
}

void ClockTreePage::InitAllControl()
{
    const QScopedValueRollback<bool> taking(m_takingDesign, true);
    setFieldsWithoutControl();
    for (const SettingRow& row : m_startOrder)
        m_settings[row.name].set(row.start);
    UI_Display();
    UpdateCalculateResult();
}

void ClockTreePage::ControlsConnectSlots()
{
    for (const auto& block : m_blocks)
        block->ControlsConnectSlots();
}

void ClockTreePage::speak()
{
    view()->setAccessibleName(QCoreApplication::translate("ClockTree", "clock tree"));
    view()->setAccessibleDescription(
        QCoreApplication::translate("ClockTree",
                                    "The clock tree of the %1: oscillators on the left, then the "
                                    "PLL, the system clock, dividers, and the outputs on the right")
            .arg(seriesName(model().series())));
    for (auto each = m_spoken.cbegin(); each != m_spoken.cend(); ++each)
        appearance::setSpoken(each.key(), spokenInLanguage(each.value()));
}

void ClockTreePage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        speak();
    ZN64MCUPLL::changeEvent(event);
}

void ClockTreePage::mousePressEvent(QMouseEvent* event)
{
    m_outputs->closeLists();
    ZN64MCUPLL::mousePressEvent(event);
}

void ClockTreePage::UI_Display()
{
    for (const auto& block : m_blocks)
        block->UI_Display();
}

void ClockTreePage::UpdateCalculateResult()
{
    if (!TextBox_Input_Valid_Check())
        return;
    model().CalculateCLK();
    UpdateResultControls();
}

void ClockTreePage::UpdateResultControls()
{
    // The correction of a bad PLL input has repainted everything.
    if (m_description.checksPllInput() && !m_pllSource->PLLInputSourceClockCheck())
        return;
    for (const auto& block : m_blocks)
        block->UpdateResultControls();
}

void ClockTreePage::UpdateParam_From_ResultCLK()
{
    if (takingDesign())
        model().CalculateCLK();
    else if (sclkFromPll())
        model().CalculateParam_From_SYSCLK();
    else if (m_description.alwaysSearchesUsb || usbFromPll())
        model().CalculateParam_From_USBCLK();
    else
        model().CalculateCLK();
    updatePllControls();
    UpdateResultControls();
}

void ClockTreePage::updatePllControls()
{
    const bool normal = normalMode();
    for (const auto& block : m_blocks)
        normal ? block->Update_Normal_Controls() : block->Update_Flexible_Controls();
}

void ClockTreePage::showPllMode()
{
    for (const auto& block : m_blocks)
        block->ShowPllMode(!normalMode());
}

void ClockTreePage::UpdateRTCParam()
{
    m_lowSpeed->UpdateRTCParam();
}

void ClockTreePage::searchUsb()
{
    if (takingDesign())
        return;
    model().CalculateParam_From_USBCLK();
    updatePllControls();
}

void ClockTreePage::serveUsb()
{
    // A PLL that drives the system clock is not moved for USB.
    if (sclkFromPll() || !usbFromPll()) {
        UpdateCalculateResult();
        return;
    }
    if (!readHextForPll())
        return;
    searchUsb();
    UpdateResultControls();
}

bool ClockTreePage::TextBox_Input_Valid_Check()
{
    if (takingDesign())
        return true;
    if (hextNeeded() && !readHext())
        return false;
    return normalMode() || !pllInUse() || m_flexiblePll->takeTypedParameters();
}
