#include "pages/description/clockoutputs.h"

#include <utility>

// clang-format off
namespace clockoutputs {

const ClockOutputRow noclk      {CLKOUT_NOCLK,   "noclk",   ClockSource::None, "no clk"};
const ClockOutputRow lick       {CLKOUT_LICK,    "lick",    ClockSource::Lick};
const ClockOutputRow lext       {CLKOUT_LEXT,    "lext",    ClockSource::Lext};
const ClockOutputRow hick       {CLKOUT_HICK,    "hick",    ClockSource::Hick};
const ClockOutputRow hext       {CLKOUT_HEXT,    "hext",    ClockSource::Hext};
const ClockOutputRow sclk       {CLKOUT_SCLK,    "sclk",    ClockSource::Sclk};
const ClockOutputRow pll        {CLKOUT_PLL,     "pll",     ClockSource::Pll};
const ClockOutputRow pllDiv2    {CLKOUT_PLLDIV2, "plldiv2", ClockSource::PllDiv2, "pll/2"};
const ClockOutputRow pllDiv4    {CLKOUT_PLLDIV4, "plldiv4", ClockSource::PllDiv4, "pll/4"};
const ClockOutputRow usb        {CLKOUT_USB,     "usb",     ClockSource::Usb, "usb", RowGate::Usb};
const ClockOutputRow usbOfTwo   {CLKOUT_USBFS,   "usbfs",   ClockSource::Usb, "usbfs", RowGate::Usb};
const ClockOutputRow adcSwitched{CLKOUT_ADCCLK,  "adcclk",  ClockSource::Adc, "adcclk", RowGate::Adc, 10};
const ClockOutputRow adcclk     {CLKOUT_ADCCLK,  "adcclk",  ClockSource::Adc, "adcclk", RowGate::None, 10};
const ClockOutputRow adc        {CLKOUT_ADCCLK,  "adc",     ClockSource::Adc};

const std::vector<ClockOutputRow> tenSources{noclk, lick, lext, hick, hext, sclk, usb, adcSwitched, pllDiv2, pllDiv4};
const std::vector<ClockOutputRow> nineSources{noclk, lick, lext, hick, hext, sclk, adcSwitched, pllDiv2, pllDiv4};

const PinChoice pa8 {"PA8",  CLKOUTPIN_PA8};
const PinChoice pa9 {"PA9",  CLKOUTPIN_PA9};
const PinChoice pb13{"PB13", CLKOUTPIN_PB13};
const PinChoice pc9 {"PC9",  CLKOUTPIN_PC9};
const PinChoice pe4 {"PE4",  CLKOUTPIN_PE4};
const PinChoice pf2 {"PF2",  CLKOUTPIN_PF2};

} // namespace clockoutputs
// clang-format on

ClockOutput clockoutputs::single()
{
    ClockOutput output{"clockout", "clkout", "clkoutpinselect", MODEL_FIELD(CLKOUT),
                       MODEL_FIELD(CLKOUT_PinSelect)};
    output.fallback = CLKOUT_NOCLK;
    return output;
}

ClockOutput clockoutputs::singleDivided(std::vector<PinChoice> pins, std::vector<ClockOutputRow> rows)
{
    ClockOutput output = single();
    output.pins = std::move(pins);
    output.rows = std::move(rows);
    output.dividers = {dividers::clockOutput()};
    output.lextNeedsRtc = true;
    return output;
}

ClockOutput clockoutputs::singleDividedTwice()
{
    ClockOutput output = single();
    output.dividers = {dividers::clockOutputFirst("New_clockoutdiv1", "m_clockoutdiv1", "clkoutdiv1",
                                                  MODEL_FIELD(CLKOUT_Div1)),
                       dividers::clockOutputSecond("New_clockoutdiv2", "m_clockoutdiv2", "clkoutdiv2",
                                                   MODEL_FIELD(CLKOUT_Div2))};
    output.fallback = CLKOUT_SCLK;
    return output;
}

ClockOutput clockoutputs::first()
{
    ClockOutput output{"clockout1", "clkout1", "clkout1pinselect", MODEL_FIELD(CLKOUT1),
                       MODEL_FIELD(CLKOUT1_PinSelect)};
    output.dividers = {dividers::clockOutputFirst("New_clockout1div1", "m_clockout1div1", "clkout1div1",
                                                  MODEL_FIELD(CLKOUT1_Div1)),
                       dividers::clockOutputSecond("New_clockout1div2", "m_clockout1div2", "clkout1div2",
                                                   MODEL_FIELD(CLKOUT1_Div2))};
    output.fallback = CLKOUT1_HICK;
    return output;
}

ClockOutput clockoutputs::second()
{
    ClockOutput output{"clockout2", "clkout2", "clkout2pinselect", MODEL_FIELD(CLKOUT2),
                       MODEL_FIELD(CLKOUT2_PinSelect)};
    output.dividers = {dividers::clockOutputFirst("New_clockout2div1", "m_clockout2div1", "clkout2div1",
                                                  MODEL_FIELD(CLKOUT2_Div1)),
                       dividers::clockOutputSecond("New_clockout2div2", "m_clockout2div2", "clkout2div2",
                                                   MODEL_FIELD(CLKOUT2_Div2))};
    output.fallback = CLKOUT2_HICK;
    return output;
}
