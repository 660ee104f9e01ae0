#include "pages/blocks/remarks.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

constexpr double million = 1e6;
// A difference that is told as 0.000 ppm is none.
constexpr double leastPpm = 0.0005;

QString words(const char* text)
{
    return QCoreApplication::translate("ClockTree", text);
}

QString megahertz(double clock)
{
    return QString::number(clock, 'f', 3) + QLatin1String(" MHz");
}

QString limitText(const Limit& limit)
{
    const char* text = limit.bound == Bound::Above ? QT_TRANSLATE_NOOP("ClockTree", "at most %1 MHz")
                       : limit.bound == Bound::BelowInNormalMode
                           ? QT_TRANSLATE_NOOP("ClockTree", "at least %1 MHz")
                           : QT_TRANSLATE_NOOP("ClockTree", "must be %1 MHz");
    return words(text).arg(limit.compared);
}

/// The difference between what stands there and what should, in millionths; nothing where it is none.
std::optional<QString> ppmText(double shown, double wanted)
{
    const double ppm = (shown - wanted) / wanted * million;
    if (std::fabs(ppm) < leastPpm)
        return {};
    return (ppm > 0 ? QStringLiteral("+") : QString()) + QString::number(ppm, 'f', 3);
}

QString differenceText(double shown, double wanted)
{
    const std::optional<QString> ppm = ppmText(shown, wanted);
    if (!ppm)
        return words(QT_TRANSLATE_NOOP("ClockTree", "%1 wanted, met exactly")).arg(megahertz(wanted));
    return words(QT_TRANSLATE_NOOP("ClockTree", "%1 wanted, nearest is %2, %3 ppm off"))
        .arg(megahertz(wanted), megahertz(shown), *ppm);
}

QString unitText(const Remarks& remarks)
{
    return *remarks.unit ? QLatin1Char(' ') + QLatin1String(remarks.unit) : QString();
}

bool isTypedOutside(const Remarks& remarks)
{
    return remarks.typed && remarks.highest &&
           !(*remarks.typed <= *remarks.highest && *remarks.typed >= remarks.lowest.value_or(0.0));
}

QString rangeText(const Remarks& remarks)
{
    const QString unit = unitText(remarks);
    if (!remarks.lowest)
        return words(QT_TRANSLATE_NOOP("ClockTree", "up to %1"))
            .arg(QString::number(*remarks.highest) + unit);
    return words(QT_TRANSLATE_NOOP("ClockTree", "%1 to %2"))
        .arg(QString::number(*remarks.lowest), QString::number(*remarks.highest) + unit);
}

/// Not so a limit of the PLL's other mode, nor one that the range of a typed value tells already.
bool counts(const Limit& limit, const Remarks& remarks, bool normalMode)
{
    const bool told = remarks.highest == limit.compared && *remarks.shown <= limit.compared;
    return !told && (limit.bound != Bound::BelowInNormalMode || normalMode);
}

QString limitSentence(const Remarks& remarks, const Limit& limit, bool normalMode)
{
    if (!remarks.shown || !limits::breaks(limit, *remarks.shown, normalMode))
        return remarks.decidedBy.isEmpty() ? limitText(limit)
                                           : remarks.decidedBy + QLatin1Char(' ') + limitText(limit);
    QString sentence = megahertz(*remarks.shown) + QLatin1String(", ") + limitText(limit);
    if (const auto ppm = ppmText(*remarks.shown, limit.compared);
        limit.bound == Bound::NotExactly && ppm && !remarks.wanted)
        sentence += QLatin1String(", ") + words(QT_TRANSLATE_NOOP("ClockTree", "%1 ppm off")).arg(*ppm);
    if (!remarks.decidedBy.isEmpty())
        sentence.prepend(remarks.decidedBy + QLatin1Char(' '));
    return sentence;
}

} // namespace

QStringList remarks::sentences(const Remarks& remarks, bool normalMode)
{
    QStringList sentences;
    if (isTypedOutside(remarks))
        sentences << QString::number(*remarks.typed) + unitText(remarks) + QLatin1String(", ") +
                         rangeText(remarks);
    else if (remarks.highest)
        sentences << rangeText(remarks);
    for (const Limit& limit : remarks.limits)
        if (counts(limit, remarks, normalMode))
            sentences << limitSentence(remarks, limit, normalMode);
    if (remarks.waits && !isTypedOutside(remarks))
        sentences << words(QT_TRANSLATE_NOOP("ClockTree", "typed, not yet applied: Return applies it"));
    if (remarks.wanted && remarks.shown && !remarks.waits)
        sentences << differenceText(*remarks.shown, *remarks.wanted);
    if (!remarks.shows.isEmpty())
        sentences << words(QT_TRANSLATE_NOOP("ClockTree", "shown is %1")).arg(remarks.shows);
    return sentences;
}

QString remarks::notInUse()
{
    return words(QT_TRANSLATE_NOOP("ClockTree", "not in use"));
}
