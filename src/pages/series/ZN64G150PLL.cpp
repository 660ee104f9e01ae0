#include "pages/series/ZN64G150PLL.h"

#include "model/divisors.h"
#include "pages/description/clockoutputs.h"
#include "pages/series/seriespage.h"

namespace {

ClockOutput clockOutput1()
{
    ClockOutput output = clockoutputs::first();
    output.pins = {
        {"PA8", CLKOUT1PIN_PA8},
        {"PE4", CLKOUT1PIN_PE4}
    };
    output.rows = {
        {CLKOUT1_HICK, "hick", ClockSource::Hick},
        {CLKOUT1_LEXT, "lext", ClockSource::Lext},
        {CLKOUT1_HEXT, "hext", ClockSource::Hext},
        {CLKOUT1_PLL,  "pll",  ClockSource::Pll }
    };
    return output;
}

ClockOutput clockOutput2()
{
    ClockOutput output = clockoutputs::second();
    output.pins = {
        {"PC9", CLKOUT2PIN_PC9}
    };
    // clang-format off
    output.rows = {
        {CLKOUT2_SCLK,   "sclk",   ClockSource::Sclk},
        {CLKOUT2_HEXT,   "hext",   ClockSource::Hext},
        {CLKOUT2_PLL,    "pll",    ClockSource::Pll},
        {CLKOUT2_USB,    "usb",    ClockSource::Usb, "usb", RowGate::Usb},
        {CLKOUT2_HICK,   "hick",   ClockSource::Hick},
        // Without a divider of the ADC on the page nobody knows what the ADC makes of its clock.
        {CLKOUT2_ADCCLK, "adcclk", ClockSource::Untold},
        {CLKOUT2_LICK,   "lick",   ClockSource::Lick},
        {CLKOUT2_LEXT,   "lext",   ClockSource::Lext}
    };
    // clang-format on
    return output;
}

} // namespace

PageDescription ZN64G150PLL::describe()
{
    PageDescription page{ZN64G150, QSize(1404, 828)};
    // clang-format off
    page.tree = {{"direct"}, {"plldirectfr"}, {"usbdirect"}, {"hexttosclk"}, {"registerclose"}, {"clockout1"}, {"clockout2"},
                 {"sclkwarnings", 775, 315}};
    page.buses = {{"systick", 1092, 89},      {"apb1limited", 1035, 448}, {"apb1timer", 1092, 486},
                  {"apb2limited", 1035, 613}, {"apb2timer", 1092, 653}};
    page.column = {
        {"G150", 1177}
    };
    page.moved = {
        {"m_hicktosclk_Label", 267, 440}, {"m_hicktousb_Label", 768, 490},
        {"m_pllCFG_Value_lineEdit", 510, 227}, {"m_pllclk_Label", 650, 275},
        {"m_apb1divMax_Label", 1090, 438}, {"m_apb2divMax_Label", 1090, 603},
        {"m_sclk_Label", 775, 262, "sclk({sclkMin} - {sclk} MHz)"},
    };
    page.fonts = {
        {"m_apb1div_Label", 10, 0}, {"m_apb1divMax_Label", 10, 0}, {"m_apb2div_Label", 10, 0},
        {"m_apb2divMax_Label", 10, 0}, {"m_pllclk_Label", 10, 75}, {"m_usbclock_Label", 10, 70},
    };
    // clang-format on
    page.outputs = "i2s systick sido dma xmc gpio dvp qspi adc apb1peripheral apb1tmr apb2peripheral apb2tmr";
    page.lists.apb1 = {"SPI2 SPI3 USART2 USART3 UART4 UART5 UART7 UART8 I2C1 I2C2 I2C3 CAN1 CAN2 DAC"};
    page.lists.apb1Timers = {"TMR2 TMR3 TMR4 TMR5 TMR6 TMR7 TMR12 TMR13 TMR14"};
    page.lists.apb2 = {"SPI1 SPI4 USART1 USART6 SCFG"};
    page.lists.apb2Timers = {"TMR1 TMR8 TMR9 TMR10 TMR11 TMR20", -135};

    page.limits.apb1 = 144.0;
    page.limits.apb2 = 144.0;
    page.start = {
        {"pllns",  144},
        {"pllfr",  4  },
        {"usbdiv", 6  }
    };
    page.usbDivider = dividers::usb(listOf(divisors::usbHalfStepsTo7));
    page.clockOutputs = {clockOutput1(), clockOutput2()};
    page.alwaysSearchesUsb = true;
    return page;
}

ZN64G150PLL::ZN64G150PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G150PLL>(), parent)
{
    build();
}
