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
        {"m_pllfp_Label",             585, 262}, {"m_pllfp_ComboBox",            570, 282},
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
        {"m_apb2divMax_Label", 1091, 411, "216MHz max"},
        {"m_tosystick_div",   1092, 92},
        {"m_toapb1tmr_mul",   1092, 289}, {"m_toapb2tmr_mul",       1092, 455},
        {"m_toapb1tmr_div",   1132, 289}, {"m_toapb2tmr_div",       1132, 455},

        // USB
        {"m_pllfu_Label",      720, 433}, {"m_pllfu_ComboBox",       710, 408},
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
    return {1182, {
        {"toi2s", 42}, {"tosystick", 94}, {"todma", 134}, {"toxmc", 176}, {"togpio", 217}, {"toapb1peripheral", 256}, {"toapb1tmr", 339}, {"toapb2peripheral", 421}, {"toapb2tmr", 506},
    }};
}

PeripheralLists lists()
{
    return {
        {301, "SPI2 SPI3 USART2 USART3 USART4 USART5 USART7 USART8 I2C1 I2C2 I2C3 CAN1"},
        {384, "TMR2 TMR3 TMR4 TMR6 TMR7 TMR13 TMR14"},
        {466, "ACC I2SF5 SPI1 SCFG ADC1 USART1 USART6"},
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
        {CLKOUT_USBFS,    "usbfs",   ClockSource::Usb,   703, "usbfs", RowGate::Usb},
        {CLKOUT_ADCCLK,   "adc",     ClockSource::Adc,   723, "adc"},
        {CLKOUT_HICK,     "hick",    ClockSource::Hick,  743, "hick"},
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

PeripheralClock i2sf5()
{
    PeripheralClock clock = peripherals::i2sf5();
    clock.limit = 216.0;
    clock.sources = {
        {I2SF5_CLOCK_SOURCE_PCLK,     "pllp",     ClockSource::Pll,  ClockSource::Pll},
        {I2SF5_CLOCK_SOURCE_SCLK,     "sclk",     ClockSource::Sclk, ClockSource::Sclk},
        {I2SF5_CLOCK_SOURCE_HICK,     "hick",     ClockSource::Hick},
        {I2SF5_CLOCK_SOURCE_EXTERNAL, "external", ClockSource::Outside},
    };
    clock.x = 674;
    clock.y = 640;
    return clock;
}
// clang-format on

Limits refusedOnSaving()
{
    // Saving tells other numbers than it compares.
    return {limits::above(ClockSource::Sclk, 216.0), limits::above(ClockSource::Apb1, 120.0, 108),
            limits::above(ClockSource::Apb2, 216.0, 108), limits::usbClock()};
}

} // namespace

PageDescription families::g171()
{
    PageDescription page{ZN64G171, "G171PLL.bmp", QSize(1408, 829), "zn64g171_174", places()};
    page.outputs = outputs();
    page.lists = lists();
    page.start =
        "rtcsel=0 rtcswitch=0 lextbypass=0 rtcdiv=2 hextbypass=0 hext=8 hextdiv=1 hickdiv=1 pllrcs=0 "
        "pllms=1 pllns=108 pllfp=4 sclkselect=1 ahbdiv=1 apb1div=1 apb2div=1 tmrmultiply=1 pllfu=18 "
        "hicktousb=0 tousbswitch=1 hicktosclk=0 clkout=5 clkoutdiv1=1 clkoutdiv2=1 clkoutpinselect=0 "
        "i2sf5clocksel=0 i2sf5switch=0";
    page.fixedFields = [](ZN64ConfigCLK& model) { model.Set_ConfigMode(PLLMODE_FLEXIBLE); };
    page.fileOrder = "lextbypass rtcsel rtcswitch rtcdiv hext hextbypass hextdiv hickdiv pllrcs pllms pllns "
                     "pllfp sclkselect ahbdiv apb1div apb2div pllfu hicktousb tousbswitch hicktosclk clkout "
                     "clkoutdiv1 clkoutdiv2 clkoutpinselect i2sf5clocksel i2sf5switch";
    page.readingOrder =
        "lextbypass rtcsel rtcswitch rtcdiv hext hextbypass hextdiv hickdiv pllrcs pllms pllns "
        "pllfp sclkselect ahbdiv apb1div apb2div pllfu hicktosclk hicktousb tousbswitch "
        "clkoutpinselect clkout clkoutdiv1 clkoutdiv2 i2sf5clocksel i2sf5switch";
    page.rtcHextDivisor.reset();
    page.pllParameters = true;
    page.hickToSclk = true;
    page.clockOutputs = {clockOutput()};
    page.typedSclk = {{}, 216.0};
    page.painted = limits::painted(216.0, 120.0, 216.0) + Limits{limits::above(ClockSource::Pll, 216.0)};
    page.onSaving = refusedOnSaving();
    page.onGenerating = limits::refused(216.0, 120.0, 216.0) + Limits{limits::usbClock()};
    page.usb = UsbPart{dividers::pllFu(), true};
    page.timerHalves = true;
    page.dividers = {dividers::rtc(), dividers::hextToSclk(), dividers::hickToSclk(), dividers::pllFp(),
                     dividers::ahb(), dividers::apb1(),       dividers::apb2()};
    page.peripherals = {i2sf5()};
    page.hickAtOutputs = HickAtOutputs::With48ForUsb;
    page.alwaysSearchesUsb = true;
    return page;
}

PageDescription families::g174()
{
    PageDescription page = g171();
    page.series = ZN64G174;
    page.picture = "G174PLL.bmp";
    // The PHY of USB wants 12 MHz. 12 by 72 gives the same clocks as 8 by 108.
    page.ownStart = "hext=12 pllns=72";
    page.places = page.places + Places{
                                    {"m_tousbhsphy_lineEdit", 1180, 707},
                                    {"m_tousbhsphy_Label",    1265, 710}
    };
    page.usbPhy = true;
    page.onSaving.push_back(limits::usbPhyClock());
    page.onGenerating.push_back(limits::usbPhyClock());
    return page;
}

PageDescription families::g190()
{
    PageDescription page = g171();
    page.series = ZN64G190;
    page.picture = "G190PLL.bmp";
    page.stem = "zn64g190";
    return page;
}
