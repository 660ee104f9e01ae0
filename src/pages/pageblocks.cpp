#include "pages/ClockTreePage.h"

#include "pages/blocks/AdcBlock.h"
#include "pages/blocks/BusesBlock.h"
#include "pages/blocks/ClockOutputBlock.h"
#include "pages/blocks/DividerBlock.h"
#include "pages/blocks/FlexiblePllBlock.h"
#include "pages/blocks/HickRouteBlock.h"
#include "pages/blocks/HighSpeedBlock.h"
#include "pages/blocks/LowSpeedBlock.h"
#include "pages/blocks/OutputsBlock.h"
#include "pages/blocks/PeripheralClockBlock.h"
#include "pages/blocks/PllModeBlock.h"
#include "pages/blocks/PllMultiplierBlock.h"
#include "pages/blocks/PllOutputBlock.h"
#include "pages/blocks/PllSourceBlock.h"
#include "pages/blocks/SystemClockBlock.h"
#include "pages/blocks/UsbBlock.h"
#include "pages/blocks/UsbPhyBlock.h"

// Which blocks a description asks for, and the order in which their controls are made.

namespace {

/// Every routine that makes controls. Controls of one stacking level lie in this order, the last on top.
const char routinesInOrder[] =
    "New_lick New_towdt New_tortc New_lext New_lextbypass New_rtcsel New_rtcdiv New_hext New_hextbypass "
    "New_hextdiv New_hickdiv New_pllhextdiv New_pllrcs New_pll_mode New_pll_mult New_pll_ms New_pll_ns "
    "New_pll_fr "
    "New_pll_fp New_pllclk New_pll_CFG New_sclkselect New_ahbdiv New_apb1div New_apb2div New_apb3div "
    "New_pll_fu New_usbdiv New_tousb New_hicktousb New_hicktosclk New_hick New_clockoutdiv New_clockoutdiv1 "
    "New_clockoutdiv2 New_clockoutpinselect New_clockout New_clockout1div1 New_clockout1div2 "
    "New_clockout1pinselect New_clockout1 New_clockout2div1 New_clockout2div2 New_clockout2pinselect "
    "New_clockout2 New_adcclocksel New_usart1clocksel New_usart2clocksel New_usart3clocksel "
    "New_i2c1clocksel New_canclocksel New_can1clocksel New_can2clocksel New_can3clocksel New_i2sf5clocksel "
    "New_Result New_toperipheral New_tousbhsphy New_totmrmultiply New_totmrdivide New_totadc New_toadcdiv";

/// The same as a person reads the tree and as the keyboard walks it: chain by chain from the oscillators to
/// the outputs.
const char routinesInReadingOrder[] =
    "New_lick New_lext New_lextbypass New_rtcsel New_rtcdiv New_towdt New_tortc "
    "New_hext New_hextbypass New_hextdiv New_hick New_hickdiv "
    "New_pllhextdiv New_pllrcs New_pll_mode New_pll_mult New_pll_ms New_pll_ns New_pll_fr New_pll_fp "
    "New_pllclk New_pll_CFG "
    "New_hicktosclk New_sclkselect New_Result New_ahbdiv New_apb1div New_apb2div New_apb3div "
    "New_totmrmultiply New_totmrdivide New_toadcdiv New_totadc New_toperipheral "
    "New_pll_fu New_usbdiv New_hicktousb New_tousb New_tousbhsphy "
    "New_adcclocksel New_usart1clocksel New_usart2clocksel New_usart3clocksel New_i2c1clocksel "
    "New_canclocksel New_can1clocksel New_can2clocksel New_can3clocksel New_i2sf5clocksel "
    "New_clockout New_clockoutdiv New_clockoutdiv1 New_clockoutdiv2 New_clockoutpinselect "
    "New_clockout1 New_clockout1div1 New_clockout1div2 New_clockout1pinselect "
    "New_clockout2 New_clockout2div1 New_clockout2div2 New_clockout2pinselect";

QStringList routines(const char* order)
{
    return QString::fromLatin1(order).split(QLatin1Char(' '));
}

} // namespace

template <class Block, class... Arguments>
Block* ClockTreePage::addBlock(const Arguments&... arguments)
{
    auto block = std::make_unique<Block>(*this, arguments...);
    Block* added = block.get();
    m_blocks.push_back(std::move(block));
    return added;
}

std::function<bool()> ClockTreePage::useOf(const Divider& divider) const
{
    switch (divider.use) {
    case DividerUse::Always:
    case DividerUse::ClockOutputOn: // told by its output
        return {};
    case DividerUse::RtcFromHext:
        return [this] { return rtcOn() && rtcFromHext(); };
    case DividerUse::PllInUse:
        return [this] { return pllInUse(); };
    case DividerUse::PllFromDividedHext:
        return [this] { return pllInUse() && hextFeedsPll() && m_pllSource->hextDivided(); };
    case DividerUse::SclkFromHext:
        return [this] { return sclkFromHext(); };
    case DividerUse::SclkFromHick:
        return [this] { return sclkFromHick(); };
    case DividerUse::UsbFromPll:
        return [this] { return usbFromPll(); };
    case DividerUse::UsbOrCanFromPll:
        return [this] { return usbDividerInUse(); };
    case DividerUse::AdcOn:
        return [this] { return adcOn(); };
    }
    return {};
}

void ClockTreePage::createBlocks()
{
    m_lowSpeed = addBlock<LowSpeedBlock>();
    m_highSpeed = addBlock<HighSpeedBlock>();
    m_pllSource = addBlock<PllSourceBlock>();
    if (m_description.pllMultiplier())
        addBlock<PllMultiplierBlock>();
    if (m_description.pllModes())
        addBlock<PllModeBlock>();
    m_pllOutput = addBlock<PllOutputBlock>();
    if (m_description.pllParameters())
        m_flexiblePll = addBlock<FlexiblePllBlock>();
    m_systemClock = addBlock<SystemClockBlock>();
    if (m_description.hickToSclk())
        m_hickRoute = addBlock<HickRouteBlock>();
    m_outputs = addBlock<OutputsBlock>();
    if (m_description.adcSwitch())
        m_adc = addBlock<AdcBlock>();
    addBlock<BusesBlock>();
    for (const Divider& divider : m_description.dividers)
        addBlock<DividerBlock>(divider, useOf(divider));
    if (m_description.usb) {
        m_usb = addBlock<UsbBlock>();
        addBlock<DividerBlock>(m_description.usb->divider, useOf(m_description.usb->divider));
    }
    if (m_description.usbPhy())
        m_usbPhy = addBlock<UsbPhyBlock>();
    for (const PeripheralClock& clock : m_description.peripherals)
        addBlock<PeripheralClockBlock>(clock);
    for (const ClockOutput& output : m_description.clockOutputs) {
        const auto* block = addBlock<ClockOutputBlock>(output);
        for (const Divider& divider : output.dividers)
            addBlock<DividerBlock>(divider, std::function<bool()>([block] { return block->pinSet(); }));
    }
}

void ClockTreePage::addControls(const char* routine, std::function<void()> make)
{
    m_routines.insert(QLatin1String(routine), std::move(make));
}

void ClockTreePage::NewAllControl()
{
    QHash<QString, QVector<QWidget*>> madeBy;
    for (const QString& routine : routines(routinesInOrder)) {
        const std::function<void()> make = m_routines.take(routine);
        if (!make)
            continue;
        m_made.clear();
        make();
        madeBy.insert(routine, m_made);
    }
    QVector<QWidget*> readingOrder;
    for (const QString& routine : routines(routinesInReadingOrder))
        readingOrder += madeBy.take(routine);
    if (!m_routines.isEmpty() || !madeBy.isEmpty())
        qFatal("%s has no place in the orders of the controls",
               qPrintable((m_routines.keys() + madeBy.keys()).constFirst()));
    tabOrder().setControls(readingOrder);
}
