#include "pages/blocks/styles.h"

namespace {

QString frame(int width, const char* color, int radius, const char* end = ";")
{
    return QStringLiteral("border-style: outset; border-width: %1px; border-color: %2;border-radius:%3px;"
                          "padding:1px 2px%4")
        .arg(QString::number(width), QLatin1String(color), QString::number(radius), QLatin1String(end));
}

QString radio(const char* checked, const char* unchecked)
{
    return QStringLiteral("QRadioButton{background-color:rgb(222, 235, 246); spacing: 0px;}"
                          "QRadioButton::indicator:checked {width:12px; height:12px; border-radius:6px; "
                          "background-color:%1;}"
                          "QRadioButton::indicator:unchecked {width:10px; height:10px; border-radius:5px; "
                          "border: 1px solid %2; }")
        .arg(QLatin1String(checked), QLatin1String(unchecked));
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
STYLE(radioOn, radio(blue, blue))
STYLE(radioOff, radio("gray", "gray"))
STYLE(blueText, QStringLiteral("color: blue"))
STYLE(grayText, QStringLiteral("color: gray"))
