#include "codegen/codetraits.h"
#include "codegen/macrolookup.h"
#include "codegen/macrotables.h"
#include "codegen/usbroute.h"
#include "model/seriestraits.h"

QString ZN64ConfigCLK::GetOutPutString_SysClkInitType_SYSCLKSel() const
{
    const bool named = m_sclk_select == SYSCLK_HEXT || m_sclk_select == SYSCLK_HICK;
    return SYSCLKSelect_Define_String[named ? m_sclk_select : SYSCLK_PLL];
}

QString ZN64ConfigCLK::GetOutPutString_SysClkInitType_AHBClkDivider() const
{
    return macroFor(AHBDIV_Define_String, divisors::ahb, m_AHBDIV);
}

QString ZN64ConfigCLK::GetOutPutString_SysClkInitType_APB1ClkDivider() const
{
    return macroFor(APB1DIV_Define_String, divisors::apb, m_APB1DIV);
}

QString ZN64ConfigCLK::GetOutPutString_SysClkInitType_APB2ClkDivider() const
{
    return macroFor(APB2DIV_Define_String, divisors::apb, m_APB2DIV);
}

QString ZN64ConfigCLK::GetOutPutString_SysClkInitType_APB3ClkDivider() const
{
    return macroFor(APB3DIV_Define_String, divisors::apb, m_APB3DIV);
}

QString ZN64ConfigCLK::GetOutPutString_SysClkInitType_USBDivider() const
{
    static constexpr auto halfStepsTo9 = divisors::steps<double, 17>(1.0, 0.5);
    const bool divided = usbRoutedFromPll(*this) && !traits().no_usb;
    return macroFor(USBDIV_Define_String, halfStepsTo9, divided ? m_USBDIV : 1.0);
}

QString ZN64ConfigCLK::GetOutPutString_HEXTDIV_Define_String() const
{
    return macroFor(HEXTDIV_Define_String, divisors::hextToSclk, m_hext_div);
}

QString ZN64ConfigCLK::GetOutPutString_HICKDIV_Define_String() const
{
    return macroFor(HICKDIV_Define_String, divisors::hickToSclk, m_sclkhick_div);
}

QString ZN64ConfigCLK::GetOutPutString_PWC_LDO_OUTPUT_Define_String() const
{
    const LdoThresholds& ldo = codeTraits(m_MCUType).ldo;
    if (ldo.lowest < 0)
        return {};
    if (m_SYSCLK_Value > ldo.above1V3 && m_SYSCLK_Value <= ldo.upTo1V3)
        return PWC_LDO_OUTPUT_SOURCE_Define_String[0];
    return PWC_LDO_OUTPUT_SOURCE_Define_String[m_SYSCLK_Value > ldo.above1V2 ? 1 : ldo.lowest];
}
