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
        {"m_apb1div_Label",   1041, 227}, {"m_apb1div_ComboBox",    1036, 247},
        {"m_apb1divMax_Label", 1091, 237, "180MHz max"},
        {"m_apb2div_Label",   1041, 395}, {"m_apb2div_ComboBox",    1036, 415},
        {"m_apb2divMax_Label", 1091, 405, "180MHz max"},
        {"m_apb3div_Label",   1041, 541}, {"m_apb3div_ComboBox",    1036, 561},
        {"m_apb3divMax_Label", 1091, 551},
        {"m_tosystick_div",   1092, 133},
        {"m_toapb1tmr_mul",   1092, 284}, {"m_toapb2tmr_mul",       1092, 448},

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
    return {1181, {
        {"toi2s", 87}, {"tosystick", 135}, {"todma", 177}, {"togpio", 211}, {"toapb1peripheral", 247}, {"toapb1tmr", 335}, {"toapb2peripheral", 415}, {"toapb2tmr", 500}, {"toapb3peripheral", 561},
    }};
}

PeripheralLists lists()
{
    return {
        {292, "DAC SPI2 USART2 I2C1 I2C2 CAN1"},
        {380, "TMR3 TMR4 TMR6 TMR7"},
        {460, "SPI1 SCFG ADC USART1 OP CMP"},
        {545, "TMR1 TMR9 TMR10 TMR11"},
    };
}

ClockOutput clockOutput()
{
    ClockOutput output = singleClockOutput();
    output.pins = {{"PA8", CLKOUTPIN_PA8}, {"PA9", CLKOUTPIN_PA9}, {"PB13", CLKOUTPIN_PB13}, {"PF2", CLKOUTPIN_PF2}};
    // The series lacks a pin in the middle of the numbers: index and number differ.
    output.pinsByText = true;
    output.column = {372, 430, 470, -2};
    output.rows = {
        {CLKOUT_SCLK,     "sclk",    ClockSource::Sclk,  643, "sclk"},
        {CLKOUT_HEXT,     "hext",    ClockSource::Hext,  666, "hext"},
        {CLKOUT_PLL,      "pll",     ClockSource::Pll,   689, "pll"},
        {CLKOUT_HICK,     "hick",    ClockSource::Hick,  712, "hick"},
        {CLKOUT_ADCCLK,   "adcclk",  ClockSource::Adc,   735, "adcclk", RowGate::None, 10},
        {CLKOUT_LICK,     "lick",    ClockSource::Lick,  758, "lick"},
        {CLKOUT_LEXT,     "lext",    ClockSource::Lext,  781, "lext"},
    };
    output.dividers = {
        dividers::clockOutputFirst("New_clockoutdiv1", "m_clockoutdiv1", "clkoutdiv1", MODEL_FIELD(CLKOUT_Div1)),
        dividers::clockOutputSecond("New_clockoutdiv2", "m_clockoutdiv2", "clkoutdiv2", MODEL_FIELD(CLKOUT_Div2)),
    };
    output.fallback = CLKOUT_SCLK;
    return output;
}

/// "pll" shows the system clock and not the PLL, which is meant.
PeripheralClock can()
{
    PeripheralClock clock = peripherals::can();
    clock.limit = 180.0;
    clock.sources = {
        {CAN_CLOCK_SOURCE_HEXT, "hext", ClockSource::Hext, ClockSource::Hext},
        {CAN_CLOCK_SOURCE_PLL,  "pll",  ClockSource::Sclk, ClockSource::Sclk},
        {CAN_CLOCK_SOURCE_PCLK, "pclk", ClockSource::Apb1, ClockSource::Apb1},
    };
    clock.x = 30;
    clock.y = 508;
    return clock;
}
// clang-format on

} // namespace

PageDescription families::p212()
{
    PageDescription page{ZN64P212, "P212_216PLL.bmp", QSize(1408, 829), "zn64p212_216", places()};
    page.outputs = outputs();
    page.lists = lists();
    page.start =
        "rtcsel=0 rtcswitch=0 lextbypass=0 rtcdiv=2 hextbypass=0 hext=8 hextdiv=1 hickdiv=1 pllrcs=0 "
        "pllms=1 pllns=90 pllfr=4 sclkselect=1 ahbdiv=1 apb1div=1 apb2div=1 apb3div=4 tmrmultiply=1 "
        "hicktosclk=0 clkout=5 clkoutdiv1=1 clkoutdiv2=1 clkoutpinselect=0 canclocksel=2 canswitch=0";
    page.fixedFields = [](ZN64ConfigCLK& model) { model.Set_ConfigMode(PLLMODE_FLEXIBLE); };
    page.fileOrder =
        "lextbypass rtcsel rtcswitch rtcdiv hext hextbypass hextdiv hickdiv pllrcs pllms pllns "
        "pllfr sclkselect ahbdiv apb1div apb2div apb3div hicktosclk clkout clkoutdiv1 clkoutdiv2 "
        "clkoutpinselect canclocksel canswitch";
    page.readingOrder =
        "lextbypass rtcsel rtcswitch rtcdiv hext hextbypass hextdiv hickdiv pllrcs pllms pllns "
        "pllfr sclkselect ahbdiv apb1div apb2div apb3div hicktosclk clkoutpinselect clkout "
        "clkoutdiv1 clkoutdiv2 canclocksel canswitch";
    page.rtcHextDivisor.reset();
    page.pllParameters = true;
    page.hickToSclk = true;
    page.clockOutputs = {clockOutput()};
    page.typedSclk = {{}, 180.0};
    page.painted =
        limits::painted(180.0, 180.0, 180.0) + Limits{limits::above(ClockSource::Apb3, apb3LimitMHz)};
    // Saving tells other numbers than it compares.
    page.onSaving = {limits::above(ClockSource::Sclk, 180.0), limits::above(ClockSource::Apb1, 180.0, 90),
                     limits::above(ClockSource::Apb2, 180.0, 90), limits::above(ClockSource::Pll, 180.0)};
    page.onGenerating = {limits::above(ClockSource::Sclk, 180.0), limits::above(ClockSource::Apb1, 180.0),
                         limits::above(ClockSource::Apb3, apb3LimitMHz),
                         limits::above(ClockSource::Pll, 180.0)};
    page.generatedApb3 = apb3LimitMHz;
    page.dividers = {dividers::rtc(), dividers::hextToSclk(), dividers::hickToSclk(), dividers::pllFr(),
                     dividers::ahb(), dividers::apb1(),       dividers::apb2(),       dividers::apb3()};
    page.peripherals = {can()};
    page.hickAtOutputs = HickAtOutputs::Always48;
    return page;
}

PageDescription families::p216()
{
    PageDescription page = p212();
    page.series = ZN64P216;
    return page;
}
