#include "update/boxtext.h"

#include <QVector>

namespace {

// About ten lines of a wide box.
constexpr int MaxCharacters = 1000;
// The line breaks of a box come at blanks and the like. Text without any makes the box as wide as itself.
constexpr int LongestRun = 100;

QString told(uint character)
{
    constexpr uint FirstPicture = 0x2400;
    if (character < 0x20)
        return QString(QChar(FirstPicture + character));
    return QStringLiteral("<U+%1>").arg(character, 4, 16, QLatin1Char('0')).toUpper();
}

} // namespace

bool isVisible(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

QString boxText(const QString& text)
{
    const QChar wrapsHere(0x200b);
    const QChar ellipsis(0x2026);
    QString shown;
    int run = 0;
    int count = 0;
    for (const uint character : text.left(MaxCharacters * 2 + 2).toUcs4()) {
        if (++count > MaxCharacters)
            return shown + ellipsis;
        run = QChar::isSpace(character) ? 0 : run + 1;
        if (run > LongestRun) {
            shown += wrapsHere;
            run = 1;
        }
        // A tab is a blank and no more.
        shown +=
            isVisible(character) || character == '\t' ? QString::fromUcs4(&character, 1) : told(character);
    }
    return shown;
}
