#include "codegen/macrolookup.h"
#include "codegen/macrotables.h"
#include "model/ZN64ConfigCLK.h"
#include "model/seriestraits.h"

#include <algorithm>

QString ZN64ConfigCLK::GetOutPutString_OscInitType_FlashPsr() const
{
    // The highest system clock, MHz, of each row but the last. One table for every series.
    static constexpr double limits[] = {32.0, 64.0, 96.0, 128.0, 160.0, 192.0, 216.0};
    const auto row = std::find_if(std::begin(limits), std::end(limits),
                                  [this](double limit) { return m_SYSCLK_Value <= limit; });
    return FLASHPSR_Define_String[row - std::begin(limits)];
}

QString ZN64ConfigCLK::GetOutPutString_OscInitType_PLLRC() const
{
    if (!pll_isEnable())
        return pll_rc_State_Define_String[0];
    if (m_PLLRC != PLLRC_HEXT)
        return pll_rc_State_Define_String[2];
    const bool divided = !traits().pll_in_direct && m_pllhext_div != PLLHEXT_NODIV;
    return pll_rc_State_Define_String[divided ? 1 : 0];
}

QString ZN64ConfigCLK::GetOutPutString_OscInitType_HextDiv() const
{
    return hextdiv_isEnable() ? hextdiv_State_Define_String[0] + QString::number(m_hext_div) : QString();
}

QString ZN64ConfigCLK::GetOutPutString_OscInitType_PLLMULT() const
{
    return pll_isEnable() && m_ConfigMode == PLLMODE_NORMAL
               ? pll_mult_State_Define_String[0] + QString::number(m_PLL_MUL)
               : QString();
}

QString ZN64ConfigCLK::GetOutPutString_OscInitType_PLLOutputRange() const
{
    if (!pll_isEnable())
        return {};
    return pll_output_range_State_Define_String[m_PLLCLK_Value > 72.0 ? 1 : 0];
}

namespace {
bool flexiblePllInUse(const ZN64ConfigCLK& clock)
{
    return clock.pll_isEnable() && clock.Get_ConfigMode() == PLLMODE_FLEXIBLE;
}
} // namespace

QString ZN64ConfigCLK::GetOutPutString_OscInitType_PLLMS() const
{
    return QString::number(flexiblePllInUse(*this) ? m_PLL_MS : 1);
}

QString ZN64ConfigCLK::GetOutPutString_OscInitType_PLLNS() const
{
    return QString::number(flexiblePllInUse(*this) ? m_PLL_NS : 31);
}

QString ZN64ConfigCLK::GetOutPutString_OscInitType_PLLFR() const
{
    return macroFor(pll_fr_State_Define_String, divisors::pllFr, flexiblePllInUse(*this) ? m_PLL_FR : 1);
}

QString ZN64ConfigCLK::GetOutPutString_OscInitType_PLLFP() const
{
    return macroFor(pll_fp_State_Define_String, divisors::pllFp, flexiblePllInUse(*this) ? m_PLL_FP : 1);
}

QString ZN64ConfigCLK::GetOutPutString_OscInitType_PLLFU() const
{
    return macroFor(pll_fu_State_Define_String, divisors::pllFu, flexiblePllInUse(*this) ? m_PLL_FU : 11);
}
