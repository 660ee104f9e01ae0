#pragma once

class ZN64ConfigCLK;

/// The derived clocks that a page shows and limits.
enum class Clock
{
    Sysclk,
    Ahb,
    Apb1,
    Apb1Timer,
    Apb2,
    Apb2Timer,
    Apb3,
    Adc,
    Pll,
    Usb
};

/// The model's present value of the clock, MHz.
double clockValue(const ZN64ConfigCLK& model, Clock clock);
