#include "pages/series/ZN64G165PLL.h"

#include "pages/description/clockoutputs.h"
#include "pages/description/peripherals.h"
#include "pages/series/seriespage.h"

PageDescription ZN64G165PLL::describe()
{
    PageDescription page{ZN64G165, QSize(1404, 833)};
    // clang-format off
    page.tree = {{"direct"}, {"plldirectfp"}, {"divided"}, {"usbfu"}, {"clockouttwiceeight"}, {"bandthree"},
                 {"peripheral", 684, 622}};
    page.buses = {{"systick", 1092, 75},          {"apb1limited", 1036, 423}, {"apb1timerhalf", 1092, 457},
                  {"apb2limited", 1036, 546}, {"apb2timerhalf", 1092, 578}, {"apb3", 1036, 666}};
    // clang-format on
    page.column = {
        {"G165", 1182}
    };
    page.outputs =
        "i2s systick sido dma xmc gpio aes trng qspi adc apb1peripheral apb1tmr apb2peripheral apb2tmr "
        "apb3peripheral";
    page.lists.apb1 = {
        "SPI2 SPI3 USART2 USART3 USART4 USART5 USART7 USART8 I2C1 I2C2 I2C3 CAN1 CAN2 CAN3 DAC"};
    page.lists.apb1Timers = {"TMR2 TMR3 TMR4 TMR5 TMR6 TMR7 TMR12 TMR13 TMR14"};
    page.lists.apb2 = {"SPI1 SPI4 USART1 USART6 SCFG"};
    page.lists.apb2Timers = {"TMR1 TMR8 TMR9 TMR10 TMR11"};

    page.limits.apb1 = 192.0;
    page.limits.apb2 = 192.0;
    page.limits.apbTold = 96;
    page.limits.lowestTyped.reset();
    page.limits.pllRefused = false;
    page.start = {
        {"pllns", 144},
        {"pllfp", 6  },
        {"pllfu", 16 }
    };
    page.peripherals = {peripherals::canOfThree(1), peripherals::canOfThree(2), peripherals::canOfThree(3),
                        peripherals::i2sf5()};
    page.hickAtOutputs = HickAtOutputs::Always48;
    page.alwaysSearchesUsb = true;

    using namespace clockoutputs;
    ClockOutput output = singleDividedTwice();
    output.pins = {pa8, pa9, pb13, pc9, pe4};
    // The series lacks a pin in the middle of the numbers: index and number differ.
    output.pinsByText = true;
    const ClockOutputRow usbfs{CLKOUT_USBFS, "usb", ClockSource::Usb, "usb", RowGate::Usb};
    output.rows = {sclk, hext, pll, usbfs, adc, hick, lick, lext};
    page.clockOutputs = {output};
    return page;
}

ZN64G165PLL::ZN64G165PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G165PLL>(), parent)
{
    build();
}
