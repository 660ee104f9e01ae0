#include "model/ZN64ConfigCLK.h"
#include "model/seriestraits.h"

bool ZN64ConfigCLK::usbpll_isEnable() const
{
    if (m_traits->no_usb)
        return false;
    const bool fromHick = m_traits->usbSource != UsbSource::Pll && m_HickToUSB != 0;
    return m_ToUSBSwitch == 0 && !fromHick;
}

bool ZN64ConfigCLK::usbUsesPllFrom(PLLRC source) const
{
    return m_traits->usbSource != UsbSource::None && usbpll_isEnable() && m_PLLRC == source;
}

bool ZN64ConfigCLK::clkoutIs(CLKOUT source) const
{
    return m_CLKOUT_PinSelect != 0 && m_CLKOUT == source;
}

bool ZN64ConfigCLK::clkout1Is(CLKOUT1 source) const
{
    return m_CLKOUT1_PinSelect != 0 && m_CLKOUT1 == source;
}

bool ZN64ConfigCLK::clkout2Is(CLKOUT2 source) const
{
    return m_CLKOUT2_PinSelect != 0 && m_CLKOUT2 == source;
}

// CLKOUT_PLL puts no oscillator to use, so that generated code does not switch one on for it; the outputs of
// a pair do. Counted here, it would change the code of designs that exist.
bool ZN64ConfigCLK::outputsUsePllFrom(PLLRC source) const
{
    const bool pllOut = m_traits->dual_clkout ? clkout1Is(CLKOUT1_PLL) || clkout2Is(CLKOUT2_PLL)
                                              : clkoutIs(CLKOUT_PLLDIV2) || clkoutIs(CLKOUT_PLLDIV4);
    return pllOut && m_PLLRC == source;
}

bool ZN64ConfigCLK::hext_isEnable() const
{
    const bool out =
        m_traits->dual_clkout ? clkout1Is(CLKOUT1_HEXT) || clkout2Is(CLKOUT2_HEXT) : clkoutIs(CLKOUT_HEXT);
    return out || outputsUsePllFrom(PLLRC_HEXT) || m_sclk_select == SYSCLK_HEXT ||
           (m_sclk_select == SYSCLK_PLL && m_PLLRC == PLLRC_HEXT) || usbUsesPllFrom(PLLRC_HEXT);
}

bool ZN64ConfigCLK::hick_isEnable() const
{
    const bool out =
        m_traits->dual_clkout ? clkout1Is(CLKOUT1_HICK) || clkout2Is(CLKOUT2_HICK) : clkoutIs(CLKOUT_HICK);
    const bool usbFromHick = m_traits->usbSource == UsbSource::PllOrHick && m_ToUSBSwitch == 0 &&
                             m_HickToUSB == HICK_TO_USB_ENABLE;
    return out || outputsUsePllFrom(PLLRC_HICK) || m_sclk_select == SYSCLK_HICK ||
           (m_sclk_select == SYSCLK_PLL && m_PLLRC == PLLRC_HICK) || usbFromHick ||
           usbUsesPllFrom(PLLRC_HICK);
}

bool ZN64ConfigCLK::peripheralUsesPll(unsigned user) const
{
    // With three CAN blocks PCLK counts as the PLL's user too, with one it does not. It decides whether
    // generated code starts the PLL: made alike, designs that exist would get other code.
    const auto pllOrPclk = [](bool on, CAN_CLOCK_SOURCE source) {
        return on && (source == CAN_CLOCK_SOURCE_PCLK || source == CAN_CLOCK_SOURCE_PLL);
    };
    switch (user) {
    case PLL_USER_ADC:
        return m_ToADC_Switch && m_adc_Clock_Source == ADC_CLOCK_SOURCE_PLLCLK;
    case PLL_USER_I2SF5:
        // In spite of its name this enumerator is the source from the PLL.
        return m_I2SF5Switch && m_i2sf5_Clock_Source == I2SF5_CLOCK_SOURCE_PCLK;
    case PLL_USER_CAN1:
        return m_CAN1Switch && m_can1_Clock_Source == CAN_CLOCK_SOURCE_PLL;
    case PLL_USER_THREE_CAN:
        return pllOrPclk(m_CAN1Switch, m_can1_Clock_Source) || pllOrPclk(m_CAN2Switch, m_can2_Clock_Source) ||
               pllOrPclk(m_CAN3Switch, m_can3_Clock_Source);
    }
    return false;
}

bool ZN64ConfigCLK::pllUserActive(unsigned user) const
{
    switch (user) {
    case PLL_USER_USB:
        return usbpll_isEnable();
    case PLL_USER_CLKOUT_DIVIDED:
        return clkoutIs(CLKOUT_PLLDIV2) || clkoutIs(CLKOUT_PLLDIV4);
    case PLL_USER_CLKOUT:
        return clkoutIs(CLKOUT_PLL);
    case PLL_USER_TWO_CLKOUTS:
        return clkout1Is(CLKOUT1_PLL) || clkout2Is(CLKOUT2_PLL);
    }
    return peripheralUsesPll(user);
}

bool ZN64ConfigCLK::pll_isEnable() const
{
    if (m_sclk_select == SYSCLK_PLL)
        return true;
    for (unsigned user = 1; user <= m_traits->pllUsers; user <<= 1)
        if ((m_traits->pllUsers & user) && pllUserActive(user))
            return true;
    return false;
}

bool ZN64ConfigCLK::hextdiv_isEnable() const
{
    return pll_isEnable() && m_PLLRC == PLLRC_HEXT && !m_traits->pll_in_direct && m_pllhext_div != 0;
}
