#pragma once

#include <QString>

struct PageDescription;

/// The text with facts of the series in place of the words in braces: "{sclk}" is its highest system clock,
/// MHz. So no caption stands beside the number that it tells. A word that is no fact ends the program.
QString caption(const QString& text, const PageDescription& page);
