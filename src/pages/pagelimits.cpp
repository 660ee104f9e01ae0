#include "pages/ClockTreePage.h"

#include "pages/blocks/PllOutputBlock.h"
#include "pages/blocks/UsbPhyBlock.h"

#include <algorithm>

// The limits that saving and generating insist on, or ask about.

bool ClockTreePage::isOn(ClockSource clock) const
{
    switch (clock) {
    case ClockSource::Pll:
        return m_pllOutput->shown();
    case ClockSource::Usb:
        return model().Get_TO_USB_Switch() == TO_USB_SWITCH_ENABLE;
    case ClockSource::Adc:
        return model().Get_ToADC_Switch();
    default:
        return true;
    }
}

double ClockTreePage::limitedValue(ClockSource clock) const
{
    return clock == ClockSource::UsbPhy ? m_usbPhy->shown() : clockValue(clock, model());
}

bool ClockTreePage::passes(const Limit& limit) const
{
    if (!isOn(limit.clock) || !limits::breaks(limit, limitedValue(limit.clock), normalMode()))
        return true;
    if (limit.question)
        return askToContinue(QMessageBox::Warning, limit.question);
    showErrorBox(translated(limits::refusal(limit)) + QStringLiteral(" %1MHz").arg(limit.shown));
    return false;
}

bool ClockTreePage::passesAll(const Limits& limits) const
{
    return std::all_of(limits.begin(), limits.end(), [this](const Limit& limit) { return passes(limit); });
}
