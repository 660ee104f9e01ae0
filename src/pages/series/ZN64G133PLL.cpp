#include "pages/series/ZN64G133PLL.h"

#include "pages/description/clockoutputs.h"
#include "pages/description/peripherals.h"
#include "pages/series/seriespage.h"

namespace {

PeripheralClock usart(int number, ClockSource bus)
{
    PeripheralClock clock = peripherals::usart(number, bus, USART_CLOCK_SOURCE_HICK, "hick");
    clock.readNumbers = {
        {0, 0                      },
        {1, 1                      },
        {2, USART_CLOCK_SOURCE_HICK},
        {3, 3                      },
        {4, 4                      }
    };
    return clock;
}

/// The second and third USART: their numbers of lext and hick are read into the field of the first. Files
/// have always been read so, and saved again with what came of it.
PeripheralClock strayingUsart(int number)
{
    PeripheralClock clock = usart(number, ClockSource::Apb1);
    for (PeripheralNumber& read : clock.readNumbers)
        read.strays = read.number >= USART_CLOCK_SOURCE_LEXT;
    clock.strayField = MODEL_FIELD(usart1_Clock_Source);
    return clock;
}

PeripheralClock i2c1()
{
    PeripheralClock clock = peripherals::i2c1(I2C1_CLOCK_SOURCE_HICK, "hick");
    clock.readNumbers = {
        {0, 0                     },
        {1, 1                     },
        {2, I2C1_CLOCK_SOURCE_HICK},
        {3, 3                     }
    };
    return clock;
}

Divider usbDivider()
{
    Divider divider = dividers::usb({2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0});
    // The reader of design files takes 9, for which there is no item, and drops 4. It has always done so.
    divider.withoutItem = 1;
    divider.unread = {4.0};
    return divider;
}

} // namespace

PageDescription ZN64G133PLL::describe()
{
    PageDescription page{ZN64G133, QSize(1406, 833)};
    // clang-format off
    page.tree = {{"direct"}, {"plldirecthalf"}, {"divided"}, {"usbdirect"}, {"clockouttwiceeight"},
                 {"bandthree"}, {"peripheral", 684, 622}, {"peripheral", 684, 730}};
    page.buses = {{"busesdirect"}};
    // clang-format on
    page.column = {
        {"outputsdirect", 1179}
    };
    page.outputs = "i2s systick dma xmc gpio apb1peripheral apb1tmr apb2peripheral apb2tmr";
    page.lists.apb1 = {"SPI2 SPI3 USART2 USART3 UART4 UART5 UART7 UART8 I2C1 I2C2 I2C3 CAN1 CAN2 DAC"};
    page.lists.apb1Timers = {"TMR2 TMR3 TMR4 TMR5 TMR6 TMR7 TMR12 TMR13 TMR14"};
    page.lists.apb2 = {"SPI1 USART1 USART6 SCFG"};
    page.lists.apb2Timers = {"TMR1 TMR9 TMR10 TMR11"};

    page.limits.apb1 = 120.0;
    page.limits.apb2 = 150.0;
    page.limits.apbTold = 75;
    page.limits.lowestTyped.reset();
    page.limits.pllPainted = false;
    page.limits.pllRefused = false;
    page.start = {
        {"pllns",  75},
        {"pllfr",  2 },
        {"usbdiv", 6 }
    };
    page.usbDivider = usbDivider();
    page.peripherals = {usart(1, ClockSource::Apb2), strayingUsart(2), strayingUsart(3), i2c1(),
                        peripherals::adc()};
    page.switchesBehindSources = true;
    page.hickAtOutputs = HickAtOutputs::With48ForUsb;

    using namespace clockoutputs;
    ClockOutput output = singleDividedTwice();
    output.pins = {pa8, pa9, pb13, pc9};
    output.rows = {sclk, hext, pll, usb, hick, adcclk, lick, lext};
    page.clockOutputs = {output};
    return page;
}

ZN64G133PLL::ZN64G133PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64G133PLL>(), parent)
{
    build();
}
