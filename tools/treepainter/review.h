#pragma once

#include "pages/ClockTreePage.h"

#include <QImage>

/// Shows the page with the picture behind its controls and writes what it looks like at 100% and at 200% to
/// <base>-100.png and <base>-200.png. False if a file cannot be written.
bool writeReview(ClockTreePage& page, const QImage& picture, const QString& base);
