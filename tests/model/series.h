#pragma once

#include "model/ZN64ConfigCLK.h"
#include "model/seriestraits.h"

#include <QStringList>

#include <functional>

/// A step that a data row takes on a model.
using Setup = std::function<void(ZN64ConfigCLK&)>;

/// A model of the series word, such as "G110".
inline ZN64ConfigCLK modelOf(const QString& word)
{
    const SeriesTraits* traits = seriesByName(QLatin1String("ZN64") + word);
    if (!traits)
        qFatal("no series %s", qPrintable(word));
    return ZN64ConfigCLK(traits->series);
}

/// The sorted words of the series that hold.
template <typename Predicate>
QStringList wordsWhere(Predicate holds)
{
    QStringList words;
    for (const SeriesTraits& traits : seriesList())
        if (holds(traits))
            words << QLatin1String(traits.word);
    words.sort();
    return words;
}

/// The sorted words of a text with blanks between them.
inline QStringList wordsOf(const char* text)
{
    QStringList words = QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    words.sort();
    return words;
}
