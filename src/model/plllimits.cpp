#include "model/ZN64ConfigCLK.h"
#include "model/divisors.h"
#include "model/seriestraits.h"

#include <algorithm>

namespace {

// MHz, both ends good.
constexpr double dividedInputMin = 2.0;
constexpr double dividedInputMax = 16.0;
// 48 MHz times the largest divisor from the VCO to USB.
constexpr double vcoTopForUsb = 960.0;

// One past the last integer in low to high that holds, if all that hold come first. The middle is taken
// between the limits, and so cannot overflow.
template <typename Predicate>
long long endOfHolding(long long low, long long high, Predicate holds)
{
    long long end = high + 1;
    while (low < end) {
        const long long middle = low + (end - low) / 2;
        if (holds(middle))
            low = middle + 1;
        else
            end = middle;
    }
    return low;
}

double vco(double ns, double pllInput, double ms)
{
    return (ns * pllInput) / ms;
}

bool dividedInputValid(double dividedInput)
{
    return dividedInput >= dividedInputMin && dividedInput <= dividedInputMax;
}

} // namespace

bool ZN64ConfigCLK::PLL_MS_Valid_Check(int ms, int& corrected) const
{
    const double in = GetPllInPutValue();
    const double dividedInput = in / ms;
    corrected = 1;
    if (dividedInputValid(dividedInput))
        return true;

    if (dividedInput < dividedInputMin) {
        // The largest good value at or below ms. The quotient falls as the divisor grows, so that halving
        // finds what counting down from ms would.
        const auto end = endOfHolding(1, ms, [in](long long v) { return in / v >= dividedInputMin; });
        corrected = static_cast<int>(std::max(end - 1, 1LL));
    } else if (dividedInput > dividedInputMax) {
        for (int v = std::max(ms, divisors::pllMsMin); v <= divisors::pllMsMax; ++v) {
            if (in / v <= dividedInputMax) {
                corrected = v;
                break;
            }
        }
    }
    return false;
}

bool ZN64ConfigCLK::PLL_NS_Valid_Check(int ns, int ms, int& corrected) const
{
    const double in = GetPllInPutValue();
    // Without the limit that the search keeps for USB: a typed value is good while USB is off, and designs
    // are saved with it.
    const double top = m_traits->vcoTop();
    const double value = vco(ns, in, ms);
    corrected = divisors::pllNsMin;
    if (value >= vcoMinMHz && value <= top)
        return true;

    if (value < vcoMinMHz) {
        // No value below zero can be the first good one above a bad one.
        for (int v = std::max(ns, 0); v <= divisors::pllNsMax; ++v) {
            if (vco(v, in, ms) >= vcoMinMHz) {
                corrected = v;
                break;
            }
        }
    } else if (value > top) {
        const auto end =
            endOfHolding(divisors::pllNsMin, ns, [=](long long v) { return top >= vco(v, in, ms); });
        corrected = static_cast<int>(std::max(end - 1, static_cast<long long>(divisors::pllNsMin)));
    }
    return false;
}

void ZN64ConfigCLK::Get_PLL_MS_ValidRange(double pllInput, int& upper, int& lower) const
{
    upper = divisors::pllMsMax;
    lower = divisors::pllMsMin;
    bool found = false;
    for (int ms = divisors::pllMsMin; ms <= divisors::pllMsMax; ++ms) {
        if (!dividedInputValid(pllInput / ms))
            continue;
        if (!found)
            lower = ms;
        found = true;
        upper = ms;
    }
}

double ZN64ConfigCLK::solverVcoTop() const
{
    const bool usbFromVco = m_traits->pll_fp_output && m_ToUSBSwitch == 0 && m_HickToUSB == 0;
    return usbFromVco ? vcoTopForUsb : m_traits->vcoTop();
}

void ZN64ConfigCLK::Get_PLL_NS_ValidRange(double pllInput, double ms, int& upper, int& lower) const
{
    const double top = solverVcoTop();
    // The VCO never falls while NS grows, also after rounding, so that the good values are one run and
    // halving finds its ends. A VCO that falls or is not a number has no good value at all.
    const auto first = endOfHolding(divisors::pllNsMin, divisors::pllNsMax,
                                    [=](long long ns) { return !(vco(ns, pllInput, ms) >= vcoMinMHz); });
    const auto end = endOfHolding(divisors::pllNsMin, divisors::pllNsMax,
                                  [=](long long ns) { return vco(ns, pllInput, ms) <= top; });
    upper = divisors::pllNsMax;
    lower = divisors::pllNsMin;
    if (first >= end)
        return;
    upper = static_cast<int>(end - 1);
    lower = static_cast<int>(first);
}
