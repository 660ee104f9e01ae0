#include "pages/description/arithmetic.h"

#include "model/ZN64ConfigCLK.h"
#include "pages/description/outputs.h"

namespace {
// What hick gives to outputs, MHz: undivided, and behind its divider by 6.
constexpr double hickMHz = 48.0;
constexpr double dividedHickMHz = 8.0;
} // namespace

double arithmetic::hickAtOutputs(HickAtOutputs rule, const HickRoutes& routes)
{
    const auto by = [](bool undivided) { return undivided ? hickMHz : dividedHickMHz; };
    switch (rule) {
    case HickAtOutputs::Always8:
        return dividedHickMHz;
    case HickAtOutputs::Always48:
        return hickMHz;
    case HickAtOutputs::With48ForUsb:
        return by(routes.toUsb);
    case HickAtOutputs::ByRoute:
        return by(routes.toUsb || routes.undividedToSclk || routes.throughPllToSclk);
    }
    return hickMHz;
}

double arithmetic::rtcFromHext(const PageDescription& page, const ZN64ConfigCLK& model, double hext)
{
    const double divisor = page.rtcDivider() ? model.Get_RTC_DIV() : page.rtcHextDivisor;
    return hext * 1000.0 / divisor;
}

double arithmetic::divided(double clock, const std::vector<Divider>& dividers, const ZN64ConfigCLK& model)
{
    for (const Divider& divider : dividers)
        clock /= divider.field.get(model);
    return clock;
}

double arithmetic::outputClock(const OutputEntry& output, const ZN64ConfigCLK& model)
{
    return clockValue(output.source, model) / output.divisor;
}
