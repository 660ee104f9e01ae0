#pragma once

#include <QColor>
#include <QLabel>
#include <QLineEdit>
#include <QString>
#include <QWidget>

/// Setters that leave a widget alone when it already looks as wanted. A style sheet set again is what makes a
/// page of this kind slow, so pages and controls change their looks through these only.
namespace appearance {

void setSheet(QWidget* widget, const QString& sheet);
void setText(QLabel* label, const QString& text);
void setText(QLineEdit* edit, const QString& text);

/// The sheet of a radio button in this colour. spacing is its own text between the blanks: the factory's and
/// the pages' settled texts differ in it.
QString radioSheet(const char* color, const char* spacing = "spacing: 0px;");

/// What assistive tools say of a control of the scene, and of the window that it is to them.
void setSpoken(QWidget* control, const QString& name);

/// Gives the widget a fresh palette in which only this role has a colour, in all colour groups. Any other
/// change of the palette made before is dropped.
void setRoleColor(QWidget* widget, QPalette::ColorRole role, const QColor& color);

} // namespace appearance
