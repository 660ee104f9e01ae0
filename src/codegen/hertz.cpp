#include "codegen/hertz.h"

#include <QString>

#include <cmath>
#include <limits>

namespace {
/// Cut to an integer between -limit and limit; nan gives 0.
qint64 cut(double value, qint64 limit)
{
    if (std::isnan(value))
        return 0;
    if (value >= static_cast<double>(limit))
        return limit;
    if (value <= -static_cast<double>(limit))
        return -limit;
    return static_cast<qint64>(value);
}

double rounded(double value, int decimals)
{
    return QString::number(value, 'f', decimals).toDouble();
}
} // namespace

qint64 crystalHertz(double megahertz)
{
    return cut(rounded(megahertz, 6) * 1000 * 1000, std::numeric_limits<qint64>::max());
}

qint64 clockHertz(double megahertz)
{
    return cut(rounded(megahertz, 3) * 1000, std::numeric_limits<qint64>::max() / 1000) * 1000;
}
