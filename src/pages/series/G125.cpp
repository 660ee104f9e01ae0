#include "pages/series/families.h"

#include "model/divisors.h"

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
        {"m_apb1div_Label",   1041, 352}, {"m_apb1div_ComboBox",    1036, 372},
        {"m_apb2div_Label",   1041, 582}, {"m_apb2div_ComboBox",    1036, 602},
        {"m_tosystick_div",   1092, 142},
        {"m_toapb1tmr_mul",   1092, 412}, {"m_toapb2tmr_mul",       1092, 650},
        {"m_toadcdiv_Label",  1119, 498}, {"m_toadcdiv_ComboBox",   1115, 514},
        {"m_toadcswitch_ComboBox", 1075, 550},
        {"m_toadc_lineEdit",  1178, 513, ""}, {"m_toadc_Label",     1263, 516},

        // USB
        {"m_usbdiv_Label",     717, 482}, {"m_usbdiv_ComboBox",      707, 502},
        {"m_tousb_Label",      850, 482}, {"m_tousbswitch_ComboBox", 840, 502},
        {"m_usbclock_Label",   930, 525},

        // The clock output
        {"m_clockoutpin_Label",     140, 634}, {"m_clockoutpin_ComboBox", 133, 654},
        {"m_clockoutdiv_Label",     235, 634}, {"m_clockoutdiv_ComboBox", 233, 654},
        {"m_clockout_Value_QLabel",  48, 672}, {"m_clockout_QLabel",      326, 786},
    };
    return table;
}

OutputColumn outputs()
{
    return {1178, {
        {"toi2s", 93}, {"tosystick", 144}, {"tosido", 188}, {"todma", 233}, {"togpio", 274}, {"toapb1peripheral", 372}, {"toapb1tmr", 456}, {"toapb2peripheral", 602}, {"toapb2tmr", 687},
    }};
}

PeripheralLists lists()
{
    return {
        {417, "SPI2 USART2 USART3 UART4 UART5 I2C1 I2C2 CAN1 CMP"},
        {501, "TMR2 TMR3 TMR4 TMR5"},
        {647, "SPI1 USART1"},
        {599, "TMR1 TMR9 TMR10 TMR11"},
    };
}

ClockOutput clockOutput()
{
    ClockOutput output = singleClockOutput();
    output.pins = {{"PA8", CLKOUTPIN_PA8}};
    output.column = {339, 400, 440, -5};
    output.rows = {
        {CLKOUT_NOCLK,    "noclk",   ClockSource::None,    565, "no clk"},
        {CLKOUT_LICK,     "lick",    ClockSource::Lick,    584, "lick"},
        {CLKOUT_LEXT,     "lext",    ClockSource::Lext,    604, "lext"},
        {CLKOUT_HICK,     "hick",    ClockSource::Hick,    626, "hick"},
        {CLKOUT_HEXT,     "hext",    ClockSource::Hext,    648, "hext"},
        {CLKOUT_SCLK,     "sclk",    ClockSource::Sclk,    668, "sclk"},
        {CLKOUT_USB,      "usb",     ClockSource::Usb,     689, "usb", RowGate::Usb},
        {CLKOUT_ADCCLK,   "adcclk",  ClockSource::Adc,     709, "adcclk", RowGate::Adc, 10},
        {CLKOUT_PLLDIV2,  "plldiv2", ClockSource::PllDiv2, 730, "pll/2"},
        {CLKOUT_PLLDIV4,  "plldiv4", ClockSource::PllDiv4, 752, "pll/4"},
    };
    output.dividers = {dividers::clockOutput()};
    output.fallback = CLKOUT_NOCLK;
    output.lextNeedsRtc = true;
    return output;
}
// clang-format on

} // namespace

PageDescription families::g125()
{
    PageDescription page{ZN64G125, "G125PLL.bmp", QSize(1404, 828), "zn64g125", places()};
    page.outputs = outputs();
    page.lists = lists();
    page.start = "rtcsel=0 rtcswitch=0 lextbypass=0 hextbypass=0 hext=8 pllhextdiv=0 pllrcs=0 pllmode=0 "
                 "pllmult=18 pllms=1 pllns=72 pllfr=4 sclkselect=1 ahbdiv=1 apb1div=1 apb2div=1 "
                 "tmrmultiply=1 adcswitch=0 adcdiv=2 usbdiv=3 tousbswitch=1 hicktosclk=0 clkout=0 "
                 "clkoutdiv=1 clkoutpinselect=0";
    page.fixedFields = [](ZN64ConfigCLK& model) {
        model.Set_HEXT_DIV(2);
        model.Set_HICK_TO_USB(HICK_TO_USB_DISABLE);
    };
    page.fileOrder = "lextbypass rtcsel rtcswitch hext hextbypass pllhextdiv pllrcs pllmode pllmult pllms "
                     "pllns pllfr sclkselect ahbdiv apb1div apb2div usbdiv tousbswitch hicktosclk clkout "
                     "clkoutdiv clkoutpinselect adcswitch adcdiv";
    page.readingOrder = "lextbypass rtcsel rtcswitch hext hextbypass pllhextdiv pllrcs pllmode pllmult pllms "
                        "pllns pllfr sclkselect ahbdiv apb1div apb2div usbdiv tousbswitch hicktosclk "
                        "adcswitch adcdiv clkoutpinselect clkoutdiv clkout";
    const Limits pll{limits::above(ClockSource::Pll, 150.0), limits::belowInNormalMode()};
    page.typedSclk = {4.0, 150.0};
    page.painted =
        limits::painted(150.0, 75.0, 75.0) + pll + Limits{limits::above(ClockSource::Adc, adcLimitMHz)};
    const Limits refused = limits::refused(150.0, 75.0, 75.0) + pll + Limits{limits::usbClock()};
    page.onSaving = refused + Limits{limits::adcClock(adcLimitMHz, limits::adc28Comma)};
    page.onGenerating = refused + Limits{limits::adcClock(adcLimitMHz, limits::adc28)};
    page.pllHextDivider = true;
    page.pllMultiplier = true;
    page.pllParameters = true;
    page.hickToSclk = true;
    page.usb = UsbPart{dividers::usb(listOf(divisors::usbHalfStepsTo4))};
    page.adcDivider = true;
    page.dividers = {dividers::pllFr(), dividers::ahb(), dividers::apb1(), dividers::apb2(),
                     dividers::adc(listOf(divisors::adc))};
    page.clockOutputs = {clockOutput()};
    return page;
}

PageDescription families::tq125()
{
    PageDescription page = g125();
    page.series = ZN64TQ125;
    page.picture = "TQ125PLL.bmp";
    page.stem = "zn64tq125";
    // clang-format off
    page.places = page.places.moved({
        {"m_lick_Label", 90, 48}, {"m_hick_Label", 90, 425},
        {"m_usbdiv_Label", 717, 480}, {"m_usbdiv_ComboBox", 707, 500},
        {"m_tousb_Label", 850, 480}, {"m_tousbswitch_ComboBox", 840, 500},
        {"m_apb1div_Label", 1041, 351}, {"m_apb1div_ComboBox", 1036, 371},
        {"m_apb2div_Label", 1041, 580}, {"m_apb2div_ComboBox", 1036, 600},
    });
    page.outputs.rows = {
        {"tosystick", 144}, {"todma", 208}, {"togpio", 274}, {"toapb1peripheral", 372}, {"toapb1tmr", 456},
        {"toapb2peripheral", 602}, {"toapb2tmr", 687},
    };
    // clang-format on
    page.lists.apb1.peripherals = "SPI2 USART2 USART3 UART5 I2C1 CAN1 CMP";
    page.lists.apb2.peripherals = "USART1";
    page.lists.apb2Timers.y = 596;
    return page;
}
