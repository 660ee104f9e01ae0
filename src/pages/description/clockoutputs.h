#pragma once

#include "pages/description/pagedescription.h"

#include <vector>

/// The clock outputs, with the pins and sources that series choose from. An output without parameters has
/// neither yet.
namespace clockoutputs {

/// The only one of a series, with no divider, one or two.
ClockOutput single();
ClockOutput singleDivided(std::vector<PinChoice> pins, std::vector<ClockOutputRow> rows);
ClockOutput singleDividedTwice();
/// The first and second of two, each with two dividers.
ClockOutput first();
ClockOutput second();

// Sources of the only clock output.

extern const ClockOutputRow noclk, lick, lext, hick, hext, sclk, pll, pllDiv2, pllDiv4;
/// USB's clock, by itself off while USB is; of most series, and of those with two USB.
extern const ClockOutputRow usb, usbOfTwo;
/// The ADC's clock, behind a switch of the ADC and without one.
extern const ClockOutputRow adcSwitched, adcclk, adc;
/// Those of the series with one divider, from the top; nine on a series without USB.
extern const std::vector<ClockOutputRow> tenSources, nineSources;

/// Pins by their numbers in the model and in design files.
extern const PinChoice pa8, pa9, pb13, pc9, pe4, pf2;

} // namespace clockoutputs
