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
        {"m_hext_Label1",              65, 279}, {"m_hext_lineEdit",             65, 297},
        {"m_hextbypass_Label",         83, 329}, {"m_hextbypass_ComboBox",       65, 347},
        {"m_hext_In",                  18, 299}, {"m_hext_Out",                   6, 310},
        {"m_hick_Label",               80, 425}, {"m_hick_lineEdit",             65, 443},
        {"m_rtcsel_Label",            248,  32, "ertcsel"},
        {"m_rtcsel_lick_RadioButton", 257,  75},
        {"m_rtcsel_lext_RadioButton", 257, 148}, {"m_rtcsel_hext_RadioButton",  257, 214},
        {"m_tortc_ComboBox",          305, 142}, {"m_tortc_lineEdit",           415, 142},
        {"m_tortc_Label",             500, 145, "to ertc(kHz)"},
        {"m_towdt_lineEdit",          415,  17},

        // The PLL to the system clock
        {"m_pllhextdiv_Label",           243, 263},
        {"m_pllhext_nodiv_RadioButton",  265, 305}, {"m_pllhext_div_RadioButton",      265, 346},
        {"m_pllrc_Label",                331, 290},
        {"m_pllrcs_hext_RadioButton",    342, 327}, {"m_pllrcs_hick_RadioButton",      342, 380},
        {"m_pllmode_Label",              430, 327}, {"m_pllmode_ComboBox",             425, 347},
        {"m_pllmult_Label",              567, 327}, {"m_pllmult_ComboBox",             562, 347},
        {"m_pllms_Label1",               462, 327}, {"m_pllms_lineEdit",               450, 347},
        {"m_pllms_Label2",               460, 377},
        {"m_pllns_Label1",               533, 327}, {"m_pllns_lineEdit",               520, 347},
        {"m_pllns_Label2",               525, 377},
        {"m_pllfr_Label",                605, 327}, {"m_pllfr_ComboBox",               590, 347},
        {"m_pllCFG_Label",               420, 293}, {"m_pllCFG_Value_lineEdit",        510, 290},
        {"m_pllclk_Label",               660, 335},
        {"m_hicktosclk_Label",           380, 510},
        {"m_hicktosclk_div6_RadioButton", 400, 427}, {"m_hicktosclk_RadioButton",      400, 479},
        {"m_sclkselect_Label",           712, 237}, {"m_sclkselect_hext_RadioButton",  740, 297},
        {"m_sclkselect_pll_RadioButton", 740, 355}, {"m_sclkselect_hick_RadioButton",  740, 412},
        {"m_sclk_Label",                 793, 327}, {"m_sclk_lineEdit",                783, 347},
        {"m_sclkRange_Label",            798, 376},

        // The buses and the ADC
        {"m_ahbdiv_Label",     936, 327}, {"m_ahbdiv_ComboBox",      926, 347},
        {"m_apb1div_Label",   1041, 197}, {"m_apb1div_ComboBox",    1036, 217},
        {"m_apb2div_Label",   1041, 401}, {"m_apb2div_ComboBox",    1036, 421},
        {"m_tosystick_div",   1092, 77},
        {"m_toapb1tmr_mul",   1092, 243}, {"m_toapb2tmr_mul",       1092, 455},
        {"m_toadcdiv_Label",  1119, 317}, {"m_toadcdiv_ComboBox",   1115, 333},
        {"m_toadcswitch_ComboBox", 1075, 369},
        {"m_toadc_lineEdit",  1180, 332, ""}, {"m_toadc_Label",     1265, 335},

        // The clock output
        {"m_clockoutpin_Label",     140, 634}, {"m_clockoutpin_ComboBox", 133, 654},
        {"m_clockoutdiv_Label",     235, 634}, {"m_clockoutdiv_ComboBox", 233, 654},
        {"m_clockout_Value_QLabel",  48, 672}, {"m_clockout_QLabel",      326, 766},
    };
    return table;
}

OutputColumn outputs()
{
    return {1180, {
        {"toi2s", 36}, {"tosystick", 79}, {"todma", 122}, {"togpio", 169}, {"toapb1peripheral", 217}, {"toapb1tmr", 280}, {"toapb2peripheral", 421}, {"toapb2tmr", 501, 2},
    }};
}

PeripheralLists lists()
{
    return {
        {257, "SPI2 USART3 USART4 I2C2 CAN1"},
        {320, "TMR3 TMR6 TMR14"},
        {461, "SCFG ADC1 SPI1"},
        {541, "TMR1 TMR15 TMR16 TMR17"},
    };
}

ClockOutput clockOutput()
{
    ClockOutput output = singleClockOutput();
    output.pins = {{"PA8", CLKOUTPIN_PA8}, {"PA9", CLKOUTPIN_PA9}, {"PB13", CLKOUTPIN_PB13}};
    output.column = {339, 400, 440, -5};
    output.rows = {
        {CLKOUT_NOCLK,    "noclk",   ClockSource::None,    565, "no clk"},
        {CLKOUT_LICK,     "lick",    ClockSource::Lick,    584, "lick"},
        {CLKOUT_LEXT,     "lext",    ClockSource::Lext,    604, "lext"},
        {CLKOUT_HICK,     "hick",    ClockSource::Hick,    626, "hick48", RowGate::None, 10},
        {CLKOUT_HEXT,     "hext",    ClockSource::Hext,    648, "hext"},
        {CLKOUT_SCLK,     "sclk",    ClockSource::Sclk,    668, "sclk"},
        {CLKOUT_ADCCLK,   "adcclk",  ClockSource::Adc,     689, "adcclk", RowGate::Adc, 10},
        {CLKOUT_PLLDIV2,  "plldiv2", ClockSource::PllDiv2, 709, "pll/2"},
        {CLKOUT_PLLDIV4,  "plldiv4", ClockSource::PllDiv4, 730, "pll/4"},
    };
    output.dividers = {dividers::clockOutput()};
    output.fallback = CLKOUT_NOCLK;
    return output;
}
PeripheralClock usart(PeripheralClock clock, ClockSource pclk, int y)
{
    clock.limit = 80.0;
    clock.sources = {
        {USART_CLOCK_SOURCE_PCLK,   "pclk",   pclk,              pclk},
        {USART_CLOCK_SOURCE_SCLK,   "sclk",   ClockSource::Sclk, ClockSource::Sclk},
        {USART_CLOCK_SOURCE_HICK48, "hick48", ClockSource::Hick},
        {USART_CLOCK_SOURCE_LEXT,   "lext",   ClockSource::Lext},
    };
    clock.x = 600;
    clock.y = y;
    clock.fallback = USART_CLOCK_SOURCE_LEXT;
    return clock;
}

PeripheralClock usart2()
{
    PeripheralClock clock = usart(peripherals::usart2(), ClockSource::Apb1, 600);
    // It follows the switch of the first USART, not its own. This stands as it is.
    clock.writtenWhile = MODEL_FIELD(USART1_Switch);
    return clock;
}

PeripheralClock i2c1()
{
    PeripheralClock clock = peripherals::i2c1();
    clock.limit = 80.0;
    clock.sources = {
        {I2C1_CLOCK_SOURCE_PCLK,   "pclk",   ClockSource::Apb2, ClockSource::Apb2},
        {I2C1_CLOCK_SOURCE_SCLK,   "sclk",   ClockSource::Sclk, ClockSource::Sclk},
        {I2C1_CLOCK_SOURCE_HICK48, "hick48", ClockSource::Hick},
    };
    clock.x = 600;
    clock.y = 720;
    clock.fallback = I2C1_CLOCK_SOURCE_HICK48;
    return clock;
}
// clang-format on

} // namespace

PageDescription families::d042()
{
    PageDescription page{ZN64D042, "D042PLL.bmp", QSize(1408, 830), "zn64d042", places()};
    page.outputs = outputs();
    page.lists = lists();
    page.start = "rtcsel=0 rtcswitch=0 lextbypass=0 hextbypass=0 hext=8 pllhextdiv=0 pllrcs=0 pllmode=0 "
                 "pllmult=10 pllms=1 pllns=80 pllfr=8 sclkselect=1 ahbdiv=1 apb1div=1 apb2div=1 "
                 "tmrmultiply=1 adcswitch=0 adcdiv=2 hicktosclk=0 clkout=0 clkoutdiv=1 clkoutpinselect=0 "
                 "usart1clocksel=0 usart2clocksel=0 i2c1clocksel=0 usart1switch=0 usart2switch=0 "
                 "i2c1switch=0";
    page.fixedFields = [](ZN64ConfigCLK& model) { model.Set_HEXT_DIV(2); };
    page.fileOrder = "lextbypass rtcsel rtcswitch hext hextbypass pllhextdiv pllrcs pllmode pllmult pllms "
                     "pllns pllfr sclkselect ahbdiv apb1div apb2div hicktosclk clkout clkoutdiv "
                     "clkoutpinselect adcswitch adcdiv usart1clocksel usart2clocksel i2c1clocksel "
                     "usart1switch usart2switch i2c1switch";
    page.readingOrder = "lextbypass rtcsel rtcswitch hext hextbypass pllhextdiv pllrcs pllmode pllmult pllms "
                        "pllns pllfr sclkselect ahbdiv apb1div apb2div hicktosclk adcswitch adcdiv "
                        "clkoutpinselect clkoutdiv clkout usart1clocksel usart2clocksel i2c1clocksel "
                        "usart1switch usart2switch i2c1switch";
    const Limits pll{limits::above(ClockSource::Pll, 80.0), limits::belowInNormalMode()};
    page.typedSclk = {4.0, 80.0};
    page.painted =
        limits::painted(80.0, 80.0, 80.0) + pll + Limits{limits::above(ClockSource::Adc, adcLimitMHz)};
    const Limits refused = limits::refused(80.0, 80.0, 80.0) + pll;
    page.onSaving = refused + Limits{limits::adcClock(adcLimitMHz, limits::adc28Comma)};
    page.onGenerating = refused + Limits{limits::adcClock(adcLimitMHz, limits::adc28)};
    page.pllHextDivider = true;
    page.pllMultiplier = true;
    page.pllParameters = true;
    page.hickToSclk = true;
    page.adcDivider = true;
    page.dividers = {dividers::pllFr(), dividers::ahb(), dividers::apb1(), dividers::apb2(),
                     dividers::adc(listOf(divisors::adcFine))};
    page.clockOutputs = {clockOutput()};
    page.peripherals = {usart(peripherals::usart1(), ClockSource::Apb2, 480), usart2(), i2c1()};
    page.hickAtOutputs = HickAtOutputs::Always48;
    return page;
}
