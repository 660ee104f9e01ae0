#include "canvas/appearance.h"

#include <QVariant>

namespace {
const char colorKey[] = "roleColor";
const char paletteKey[] = "rolePalette";
} // namespace

void appearance::setSheet(QWidget* widget, const QString& sheet)
{
    if (widget->styleSheet() != sheet)
        widget->setStyleSheet(sheet);
}

void appearance::setText(QLabel* label, const QString& text)
{
    if (label->text() != text)
        label->setText(text);
}

void appearance::setText(QLineEdit* edit, const QString& text)
{
    if (edit->text() != text)
        edit->setText(text);
}

QString appearance::radioSheet(const char* color, const char* spacing)
{
    return QStringLiteral("QRadioButton{background-color:rgb(222, 235, 246); %2}"
                          "QRadioButton::indicator:checked {width:12px; height:12px; border-radius:6px; "
                          "background-color:%1;}"
                          "QRadioButton::indicator:unchecked {width:10px; height:10px; border-radius:5px; "
                          "border: 1px solid %1; }")
        .arg(QLatin1String(color), QLatin1String(spacing));
}

void appearance::setSpoken(QWidget* control, const QString& name)
{
    if (control->accessibleName() == name)
        return;
    control->setAccessibleName(name);
    // Of a list, the toolkit tells the present item in place of its name.
    control->setAccessibleDescription(name);
    control->window()->setAccessibleName(name);
}

void appearance::setRoleColor(QWidget* widget, QPalette::ColorRole role, const QColor& color)
{
    // The key of the palette tells whether anybody changed it since the colour was set here.
    if (widget->property(colorKey) == color.rgba() &&
        widget->property(paletteKey) == widget->palette().cacheKey())
        return;
    QPalette palette;
    palette.setColor(role, color);
    widget->setPalette(palette);
    widget->setProperty(colorKey, color.rgba());
    widget->setProperty(paletteKey, widget->palette().cacheKey());
}
