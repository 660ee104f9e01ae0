#include "model/ZN64ConfigCLK.h"
#include "model/divisors.h"
#include "model/numbers.h"
#include "model/seriestraits.h"

namespace {

// The nearest multiplier of the PLL's list, a half going upward. An input of 0 kHz gives an end of the list.
int nearestMultiplier(int targetKhz, int inKhz)
{
    const double quotient = static_cast<double>(targetKhz) / static_cast<double>(inKhz);
    if (!(quotient > divisors::pllMul.front()))
        return divisors::pllMul.front();
    if (quotient >= divisors::pllMul.back())
        return divisors::pllMul.back();
    return qRound(quotient);
}

// Lowers to the upper limit, then raises to the lower one.
template <typename T>
T limited(T value, T lower, T upper)
{
    if (value > upper)
        value = upper;
    if (value < lower)
        value = lower;
    return value;
}

} // namespace

void ZN64ConfigCLK::CalculateParam_From_ResultCLK_Normal(double pllInput, int forUsb)
{
    const int targetKhz =
        forUsb ? integerPart((usbClockMHz * m_USBDIV) * 1000.0) : integerPart(1000.0 * m_SYSCLK_Value);
    const int inKhz = integerPart(1000.0 * pllInput);
    m_PLL_MUL = nearestMultiplier(targetKhz, inKhz);
    m_PLLCLK_Value = static_cast<double>(static_cast<long long>(m_PLL_MUL) * inKhz) / 1000.0;
    // Series whose system clock is half of the PLL have no normal mode.
    if (!forUsb)
        m_SYSCLK_Value = m_PLLCLK_Value;
}

void ZN64ConfigCLK::solvePll(int forUsb)
{
    const double in = GetPllInPutValue();
    if (m_ConfigMode != PLLMODE_NORMAL)
        CalculateParam_From_ResultCLK_Flexible(in, forUsb);
    else
        CalculateParam_From_ResultCLK_Normal(in, forUsb);
}

void ZN64ConfigCLK::CalculateParam_From_USBCLK()
{
    if (!usbpll_isEnable())
        return;
    solvePll(1);
    calculateUsbFromPll();
}

void ZN64ConfigCLK::CalculateParam_From_SYSCLK()
{
    if (m_sclk_select == SYSCLK_PLL)
        solvePll(0);
    calculateBuses();
    if (!usbpll_isEnable())
        return;
    if (m_traits->pll_fp_output)
        chooseUsbFu();
    else
        chooseUsbDivider();
}

void ZN64ConfigCLK::chooseUsbDivider()
{
    const long long sysInt = integerPart(m_SYSCLK_Value);
    const bool half = m_traits->sysclk_half_pll;
    // 24 and not 48: the divider has half steps, or the PLL runs at twice the system clock.
    if (sysInt % 24 == 0)
        m_USBDIV = (half ? sysInt * 2 : sysInt) / usbClockMHz;
    m_USBDIV = limited<double>(m_USBDIV, m_traits->usbDivMin, m_traits->usbDivMax);
    m_USBCLK_Value = (half ? m_SYSCLK_Value + m_SYSCLK_Value : m_SYSCLK_Value) / m_USBDIV;
}

void ZN64ConfigCLK::chooseUsbFu()
{
    const long long vco = static_cast<long long>(m_PLL_FP) * integerPart(m_SYSCLK_Value);
    if (vco % 48 == 0)
        m_PLL_FU = integerPart(vco / usbClockMHz);
    m_PLL_FU = limited(m_PLL_FU, m_traits->usbDivMin, m_traits->usbDivMax);
    // 15, 17 and 19 do not exist.
    if (divisors::indexOf(divisors::pllFu, m_PLL_FU) < 0)
        ++m_PLL_FU;
    m_USBCLK_Value = (m_PLL_FP * m_SYSCLK_Value) / m_PLL_FU;
}
