#include "codegen/codetraits.h"
#include "codegen/macrolookup.h"
#include "codegen/macrotables.h"

namespace {
/// A pin by the places of its port and number in the macro tables.
struct OutputPin
{
    const char* text;
    int port;
    int number;
};

constexpr OutputPin pins[] = {
    {"NONE", 0, 0 },
    {"PA8",  0, 8 },
    {"PA9",  0, 9 },
    {"PB13", 1, 13},
    {"PC9",  2, 9 },
    {"PF2",  5, 2 },
    {"PE4",  4, 4 }
};

const OutputPin& pinAt(int pin)
{
    return pin > CLKOUTPIN_NONE && pin <= CLKOUTPIN_PE4 ? pins[pin] : pins[CLKOUTPIN_NONE];
}

const OutputPin& pinOfFirstOutput(CLKOUT1PIN pin)
{
    switch (pin) {
    case CLKOUT1PIN_PA8:
        return pins[CLKOUTPIN_PA8];
    case CLKOUT1PIN_PE4:
        return pins[CLKOUTPIN_PE4];
    default:
        return pins[CLKOUTPIN_NONE];
    }
}
} // namespace

CLKOUTPIN ZN64ConfigCLK::GetCLKOUTPINEnumFromPinText(const QString& text) const
{
    for (int pin = CLKOUTPIN_PA8; pin <= CLKOUTPIN_PE4; ++pin)
        if (text == QLatin1String(pins[pin].text))
            return static_cast<CLKOUTPIN>(pin);
    return CLKOUTPIN_NONE;
}

QString ZN64ConfigCLK::GetCLKOUTPINTextFromEnum(int pin) const
{
    return QLatin1String(pinAt(pin).text);
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT_GPIO_clock_type_String() const
{
    return crm_GPIO_clock_type_String[pinAt(m_CLKOUT_PinSelect).port];
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT_GPIO_type_String() const
{
    return crm_GPIO_type_String[pinAt(m_CLKOUT_PinSelect).port];
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT_GPIO_PINS_Num_String() const
{
    return crm_GPIO_PINS_Num_String[pinAt(m_CLKOUT_PinSelect).number];
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT_gpio_pins_source_type_String() const
{
    return gpio_pins_source_type_String[pinAt(m_CLKOUT_PinSelect).number];
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT_gpio_mux_sel_type_String() const
{
    const auto pin = &pinAt(m_CLKOUT_PinSelect) - pins;
    return gpio_mux_sel_type_String[codeTraits(m_MCUType).clkoutPinMux[pin]];
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT1_GPIO_clock_type_String() const
{
    return crm_GPIO_clock_type_String[pinOfFirstOutput(m_CLKOUT1_PinSelect).port];
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT1_GPIO_type_String() const
{
    return crm_GPIO_type_String[pinOfFirstOutput(m_CLKOUT1_PinSelect).port];
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT1_GPIO_PINS_Num_String() const
{
    return crm_GPIO_PINS_Num_String[pinOfFirstOutput(m_CLKOUT1_PinSelect).number];
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT1_gpio_pins_source_type_String() const
{
    return gpio_pins_source_type_String[pinOfFirstOutput(m_CLKOUT1_PinSelect).number];
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT1_gpio_mux_sel_type_String() const
{
    return gpio_mux_sel_type_String[0];
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT_Define_String() const
{
    return macroAt(CLKOUT_Define_String, m_CLKOUT);
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT1_Define_String() const
{
    return macroAt(CLKOUT1_Define_String, m_CLKOUT1);
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT2_Define_String() const
{
    return macroAt(CLKOUT2_Define_String, m_CLKOUT2);
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT_DIV1_Define_String(int divisor) const
{
    return macroFor(CLKOUT_DIV1_Define_String, divisors::clockOutputFirst, divisor);
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT_DIV2_Define_String(int divisor) const
{
    return macroFor(CLKOUT_DIV2_Define_String, divisors::clockOutput, divisor);
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT_DIV_Define_String(int divisor) const
{
    return macroFor(CLKOUT_DIV_Define_String, divisors::clockOutput, divisor);
}

QString ZN64ConfigCLK::GetOutPutString_CLKOUT_INDEX_Num_String(int output) const
{
    return CLKOUT_INDEX_Num_String[output == 2 ? 1 : 0];
}
