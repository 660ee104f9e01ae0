#include "pages/series/families.h"

#include "model/divisors.h"

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
        {"m_pllCFG_Label",            420, 230}, {"m_pllCFG_Value_lineEdit",     510, 227},
        {"m_pllclk_Label",            650, 275},
        {"m_hicktosclk_Label",        267, 440},
        {"m_hicktosclk_div6_RadioButton", 288, 357}, {"m_hicktosclk_RadioButton", 288, 407},
        {"m_sclkselect_Label",        712, 170}, {"m_sclkselect_hext_RadioButton", 738, 232},
        {"m_sclkselect_pll_RadioButton", 738, 290}, {"m_sclkselect_hick_RadioButton", 738, 347},
        {"m_sclk_Label",              775, 262, "sclk(4 - %1 MHz)"},
        {"m_sclk_lineEdit",           783, 282},
        {"m_sclkWarning1_QLabel",     775, 315}, {"m_sclkWarning2_QLabel",       775, 332},
        {"m_sclkWarning3_QLabel",     775, 349},

        // The buses and USB
        {"m_ahbdiv_Label",     934, 263}, {"m_ahbdiv_ComboBox",      924, 283},
        {"m_apb1div_Label",   1040, 428}, {"m_apb1div_ComboBox",    1035, 448},
        {"m_apb1divMax_Label", 1090, 438, "144MHz max"},
        {"m_apb2div_Label",   1040, 593}, {"m_apb2div_ComboBox",    1035, 613},
        {"m_apb2divMax_Label", 1090, 603, "144MHz max"},
        {"m_tosystick_div",   1092,  89},
        {"m_toapb1tmr_mul",   1092, 486}, {"m_toapb2tmr_mul",       1092, 653},
        {"m_usbdiv_Label",     720, 433}, {"m_usbdiv_ComboBox",      710, 408},
        {"m_hicktousb_Label",  768, 490},
        {"m_tousb_pll_RadioButton", 795, 415}, {"m_tousb_hick_RadioButton", 795, 455},
        {"m_tousb_Label",      850, 410}, {"m_tousbswitch_ComboBox", 840, 430},
        {"m_usbclock_Label",   920, 460},

        // The clock outputs
        {"m_clockout1pin_Label",  136, 496}, {"m_clockout1pin_ComboBox",  125, 515},
        {"m_clockout1div2_Label", 257, 495}, {"m_clockout1div2_ComboBox", 256, 515},
        {"m_clockout1div1_Label", 384, 495}, {"m_clockout1div1_ComboBox", 383, 515},
        {"m_clockout1_Value_QLabel", 50, 545}, {"m_clockout1_QLabel",     500, 585},
        {"m_clockout2pin_Label",  136, 674}, {"m_clockout2pin_ComboBox",  125, 694},
        {"m_clockout2div2_Label", 257, 674}, {"m_clockout2div2_ComboBox", 256, 694},
        {"m_clockout2div1_Label", 384, 674}, {"m_clockout2div1_ComboBox", 383, 694},
        {"m_clockout2_Value_QLabel", 50, 723}, {"m_clockout2_QLabel",     500, 807},
    };
    static const Places styled = table.withFonts({
        {"m_apb1div_Label", 10, 0}, {"m_apb2div_Label", 10, 0},
        {"m_pllclk_Label", 10, 75}, {"m_usbclock_Label", 10, 70},
    });
    return styled;
}

OutputColumn outputs()
{
    return {1177, {
        {"toi2s", 41}, {"tosystick", 92}, {"tosido", 134}, {"todma", 179}, {"toxmc", 221}, {"togpio", 263},
        {"todvp", 303}, {"toqspi", 345}, {"toadc", 389},
        {"toapb1peripheral", 446}, {"toapb1tmr", 530}, {"toapb2peripheral", 613}, {"toapb2tmr", 698},
    }};
}

PeripheralLists lists()
{
    return {
        {491, "SPI2 SPI3 USART2 USART3 UART4 UART5 UART7 UART8 I2C1 I2C2 I2C3 CAN1 CAN2 DAC"},
        {575, "TMR2 TMR3 TMR4 TMR5 TMR6 TMR7 TMR12 TMR13 TMR14"},
        {658, "SPI1 SPI4 USART1 USART6 SCFG"},
        {563, "TMR1 TMR8 TMR9 TMR10 TMR11 TMR20"},
    };
}

ClockOutput clockOutput1()
{
    ClockOutput output{"clockout1", "clkout1", "clkout1pinselect", MODEL_FIELD(CLKOUT1), MODEL_FIELD(CLKOUT1_PinSelect)};
    output.pins = {{"PA8", CLKOUT1PIN_PA8}, {"PE4", CLKOUT1PIN_PE4}};
    output.column = {514, 572, 612, 0};
    output.rows = {
        {CLKOUT1_HICK, "hick", ClockSource::Hick, 490, "hick"},
        {CLKOUT1_LEXT, "lext", ClockSource::Lext, 511, "lext"},
        {CLKOUT1_HEXT, "hext", ClockSource::Hext, 532, "hext"},
        {CLKOUT1_PLL,  "pll",  ClockSource::Pll,  554, "pll"},
    };
    output.dividers = {
        dividers::clockOutputFirst("New_clockout1div1", "m_clockout1div1", "clkout1div1", MODEL_FIELD(CLKOUT1_Div1)),
        dividers::clockOutputSecond("New_clockout1div2", "m_clockout1div2", "clkout1div2", MODEL_FIELD(CLKOUT1_Div2)),
    };
    output.fallback = CLKOUT1_HICK;
    return output;
}

ClockOutput clockOutput2()
{
    ClockOutput output{"clockout2", "clkout2", "clkout2pinselect", MODEL_FIELD(CLKOUT2), MODEL_FIELD(CLKOUT2_PinSelect)};
    output.pins = {{"PC9", CLKOUT2PIN_PC9}};
    output.column = {514, 572, 612, 0};
    output.rows = {
        {CLKOUT2_SCLK,   "sclk",   ClockSource::Sclk, 626, "sclk"},
        {CLKOUT2_HEXT,   "hext",   ClockSource::Hext, 646, "hext"},
        {CLKOUT2_PLL,    "pll",    ClockSource::Pll,  667, "pll"},
        {CLKOUT2_USB,    "usb",    ClockSource::Usb,  688, "usb", RowGate::Usb},
        {CLKOUT2_HICK,   "hick",   ClockSource::Hick, 709, "hick"},
        // Without a divider of the ADC on the page nobody knows what the ADC makes of its clock.
        {CLKOUT2_ADCCLK, "adcclk", ClockSource::Untold, 730, "adcclk"},
        {CLKOUT2_LICK,   "lick",   ClockSource::Lick, 751, "lick"},
        {CLKOUT2_LEXT,   "lext",   ClockSource::Lext, 771, "lext"},
    };
    output.dividers = {
        dividers::clockOutputFirst("New_clockout2div1", "m_clockout2div1", "clkout2div1", MODEL_FIELD(CLKOUT2_Div1)),
        dividers::clockOutputSecond("New_clockout2div2", "m_clockout2div2", "clkout2div2", MODEL_FIELD(CLKOUT2_Div2)),
    };
    output.fallback = CLKOUT2_HICK;
    return output;
}
// clang-format on

} // namespace

PageDescription families::g150()
{
    PageDescription page{ZN64G150, "G150PLL.bmp", QSize(1404, 828), "zn64g150_152", places()};
    page.outputs = outputs();
    page.lists = lists();
    page.start = "rtcsel=0 rtcswitch=0 lextbypass=0 rtcdiv=2 hextbypass=0 hext=8 pllrcs=0 pllms=1 pllns=144 "
                 "pllfr=4 sclkselect=1 ahbdiv=1 apb1div=1 apb2div=1 tmrmultiply=1 usbdiv=6 hicktousb=0 "
                 "tousbswitch=1 hicktosclk=0 clkout1=0 clkout1div1=1 clkout1div2=1 clkout1pinselect=0 "
                 "clkout2=0 clkout2div1=1 clkout2div2=1 clkout2pinselect=0";
    page.fixedFields = [](ZN64ConfigCLK& model) { model.Set_ConfigMode(PLLMODE_FLEXIBLE); };
    page.fileOrder = "lextbypass rtcsel rtcswitch rtcdiv hext hextbypass pllrcs pllms pllns pllfr sclkselect "
                     "ahbdiv apb1div apb2div usbdiv hicktousb tousbswitch hicktosclk clkout1 clkout1div1 "
                     "clkout1div2 clkout1pinselect clkout2 clkout2div1 clkout2div2 clkout2pinselect";
    page.readingOrder = "lextbypass rtcsel rtcswitch rtcdiv hext hextbypass pllrcs pllms pllns pllfr "
                        "sclkselect ahbdiv apb1div apb2div usbdiv hicktosclk hicktousb tousbswitch "
                        "clkout1pinselect clkout1 clkout1div1 clkout1div2 clkout2pinselect clkout2 "
                        "clkout2div1 clkout2div2";
    page.typedSclk = {4.0, 288.0};
    const Limit pll = limits::above(ClockSource::Pll, 288.0);
    page.painted = limits::painted(288.0, 144.0, 144.0) + Limits{pll};
    page.onSaving = limits::refused(288.0, 144.0, 144.0) + Limits{pll, limits::usbClock()};
    page.onGenerating = page.onSaving;
    page.rtcHextDivisor.reset();
    page.pllParameters = true;
    page.hickToSclk = true;
    page.sclkWarnings = true;
    page.usb = UsbPart{dividers::usb(listOf(divisors::usbHalfStepsTo7)), true};
    page.dividers = {dividers::rtc(), dividers::pllFr(), dividers::ahb(), dividers::apb1(), dividers::apb2()};
    page.clockOutputs = {clockOutput1(), clockOutput2()};
    page.alwaysSearchesUsb = true;
    return page;
}

PageDescription families::g152()
{
    PageDescription page = g150();
    page.series = ZN64G152;
    page.picture = "G152PLL.bmp";
    page.places = page.places.moved({
        {"m_tosystick_div", 1092, 74}
    });
    // clang-format off
    page.outputs = {1176, {
        {"toi2s", 41}, {"tosystick", 77}, {"tosido", 113}, {"todma", 150}, {"toxmc", 186}, {"togpio", 222},
        {"todvp", 258}, {"toqspi", 296}, {"toadc", 370},
        {"toapb1peripheral", 431}, {"toapb1tmr", 515}, {"toapb2peripheral", 613}, {"toapb2tmr", 698},
        {"toemac", 332},
    }};
    // clang-format on
    page.lists.apb1.y = 476;
    page.lists.apb1Timers.y = 560;
    // The page has no switch for the ADC, so that this never asks. It stands all the same.
    page.onSaving.push_back(limits::adcClock(80.0, limits::adc80));
    page.onGenerating = page.onSaving;
    return page;
}
