#include "model/ZN64ConfigCLK.h"
#include "model/seriestraits.h"

ZN64ConfigCLK::ZN64ConfigCLK(ZN64MCUSERIALS series) : m_MCUType(series), m_traits(&seriesTraits(series))
{
    InitValue();
}

void ZN64ConfigCLK::InitValue()
{
    initSources();
    initDividers();
    initResults();
    initPeripherals();
}

void ZN64ConfigCLK::initSources()
{
    m_lick_Input_Value = 40.0;
    m_lext_Input_Value = 32.768;
    m_hick_Input_Value = m_traits->hickStart();
    m_hext_Input_Value = 8.0;
    m_lext_Bypass = false;
    m_hext_Bypass = false;
    m_rtcsel = RTCSEL_LICK;
    m_rtc_Swith = false;
    m_PLLRC = PLLRC_HEXT;
    m_sclk_select = SYSCLK_HICK;
}

void ZN64ConfigCLK::initDividers()
{
    m_ConfigMode = PLLMODE_FLEXIBLE;
    m_pllhext_div = PLLHEXT_NODIV;
    m_PLL_MS = 2;
    m_PLL_NS = 192;
    m_PLL_FR = 8;
    m_PLL_FP = 2;
    m_PLL_FU = 18;
    m_AHBDIV = 1;
    m_APB1DIV = 1;
    m_APB2DIV = 1;
    m_APB3DIV = 1;
    m_APB1TMR_MUL = 1;
    m_APB2TMR_MUL = 1;
    m_ToADCDIV = 2;
    m_USBDIV = 1.0;
    m_CLKOUT1_Div1 = 1;
    m_CLKOUT1_Div2 = 1;
    m_CLKOUT2_Div1 = 1;
    m_CLKOUT2_Div2 = 1;
    m_CLKOUT_Div = 1;
}

void ZN64ConfigCLK::initResults()
{
    m_RTCCLK_Value = 0.0;
    m_PLLCLK_Value = 0.0;
    m_SYSCLK_Value = 0.0;
    m_AHBCLK_Value = 0.0;
    m_APB1CLK_Value = 0.0;
    m_APB2CLK_Value = 0.0;
    m_APB3CLK_Value = 0.0;
    m_APB1TMRCLK_Value = 0.0;
    m_APB2TMRCLK_Value = 0.0;
    m_USBCLK_Value = 0.0;
    m_ADCCLK_Value = 0.0;
}

void ZN64ConfigCLK::initPeripherals()
{
    m_ToUSBSwitch = TO_USB_SWITCH_ENABLE;
    m_ToADC_Switch = false;
    m_USART1Switch = false;
    m_USART2Switch = false;
    m_USART3Switch = false;
    m_I2CSwitch = false;
    m_I2SF5Switch = false;
    m_CAN1Switch = false;
    m_CLKOUT1 = CLKOUT1_HICK;
    m_CLKOUT2 = CLKOUT2_SCLK;
    m_CLKOUT_PinSelect = CLKOUTPIN_NONE;
    m_CLKOUT = CLKOUT_NOCLK;
    m_usart1_Clock_Source = USART_CLOCK_SOURCE_PCLK;
    m_usart2_Clock_Source = USART_CLOCK_SOURCE_PCLK;
    m_usart3_Clock_Source = USART_CLOCK_SOURCE_PCLK;
    m_i2c1_Clock_Source = I2C1_CLOCK_SOURCE_PCLK;
    m_adc_Clock_Source = ADC_CLOCK_SOURCE_HCLK;
    m_i2sf5_Clock_Source = I2SF5_CLOCK_SOURCE_PCLK;
    m_can1_Clock_Source = CAN_CLOCK_SOURCE_PCLK;
}
