#include "codegen/codetraits.h"
#include "codegen/section.h"
#include "codegen/usbroute.h"
#include "model/seriestraits.h"

namespace {
bool anyCanOnPllu(const ZN64ConfigCLK& clock)
{
    return (clock.Get_CAN1_Switch() && clock.Get_can1_Clock_Source() == CAN_CLOCK_SOURCE_PLL) ||
           (clock.Get_CAN2_Switch() && clock.Get_can2_Clock_Source() == CAN_CLOCK_SOURCE_PLL) ||
           (clock.Get_CAN3_Switch() && clock.Get_can3_Clock_Source() == CAN_CLOCK_SOURCE_PLL);
}
} // namespace

bool ZN64ConfigCLK::GenerateCode_pllusbclock(QString& text) const
{
    const bool usb = traits().usbSource == UsbSource::Pll ? m_ToUSBSwitch == TO_USB_SWITCH_ENABLE
                                                          : usbRoutedFromPll(*this);
    const bool canOnPllu = codeTraits(m_MCUType).canFromPllu;
    const bool keep = usb || (canOnPllu && anyCanOnPllu(*this));
    if (!resolveSection(text, "pll usbclock", keep))
        return false;
    if (!keep)
        return true;
    // pllu may run for CAN alone: then USB does not select it.
    if (canOnPllu)
        return resolveSection(text, "pllu usbclock", usb);
    if (traits().pll_fp_output)
        return true;
    return rewriteCall(text, {"crm_usb_clock_div_set", R"(\s*\w+)"},
                       GetOutPutString_SysClkInitType_USBDivider());
}

bool ZN64ConfigCLK::GenerateCode_hickusbclock(QString& text) const
{
    return resolveSection(text, "hick usbclock",
                          m_ToUSBSwitch == TO_USB_SWITCH_ENABLE && m_HickToUSB == HICK_TO_USB_ENABLE);
}
