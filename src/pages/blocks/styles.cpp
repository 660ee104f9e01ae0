#include "pages/blocks/styles.h"

#include "canvas/appearance.h"

namespace {

QString frame(int width, const char* color, int radius, const char* end = ";")
{
    return QStringLiteral("border-style: outset; border-width: %1px; border-color: %2;border-radius:%3px;"
                          "padding:1px 2px%4")
        .arg(QString::number(width), QLatin1String(color), QString::number(radius), QLatin1String(end));
}

const char blue[] = "rgb(0, 176, 240)";
const QString green = QStringLiteral("background: rgb(152, 251, 152); ");
const QString pale = QStringLiteral("background: rgb(255, 255, 225); ");
const QString white = QStringLiteral("background: rgb(255, 255, 255); ");

} // namespace

#define STYLE(name, text)                                                                                    \
    const QString& styles::name()                                                                            \
    {                                                                                                        \
        static const QString sheet = text;                                                                   \
        return sheet;                                                                                        \
    }

STYLE(plainBox, frame(2, blue, 1))
STYLE(greyLextBox, frame(2, "gray", 1, ";;"))
STYLE(createdHext, QStringLiteral("background: rgb(152, 251, 152);  ") + frame(2, blue, 1))
STYLE(createdSysclk, green + frame(2, blue, 1))
STYLE(committed, green + frame(2, blue, 1, ";;"))
STYLE(pending, pale + frame(2, blue, 1, ";;"))
STYLE(disabled, white + frame(2, blue, 1, ";;"))
STYLE(disabledHext, QStringLiteral("background: rgb(255, 255, 255);") + frame(2, "gray", 1, ";;"))
STYLE(solidCommitted, green + QStringLiteral("border:  2px solid rgb(0, 176, 240);"))
STYLE(solidDisabled, white + QStringLiteral("border:  2px solid rgb(0, 176, 240);"))
STYLE(committedSysclk, green + frame(2, blue, 6, ";;"))
STYLE(createdPllEdit, frame(1, blue, 1, ";;"))
STYLE(pllEdit, frame(1, blue, 1))
STYLE(greyPllEdit, frame(1, "gray", 1))
STYLE(committedPllEdit, white + frame(1, blue, 1, ";;"))
STYLE(pendingPllEdit, pale + frame(1, blue, 1, ";;"))
STYLE(registerValue, QStringLiteral("border:  0px;"))
STYLE(multiplierBox, frame(1, "rgb(10, 78, 121)", 2, ";;"))
STYLE(radioOn, appearance::radioSheet(blue))
STYLE(radioOff, appearance::radioSheet("gray"))
STYLE(blueText, QStringLiteral("color: blue"))
STYLE(grayText, QStringLiteral("color: gray"))
