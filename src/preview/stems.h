#pragma once

#include <QString>

/// The stem of the generated files' names, such as "zn64g150_152" for a series name in any case. A name of no
/// series gives its own lower-case form.
QString fileStemOfSeries(const QString& seriesName);
