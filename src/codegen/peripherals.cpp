#include "codegen/codetraits.h"
#include "codegen/peripheralswitches.h"
#include "codegen/section.h"

namespace {
/// Sets the source of one instance in its line of the body, or deletes the line. False if there is no line.
bool setInstance(QString& body, const QString& function, const QString& instance, bool on,
                 const QString& source)
{
    return replacePattern(body, QStringLiteral(R"(  %1\(%2,(\s*\w+)\);\n)").arg(function, instance),
                          on ? QStringLiteral("  %1(%2, %3);\n").arg(function, instance, source) : QString());
}
} // namespace

bool ZN64ConfigCLK::GenerateCode_adc(QString& text) const
{
    return resolveSection(text, "adc function", m_ToADC_Switch, [&](QString& body) {
        if (codeTraits(m_MCUType).adcSource)
            return rewriteCall(text, body, {"crm_adc_clock_select", R"(\w+)"},
                               GetOutPutString_ADCClockSource_Define_String());
        return rewriteCall(text, body, {"crm_adc_clock_div_set", R"(\w+)"},
                           GetOutPutString_ADCDIV_Define_String());
    });
}

bool ZN64ConfigCLK::GenerateCode_i2c(QString& text) const
{
    return resolveSection(text, "i2c function", m_I2CSwitch, [this](QString& body) {
        // No blank behind the comma, unlike the template.
        return codeTraits(m_MCUType).mainChain.contains(&ZN64ConfigCLK::GenerateCode_i2c) &&
               rewriteCall(body, {"crm_i2c_clock_select", R"(CRM_I2C1,\s*\w+)"},
                           QStringLiteral("CRM_I2C1,") + GetOutPutString_I2CClockSource_Define_String());
    });
}

bool ZN64ConfigCLK::GenerateCode_i2sf5(QString& text) const
{
    return resolveSection(text, "i2sf5 function", m_I2SF5Switch, [this](QString& body) {
        return codeTraits(m_MCUType).mainChain.contains(&ZN64ConfigCLK::GenerateCode_i2sf5) &&
               rewriteCall(body, {"crm_i2sf5_clock_select", R"(\s*\w+)"},
                           GetOutPutString_i2sf5ClockSource_Define_String());
    });
}

bool ZN64ConfigCLK::GenerateCode_can(QString& text) const
{
    return resolveSection(text, "can function", anyCanOn(*this), [this](QString& body) {
        const CAN_CLOCK_SOURCE sources[] = {m_can1_Clock_Source, m_can2_Clock_Source, m_can3_Clock_Source};
        const bool on[] = {m_CAN1Switch, m_CAN2Switch, m_CAN3Switch};
        bool found = true;
        for (int i = 0; found && i < codeTraits(m_MCUType).canCount; ++i)
            found = setInstance(body, QStringLiteral("crm_can_clock_select"),
                                QStringLiteral("CRM_CAN%1").arg(i + 1), on[i],
                                GetOutPutString_CANClockSource_Define_String(sources[i]));
        return found;
    });
}

bool ZN64ConfigCLK::GenerateCode_usart(QString& text) const
{
    return resolveSection(text, "usart function", anyUsartOn(*this), [this](QString& body) {
        GenerateCode_usart_lext(body); // a miss leaves the markers and does not end the run
        const QString sources[] = {GetOutPutString_Usart1ClockSource_Define_String(),
                                   GetOutPutString_Usart2ClockSource_Define_String(),
                                   GetOutPutString_Usart3ClockSource_Define_String()};
        const bool on[] = {m_USART1Switch, m_USART2Switch, m_USART3Switch};
        bool found = true;
        for (int i = 0; found && i < codeTraits(m_MCUType).usartCount; ++i)
            found = setInstance(body, QStringLiteral("crm_usart_clock_select"),
                                QStringLiteral("CRM_USART%1").arg(i + 1), on[i], sources[i]);
        return found;
    });
}

bool ZN64ConfigCLK::GenerateCode_usart_lext(QString& text) const
{
    // The switches are not looked at: a USART that is off and set to lext keeps the block, as it should.
    const bool keep = m_usart1_Clock_Source == USART_CLOCK_SOURCE_LEXT ||
                      m_usart2_Clock_Source == USART_CLOCK_SOURCE_LEXT ||
                      m_usart3_Clock_Source == USART_CLOCK_SOURCE_LEXT;
    const auto bypass = [this](QString& body) { return resolveSection(body, "lext bypass", m_lext_Bypass); };
    return resolveSection(text, "usart lext", keep, bypass, SectionEnd::Bare);
}
