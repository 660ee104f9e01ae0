#include "pages/description/peripherals.h"

namespace {

PeripheralClock clockOf(const char* stem, const char* title, const char* source, const char* on,
                        ModelField sourceField, ModelField onField)
{
    return {stem, title, source, on, sourceField, onField, 0.0, {}};
}

} // namespace

PeripheralClock peripherals::usart1()
{
    return clockOf("usart1", "usart1 clock sel", "usart1clocksel", "usart1switch",
                   MODEL_FIELD(usart1_Clock_Source), MODEL_FIELD(USART1_Switch));
}

PeripheralClock peripherals::usart2()
{
    return clockOf("usart2", "usart2 clock sel", "usart2clocksel", "usart2switch",
                   MODEL_FIELD(usart2_Clock_Source), MODEL_FIELD(USART2_Switch));
}

PeripheralClock peripherals::usart3()
{
    return clockOf("usart3", "usart3 clock sel", "usart3clocksel", "usart3switch",
                   MODEL_FIELD(usart3_Clock_Source), MODEL_FIELD(USART3_Switch));
}

PeripheralClock peripherals::i2c1()
{
    return clockOf("i2c1", "i2c1 clock sel", "i2c1clocksel", "i2c1switch", MODEL_FIELD(i2c1_Clock_Source),
                   MODEL_FIELD(I2C1_Switch));
}

PeripheralClock peripherals::adc()
{
    return clockOf("adc", "pllclk to ADC", "adcclocksel", "adcswitch", MODEL_FIELD(adc_Clock_Source),
                   MODEL_FIELD(ToADC_Switch));
}

PeripheralClock peripherals::i2sf5()
{
    return clockOf("i2sf5", "i2sf5 clock sel", "i2sf5clocksel", "i2sf5switch",
                   MODEL_FIELD(i2sf5_Clock_Source), MODEL_FIELD(I2SF5_Switch));
}

PeripheralClock peripherals::can()
{
    return clockOf("can", "can clock sel", "canclocksel", "canswitch", MODEL_FIELD(can1_Clock_Source),
                   MODEL_FIELD(CAN1_Switch));
}

PeripheralClock peripherals::can1()
{
    return clockOf("can1", "can1 clock sel", "can1clocksel", "can1switch", MODEL_FIELD(can1_Clock_Source),
                   MODEL_FIELD(CAN1_Switch));
}

PeripheralClock peripherals::can2()
{
    return clockOf("can2", "can2 clock sel", "can2clocksel", "can2switch", MODEL_FIELD(can2_Clock_Source),
                   MODEL_FIELD(CAN2_Switch));
}

PeripheralClock peripherals::can3()
{
    return clockOf("can3", "can3 clock sel", "can3clocksel", "can3switch", MODEL_FIELD(can3_Clock_Source),
                   MODEL_FIELD(CAN3_Switch));
}
