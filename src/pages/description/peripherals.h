#pragma once

#include "pages/description/pagedescription.h"

/// The peripherals whose clocks can be chosen, with their sources.
namespace peripherals {

/// One of the USARTs 1 to 3 on a bus, with hick as the series gives it: its number and its name.
PeripheralClock usart(int number, ClockSource bus, int hickNumber, const char* hickName);
PeripheralClock i2c1(int hickNumber, const char* hickName);
PeripheralClock adc();
PeripheralClock i2sf5();
/// The only CAN of a series, and one of three, which take the PLL's output for USB.
PeripheralClock can();
PeripheralClock canOfThree(int number);

} // namespace peripherals
