#include "ZN64G152PLL.h"

#include "ZN64G150PLL.h"

namespace {

PageDescription describe()
{
    PageDescription page = g150Description();
    page.series = ZN64G152;
    page.picture = "G152PLL.bmp";
    page.places = page.places
                      .moved({
                          {"m_toi2s_lineEdit",             1176, 41 },
                          {"m_tosystick_lineEdit",         1176, 77 },
                          {"m_tosido_lineEdit",            1176, 113},
                          {"m_todma_lineEdit",             1176, 150},
                          {"m_toxmc_lineEdit",             1176, 186},
                          {"m_togpio_lineEdit",            1176, 222},
                          {"m_todvp_lineEdit",             1176, 258},
                          {"m_toqspi_lineEdit",            1176, 296},
                          {"m_toadc_lineEdit",             1176, 370},
                          {"m_toapb1peripheral_lineEdit",  1176, 431},
                          {"m_toapb1tmr_lineEdit",         1176, 515},
                          {"m_toapb2peripheral_lineEdit",  1176, 613},
                          {"m_toapb2tmr_lineEdit",         1176, 698},
                          {"m_toapb1periphera_list_group", 1261, 476},
                          {"m_toapb1tmr_list_group",       1261, 560},
                          {"m_toapb2periphera_list_group", 1261, 658},
                          {"m_toapb2tmr_list_group",       1261, 563},
                          {"m_tosystick_div",              1092, 74 },
    })
                      .with({outputAt("m_toemac_lineEdit", 1176, 332, "emac (MHz)")});
    page.outputs.push_back({"m_toemac_lineEdit", Clock::Ahb});
    // The page has no switch for the ADC, so that this never asks. It stands all the same.
    page.softLimits.push_back(
        {SoftLimitKind::AdcAbove, 80.0,
         "The maximum ADC clock is 80 MHz. The currently configured ADC clock is wrong.  "
         "please confirm whether to continue?"});
    return page;
}

const PageDescription& g152Description()
{
    static const PageDescription page = describe();
    return page;
}

} // namespace

ZN64G152PLL::ZN64G152PLL(QWidget* parent) : ClockTreePage(g152Description(), parent)
{
    build();
}
