#include "codegen/section.h"
#include "model/ZN64ConfigCLK.h"

bool ZN64ConfigCLK::GenerateCode_flashpsr(QString& text) const
{
    return resolveSection(text, "flash psr", true) &&
           rewriteCall(text, {"flash_psr_set", R"(\s*\w+)"}, GetOutPutString_OscInitType_FlashPsr());
}

bool ZN64ConfigCLK::GenerateCode_hext(QString& text) const
{
    return resolveSection(text, "enable hext", hext_isEnable());
}

bool ZN64ConfigCLK::GenerateCode_hextbypass(QString& text) const
{
    return resolveSection(text, "hext bypass", hext_isEnable() && Get_Hext_Bypass_Value());
}

bool ZN64ConfigCLK::GenerateCode_hick(QString& text) const
{
    return resolveSection(text, "enable hick", hick_isEnable());
}

bool ZN64ConfigCLK::GenerateCode_hextdiv(QString& text) const
{
    const bool keep = hextdiv_isEnable();
    if (!resolveSection(text, "enable hextdiv", keep))
        return false;
    return !keep ||
           rewriteCall(text, {"crm_hext_clock_div_set", R"(\w+)"}, GetOutPutString_OscInitType_HextDiv());
}
