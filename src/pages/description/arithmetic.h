#pragma once

#include "pages/description/pagedescription.h"

class ZN64ConfigCLK;
struct OutputEntry;

/// What pages show beyond the model's own clocks. All of it is arithmetic on the model and on choices; what
/// is chosen, who asks knows.
namespace arithmetic {

/// The ways on which hick is taken at present.
struct HickRoutes
{
    bool toUsb = false;
    bool undividedToSclk = false;
    bool throughPllToSclk = false;
};

/// What hick gives to outputs, MHz.
double hickAtOutputs(HickAtOutputs rule, const HickRoutes& routes);

/// What hext, MHz, gives to the RTC, kHz.
double rtcFromHext(const PageDescription& page, const ZN64ConfigCLK& model, double hext);

/// What the clock, in any unit, is behind the dividers.
double divided(double clock, const std::vector<Divider>& dividers, const ZN64ConfigCLK& model);

/// The clock of a field of the column of outputs, MHz.
double outputClock(const OutputEntry& output, const ZN64ConfigCLK& model);

} // namespace arithmetic
