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
        {"m_rtcsel_Label",            248,  32}, {"m_rtcsel_lick_RadioButton",  257,  75},
        {"m_rtcsel_lext_RadioButton", 257, 148}, {"m_rtcsel_hext_RadioButton",  257, 214},
        {"m_tortc_ComboBox",          305, 142}, {"m_tortc_lineEdit",           415, 142},
        {"m_tortc_Label",             500, 145}, {"m_towdt_lineEdit",           415,  17},

        // The PLL to the system clock
        {"m_hextdiv_Label",              224, 320}, {"m_hextdiv_ComboBox",             220, 340},
        {"m_pllhextdiv_Label",           323, 263},
        {"m_pllhext_nodiv_RadioButton",  345, 305}, {"m_pllhext_div_RadioButton",      345, 346},
        {"m_pllrc_Label",                461, 290},
        {"m_pllrcs_hext_RadioButton",    472, 327}, {"m_pllrcs_hick_RadioButton",      472, 380},
        {"m_pllmult_Label",              560, 327}, {"m_pllmult_ComboBox",             555, 347},
        {"m_pllclk_Label",               650, 335},
        {"m_hicktosclk_Label",           380, 510},
        {"m_hicktosclk_div6_RadioButton", 400, 427}, {"m_hicktosclk_RadioButton",      400, 479},
        {"m_sclkselect_Label",           712, 237}, {"m_sclkselect_hext_RadioButton",  740, 297},
        {"m_sclkselect_pll_RadioButton", 740, 355}, {"m_sclkselect_hick_RadioButton",  740, 412},
        {"m_sclk_Label",                 793, 325}, {"m_sclk_lineEdit",                783, 345},
        {"m_sclkRange_Label",            798, 374},

        // The buses, USB and the ADC
        {"m_ahbdiv_Label",     936, 327}, {"m_ahbdiv_ComboBox",      926, 347},
        {"m_apb1div_Label",   1041, 352}, {"m_apb1div_ComboBox",    1036, 372},
        {"m_apb2div_Label",   1041, 582}, {"m_apb2div_ComboBox",    1036, 602},
        {"m_tosystick_div",   1092, 142},
        {"m_toapb1tmr_mul",   1092, 412}, {"m_toapb2tmr_mul",       1092, 650},
        {"m_usbdiv_Label",     717, 465}, {"m_usbdiv_ComboBox",      707, 481},
        {"m_hicktousb_Label",  772, 450},
        {"m_tousb_pll_RadioButton", 796, 488}, {"m_tousb_hick_RadioButton", 796, 527},
        {"m_tousb_Label",      850, 482}, {"m_tousbswitch_ComboBox", 840, 502},
        {"m_usbclock_Label",   930, 525},
        {"m_toadcdiv_Label",  1119, 498}, {"m_toadcdiv_ComboBox",   1115, 514},
        {"m_toadcswitch_ComboBox", 1075, 550},
        {"m_toadc_lineEdit",  1180, 513, ""}, {"m_toadc_Label",     1265, 516},

        // The clock output
        {"m_clockoutpin_Label",     140, 634}, {"m_clockoutpin_ComboBox", 133, 654},
        {"m_clockoutdiv_Label",     235, 634}, {"m_clockoutdiv_ComboBox", 233, 654},
        {"m_clockout_Value_QLabel",  48, 672}, {"m_clockout_QLabel",      326, 786},
    };
    return table;
}

OutputColumn outputs()
{
    return {1180, {
        {"toi2s", 93}, {"tosystick", 144}, {"tosido", 188}, {"todma", 233}, {"toxmc", 274}, {"togpio", 320},
        {"toapb1peripheral", 372}, {"toapb1tmr", 456}, {"toapb2peripheral", 602}, {"toapb2tmr", 687},
    }};
}

PeripheralLists lists()
{
    return {
        {417, "SPI2 SPI3 SPI4 USART2 USART3 UART4 UART5 I2C1 I2C2 CAN1 CAN2 DAC"},
        {501, "TMR2 TMR3 TMR4 TMR5 TMR6 TMR7 TMR12 TMR13 TMR14"},
        {647, "I2C3 SPI1 USART1 USART6 UART7 UART8"},
        {574, "TMR1 TMR8 TMR9 TMR10 TMR11"},
    };
}

ClockOutput clockOutput()
{
    ClockOutput output = singleClockOutput();
    output.pins = {{"PA8", CLKOUTPIN_PA8}};
    output.column = {339, 400, 440, -5};
    output.rows = {
        {CLKOUT_NOCLK,   "noclk",   ClockSource::None,    565, "no clk"},
        {CLKOUT_LICK,    "lick",    ClockSource::Lick,    586, "lick"},
        {CLKOUT_LEXT,    "lext",    ClockSource::Lext,    606, "lext"},
        {CLKOUT_HICK,    "hick",    ClockSource::Hick,    628, "hick"},
        {CLKOUT_HEXT,    "hext",    ClockSource::Hext,    650, "hext"},
        {CLKOUT_SCLK,    "sclk",    ClockSource::Sclk,    670, "sclk"},
        {CLKOUT_USB,     "usb",     ClockSource::Usb,     691, "usb", RowGate::Usb},
        {CLKOUT_ADCCLK,  "adcclk",  ClockSource::Adc,     711, "adcclk", RowGate::Adc, 10},
        {CLKOUT_PLLDIV2, "plldiv2", ClockSource::PllDiv2, 732, "pll/2"},
        {CLKOUT_PLLDIV4, "plldiv4", ClockSource::PllDiv4, 754, "pll/4"},
    };
    output.dividers = {dividers::clockOutput()};
    output.fallback = CLKOUT_NOCLK;
    output.lextNeedsRtc = true;
    return output;
}
// clang-format on

void setLimits(PageDescription& page, double sclk, double apb)
{
    page.typedSclk = {4.0, sclk};
    page.painted = limits::painted(sclk, apb, apb) + Limits{limits::above(ClockSource::Pll, sclk),
                                                            limits::above(ClockSource::Adc, adcLimitMHz)};
    page.onSaving =
        limits::refused(sclk, apb, apb) + Limits{limits::above(ClockSource::Pll, sclk), limits::usbClock(),
                                                 limits::adcClock(adcLimitMHz, limits::adc28)};
    page.onGenerating = page.onSaving;
}

} // namespace

PageDescription families::g110r()
{
    PageDescription page{ZN64G110R, "G110RPLL.bmp", QSize(1408, 830), "zn64g110r_114", places()};
    page.outputs = outputs();
    page.lists = lists();
    // USB goes off before its source goes back to the PLL, or its slot would tune the PLL for it on the way.
    page.start = "rtcsel=0 rtcswitch=0 lextbypass=0 hextbypass=0 hext=8 hextdiv=2 pllhextdiv=0 pllrcs=0 "
                 "pllmult=30 sclkselect=1 ahbdiv=1 apb1div=1 apb2div=1 tmrmultiply=1 adcswitch=0 adcdiv=2 "
                 "usbdiv=4 tousbswitch=1 hicktousb=0 hicktosclk=0 clkout=0 clkoutdiv=1 clkoutpinselect=0";
    page.fixedFields = [](ZN64ConfigCLK& model) { model.Set_ConfigMode(PLLMODE_NORMAL); };
    page.fileOrder =
        "lextbypass rtcsel rtcswitch hext hextbypass hextdiv pllhextdiv pllrcs pllmult sclkselect "
        "ahbdiv apb1div apb2div usbdiv hicktousb tousbswitch hicktosclk clkout clkoutdiv "
        "clkoutpinselect adcswitch adcdiv";
    page.readingOrder = "lextbypass rtcsel rtcswitch hext hextbypass hextdiv pllhextdiv pllrcs pllmult "
                        "sclkselect ahbdiv apb1div apb2div hicktousb usbdiv tousbswitch hicktosclk adcswitch "
                        "adcdiv clkoutpinselect clkoutdiv clkout";
    setLimits(page, 240.0, 120.0);
    page.pllHextDivider = true;
    page.checksPllInput = true;
    page.pllMultiplier = true;
    page.hickToSclk = true;
    page.usb = UsbPart{dividers::usb(listOf(divisors::usbHalfStepsTo4)), true, true};
    page.adcDivider = true;
    page.dividers = {dividers::hextToPll(), dividers::ahb(), dividers::apb1(), dividers::apb2(),
                     dividers::adc(listOf(divisors::adc))};
    page.clockOutputs = {clockOutput()};
    return page;
}

PageDescription families::g114()
{
    PageDescription page = g110r();
    page.series = ZN64G114;
    page.picture = "G114PLL.bmp";
    // clang-format off
    page.places = page.places.moved({
        {"m_tortc_ComboBox", 305, 143}, {"m_tortc_lineEdit", 415, 144}, {"m_tortc_Label", 500, 148},
        {"m_lext_lineEdit", 65, 139},
        {"m_pllrcs_hext_RadioButton", 471, 327}, {"m_pllrcs_hick_RadioButton", 471, 380},
        {"m_toadc_lineEdit", 1180, 506}, {"m_toadc_Label", 1265, 509},
        {"m_tosystick_div", 1092, 111},
    });
    page.outputs.rows = {
        {"toi2s", 62}, {"tosystick", 113}, {"tosido", 155}, {"todma", 201}, {"toxmc", 243}, {"toemac", 283},
        {"togpio", 324}, {"toapb1peripheral", 363}, {"toapb1tmr", 447}, {"toapb2peripheral", 594},
        {"toapb2tmr", 679},
    };
    // clang-format on
    page.lists.apb1.y = 408;
    page.lists.apb1Timers.y = 492;
    page.lists.apb2.y = 639;
    page.lists.apb2Timers.y = 565;
    return page;
}

PageDescription families::h110r()
{
    PageDescription page = g110r();
    page.series = ZN64H110R;
    page.picture = "H110RPLL.bmp";
    page.stem = "zn64h110r";
    page.ownStart = "pllmult=25";
    setLimits(page, 200.0, 100.0);
    return page;
}
