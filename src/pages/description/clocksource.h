#pragma once

#include <optional>

class ZN64ConfigCLK;

/// What an output, a clock output or a peripheral can take its clock from.
enum class ClockSource
{
    None,    ///< no clock
    Untold,  ///< a clock whose frequency nobody on the page knows
    Outside, ///< a clock that comes in from outside of the chip
    Lick,
    Lext,
    Hick, ///< what hick gives to outputs differs by series and route
    Hext,
    Sclk,
    Ahb,
    Apb1,
    Apb1Timer,
    Apb2,
    Apb2Timer,
    Apb3,
    Adc,
    Usb,
    Pll,
    PllDiv2,
    PllDiv4,
    PllU,  ///< the VCO divided by FU
    UsbPhy ///< what the typed hext gives to the PHY of USB; the model does not know it
};

/// What a page shows of a clock: a number with its unit, or words where the number is not known.
struct ClockReading
{
    double value = 0.0;
    const char* unit = "MHz";
    const char* words = nullptr;
};

/// The present reading of the clock; nothing where there is none to show. hick is what hick gives to outputs
/// at present, MHz.
std::optional<ClockReading> frequencyOf(ClockSource source, const ZN64ConfigCLK& model, double hick);

/// The model's present value of a clock that is not hick, MHz; 0 where there is none.
double clockValue(ClockSource source, const ZN64ConfigCLK& model);
