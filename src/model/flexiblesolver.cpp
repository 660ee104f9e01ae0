#include "model/ZN64ConfigCLK.h"
#include "model/divisors.h"
#include "model/numbers.h"
#include "model/seriestraits.h"

#include <cmath>

namespace {

// Farther from the target than any frequency of the chip, MHz.
constexpr double farAway = 10000.0;
// The system clock to come near to while USB tunes the PLL and the system clock comes from elsewhere, MHz.
constexpr double sysclkBesideUsb = 192.0;

} // namespace

void ZN64ConfigCLK::CalculateParam_From_ResultCLK_Flexible(double pllInput, int forUsb)
{
    if (forUsb)
        CalculateParam_From_ResultCLK_Flexible_USBCLK(pllInput);
    else
        CalculateParam_From_ResultCLK_Flexible_SYSCLK(pllInput);
}

void ZN64ConfigCLK::CalculateParam_From_ResultCLK_Flexible_SYSCLK(double pllInput)
{
    const double wanted = wantedSysclk();
    const double target = m_traits->sysclk_half_pll ? wanted + wanted : wanted;
    storeSolution(m_traits->pll_fp_output ? nearestPll(divisors::pllFp, pllInput, target)
                                          : nearestPll(divisors::pllFr, pllInput, target));
    m_PLLCLK_Value = flexiblePllOutput(pllInput);
    m_SYSCLK_Value = sysclkFromPll();
}

void ZN64ConfigCLK::CalculateParam_From_ResultCLK_Flexible_USBCLK(double pllInput)
{
    const double usbTarget = integerPart(usbClockMHz * (m_traits->pll_fp_output ? m_PLL_FU : m_USBDIV));
    PllSolution solution;
    if (m_traits->pll_fp_output) {
        // USB goes first; the system clock gets the nearest that the output divider allows.
        solution = nearestVco(pllInput, usbTarget);
        solution.divider =
            nearestFp(solution, pllInput, m_sclk_select == SYSCLK_PLL ? wantedSysclk() : sysclkBesideUsb);
    } else {
        solution = nearestPll(divisors::pllFr, pllInput, usbTarget);
    }
    storeSolution(solution);
    m_PLLCLK_Value = flexiblePllOutput(pllInput);
    if (m_sclk_select == SYSCLK_PLL)
        m_SYSCLK_Value = sysclkFromPll();
}

double ZN64ConfigCLK::wantedSysclk() const
{
    const double maximum = GetSYSCLKValidMaxValue();
    return m_SYSCLK_Value > maximum ? maximum : m_SYSCLK_Value;
}

// The order of the loops decides between equally near solutions, and an exact hit does not end the search:
// the largest divider wins, then the smallest MS, then the smallest NS.
template <typename Table>
ZN64ConfigCLK::PllSolution ZN64ConfigCLK::nearestPll(const Table& dividers, double pllInput,
                                                     double target) const
{
    PllSolution solution;
    double best = farAway;
    int msUpper = 0;
    int msLower = 0;
    Get_PLL_MS_ValidRange(pllInput, msUpper, msLower);
    for (auto divider = dividers.rbegin(); divider != dividers.rend(); ++divider) {
        for (int ms = msLower; ms <= msUpper; ++ms) {
            int nsUpper = 0;
            int nsLower = 0;
            Get_PLL_NS_ValidRange(pllInput, ms, nsUpper, nsLower);
            const double divisor = *divider * ms;
            for (int ns = nsLower; ns <= nsUpper; ++ns) {
                const double difference = std::abs((ns * pllInput) / divisor - target);
                if (best > difference) {
                    solution = {ms, ns, *divider};
                    best = difference;
                }
            }
        }
    }
    return solution;
}

ZN64ConfigCLK::PllSolution ZN64ConfigCLK::nearestVco(double pllInput, double target) const
{
    PllSolution solution;
    double best = farAway;
    int msUpper = 0;
    int msLower = 0;
    Get_PLL_MS_ValidRange(pllInput, msUpper, msLower);
    for (int ms = msLower; ms <= msUpper; ++ms) {
        int nsUpper = 0;
        int nsLower = 0;
        Get_PLL_NS_ValidRange(pllInput, ms, nsUpper, nsLower);
        // Downward: here the largest NS wins.
        for (int ns = nsUpper; ns >= nsLower; --ns) {
            const double difference = std::abs((ns * pllInput) / ms - target);
            if (best > difference) {
                solution = {ms, ns, 0};
                best = difference;
            }
        }
    }
    return solution;
}

int ZN64ConfigCLK::nearestFp(const PllSolution& vco, double pllInput, double target)
{
    int nearest = 0;
    double best = farAway;
    for (auto fp = divisors::pllFp.rbegin(); fp != divisors::pllFp.rend(); ++fp) {
        const double difference = std::abs((vco.ns * pllInput) / (*fp * vco.ms) - target);
        if (best > difference) {
            nearest = *fp;
            best = difference;
        }
    }
    return nearest;
}

void ZN64ConfigCLK::storeSolution(const PllSolution& solution)
{
    m_PLL_MS = solution.ms;
    m_PLL_NS = solution.ns;
    // The divider that the series lacks is wiped.
    m_PLL_FR = m_traits->pll_fp_output ? 0 : solution.divider;
    m_PLL_FP = m_traits->pll_fp_output ? solution.divider : 0;
}
