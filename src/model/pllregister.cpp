#include "model/ZN64ConfigCLK.h"
#include "model/divisors.h"
#include "model/seriestraits.h"

namespace {

// A divisor without a code of its own counts as the first of its list.
template <typename List>
quint32 registerCode(const List& list, int divisor)
{
    const int index = divisors::indexOf(list, divisor);
    return index < 0 ? 0 : static_cast<quint32>(index);
}

} // namespace

QString ZN64ConfigCLK::Get_CRM_PLLCFG_Value() const
{
    const quint32 fromHext = m_PLLRC == PLLRC_HICK ? 0 : 1;
    quint32 value = static_cast<quint32>(m_PLL_MS) | static_cast<quint32>(m_PLL_NS) << 6;
    if (m_traits->pll_fp_output) {
        const quint32 usbFromVco = m_ToUSBSwitch == 0 && m_HickToUSB == 0 ? 1 : 0;
        value |= registerCode(divisors::pllFp, m_PLL_FP) << 16 |
                 registerCode(divisors::pllFu, m_PLL_FU) << 20 | usbFromVco << 29 | fromHext << 30;
    } else {
        value |= registerCode(divisors::pllFr, m_PLL_FR) << 16 | fromHext << 22;
    }
    return QStringLiteral("0x%1").arg(value, 8, 16, QLatin1Char('0'));
}
