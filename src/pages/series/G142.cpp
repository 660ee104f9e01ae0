#include "pages/series/families.h"

#include "model/divisors.h"
#include "pages/description/peripherals.h"

namespace {

// clang-format off
const Places& places()
{
    static const Places table = {
        // The oscillators and the RTC
        {"m_lick_Label",               80,  48}, {"m_lick_lineEdit",             65,  65},
        {"m_lext_Label1",              80, 121}, {"m_lext_lineEdit",             65, 138},
        {"m_lextbypass_Label",         83, 168}, {"m_lextbypass_ComboBox",       65, 186},
        {"m_lext_In",                  18, 140}, {"m_lext_Out",                   6, 151},
        {"m_hext_Label1",              65, 282}, {"m_hext_lineEdit",             65, 300},
        {"m_hextbypass_Label",         83, 332}, {"m_hextbypass_ComboBox",       65, 350},
        {"m_hext_In",                  18, 302}, {"m_hext_Out",                   6, 313},
        {"m_hick_Label",               80, 428}, {"m_hick_lineEdit",             65, 446},
        {"m_rtcsel_Label",            248,  32, "ertcsel"},
        {"m_rtcsel_lick_RadioButton", 257,  75},
        {"m_rtcsel_lext_RadioButton", 257, 148}, {"m_rtcsel_hext_RadioButton",  257, 214},
        {"m_tortc_ComboBox",          305, 142}, {"m_tortc_lineEdit",           415, 142},
        {"m_tortc_Label",             500, 145, "to ertc(kHz)"},
        {"m_towdt_lineEdit",          415,  17},

        // The PLL to the system clock
        {"m_pllhextdiv_Label",           243, 266},
        {"m_pllhext_nodiv_RadioButton",  265, 308}, {"m_pllhext_div_RadioButton",      265, 349},
        {"m_pllrc_Label",                331, 293},
        {"m_pllrcs_hext_RadioButton",    342, 330}, {"m_pllrcs_hick_RadioButton",      342, 383},
        {"m_pllmode_Label",              430, 330}, {"m_pllmode_ComboBox",             425, 350},
        {"m_pllmult_Label",              567, 330}, {"m_pllmult_ComboBox",             562, 350},
        {"m_pllms_Label1",               462, 330}, {"m_pllms_lineEdit",               450, 350},
        {"m_pllms_Label2",               460, 380},
        {"m_pllns_Label1",               533, 330}, {"m_pllns_lineEdit",               520, 350},
        {"m_pllns_Label2",               525, 380},
        {"m_pllfr_Label",                605, 330}, {"m_pllfr_ComboBox",               590, 350},
        {"m_pllCFG_Label",               420, 296}, {"m_pllCFG_Value_lineEdit",        510, 293},
        {"m_pllclk_Label",               660, 338},
        {"m_hicktosclk_Label",           380, 513},
        {"m_hicktosclk_div6_RadioButton", 400, 430}, {"m_hicktosclk_RadioButton",      400, 482},
        {"m_sclkselect_Label",           712, 240}, {"m_sclkselect_hext_RadioButton",  740, 300},
        {"m_sclkselect_pll_RadioButton", 740, 358}, {"m_sclkselect_hick_RadioButton",  740, 415},
        {"m_sclk_Label",                 793, 330}, {"m_sclk_lineEdit",                783, 350},
        {"m_sclkRange_Label",            798, 379},

        // The buses and the ADC
        {"m_ahbdiv_Label",     936, 330}, {"m_ahbdiv_ComboBox",      926, 350},
        {"m_apb1div_Label",   1041, 243}, {"m_apb1div_ComboBox",    1036, 263},
        {"m_apb2div_Label",   1041, 469}, {"m_apb2div_ComboBox",    1036, 489},
        {"m_apb3div_Label",   1041, 605}, {"m_apb3div_ComboBox",    1036, 625},
        {"m_apb3divMax_Label", 1091, 615},
        {"m_tosystick_div",   1092, 127},
        {"m_toapb1tmr_mul",   1092, 295}, {"m_toapb2tmr_mul",       1092, 522},
        {"m_toadcdiv_Label",  1119, 385}, {"m_toadcdiv_ComboBox",   1115, 401},
        {"m_toadcswitch_ComboBox", 1075, 437},
        {"m_toadc_lineEdit",  1186, 400, ""}, {"m_toadc_Label",     1271, 403},

        // The clock output
        {"m_clockoutpin_Label",     140, 634}, {"m_clockoutpin_ComboBox", 133, 654},
        {"m_clockoutdiv_Label",     235, 634}, {"m_clockoutdiv_ComboBox", 233, 654},
        {"m_clockout_Value_QLabel",  48, 672}, {"m_clockout_QLabel",      326, 766},
    };
    return table;
}

OutputColumn outputs()
{
    return {1186, {
        {"toi2s", 82}, {"tosystick", 129}, {"todma", 172}, {"togpio", 217}, {"toapb1peripheral", 263}, {"toapb1tmr", 339}, {"toapb2peripheral", 489}, {"toapb2tmr", 564}, {"toapb3peripheral", 625},
    }};
}

PeripheralLists lists()
{
    return {
        {308, "SPI2 USART2 I2C1 I2C2 CAN1"},
        {384, "TMR3 TMR4 TMR6"},
        {534, "SPI1 USART1 SCFG CMP"},
        {473, "TMR1 TMR15 TMR16 TMR17"},
    };
}

ClockOutput clockOutput()
{
    ClockOutput output = singleClockOutput();
    output.pins = {{"PA8", CLKOUTPIN_PA8}, {"PA9", CLKOUTPIN_PA9}};
    output.column = {339, 400, 440, -5};
    output.rows = {
        {CLKOUT_NOCLK,    "noclk",   ClockSource::None,    565, "no clk"},
        {CLKOUT_LICK,     "lick",    ClockSource::Lick,    584, "lick"},
        {CLKOUT_LEXT,     "lext",    ClockSource::Lext,    604, "lext"},
        {CLKOUT_HICK,     "hick",    ClockSource::Hick,    626, "hick"},
        {CLKOUT_HEXT,     "hext",    ClockSource::Hext,    648, "hext"},
        {CLKOUT_SCLK,     "sclk",    ClockSource::Sclk,    668, "sclk"},
        {CLKOUT_ADCCLK,   "adcclk",  ClockSource::Adc,     689, "adcclk", RowGate::Adc, 10},
        {CLKOUT_PLLDIV2,  "plldiv2", ClockSource::PllDiv2, 709, "pll/2"},
        {CLKOUT_PLLDIV4,  "plldiv4", ClockSource::PllDiv4, 730, "pll/4"},
    };
    output.dividers = {dividers::clockOutput()};
    output.fallback = CLKOUT_NOCLK;
    output.lextNeedsRtc = true;
    return output;
}
PeripheralClock can()
{
    PeripheralClock clock = peripherals::can();
    // Below the limit of the page's other fields, which is meant.
    clock.limit = 180.0;
    clock.sources = {
        {CAN_CLOCK_SOURCE_HEXT, "hext", ClockSource::Hext, ClockSource::Hext},
        {CAN_CLOCK_SOURCE_PLL,  "pll",  ClockSource::Sclk, ClockSource::Sclk},
        {CAN_CLOCK_SOURCE_PCLK, "pclk", ClockSource::Apb1, ClockSource::Apb1},
    };
    clock.x = 600;
    clock.y = 480;
    return clock;
}
// clang-format on

} // namespace

PageDescription families::g142()
{
    PageDescription page{ZN64G142, "G142PLL.bmp", QSize(1414, 835), "zn64g142_146", places()};
    page.outputs = outputs();
    page.lists = lists();
    page.start = "rtcsel=0 rtcswitch=0 lextbypass=0 hextbypass=0 hext=8 pllhextdiv=0 pllrcs=0 pllmode=0 "
                 "pllmult=25 pllms=1 pllns=75 pllfr=4 sclkselect=1 ahbdiv=1 apb1div=1 apb2div=1 apb3div=4 "
                 "tmrmultiply=1 adcswitch=0 adcdiv=6 hicktosclk=0 clkout=0 clkoutdiv=1 clkoutpinselect=0 "
                 "canclocksel=2 canswitch=0";
    page.fixedFields = [](ZN64ConfigCLK& model) { model.Set_HEXT_DIV(2); };
    page.fileOrder = "lextbypass rtcsel rtcswitch hext hextbypass pllhextdiv pllrcs pllmode pllmult pllms "
                     "pllns pllfr sclkselect ahbdiv apb1div apb2div apb3div hicktosclk clkout clkoutdiv "
                     "clkoutpinselect adcswitch adcdiv canclocksel canswitch";
    page.readingOrder = "lextbypass rtcsel rtcswitch hext hextbypass pllhextdiv pllrcs pllmode pllmult pllms "
                        "pllns pllfr sclkselect ahbdiv apb1div apb2div apb3div hicktosclk adcswitch adcdiv "
                        "clkoutpinselect clkoutdiv clkout canclocksel canswitch";
    const Limits pll{limits::above(ClockSource::Pll, 200.0), limits::belowInNormalMode()};
    page.typedSclk = {4.0, 200.0};
    page.painted =
        limits::painted(200.0, 200.0, 200.0) + pll +
        Limits{limits::above(ClockSource::Apb3, apb3LimitMHz), limits::above(ClockSource::Adc, adcLimitMHz)};
    const Limits refused = limits::refused(200.0, 200.0, 200.0) + pll;
    page.onSaving = refused + Limits{limits::adcClock(adcLimitMHz, limits::adc28Comma)};
    page.onGenerating = refused + Limits{limits::adcClock(adcLimitMHz, limits::adc28)};
    page.pllHextDivider = true;
    page.pllMultiplier = true;
    page.pllParameters = true;
    page.hickToSclk = true;
    page.adcDivider = true;
    page.dividers = {dividers::pllFr(), dividers::ahb(),  dividers::apb1(),
                     dividers::apb2(),  dividers::apb3(), dividers::adc(listOf(divisors::adc))};
    page.clockOutputs = {clockOutput()};
    page.peripherals = {can()};
    page.generatedApb3 = apb3LimitMHz;
    return page;
}

PageDescription families::g146()
{
    PageDescription page = g142();
    page.series = ZN64G146;
    page.picture = "G146PLL.bmp";
    return page;
}
