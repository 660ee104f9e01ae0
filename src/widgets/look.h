#pragma once

#include <QString>

class QStyle;

/// What makes the program look the same on every desktop.
namespace look {

/// Gives the application the style and the light colours that its style sheets are made for, in place of the
/// desktop's, which may be dark. To be called once, behind the construction of the application and before its
/// first widget.
void apply();

/// Makes a point of type the same pixels at every font resolution, since the trees are drawn in pixels. Scale
/// factors stay. To be called behind apply() and before the first widget.
void fixResolution();

/// A style that paints the grounds of buttons and combos in the plain colour of their sheet. One object
/// serves all widgets and belongs to the application, which must exist.
QStyle* plainStyle();

/// The sheet of a scroll bar. extent is its thickness as a property, "width: 12px;" of an upright one.
QString scrollBarSheet(const QString& extent);

/// The sheet of a menu. It would take over its window's white ground, on which the entry under the mouse
/// could not be seen.
QString menuSheet();

} // namespace look
