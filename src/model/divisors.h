#pragma once

#include <array>
#include <cstddef>

/// Every list of divisors and multipliers, in the order of the pages' items. Pages, design files, solver and
/// generator share them: the place of a value in its list is its item index and, where the hardware has one,
/// its register code.
namespace divisors {

/// An evenly spaced list.
template <typename T, std::size_t Count>
constexpr std::array<T, Count> steps(T first, T step)
{
    std::array<T, Count> list{};
    for (std::size_t i = 0; i < Count; ++i)
        list[i] = first + static_cast<T>(i) * step;
    return list;
}

/// The place of the value in the list; -1 if the list lacks it. Doubles are compared exactly.
template <typename List>
constexpr int indexOf(const List& list, typename List::value_type value)
{
    for (std::size_t i = 0; i < list.size(); ++i)
        if (list[i] == value)
            return static_cast<int>(i);
    return -1;
}

/// AHB, and the clock outputs' only or second divider. There is no 32.
inline constexpr std::array<int, 9> ahb{1, 2, 4, 8, 16, 64, 128, 256, 512};
inline constexpr const std::array<int, 9>& clockOutput = ahb;
/// The first of a clock output's two dividers.
inline constexpr std::array<int, 5> clockOutputFirst{1, 2, 3, 4, 5};
/// APB1, APB2 and APB3.
inline constexpr std::array<int, 5> apb{1, 2, 4, 8, 16};
/// APB2 to ADC, in two makes.
inline constexpr std::array<int, 6> adc{2, 4, 6, 8, 12, 16};
inline constexpr std::array<int, 8> adcFine{2, 3, 4, 5, 6, 8, 12, 16};
/// hext to the PLL's input.
inline constexpr std::array<int, 4> hextToPll{2, 3, 4, 5};
/// hext and hick to the system clock.
inline constexpr std::array<int, 6> hextToSclk{1, 2, 4, 8, 16, 32};
inline constexpr std::array<int, 5> hickToSclk{1, 2, 4, 8, 16};
/// hext to the RTC: 2 to 31.
inline constexpr std::array<int, 30> rtc = steps<int, 30>(2, 1);

/// PLL output to USB: half steps up to 4.0 or 7.0, or whole steps.
inline constexpr std::array<double, 7> usbHalfStepsTo4 = steps<double, 7>(1.0, 0.5);
inline constexpr std::array<double, 13> usbHalfStepsTo7 = steps<double, 13>(1.0, 0.5);
inline constexpr std::array<double, 7> usbWholeSteps = steps<double, 7>(2.0, 1.0);

/// The multiplier of the PLL's normal mode: 2 to 64.
inline constexpr std::array<int, 63> pllMul = steps<int, 63>(2, 1);
/// The PLL's output divider, in two makes.
inline constexpr std::array<int, 6> pllFr{1, 2, 4, 8, 16, 32};
inline constexpr std::array<int, 16> pllFp{1, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30};
/// VCO to USB. The place of a value is its register code, in which 13 comes before 12.
inline constexpr std::array<int, 7> pllFu{11, 13, 12, 14, 16, 18, 20};

/// The typed PLL values; both ends are good.
inline constexpr int pllMsMin = 1;
inline constexpr int pllMsMax = 15;
inline constexpr int pllNsMin = 31;
inline constexpr int pllNsMax = 500;

} // namespace divisors
