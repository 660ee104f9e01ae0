#pragma once

#include "model/ZN64ConfigCLK.h"
#include "model/seriestraits.h"

#include <functional>

using Clock = ZN64ConfigCLK;
/// What a row of test data changes on a fresh model.
using Setup = std::function<void(Clock&)>;

/// A fresh model of the series word, such as "G110".
inline Clock clockOf(const QString& word)
{
    const SeriesTraits* traits = seriesByName(QLatin1String("ZN64") + word);
    if (!traits)
        qFatal("no series %s", qPrintable(word));
    return Clock(traits->series);
}
