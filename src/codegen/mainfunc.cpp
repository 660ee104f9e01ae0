#include "codegen/codetraits.h"
#include "codegen/peripheralswitches.h"
#include "codegen/section.h"

bool anyUsartOn(const ZN64ConfigCLK& clock)
{
    const int count = codeTraits(clock.series()).usartCount;
    return (count > 0 && clock.Get_USART1_Switch()) || (count > 1 && clock.Get_USART2_Switch()) ||
           (count > 2 && clock.Get_USART3_Switch());
}

bool anyCanOn(const ZN64ConfigCLK& clock)
{
    const int count = codeTraits(clock.series()).canCount;
    return (count > 0 && clock.Get_CAN1_Switch()) || (count > 1 && clock.Get_CAN2_Switch()) ||
           (count > 2 && clock.Get_CAN3_Switch());
}

namespace {
using C = ZN64ConfigCLK;

/// A call that main makes in the series whose main chain has the fragment of the called function.
struct MainCall
{
    const char* function;
    CodeFragment fragment;
    bool (*wanted)(const ZN64ConfigCLK&);
};

constexpr MainCall mainCalls[] = {
    {"mx_clkout_init",      &C::GenerateCode_clockout,  [](const C& c) { return c.Get_CLKOUT_PinSelect() != 0; }},
    {"mx_clkout1_init",     &C::GenerateCode_clockout1,
     [](const C& c) { return c.Get_CLKOUT1_PinSelect() != 0; }                                                  },
    {"mx_clkout2_init",     &C::GenerateCode_clockout2,
     [](const C& c) { return c.Get_CLKOUT2_PinSelect() != 0; }                                                  },
    {"mx_rtc_clock_init",   &C::GenerateCode_rtc,       [](const C& c) { return c.Get_ToRTC_Switch(); }         },
    {"mx_adc_clock_init",   &C::GenerateCode_adc,       [](const C& c) { return c.Get_ToADC_Switch(); }         },
    {"mx_i2c_clock_init",   &C::GenerateCode_i2c,       [](const C& c) { return c.Get_I2C1_Switch(); }          },
    {"mx_usart_clock_init", &C::GenerateCode_usart,     anyUsartOn                                              },
    {"mx_i2sf5_clock_init", &C::GenerateCode_i2sf5,     [](const C& c) { return c.Get_I2SF5_Switch(); }         },
    {"mx_can_clock_init",   &C::GenerateCode_can,       anyCanOn                                                }
};

/// Takes the call, the empty lines behind it and the indentation of the next line, so that the next line
/// stands in its place.
bool deleteCall(QString& text, const char* function)
{
    return replacePattern(text, QLatin1String(function) + QStringLiteral(R"(\(\s*\);\n+\s*)"), QString());
}
} // namespace

bool ZN64ConfigCLK::GenerateCode_mainFunc(QString& text) const
{
    for (const MainCall& call : mainCalls) {
        if (!codeTraits(m_MCUType).mainChain.contains(call.fragment) || call.wanted(*this))
            continue;
        if (!deleteCall(text, call.function))
            return false;
    }
    return true;
}
