#include "preview/stems.h"

namespace {

struct SharedStem
{
    const char* seriesName;
    const char* stem;
};

/// The series that share their file names with siblings. The code generator's own list of stems must agree.
constexpr SharedStem sharedStems[] = {
    {"ZN64G150",  "zn64g150_152" },
    {"ZN64G152",  "zn64g150_152" },
    {"ZN64G110R", "zn64g110r_114"},
    {"ZN64G114",  "zn64g110r_114"},
    {"ZN64G171",  "zn64g171_174" },
    {"ZN64G174",  "zn64g171_174" },
    {"ZN64P212",  "zn64p212_216" },
    {"ZN64P216",  "zn64p212_216" },
    {"ZN64G165",  "zn64g16x"     },
    {"ZN64G166",  "zn64g16x"     },
    {"ZN64G167",  "zn64g16x"     },
    {"ZN64G142",  "zn64g142_146" },
    {"ZN64G146",  "zn64g142_146" },
};

} // namespace

QString fileStemOfSeries(const QString& seriesName)
{
    const QString upper = seriesName.toUpper();
    for (const SharedStem& each : sharedStems)
        if (upper == QLatin1String(each.seriesName))
            return QLatin1String(each.stem);
    return seriesName.toLower();
}
