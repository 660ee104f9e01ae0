#include "pages/series/families.h"

#include "model/divisors.h"
#include "pages/description/peripherals.h"

namespace {

// clang-format off
const Places& places()
{
    static const Places table = {
        // The oscillators and the RTC
        {"m_lick_Label",               80,  20}, {"m_lick_lineEdit",             65,  37},
        {"m_lext_Label1",              80,  82}, {"m_lext_lineEdit",             65,  99},
        {"m_lextbypass_Label",         83, 130}, {"m_lextbypass_ComboBox",       65, 148},
        {"m_lext_In",                  18, 101}, {"m_lext_Out",                   6, 112},
        {"m_hext_Label1",              65, 230}, {"m_hext_lineEdit",             65, 248},
        {"m_hextbypass_Label",         83, 280}, {"m_hextbypass_ComboBox",       65, 298},
        {"m_hext_In",                  18, 250}, {"m_hext_Out",                   6, 261},
        {"m_hick_Label",               80, 381}, {"m_hick_lineEdit",             65, 399},
        {"m_rtcdiv_Label",            250, 135}, {"m_rtcdiv_ComboBox",          240, 150},
        {"m_rtcsel_Label",            332, 186, "ertcsel"},
        {"m_rtcsel_lick_RadioButton", 345,  45},
        {"m_rtcsel_lext_RadioButton", 345, 107}, {"m_rtcsel_hext_RadioButton",  345, 155},
        {"m_tortc_ComboBox",          405, 102}, {"m_tortc_lineEdit",           510, 102},
        {"m_tortc_Label",             595, 105, "to ertc(kHz)"},
        {"m_towdt_lineEdit",          510,  17},

        // The PLL to the system clock
        {"m_pllrc_Label",             332, 220},
        {"m_pllrcs_hext_RadioButton", 342, 256}, {"m_pllrcs_hick_RadioButton",   342, 316},
        {"m_pllms_Label1",            410, 262}, {"m_pllms_lineEdit",            395, 282},
        {"m_pllms_Label2",            405, 313},
        {"m_pllns_Label1",            497, 262}, {"m_pllns_lineEdit",            482, 282},
        {"m_pllns_Label2",            487, 312},
        {"m_pllfr_Label",             585, 262}, {"m_pllfr_ComboBox",            570, 282},
        {"m_pllCFG_Label",            420, 230}, {"m_pllCFG_Value_lineEdit",     532, 227},
        {"m_pllclk_Label",            645, 268},
        {"m_hextdiv_Label",           588, 174}, {"m_hextdiv_ComboBox",          585, 194},
        {"m_hickdiv_Label",           588, 356}, {"m_hickdiv_ComboBox",          585, 376},
        {"m_hicktosclk_Label",        267, 440},
        {"m_hicktosclk_div6_RadioButton", 288, 357}, {"m_hicktosclk_RadioButton", 288, 407},
        {"m_sclkselect_Label",        712, 170}, {"m_sclkselect_hext_RadioButton", 738, 232},
        {"m_sclkselect_pll_RadioButton", 738, 290}, {"m_sclkselect_hick_RadioButton", 738, 347},
        {"m_sclk_Label",              775, 262, "sclk(%1MHz max)"},
        {"m_sclk_lineEdit",           783, 282},

        // The buses
        {"m_ahbdiv_Label",     934, 263}, {"m_ahbdiv_ComboBox",      924, 283},
        {"m_apb1div_Label",   1041, 236}, {"m_apb1div_ComboBox",    1036, 256},
        {"m_apb1divMax_Label", 1091, 246, "120MHz max"},
        {"m_apb2div_Label",   1041, 401}, {"m_apb2div_ComboBox",    1036, 421},
        {"m_apb2divMax_Label", 1091, 411, "150MHz max"},
        {"m_tosystick_div",   1092, 92},
        {"m_toapb1tmr_mul",   1092, 289}, {"m_toapb2tmr_mul",       1092, 455},
        {"m_toapb1tmr_div",   1132, 289}, {"m_toapb2tmr_div",       1132, 455},

        // USB
        {"m_usbdiv_Label",      720, 433}, {"m_usbdiv_ComboBox",       710, 408},
        {"m_hicktousb_Label",   768, 490},
        {"m_tousb_pll_RadioButton", 795, 415}, {"m_tousb_hick_RadioButton", 795, 455},
        {"m_tousb_Label",       850, 410}, {"m_tousbswitch_ComboBox",  840, 430},
        {"m_usbclock_Label",    920, 460},

        // The clock output
        {"m_clockoutpin_Label",      93, 687}, {"m_clockoutpin_ComboBox",   88, 707},
        {"m_clockoutdiv2_Label",    175, 687}, {"m_clockoutdiv2_ComboBox", 178, 707},
        {"m_clockoutdiv1_Label",    265, 687}, {"m_clockoutdiv1_ComboBox", 268, 707},
        {"m_clockout_Value_QLabel",  48, 737}, {"m_clockout_QLabel",       360, 810},
    };
    return table;
}

OutputColumn outputs()
{
    return {1179, {
        {"toi2s", 42}, {"tosystick", 94}, {"todma", 134}, {"toxmc", 176}, {"togpio", 217}, {"toapb1peripheral", 256}, {"toapb1tmr", 339}, {"toapb2peripheral", 421}, {"toapb2tmr", 506},
    }};
}

PeripheralLists lists()
{
    return {
        {301, "SPI2 SPI3 USART2 USART3 UART4 UART5 UART7 UART8 I2C1 I2C2 I2C3 CAN1 CAN2 DAC"},
        {384, "TMR2 TMR3 TMR4 TMR5 TMR6 TMR7 TMR12 TMR13 TMR14"},
        {466, "SPI1 USART1 USART6 SCFG"},
        {551, "TMR1 TMR9 TMR10 TMR11"},
    };
}

ClockOutput clockOutput()
{
    ClockOutput output = singleClockOutput();
    output.pins = {{"PA8", CLKOUTPIN_PA8}, {"PA9", CLKOUTPIN_PA9}, {"PB13", CLKOUTPIN_PB13}, {"PC9", CLKOUTPIN_PC9}};
    output.column = {372, 430, 470, -2};
    output.rows = {
        {CLKOUT_SCLK,     "sclk",    ClockSource::Sclk,  643, "sclk"},
        {CLKOUT_HEXT,     "hext",    ClockSource::Hext,  663, "hext"},
        {CLKOUT_PLL,      "pll",     ClockSource::Pll,   683, "pll"},
        {CLKOUT_USB,      "usb",     ClockSource::Usb,   703, "usb", RowGate::Usb},
        {CLKOUT_HICK,     "hick",    ClockSource::Hick,  723, "hick"},
        {CLKOUT_ADCCLK,   "adcclk",  ClockSource::Adc,   743, "adcclk", RowGate::None, 10},
        {CLKOUT_LICK,     "lick",    ClockSource::Lick,  763, "lick"},
        {CLKOUT_LEXT,     "lext",    ClockSource::Lext,  783, "lext"},
    };
    output.dividers = {
        dividers::clockOutputFirst("New_clockoutdiv1", "m_clockoutdiv1", "clkoutdiv1", MODEL_FIELD(CLKOUT_Div1)),
        dividers::clockOutputSecond("New_clockoutdiv2", "m_clockoutdiv2", "clkoutdiv2", MODEL_FIELD(CLKOUT_Div2)),
    };
    output.fallback = CLKOUT_SCLK;
    return output;
}

// The band of peripheral clocks below the PLL's row: columns and rows, picture pixels.
constexpr int column1 = 30;
constexpr int column2 = 352;
constexpr int column3 = 674;
constexpr int row1 = 508;
constexpr int row2 = 640;
constexpr int row3 = 745;

PeripheralClock usart(PeripheralClock clock, ClockSource pclk, int x)
{
    clock.limit = 150.0;
    clock.sources = {
        {USART_CLOCK_SOURCE_PCLK, "pclk", pclk,              pclk},
        {USART_CLOCK_SOURCE_SCLK, "sclk", ClockSource::Sclk, ClockSource::Sclk},
        {USART_CLOCK_SOURCE_HICK, "hick", ClockSource::Hick},
        {USART_CLOCK_SOURCE_LEXT, "lext", ClockSource::Lext},
    };
    clock.x = x;
    clock.y = row1;
    clock.readNumbers = {{0, 0}, {1, 1}, {2, USART_CLOCK_SOURCE_HICK}, {3, 3}, {4, 4}};
    return clock;
}

/// The second and third USART: their numbers of lext and hick are read into the field of the first. Files have
/// always been read so.
PeripheralClock strayingUsart(PeripheralClock clock, int x)
{
    clock = usart(clock, ClockSource::Apb1, x);
    clock.readNumbers = {{0, 0}, {1, 1}, {2, USART_CLOCK_SOURCE_HICK}, {3, 3, true}, {4, 4, true}};
    clock.strayField = MODEL_FIELD(usart1_Clock_Source);
    return clock;
}

PeripheralClock i2c1()
{
    PeripheralClock clock = peripherals::i2c1();
    clock.limit = 150.0;
    clock.sources = {
        {I2C1_CLOCK_SOURCE_PCLK, "pclk", ClockSource::Apb2, ClockSource::Apb2},
        {I2C1_CLOCK_SOURCE_SCLK, "sclk", ClockSource::Sclk, ClockSource::Sclk},
        {I2C1_CLOCK_SOURCE_HICK, "hick", ClockSource::Hick},
    };
    clock.x = column3;
    clock.y = row2;
    clock.readNumbers = {{0, 0}, {1, 1}, {2, I2C1_CLOCK_SOURCE_HICK}, {3, 3}};
    return clock;
}

/// Red looks at another clock than the one shown, in both rows. That is to stay.
PeripheralClock adc()
{
    PeripheralClock clock = peripherals::adc();
    clock.limit = 150.0;
    clock.sources = {
        {ADC_CLOCK_SOURCE_HCLK,   "hclk",   ClockSource::Ahb, ClockSource::Apb1},
        {ADC_CLOCK_SOURCE_PLLCLK, "pllclk", ClockSource::Pll, ClockSource::Sclk},
    };
    clock.x = column3;
    clock.y = row3;
    clock.readNumbers = {{0, 0}};
    clock.fallback = ADC_CLOCK_SOURCE_PLLCLK;
    return clock;
}
// clang-format on

Divider usbDivider()
{
    Divider divider = dividers::usb({2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0});
    // The reader of design files takes 9, for which there is no item, and drops 4. It has always done so.
    divider.withoutItem = 1;
    divider.unread = {4.0};
    return divider;
}

} // namespace

PageDescription families::g133()
{
    PageDescription page{ZN64G133, "G133PLL.bmp", QSize(1406, 833), "zn64g133", places()};
    page.outputs = outputs();
    page.lists = lists();
    page.start =
        "rtcsel=0 rtcswitch=0 lextbypass=0 rtcdiv=2 hextbypass=0 hext=8 hextdiv=1 hickdiv=1 pllrcs=0 "
        "pllms=1 pllns=75 pllfr=2 sclkselect=1 ahbdiv=1 apb1div=1 apb2div=1 tmrmultiply=1 usbdiv=6 "
        "hicktousb=0 tousbswitch=1 hicktosclk=0 clkout=5 clkoutdiv1=1 clkoutdiv2=1 clkoutpinselect=0 "
        "usart1clocksel=0 usart2clocksel=0 usart3clocksel=0 i2c1clocksel=0 adcclocksel=0 usart1switch=0 "
        "usart2switch=0 usart3switch=0 i2c1switch=0 adcswitch=0";
    page.fixedFields = [](ZN64ConfigCLK& model) { model.Set_ConfigMode(PLLMODE_FLEXIBLE); };
    page.fileOrder = "lextbypass rtcsel rtcswitch rtcdiv hext hextbypass hextdiv hickdiv pllrcs pllms pllns "
                     "pllfr sclkselect ahbdiv apb1div apb2div usbdiv hicktousb tousbswitch hicktosclk clkout "
                     "clkoutdiv1 clkoutdiv2 clkoutpinselect usart1clocksel usart2clocksel usart3clocksel "
                     "i2c1clocksel adcclocksel usart1switch usart2switch usart3switch i2c1switch adcswitch";
    page.readingOrder =
        "lextbypass rtcsel rtcswitch rtcdiv hext hextbypass hextdiv hickdiv pllrcs pllms pllns "
        "pllfr sclkselect ahbdiv apb1div apb2div usbdiv hicktosclk hicktousb tousbswitch "
        "clkoutpinselect clkout clkoutdiv1 clkoutdiv2 usart1clocksel usart2clocksel "
        "usart3clocksel i2c1clocksel adcclocksel usart1switch usart2switch usart3switch "
        "i2c1switch adcswitch";
    page.rtcHextDivisor.reset();
    page.pllParameters = true;
    page.hickToSclk = true;
    page.clockOutputs = {clockOutput()};
    page.typedSclk = {{}, 150.0};
    page.painted = limits::painted(150.0, 120.0, 150.0);
    // Saving tells other numbers than it compares.
    page.onSaving = {limits::above(ClockSource::Sclk, 150.0), limits::above(ClockSource::Apb1, 120.0, 75),
                     limits::above(ClockSource::Apb2, 150.0, 75), limits::usbClock()};
    page.onGenerating = limits::refused(150.0, 120.0, 150.0) + Limits{limits::usbClock()};
    page.usb = UsbPart{usbDivider(), true};
    page.timerHalves = true;
    page.dividers = {dividers::rtc(), dividers::hextToSclk(), dividers::hickToSclk(), dividers::pllFr(),
                     dividers::ahb(), dividers::apb1(),       dividers::apb2()};
    page.peripherals = {usart(peripherals::usart1(), ClockSource::Apb2, column1),
                        strayingUsart(peripherals::usart2(), column2),
                        strayingUsart(peripherals::usart3(), column3), i2c1(), adc()};
    page.hickAtOutputs = HickAtOutputs::With48ForUsb;
    return page;
}

PageDescription families::h133()
{
    PageDescription page = g133();
    page.series = ZN64H133;
    page.picture = "H133PLL.bmp";
    page.stem = "zn64h133";
    return page;
}
