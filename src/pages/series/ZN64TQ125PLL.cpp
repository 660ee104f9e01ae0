#include "pages/series/ZN64TQ125PLL.h"

#include "pages/series/ZN64G125PLL.h"
#include "pages/series/seriespage.h"

PageDescription ZN64TQ125PLL::describe()
{
    PageDescription page = ZN64G125PLL::describe();
    page.series = ZN64TQ125;
    page.column = {
        {"TQ125", 1178}
    };
    // Its picture has been drawn a little otherwise.
    page.move({
        {"m_lick_Label",           90,   48 },
        {"m_hick_Label",           90,   425},
        {"m_usbdiv_Label",         717,  480},
        {"m_usbdiv_ComboBox",      707,  500},
        {"m_tousb_Label",          850,  480},
        {"m_tousbswitch_ComboBox", 840,  500},
        {"m_apb1div_Label",        1041, 351},
        {"m_apb1div_ComboBox",     1036, 371},
        {"m_apb2div_Label",        1041, 580},
        {"m_apb2div_ComboBox",     1036, 600},
    });
    page.outputs = "systick dma gpio apb1peripheral apb1tmr apb2peripheral apb2tmr";
    page.lists.apb1.peripherals = "SPI2 USART2 USART3 UART5 I2C1 CAN1 CMP";
    page.lists.apb2.peripherals = "USART1";
    page.lists.apb2Timers.down = -91;
    return page;
}

ZN64TQ125PLL::ZN64TQ125PLL(QWidget* parent) : ClockTreePage(descriptionOf<ZN64TQ125PLL>(), parent)
{
    build();
}
