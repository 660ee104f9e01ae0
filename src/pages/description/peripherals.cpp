#include "pages/description/peripherals.h"

#include <iterator>

namespace {

PeripheralClock clockOf(const char* stem, ModelField source, ModelField on)
{
    PeripheralClock clock{stem, source, on, QLatin1String(stem) + QLatin1String(" clock sel")};
    return clock;
}

template <std::size_t Count>
PeripheralClock numbered(const PeripheralClock (&clocks)[Count], int number)
{
    Q_ASSERT(number >= 1 && number <= static_cast<int>(Count));
    return clocks[number - 1];
}

/// A source that is red by itself.
PeripheralSource source(int number, const char* name, ClockSource clock)
{
    return {number, name, clock, clock};
}

PeripheralClock canOf(PeripheralClock clock, const PeripheralSource& pll)
{
    clock.sources = {source(CAN_CLOCK_SOURCE_HEXT, "hext", ClockSource::Hext), pll,
                     source(CAN_CLOCK_SOURCE_PCLK, "pclk", ClockSource::Apb1)};
    return clock;
}

} // namespace

PeripheralClock peripherals::usart(int number, ClockSource bus, int hickNumber, const char* hickName)
{
    PeripheralClock clock = numbered(
        {
            clockOf("usart1", MODEL_FIELD(usart1_Clock_Source), MODEL_FIELD(USART1_Switch)),
            clockOf("usart2", MODEL_FIELD(usart2_Clock_Source), MODEL_FIELD(USART2_Switch)),
            clockOf("usart3", MODEL_FIELD(usart3_Clock_Source), MODEL_FIELD(USART3_Switch)),
        },
        number);
    clock.sources = {
        source(USART_CLOCK_SOURCE_PCLK, "pclk", bus),
        source(USART_CLOCK_SOURCE_SCLK, "sclk", ClockSource::Sclk),
        {hickNumber,              hickName, ClockSource::Hick},
        {USART_CLOCK_SOURCE_LEXT, "lext",   ClockSource::Lext}
    };
    return clock;
}

PeripheralClock peripherals::i2c1(int hickNumber, const char* hickName)
{
    PeripheralClock clock = clockOf("i2c1", MODEL_FIELD(i2c1_Clock_Source), MODEL_FIELD(I2C1_Switch));
    clock.sources = {
        source(I2C1_CLOCK_SOURCE_PCLK, "pclk", ClockSource::Apb2),
        source(I2C1_CLOCK_SOURCE_SCLK, "sclk", ClockSource::Sclk),
        {hickNumber, hickName, ClockSource::Hick}
    };
    return clock;
}

PeripheralClock peripherals::adc()
{
    PeripheralClock clock = clockOf("adc", MODEL_FIELD(adc_Clock_Source), MODEL_FIELD(ToADC_Switch));
    clock.title = QStringLiteral("pllclk to ADC");
    // Red looks at another clock than the one shown, in both rows: the series' rule, and users rely on it.
    clock.sources = {
        {ADC_CLOCK_SOURCE_HCLK,   "hclk",   ClockSource::Ahb, ClockSource::Apb1},
        {ADC_CLOCK_SOURCE_PLLCLK, "pllclk", ClockSource::Pll, ClockSource::Sclk}
    };
    clock.readNumbers = {
        {ADC_CLOCK_SOURCE_HCLK, ADC_CLOCK_SOURCE_HCLK}
    };
    clock.fallback = ADC_CLOCK_SOURCE_PLLCLK;
    return clock;
}

PeripheralClock peripherals::i2sf5()
{
    PeripheralClock clock = clockOf("i2sf5", MODEL_FIELD(i2sf5_Clock_Source), MODEL_FIELD(I2SF5_Switch));
    clock.sources = {
        source(I2SF5_CLOCK_SOURCE_PCLK, "pllp", ClockSource::Pll),
        source(I2SF5_CLOCK_SOURCE_SCLK, "sclk", ClockSource::Sclk),
        {I2SF5_CLOCK_SOURCE_HICK,     "hick",     ClockSource::Hick   },
        {I2SF5_CLOCK_SOURCE_EXTERNAL, "external", ClockSource::Outside}
    };
    return clock;
}

PeripheralClock peripherals::can()
{
    // "pll" shows the system clock: these series feed it from the PLL and know the two as one.
    PeripheralClock clock = canOf(clockOf("can", MODEL_FIELD(can1_Clock_Source), MODEL_FIELD(CAN1_Switch)),
                                  source(CAN_CLOCK_SOURCE_PLL, "pll", ClockSource::Sclk));
    clock.sources[1].taken = ClockSource::Pll;
    clock.start = CAN_CLOCK_SOURCE_PCLK;
    return clock;
}

PeripheralClock peripherals::canOfThree(int number)
{
    // "pllu" is red by the system clock and not by the clock shown, which may be higher.
    return canOf(numbered({clockOf("can1", MODEL_FIELD(can1_Clock_Source), MODEL_FIELD(CAN1_Switch)),
                           clockOf("can2", MODEL_FIELD(can2_Clock_Source), MODEL_FIELD(CAN2_Switch)),
                           clockOf("can3", MODEL_FIELD(can3_Clock_Source), MODEL_FIELD(CAN3_Switch))},
                          number),
                 {CAN_CLOCK_SOURCE_PLL, "pllu", ClockSource::PllU, ClockSource::Sclk});
}
