#include "ZN64G152PLL.h"

#include "ZN64G150PLL.h"

namespace {

PageDescription describe()
{
    PageDescription page = g150Description();
    page.series = ZN64G152;
    page.picture = "G152PLL.bmp";
    page.places = page.places.with({
        outputAt("m_toi2s_lineEdit", 1176, 41, "i2s (MHz)"),
        outputAt("m_tosystick_lineEdit", 1176, 77, "systick(MHz)"),
        outputAt("m_tosido_lineEdit", 1176, 113, "sdio (MHz)"),
        outputAt("m_todma_lineEdit", 1176, 150, "dma (MHz)"),
        outputAt("m_toxmc_lineEdit", 1176, 186, "xmc (MHz)"),
        outputAt("m_togpio_lineEdit", 1176, 222, "gpio (MHz)"),
        outputAt("m_todvp_lineEdit", 1176, 258, "dvp (MHz)"),
        outputAt("m_toqspi_lineEdit", 1176, 296, "qspi (MHz)"),
        outputAt("m_toemac_lineEdit", 1176, 332, "emac (MHz)"),
        outputAt("m_toadc_lineEdit", 1176, 370, "adc (MHz)"),
        outputAt("m_toapb1peripheral_lineEdit", 1176, 431, "apb1 peripheral (MHz)"),
        outputAt("m_toapb1tmr_lineEdit", 1176, 515, "apb1 tmr (MHz)"),
        outputAt("m_toapb2peripheral_lineEdit", 1176, 613, "apb2 peripheral (MHz)"),
        outputAt("m_toapb2tmr_lineEdit", 1176, 698, "apb2 tmr (MHz)"),
        groupAt("m_toapb1periphera_list_group", 1261, 476),
        groupAt("m_toapb1tmr_list_group", 1261, 560),
        groupAt("m_toapb2periphera_list_group", 1261, 658),
        groupAt("m_toapb2tmr_list_group", 1261, 563),
        editAt("m_tosystick_div", 1092, 74),
    });
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
