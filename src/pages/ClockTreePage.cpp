#include "ClockTreePage.h"

#include "blocks/AdcBlock.h"
#include "blocks/BusesBlock.h"
#include "blocks/ClockOutputBlock.h"
#include "blocks/FlexiblePllBlock.h"
#include "blocks/HickRouteBlock.h"
#include "blocks/HighSpeedBlock.h"
#include "blocks/LowSpeedBlock.h"
#include "blocks/OutputsBlock.h"
#include "blocks/PllMultiplierBlock.h"
#include "blocks/PllOutputBlock.h"
#include "blocks/PllSourceBlock.h"
#include "blocks/SystemClockBlock.h"
#include "blocks/UsbBlock.h"

#include <QMouseEvent>

#include <algorithm>

ClockTreePage::ClockTreePage(const PageDescription& description, QWidget* parent)
    : ZN64MCUPLL(description.series, QLatin1String(":/image/") + QLatin1String(description.picture), parent),
      m_description(description)
{
}

// The blocks go before the controls that they point to.
ClockTreePage::~ClockTreePage()
{
    m_blocks.clear();
}

template <class Block>
Block* ClockTreePage::addBlock(std::unique_ptr<Block> block)
{
    Block* added = block.get();
    m_blocks.push_back(std::move(block));
    return added;
}

bool ClockTreePage::makes(const char* routine) const
{
    return std::any_of(m_description.controls.begin(), m_description.controls.end(),
                       [routine](const char* listed) { return qstrcmp(listed, routine) == 0; });
}

void ClockTreePage::createBlocks()
{
    m_lowSpeed = addBlock(std::make_unique<LowSpeedBlock>(*this));
    m_highSpeed = addBlock(std::make_unique<HighSpeedBlock>(*this));
    m_pllSource = addBlock(std::make_unique<PllSourceBlock>(*this));
    if (makes("New_pll_mult"))
        m_pllMultiplier = addBlock(std::make_unique<PllMultiplierBlock>(*this));
    m_pllOutput = addBlock(std::make_unique<PllOutputBlock>(*this));
    if (makes("New_pll_CFG"))
        m_flexiblePll = addBlock(std::make_unique<FlexiblePllBlock>(*this));
    m_systemClock = addBlock(std::make_unique<SystemClockBlock>(*this));
    if (makes("New_hicktosclk"))
        m_hickRoute = addBlock(std::make_unique<HickRouteBlock>(*this));
    m_outputs = addBlock(std::make_unique<OutputsBlock>(*this));
    if (makes("New_totadc"))
        m_adc = addBlock(std::make_unique<AdcBlock>(*this));
    addBlock(std::make_unique<BusesBlock>(*this));
    if (makes("New_tousb") || makes("New_hicktousb"))
        m_usb = addBlock(std::make_unique<UsbBlock>(*this));
    for (const ClockOutputDescription& output : m_description.clockOutputs)
        addBlock(std::make_unique<ClockOutputBlock>(*this, output));
}

void ClockTreePage::build()
{
    createBlocks();
    NewAllControl();
    InitAllControl();
    ControlsConnectSlots();
}

void ClockTreePage::NewAllControl()
{
    for (const char* routine : m_description.controls) {
        const auto make = m_routines.constFind(QLatin1String(routine));
        if (make == m_routines.constEnd())
            qFatal("no block makes %s", routine);
        (*make)();
    }
    m_routines.clear();
}

void ClockTreePage::InitAllControl()
{
    if (m_description.fixedFields)
        m_description.fixedFields(model());
    for (const StartValue& start : m_description.start)
        m_settings.value(QLatin1String(start.setting)).set(start.value);
    UI_Display();
    UpdateCalculateResult();
}

void ClockTreePage::ControlsConnectSlots()
{
    for (const auto& block : m_blocks)
        block->ControlsConnectSlots();
}

void ClockTreePage::addControls(const char* routine, std::function<void()> make)
{
    m_routines.insert(QLatin1String(routine), std::move(make));
}

void ClockTreePage::addSetting(const char* name, Setting setting)
{
    m_settings.insert(QLatin1String(name), std::move(setting));
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
    if (m_description.checksPllInput && !m_pllSource->PLLInputSourceClockCheck())
        return;
    for (const auto& block : m_blocks)
        block->UpdateResultControls();
}

void ClockTreePage::UpdateParam_From_ResultCLK()
{
    if (readingDesign())
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
    if (model().Get_ConfigMode() == PLLMODE_FLEXIBLE)
        m_flexiblePll->Update_Flexible_Controls();
    else
        m_pllMultiplier->Update_Normal_Controls();
}

void ClockTreePage::UpdateRTCParam()
{
    m_lowSpeed->UpdateRTCParam();
}

void ClockTreePage::searchUsb()
{
    if (readingDesign())
        return;
    model().CalculateParam_From_USBCLK();
    updatePllControls();
}

bool ClockTreePage::TextBox_Input_Valid_Check()
{
    if (readingDesign())
        return true;
    if (hextNeeded() && !readHext())
        return false;
    const bool flexible = m_flexiblePll && model().Get_ConfigMode() == PLLMODE_FLEXIBLE;
    return !flexible || !pllInUse() || m_flexiblePll->takeTypedParameters();
}
