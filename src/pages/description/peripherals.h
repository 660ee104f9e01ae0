#pragma once

#include "pages/description/pagedescription.h"

/// The peripherals whose clocks can be chosen, by their names and fields. A family adds the sources, the
/// limit and the place.
namespace peripherals {

PeripheralClock usart1();
PeripheralClock usart2();
PeripheralClock usart3();
PeripheralClock i2c1();
PeripheralClock adc();
PeripheralClock i2sf5();
/// The only CAN of a series, and the first to third of three.
PeripheralClock can();
PeripheralClock can1();
PeripheralClock can2();
PeripheralClock can3();

} // namespace peripherals
