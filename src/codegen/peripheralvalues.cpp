#include "codegen/codetraits.h"
#include "codegen/macrolookup.h"
#include "codegen/macrotables.h"

QString ZN64ConfigCLK::GetOutPutString_ERTCDIV_Define_String() const
{
    return macroFor(ERTCDIV_Define_String, divisors::rtc, m_rtc_div);
}

QString ZN64ConfigCLK::GetOutPutString_ADCClockSource_Define_String() const
{
    return macroAt(ADC_CLOCK_SOURCE_Define_String, m_adc_Clock_Source);
}

QString ZN64ConfigCLK::GetOutPutString_ADCDIV_Define_String() const
{
    return macroFor(ADCDIV_Define_String, divisors::adcFine, m_ToADCDIV);
}

QString ZN64ConfigCLK::GetOutPutString_I2CClockSource_Define_String() const
{
    return macroAt(I2C_CLOCK_SOURCE_Define_String, m_i2c1_Clock_Source);
}

QString ZN64ConfigCLK::GetOutPutString_i2sf5ClockSource_Define_String() const
{
    return macroAt(I2SF5_CLOCK_SOURCE_Define_String, m_i2sf5_Clock_Source);
}

QString ZN64ConfigCLK::GetOutPutString_Usart1ClockSource_Define_String() const
{
    return macroAt(USART_CLOCK_SOURCE_Define_String, m_usart1_Clock_Source);
}

QString ZN64ConfigCLK::GetOutPutString_Usart2ClockSource_Define_String() const
{
    return macroAt(USART_CLOCK_SOURCE_Define_String, m_usart2_Clock_Source);
}

QString ZN64ConfigCLK::GetOutPutString_Usart3ClockSource_Define_String() const
{
    return macroAt(USART_CLOCK_SOURCE_Define_String, m_usart3_Clock_Source);
}

QString ZN64ConfigCLK::GetOutPutString_CANClockSource_Define_String(CAN_CLOCK_SOURCE source) const
{
    constexpr int pllu = 3; // the model has no value of its own for it
    switch (source) {
    case CAN_CLOCK_SOURCE_PLL:
        return CAN_CLOCK_SOURCE_Define_String[codeTraits(m_MCUType).canFromPllu ? pllu : source];
    case CAN_CLOCK_SOURCE_PCLK:
        return CAN_CLOCK_SOURCE_Define_String[source];
    default:
        return CAN_CLOCK_SOURCE_Define_String[CAN_CLOCK_SOURCE_HEXT];
    }
}
