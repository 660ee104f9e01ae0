#pragma once

#include "pagedescription.h"

/// Rows that many series' descriptions share.
namespace descriptionparts {

/// The output column in its usual order: i2s from the system clock, systick from AHB through its fixed
/// divider, the named outputs straight from AHB, then both APB buses with their timers.
std::vector<OutputRow> outputs(std::initializer_list<const char*> fromAhb);

/// The peripherals on each bus and its timers.
std::vector<ListGroup> lists(std::vector<const char*> apb1, std::vector<const char*> apb1Timers,
                             std::vector<const char*> apb2, std::vector<const char*> apb2Timers);

/// Refuses above the very limits that the page paints, and shows them.
std::vector<HardLimit> hardLimits(const PageLimits& limits);

/// USB is on and not at 48 MHz.
SoftLimit usbClock();

} // namespace descriptionparts
