#include "pages/description/captions.h"

#include "model/divisors.h"
#include "pages/description/inputlimits.h"
#include "pages/description/pagedescription.h"

#include <QHash>

namespace {

using Facts = QHash<QString, QString>;

Facts factsOf(const PageDescription& page)
{
    const ZN64ConfigCLK start(page.series);
    const auto number = [](double value) { return QString::number(value); };
    return {
        {QStringLiteral("lick"),        number(start.Get_Lick_Input_Value())         },
        {QStringLiteral("lext"),        number(start.Get_Lext_Input_Value())         },
        {QStringLiteral("hick"),        number(start.Get_Hick_Input_Value())         },
        {QStringLiteral("hextMin"),     number(inputlimits::hextMin)                 },
        {QStringLiteral("hextMax"),     number(inputlimits::hextMax)                 },
        {QStringLiteral("msMin"),       number(divisors::pllMsMin)                   },
        {QStringLiteral("msMax"),       number(divisors::pllMsMax)                   },
        {QStringLiteral("nsMin"),       number(divisors::pllNsMin)                   },
        {QStringLiteral("nsMax"),       number(divisors::pllNsMax)                   },
        {QStringLiteral("sclkMin"),     number(page.limits.lowestTyped.value_or(0.0))},
        {QStringLiteral("sclk"),        number(seriesTraits(page.series).sysclkMax)  },
        {QStringLiteral("apb1"),        number(page.limits.apb1)                     },
        {QStringLiteral("apb2"),        number(page.limits.apb2)                     },
        {QStringLiteral("apb3"),        number(apb3LimitMHz)                         },
        {QStringLiteral("rtc"),         QLatin1String(page.rtcName)                  },
        {QStringLiteral("hextDivisor"), number(fixedHextDivisor)                     },
        {QStringLiteral("rtcDivisor"),  number(page.rtcHextDivisor)                  },
    };
}

} // namespace

QString caption(const QString& text, const PageDescription& page)
{
    if (!text.contains(QLatin1Char('{')))
        return text;
    const Facts facts = factsOf(page);
    QString result = text;
    for (int open = result.indexOf(QLatin1Char('{')); open >= 0; open = result.indexOf(QLatin1Char('{'))) {
        const int close = result.indexOf(QLatin1Char('}'), open);
        const QString word = result.mid(open + 1, close - open - 1);
        if (close < 0 || !facts.contains(word))
            qFatal("%s holds no fact of a series", qPrintable(text));
        result.replace(open, close + 1 - open, facts.value(word));
    }
    return result;
}
