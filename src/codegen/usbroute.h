#pragma once

#include "model/ZN64ConfigCLK.h"

/// Whether the USB clock is on and not taken from hick. Unlike usbpll_isEnable() this holds for every series
/// alike, also for those without USB.
inline bool usbRoutedFromPll(const ZN64ConfigCLK& clock)
{
    return clock.Get_TO_USB_Switch() == TO_USB_SWITCH_ENABLE &&
           clock.Get_HICK_TO_USB() == HICK_TO_USB_DISABLE;
}
