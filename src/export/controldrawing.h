#pragma once

class QPainter;
class QPointF;
class QWidget;

/// Draws a control of a tree, its top left corner at the place, as its page shows it while nobody touches it:
/// without focus, selection, cursor, and whatever the mouse would change. Lines and texts only, so that they
/// stay such in files that hold them. Draws nothing of any other widget, a list of peripherals among them.
void drawControl(QPainter& painter, const QWidget& control, const QPointF& place);
