#include "model/seriestraits.h"

#include <algorithm>

namespace {

constexpr bool Y = true;
constexpr bool n = false;

constexpr UsbSource noUsb = UsbSource::None;
constexpr UsbSource fromPll = UsbSource::Pll;
constexpr UsbSource fromAny = UsbSource::PllOrHick;

constexpr unsigned divided = PLL_USER_CLKOUT_DIVIDED;
constexpr unsigned usbDivided = PLL_USER_USB | PLL_USER_CLKOUT_DIVIDED;
constexpr unsigned usbTwo = PLL_USER_USB | PLL_USER_TWO_CLKOUTS;
constexpr unsigned usbAdc = PLL_USER_USB | PLL_USER_CLKOUT | PLL_USER_ADC;
constexpr unsigned usbI2s = PLL_USER_USB | PLL_USER_CLKOUT | PLL_USER_I2SF5;
constexpr unsigned usbI2sCan = usbI2s | PLL_USER_THREE_CAN;
constexpr unsigned oneCan = PLL_USER_CLKOUT | PLL_USER_CAN1;

// Columns: series, word, stem, highest system clock; pll_in_direct, sclk_prediv, pll_fp_output,
// sysclk_half_pll, dual_clkout, no_usb, vco_1200, apb_half_rule, apb1_120_rule; hick_8mhz, USB source, USB
// divider limits, PLL users.
constexpr std::array<SeriesTraits, 24> table{
    {
     {ZN64G110, "G110", "zn64g110", 200, n, n, n, n, n, n, n, Y, n, Y, fromPll, 1, 4, usbDivided},
     {ZN64G120, "G120", "zn64g120", 200, n, n, n, n, n, n, n, Y, n, n, fromAny, 1, 4, usbDivided},
     {ZN64G125, "G125", "zn64g125", 150, n, n, n, n, n, n, n, Y, n, n, fromAny, 1, 4, usbDivided},
     {ZN64TQ125, "TQ125", "zn64tq125", 150, n, n, n, n, n, n, n, Y, n, n, fromAny, 1, 4, usbDivided},
     {ZN64G110R, "G110R", "zn64g110r_114", 240, n, n, n, n, n, n, n, Y, n, n, fromAny, 1, 4, usbDivided},
     {ZN64G114, "G114", "zn64g110r_114", 240, n, n, n, n, n, n, n, Y, n, n, fromAny, 1, 4, usbDivided},
     {ZN64H110R, "H110R", "zn64h110r", 200, n, n, n, n, n, n, n, Y, n, n, fromAny, 1, 4, usbDivided},
     {ZN64G130, "G130", "zn64g130", 120, n, n, n, n, n, Y, n, n, n, n, noUsb, 1, 4, divided},
     {ZN64G135, "G135", "zn64g135", 96, n, n, n, n, n, n, n, n, n, n, fromAny, 1, 4, usbDivided},
     {ZN64D042, "D042", "zn64d042", 80, n, n, n, n, n, Y, n, n, n, n, noUsb, 1, 4, divided},
     {ZN64G142, "G142", "zn64g142_146", 200, n, n, n, n, n, Y, n, n, n, n, noUsb, 1, 4, divided},
     {ZN64G146, "G146", "zn64g142_146", 200, n, n, n, n, n, Y, n, n, n, n, noUsb, 1, 4, divided},
     {ZN64G150, "G150", "zn64g150_152", 288, Y, n, n, n, Y, n, Y, Y, n, n, fromAny, 1, 7, usbTwo},
     {ZN64G152, "G152", "zn64g150_152", 288, Y, n, n, n, Y, n, Y, Y, n, n, fromAny, 1, 7, usbTwo},
     {ZN64G133, "G133", "zn64g133", 150, Y, Y, n, Y, n, n, n, n, Y, n, fromAny, 2, 8, usbAdc},
     {ZN64H133, "H133", "zn64h133", 150, Y, Y, n, Y, n, n, n, n, Y, n, fromAny, 2, 8, usbAdc},
     {ZN64G171, "G171", "zn64g171_174", 216, Y, Y, Y, n, n, n, n, n, Y, n, fromAny, 11, 20, usbI2s},
     {ZN64G174, "G174", "zn64g171_174", 216, Y, Y, Y, n, n, n, n, n, Y, n, fromAny, 11, 20, usbI2s},
     {ZN64G190, "G190", "zn64g190", 216, Y, Y, Y, n, n, n, n, n, Y, n, fromAny, 11, 20, usbI2s},
     {ZN64G165, "G165", "zn64g16x", 192, Y, Y, Y, n, n, n, Y, n, n, n, fromAny, 11, 20, usbI2sCan},
     {ZN64G166, "G166", "zn64g16x", 192, Y, Y, Y, n, n, n, Y, n, n, n, fromAny, 11, 20, usbI2sCan},
     {ZN64G167, "G167", "zn64g16x", 192, Y, Y, Y, n, n, n, Y, n, n, n, fromAny, 11, 20, usbI2sCan},
     {ZN64P212, "P212", "zn64p212_216", 180, Y, Y, n, n, n, n, n, n, n, n, noUsb, 1, 4, oneCan},
     {ZN64P216, "P216", "zn64p212_216", 180, Y, Y, n, n, n, n, n, n, n, n, noUsb, 1, 4, oneCan},
     }
};

constexpr SeriesTraits noSeries{ZN64MCUSERIALS(0), "", "", 0, n, n, n, n, n, n, n, n, n, n, noUsb, 1, 4, 0};

} // namespace

QString SeriesTraits::name() const
{
    return *word ? QLatin1String("ZN64") + QLatin1String(word) : QString();
}

const SeriesTraits& seriesTraits(ZN64MCUSERIALS series)
{
    const auto row = std::find_if(table.begin(), table.end(),
                                  [series](const SeriesTraits& traits) { return traits.series == series; });
    return row != table.end() ? *row : noSeries;
}

const std::array<SeriesTraits, 24>& seriesList()
{
    return table;
}

const SeriesTraits* seriesByName(const QString& name)
{
    const auto row = std::find_if(table.begin(), table.end(),
                                  [&name](const SeriesTraits& traits) { return traits.name() == name; });
    return row != table.end() ? &*row : nullptr;
}

QString seriesName(ZN64MCUSERIALS series)
{
    return seriesTraits(series).name();
}
