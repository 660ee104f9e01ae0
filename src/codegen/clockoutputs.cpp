#include "codegen/codetraits.h"
#include "codegen/section.h"

namespace {
/// The macros of one output pin. A call is looked for in the whole text and rewritten in the section's body.
struct PinMacros
{
    QString clock;
    QString port;
    QString pin;
    QString source;
    QString mux;
};

bool setPin(const QString& text, QString& body, const PinMacros& macros)
{
    if (!rewriteCall(text, body, {"crm_periph_clock_enable", R"(\w+,\s*\w+)"},
                     macros.clock + QStringLiteral(", TRUE")))
        return false;
    const QString pinLine = QStringLiteral(R"(gpio_init_struct.gpio_pins\s*=\s*\w+;{,1})");
    if (!hasPattern(text, pinLine))
        return false;
    replacePattern(body, pinLine, QStringLiteral("gpio_init_struct.gpio_pins = %1;").arg(macros.pin));
    return rewriteCall(text, body, {"gpio_init", R"(\w+,\s*\&\w+)"},
                       macros.port + QStringLiteral(", &gpio_init_struct"));
}

bool setMux(const QString& text, QString& body, const PinMacros& macros)
{
    return rewriteCall(text, body, {"gpio_pin_mux_config", R"(\w+,\s*\w+,\s*\w+)"},
                       QStringLiteral("%1, %2, %3").arg(macros.port, macros.source, macros.mux));
}

bool setDivider(const ZN64ConfigCLK& clock, const QString& text, QString& body)
{
    const char* const function = "crm_clkout_div_set";
    switch (codeTraits(clock.series()).clkoutDivider) {
    case ClkoutDivider::None:
        return true;
    case ClkoutDivider::One:
        return rewriteCall(text, body, {function, R"(\w+)"},
                           clock.GetOutPutString_CLKOUT_DIV_Define_String(clock.Get_CLKOUT_Div()));
    case ClkoutDivider::Two:
        break;
    }
    return rewriteCall(text, body, {function, R"(\w+,\s*\w+)"},
                       clock.GetOutPutString_CLKOUT_DIV1_Define_String(clock.Get_CLKOUT_Div1()) +
                           QStringLiteral(", ") +
                           clock.GetOutPutString_CLKOUT_DIV2_Define_String(clock.Get_CLKOUT_Div2()));
}

/// The divider call of one of two outputs.
bool setIndexedDivider(const QString& text, QString& body, const QString& index, const QString& first,
                       const QString& second)
{
    return rewriteCall(text, body, {"crm_clkout_div_set", R"(\w+,\s*\w+,\s*\w+)"},
                       QStringLiteral("%1, %2, %3").arg(index, first, second));
}
} // namespace

bool ZN64ConfigCLK::GenerateCode_clockout(QString& text) const
{
    const bool keep = m_CLKOUT_PinSelect != CLKOUTPIN_NONE;
    return resolveSection(text, "clkout function", keep, [&](QString& body) {
        const PinMacros macros{GetOutPutString_CLKOUT_GPIO_clock_type_String(),
                               GetOutPutString_CLKOUT_GPIO_type_String(),
                               GetOutPutString_CLKOUT_GPIO_PINS_Num_String(),
                               GetOutPutString_CLKOUT_gpio_pins_source_type_String(),
                               GetOutPutString_CLKOUT_gpio_mux_sel_type_String()};
        return setPin(text, body, macros) &&
               (!codeTraits(m_MCUType).clkoutMux || setMux(text, body, macros)) &&
               rewriteCall(text, body, {"crm_clock_out_set", R"(\w+)"},
                           GetOutPutString_CLKOUT_Define_String()) &&
               setDivider(*this, text, body);
    });
}

bool ZN64ConfigCLK::GenerateCode_clockout1(QString& text) const
{
    const bool keep = m_CLKOUT1_PinSelect != CLKOUT1PIN_NONE;
    return resolveSection(text, "clkout1 function", keep, [&](QString& body) {
        const PinMacros macros{GetOutPutString_CLKOUT1_GPIO_clock_type_String(),
                               GetOutPutString_CLKOUT1_GPIO_type_String(),
                               GetOutPutString_CLKOUT1_GPIO_PINS_Num_String(),
                               GetOutPutString_CLKOUT1_gpio_pins_source_type_String(),
                               GetOutPutString_CLKOUT1_gpio_mux_sel_type_String()};
        return setPin(text, body, macros) && setMux(text, body, macros) &&
               rewriteCall(text, body, {"crm_clock_out1_set", R"(\w+)"},
                           GetOutPutString_CLKOUT1_Define_String()) &&
               setIndexedDivider(text, body, GetOutPutString_CLKOUT_INDEX_Num_String(1),
                                 GetOutPutString_CLKOUT_DIV1_Define_String(m_CLKOUT1_Div1),
                                 GetOutPutString_CLKOUT_DIV2_Define_String(m_CLKOUT1_Div2));
    });
}

bool ZN64ConfigCLK::GenerateCode_clockout2(QString& text) const
{
    // The second output has one pin only: the template's GPIO lines stand as they are.
    const bool keep = m_CLKOUT2_PinSelect != CLKOUT2PIN_NONE;
    return resolveSection(text, "clkout2 function", keep, [&](QString& body) {
        return rewriteCall(text, body, {"crm_clock_out2_set", R"(\w+)"},
                           GetOutPutString_CLKOUT2_Define_String()) &&
               setIndexedDivider(text, body, GetOutPutString_CLKOUT_INDEX_Num_String(2),
                                 GetOutPutString_CLKOUT_DIV1_Define_String(m_CLKOUT2_Div1),
                                 GetOutPutString_CLKOUT_DIV2_Define_String(m_CLKOUT2_Div2));
    });
}
