#pragma once

#include "drawing.h"
#include "pagelayout.h"
#include "tree/drawing.h"

/// The size of a text in pixels.
QSizeF extentOf(const QString& text, const QFont& font);

/// Places everything that the statements ask for. A statement that cannot be drawn is left out and told.
/// Labels of the page that start empty get the room of a full value, or of the text in their "room" line.
Drawing buildDrawing(const std::vector<Statement>& statements, PageLayout& page, Problems& problems);
