#include "codegen/codetraits.h"
#include "codegen/macrotables.h"
#include "codegen/section.h"

bool ZN64ConfigCLK::GenerateCode_ahbclk(QString& text) const
{
    // The earlier calls of a stepped switch are fixed steps; only the last one sets the wanted divider.
    return rewriteLastCall(text, {"crm_ahb_div_set", R"(\s*\w+)"},
                           GetOutPutString_SysClkInitType_AHBClkDivider());
}

bool ZN64ConfigCLK::GenerateCode_apb1clk(QString& text) const
{
    return rewriteCall(text, {"crm_apb1_div_set", R"(\s*\w+)"},
                       GetOutPutString_SysClkInitType_APB1ClkDivider());
}

bool ZN64ConfigCLK::GenerateCode_apb2clk(QString& text) const
{
    return rewriteCall(text, {"crm_apb2_div_set", R"(\s*\w+)"},
                       GetOutPutString_SysClkInitType_APB2ClkDivider());
}

bool ZN64ConfigCLK::GenerateCode_apb3clk(QString& text) const
{
    return rewriteCall(text, {"crm_apb3_div_set", R"(\s*\w+)"},
                       GetOutPutString_SysClkInitType_APB3ClkDivider());
}

bool ZN64ConfigCLK::GenerateCode_flashclkdiv(QString& text) const
{
    if (!codeTraits(m_MCUType).clockChain.contains(&ZN64ConfigCLK::GenerateCode_flashclkdiv))
        return true;
    const bool fast = m_SYSCLK_Value > 208.0; // MHz
    return rewriteCall(text, {"flash_clock_divider_set", R"(\s*\w+)"}, FLASHDIV_Define_String[fast ? 1 : 0]);
}

bool ZN64ConfigCLK::GenerateCode_PWC_LDO_OUTPUT(QString& text) const
{
    return rewriteCall(text, {"pwc_ldo_output_voltage_set", R"(\s*\w+)"},
                       GetOutPutString_PWC_LDO_OUTPUT_Define_String());
}
