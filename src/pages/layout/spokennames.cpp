#include "pages/layout/spokennames.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace {

/// A word before the shorter one that it begins with.
constexpr const char* words[] = {
    QT_TRANSLATE_NOOP("ClockTree", "bypass"),         QT_TRANSLATE_NOOP("ClockTree", "clock output"),
    QT_TRANSLATE_NOOP("ClockTree", "clock"),          QT_TRANSLATE_NOOP("ClockTree", "divided by"),
    QT_TRANSLATE_NOOP("ClockTree", "divided"),        QT_TRANSLATE_NOOP("ClockTree", "divider"),
    QT_TRANSLATE_NOOP("ClockTree", "from the"),       QT_TRANSLATE_NOOP("ClockTree", "from"),
    QT_TRANSLATE_NOOP("ClockTree", "input"),          QT_TRANSLATE_NOOP("ClockTree", "list of"),
    QT_TRANSLATE_NOOP("ClockTree", "mode"),           QT_TRANSLATE_NOOP("ClockTree", "multiplier"),
    QT_TRANSLATE_NOOP("ClockTree", "not divided"),    QT_TRANSLATE_NOOP("ClockTree", "output"),
    QT_TRANSLATE_NOOP("ClockTree", "peripheral"),     QT_TRANSLATE_NOOP("ClockTree", "pin"),
    QT_TRANSLATE_NOOP("ClockTree", "register value"), QT_TRANSLATE_NOOP("ClockTree", "source"),
    QT_TRANSLATE_NOOP("ClockTree", "switch"),         QT_TRANSLATE_NOOP("ClockTree", "system clock"),
    QT_TRANSLATE_NOOP("ClockTree", "timer"),          QT_TRANSLATE_NOOP("ClockTree", "to the"),
};

QRegularExpression anyWord()
{
    QStringList all;
    for (const char* word : words)
        all += QLatin1String(word);
    return QRegularExpression(QStringLiteral("\\b(%1)\\b").arg(all.join(QLatin1Char('|'))));
}

} // namespace

QString spokenInLanguage(const QString& name)
{
    static const QRegularExpression word = anyWord();
    static const QRegularExpression blankInChinese(QStringLiteral("(?<=\\p{Han}) (?=\\p{Han})|(?<=：) "));
    QString spoken;
    int end = 0;
    for (auto found = word.globalMatch(name); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        spoken += name.midRef(end, match.capturedStart() - end);
        spoken += QCoreApplication::translate("ClockTree", match.captured().toLatin1().constData());
        end = match.capturedEnd();
    }
    spoken += name.midRef(end);
    return spoken.remove(blankInChinese);
}
