#include "preview/stems.h"

#include "model/seriestraits.h"

QString fileStemOfSeries(const QString& seriesName)
{
    for (const SeriesTraits& series : seriesList())
        if (series.name().compare(seriesName, Qt::CaseInsensitive) == 0)
            return QLatin1String(series.stem);
    return seriesName.toLower();
}
