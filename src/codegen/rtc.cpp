#include "codegen/codetraits.h"
#include "codegen/section.h"

bool ZN64ConfigCLK::GenerateCode_rtc(QString& text) const
{
    if (!resolveSection(text, "rtc function", m_rtc_Swith))
        return false;
    if (m_rtc_Swith) {
        // A miss in one of the three leaves its markers in the text and does not end the run.
        GenerateCode_rtc_lick(text);
        GenerateCode_rtc_lext(text);
        GenerateCode_rtc_hext(text);
    }
    return true;
}

bool ZN64ConfigCLK::GenerateCode_rtc_lick(QString& text) const
{
    return resolveSection(text, "rtc lick", m_rtcsel == RTCSEL_LICK, {}, SectionEnd::Bare);
}

bool ZN64ConfigCLK::GenerateCode_rtc_lext(QString& text) const
{
    const auto bypass = [this](QString& body) { return resolveSection(body, "lext bypass", m_lext_Bypass); };
    return resolveSection(text, "rtc lext", m_rtcsel == RTCSEL_LEXT, bypass, SectionEnd::Bare);
}

bool ZN64ConfigCLK::GenerateCode_rtc_hext(QString& text) const
{
    const auto edit = [this](QString& body) {
        if (!resolveSection(body, "hext bypass", m_hext_Bypass))
            return false;
        // The test line above the call keeps the template's divider 2 whatever the design says, as it should.
        if (codeTraits(m_MCUType).ertcDivider)
            rewriteCall(body, {"crm_ertc_clock_select", R"(\w+)"}, GetOutPutString_ERTCDIV_Define_String());
        return true;
    };
    return resolveSection(text, "rtc hext", m_rtcsel == RTCSEL_HEXT, edit, SectionEnd::Bare);
}
