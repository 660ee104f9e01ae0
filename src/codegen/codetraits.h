#pragma once

#include "model/ZN64ConfigCLK.h"

#include <limits>

using CodeFragment = bool (ZN64ConfigCLK::*)(QString&) const;

/// The fragments that edit one template, in the order in which they run.
class CodeChain
{
public:
    constexpr CodeChain() = default;
    template <int length>
    constexpr CodeChain(const CodeFragment (&fragments)[length]) : m_first(fragments), m_length(length)
    {
    }
    constexpr const CodeFragment* begin() const { return m_first; }
    constexpr const CodeFragment* end() const { return m_first + m_length; }
    bool contains(CodeFragment fragment) const;

private:
    const CodeFragment* m_first = nullptr;
    int m_length = 0;
};

/// The LDO's voltage by the system clock in MHz. The higher voltage is looked at first; a clock above no
/// threshold takes the lowest voltage of the series.
struct LdoThresholds
{
    static constexpr double never = std::numeric_limits<double>::infinity();

    double above1V3 = never;
    double upTo1V3 = never;
    double above1V2 = never;
    /// Row of PWC_LDO_OUTPUT_SOURCE_Define_String; -1 in the series without a settable LDO.
    int lowest = -1;
};

enum class ClkoutDivider
{
    None,
    One,
    Two
};

/// What sets the generated code of one series apart, in addition to the traits of its clock tree. A series'
/// templates and its row belong together: they carry every section and call that its chains touch.
struct CodeTraits
{
    CodeChain clockChain;
    CodeChain mainChain;

    /// The PLL call takes source, multiplier and output range; no mode is looked at.
    bool threeArgumentPll = false;
    /// The text is searched for a section of the normal PLL mode.
    bool normalPllSection = false;
    /// The flexible PLL mode has its own section and its own call; otherwise it is the only mode.
    bool flexiblePllSection = false;

    /// The switch to a PLL of 168 MHz or more is written out in steps of the AHB divider.
    bool steppedSwitch = false;
    /// The USB output of the PLL, pllu, may feed CAN and so run while USB does without it.
    bool canFromPllu = false;
    LdoThresholds ldo;

    /// What hick is divided by in the result comment, by PLL mode.
    int normalHickDivisor = 12;
    int flexibleHickDivisor = 12;
    bool pllRangeLine = true;
    bool flashCycleLine = false;
    /// The flexible result comment shows the hext divider before sclk.
    bool hextDivInComment = false;

    bool clkoutMux = false;
    /// GPIO_MUX_n by CLKOUTPIN.
    int clkoutPinMux[CLKOUTPIN_PE4 + 1] = {};
    ClkoutDivider clkoutDivider = ClkoutDivider::One;

    /// The RTC call names the divider of hext.
    bool ertcDivider = false;
    /// The ADC clock has a source to select in place of a divider.
    bool adcSource = false;
    int usartCount = 0;
    int canCount = 0;

    /// The crystal of the configuration header's template, MHz.
    int hextDefaultMHz = 8;
};

/// The row of the series; for an unknown one a row with empty chains.
const CodeTraits& codeTraits(ZN64MCUSERIALS series);
