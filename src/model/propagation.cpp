#include "model/ZN64ConfigCLK.h"
#include "model/seriestraits.h"

double ZN64ConfigCLK::GetPllInPutValue() const
{
    if (m_PLLRC == PLLRC_HICK) {
        const double hick = m_traits->hick_8mhz ? m_hick_Input_Value : m_hick_Input_Value / 6.0;
        return m_traits->pll_in_direct ? hick : hick / 2.0;
    }
    const bool divided = !m_traits->pll_in_direct && m_pllhext_div != 0;
    return divided ? m_hext_Input_Value / m_hext_div : m_hext_Input_Value;
}

double ZN64ConfigCLK::flexiblePllOutput(double pllInput) const
{
    // The divisors multiply as integers; 64 bits hold the product of any two ints.
    const long long outputDivider = m_traits->pll_fp_output ? m_PLL_FP : m_PLL_FR;
    return (m_PLL_NS * pllInput) / static_cast<double>(outputDivider * m_PLL_MS);
}

void ZN64ConfigCLK::CalculatePLLCLK()
{
    const double in = GetPllInPutValue();
    m_PLLCLK_Value = m_ConfigMode == PLLMODE_NORMAL ? m_PLL_MUL * in : flexiblePllOutput(in);
}

double ZN64ConfigCLK::hickToSclkValue() const
{
    if (m_traits->hick_8mhz)
        return m_hick_Input_Value;
    const double base = m_HickToSclk != 0 ? m_hick_Input_Value : m_hick_Input_Value / 6.0;
    return m_traits->sclk_prediv ? base / m_sclkhick_div : base;
}

double ZN64ConfigCLK::sysclkFromPll() const
{
    return m_traits->sysclk_half_pll ? m_PLLCLK_Value / 2.0 : m_PLLCLK_Value;
}

void ZN64ConfigCLK::calculateSysclk()
{
    // An unused PLL keeps its last value.
    if (m_sclk_select == SYSCLK_PLL || pll_isEnable())
        CalculatePLLCLK();

    switch (m_sclk_select) {
    case SYSCLK_HEXT:
        m_SYSCLK_Value = m_traits->sclk_prediv ? m_hext_Input_Value / m_hext_div : m_hext_Input_Value;
        break;
    case SYSCLK_PLL:
        m_SYSCLK_Value = sysclkFromPll();
        break;
    case SYSCLK_HICK:
        m_SYSCLK_Value = hickToSclkValue();
        break;
    }
}

void ZN64ConfigCLK::raiseApb1Divider()
{
    if (m_APB1DIV == 1)
        m_APB1DIV = 2;
    m_APB1CLK_Value = m_AHBCLK_Value / m_APB1DIV;
}

void ZN64ConfigCLK::forceApbDividers()
{
    // A forced divider is not lowered again when its cause has gone.
    if (m_traits->apb_half_rule) {
        const double half = GetSYSCLKValidMaxValue() / 2;
        if (m_APB1CLK_Value > half)
            raiseApb1Divider();
        if (m_APB2CLK_Value > half) {
            if (m_APB2DIV == 1)
                m_APB2DIV = 2;
            m_APB2CLK_Value = m_AHBCLK_Value / m_APB2DIV;
        }
    }
    // By AHB: a divider of 2 or more stays as the user chose it, even where APB1 is still above 120 MHz.
    if (m_traits->apb1_120_rule && m_AHBCLK_Value > 120.0)
        raiseApb1Divider();
}

void ZN64ConfigCLK::calculateBuses()
{
    m_AHBCLK_Value = m_SYSCLK_Value / m_AHBDIV;
    m_APB1CLK_Value = m_AHBCLK_Value / m_APB1DIV;
    m_APB2CLK_Value = m_AHBCLK_Value / m_APB2DIV;
    m_APB3CLK_Value = m_AHBCLK_Value / m_APB3DIV;
    forceApbDividers();
    // After the forcing, so that a forced divider doubles the timer clock.
    m_APB1TMR_MUL = m_APB1DIV == 1 ? 1 : 2;
    m_APB2TMR_MUL = m_APB2DIV == 1 ? 1 : 2;
    m_APB1TMRCLK_Value = m_APB1TMR_MUL * m_APB1CLK_Value;
    m_APB2TMRCLK_Value = m_APB2TMR_MUL * m_APB2CLK_Value;
    m_ADCCLK_Value = m_ToADC_Switch ? m_APB2CLK_Value / m_ToADCDIV : 0.0;
}

void ZN64ConfigCLK::calculateUsbFromPll()
{
    m_USBCLK_Value =
        m_traits->pll_fp_output ? (m_PLL_FP * m_PLLCLK_Value) / m_PLL_FU : m_PLLCLK_Value / m_USBDIV;
}

void ZN64ConfigCLK::CalculateCLK()
{
    calculateSysclk();
    calculateBuses();
    if (usbpll_isEnable())
        calculateUsbFromPll();
}

int ZN64ConfigCLK::GetSYSCLKValidMaxValue() const
{
    return m_traits->sysclkMax;
}
