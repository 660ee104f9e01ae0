#include "codegen/codetraits.h"
#include "codegen/section.h"
#include "model/seriestraits.h"

bool ZN64ConfigCLK::GenerateCode_autostepmode(QString& text) const
{
    const bool keep = m_SYSCLK_Value > 108.0; // MHz, in every series
    return resolveSection(text, "enable auto step mode", keep) &&
           resolveSection(text, "disable auto step mode", keep);
}

bool ZN64ConfigCLK::GenerateCode_pllsysclock(QString& text) const
{
    const bool keep = m_sclk_select == SYSCLK_PLL;
    if (!resolveSection(text, "pll sysclock", keep))
        return false;
    if (!keep || !codeTraits(m_MCUType).steppedSwitch)
        return true;
    const bool plain = m_SYSCLK_Value < 168.0; // MHz
    return resolveSection(text, "sysclock < 168", plain) && resolveSection(text, "sysclock >= 168", !plain);
}

bool ZN64ConfigCLK::GenerateCode_hextsysclock(QString& text) const
{
    return resolveSection(text, "hext sysclock", m_sclk_select == SYSCLK_HEXT, [this](QString& body) {
        if (traits().sclk_prediv)
            rewriteCall(body, {"crm_hext_sclk_div_set", R"(\w+)"}, GetOutPutString_HEXTDIV_Define_String());
        return true;
    });
}

bool ZN64ConfigCLK::GenerateCode_hicksysclock(QString& text) const
{
    return resolveSection(text, "hick sysclock", m_sclk_select == SYSCLK_HICK, [this](QString& body) {
        if (!traits().hick_8mhz && !resolveSection(body, "hick48", m_HickToSclk == HICK_TO_SCLK_NODIV))
            return false;
        if (traits().sclk_prediv)
            rewriteCall(body, {"crm_hick_sclk_div_set", R"(\w+)"}, GetOutPutString_HICKDIV_Define_String());
        return true;
    });
}
