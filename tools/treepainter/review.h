#pragma once

#include "pages/ClockTreePage.h"

#include <QImage>

/// Shows the page with the picture behind its controls and writes what it looks like at 100%, and at 200%
/// with the picture of twice the pixels, to <base>-100.png and <base>-200.png; on a page with several states
/// to <base>-<state>-100.png and so on. False if a file cannot be written.
bool writeReview(ClockTreePage& page, const QImage& picture, const QImage& doubled, const QString& base);
