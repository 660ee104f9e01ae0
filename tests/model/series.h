#pragma once

#include "model/ZN64ConfigCLK.h"
#include "model/seriestraits.h"

#include <QStringList>

#include <functional>
#include <vector>

/// A step that a data row takes on a model.
using Setup = std::function<void(ZN64ConfigCLK&)>;

/// The words of a text with blanks between them.
inline QStringList wordsOf(const char* text)
{
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

/// A model of each series whose word the text names.
inline std::vector<ZN64ConfigCLK> modelsOf(const char* text)
{
    std::vector<ZN64ConfigCLK> models;
    for (const QString& word : wordsOf(text)) {
        const SeriesTraits* traits = seriesByName(QLatin1String("ZN64") + word);
        if (!traits)
            qFatal("no series %s", qPrintable(word));
        models.emplace_back(traits->series);
    }
    return models;
}
