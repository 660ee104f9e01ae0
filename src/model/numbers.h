#pragma once

#include <limits>

/// The integer part, cut toward zero. A value beyond the range of int gives the nearest int, nan gives 0:
/// design files may bring any number into the double fields.
inline int integerPart(double value)
{
    if (value >= static_cast<double>(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (value <= static_cast<double>(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return value == value ? static_cast<int>(value) : 0;
}
