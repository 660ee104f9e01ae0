#include "designs.h"

#include "model/seriestraits.h"

namespace {
ZN64ConfigCLK steppedG110()
{
    ZN64ConfigCLK clock = pageDesign(ZN64G110);
    clock.Set_PLLHEXTDIV(PLLHEXT_DIV);
    clock.Set_PLL_MUL(48);
    clock.Set_AHBDIV(4);
    clock.Set_APB1DIV(2);
    clock.Set_Hext_Bypass_Value(true);
    clock.Set_TO_USB_Switch(TO_USB_SWITCH_ENABLE);
    clock.Set_USBDIV(4.0);
    clock.Set_CLKOUT_PinSelect(CLKOUTPIN_PA8);
    clock.Set_CLKOUT(CLKOUT_PLLDIV4);
    clock.Set_ToRTC_Switch(true);
    clock.Set_RTCSEL(RTCSEL_HEXT);
    clock.Set_ToADC_Switch(true);
    clock.Set_ToADCDIV(16);
    return clock;
}

ZN64ConfigCLK hickG110()
{
    ZN64ConfigCLK clock = pageDesign(ZN64G110);
    clock.Set_SYSCLKSelect(SYSCLK_HICK);
    clock.Set_Hext_Input_Value(12.5);
    clock.Set_Hext_Bypass_Value(true);
    clock.Set_APB2DIV(8);
    return clock;
}

ZN64ConfigCLK pllG150()
{
    ZN64ConfigCLK clock = pageDesign(ZN64G150);
    clock.Set_Hext_Input_Value(12.0);
    clock.Set_PLL_NS(96);
    clock.Set_APB1DIV(4);
    clock.Set_TO_USB_Switch(TO_USB_SWITCH_ENABLE);
    clock.Set_USBDIV(6.0);
    clock.Set_CLKOUT1_PinSelect(CLKOUT1PIN_PE4);
    clock.Set_CLKOUT1(CLKOUT1_PLL);
    clock.Set_CLKOUT1_Div1(5);
    clock.Set_CLKOUT1_Div2(512);
    clock.Set_CLKOUT2_PinSelect(CLKOUT2PIN_PC9);
    clock.Set_CLKOUT2(CLKOUT2_ADCCLK);
    clock.Set_CLKOUT2_Div1(2);
    clock.Set_CLKOUT2_Div2(64);
    clock.Set_ToRTC_Switch(true);
    clock.Set_RTCSEL(RTCSEL_LEXT);
    clock.Set_Lext_Bypass_Value(true);
    return clock;
}

ZN64ConfigCLK hick48G150()
{
    ZN64ConfigCLK clock = pageDesign(ZN64G150);
    clock.Set_SYSCLKSelect(SYSCLK_HICK);
    clock.Set_HICK_TO_SCLK(HICK_TO_SCLK_NODIV);
    clock.Set_AHBDIV(2);
    clock.Set_APB2DIV(16);
    clock.Set_TO_USB_Switch(TO_USB_SWITCH_ENABLE);
    clock.Set_HICK_TO_USB(HICK_TO_USB_ENABLE);
    clock.Set_Hext_Bypass_Value(true);
    clock.Set_ToRTC_Switch(true);
    clock.Set_RTCSEL(RTCSEL_HEXT);
    clock.Set_RTC_DIV(25);
    return clock;
}
} // namespace

ZN64ConfigCLK pageDesign(ZN64MCUSERIALS series)
{
    ZN64ConfigCLK clock(series);
    const bool flexible = clock.traits().pll_in_direct;
    clock.Set_ConfigMode(flexible ? PLLMODE_FLEXIBLE : PLLMODE_NORMAL);
    clock.Set_SYSCLKSelect(SYSCLK_PLL);
    clock.Set_HEXT_DIV(clock.traits().sclk_prediv ? 1 : 2);
    clock.Set_PLL_MUL(24);
    clock.Set_PLL_MS(1);
    clock.Set_PLL_NS(144);
    clock.Set_PLL_FR(4);
    clock.Set_TO_USB_Switch(TO_USB_SWITCH_DISABLE);
    return clock;
}

ZN64ConfigCLK namedDesign(const QString& name)
{
    ZN64ConfigCLK clock = name == QLatin1String("g110_stepped") ? steppedG110()
                          : name == QLatin1String("g110_hick")  ? hickG110()
                          : name == QLatin1String("g150_pll")   ? pllG150()
                                                                : hick48G150();
    clock.CalculateCLK();
    return clock;
}

QString stemOf(const ZN64ConfigCLK& clock)
{
    return clock.traits().dual_clkout ? QStringLiteral("zn64g150_152") : QStringLiteral("zn64g110");
}
