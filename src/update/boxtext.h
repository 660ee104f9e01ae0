#pragma once

#include <QString>

/// \a text as a box can show it, when it may come from the net: on one line, cut where it would not fit on a
/// screen, able to wrap, and with its control and format characters told instead of obeyed.
QString boxText(const QString& text);

/// Whether a character is for the eye: no control or format character, no line or paragraph separator, no
/// half of a pair.
bool isVisible(uint character);
