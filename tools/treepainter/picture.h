#pragma once

#include "drawing.h"

#include <QImage>

/// The ground of multiplexers, which the radio buttons of the pages paint too.
constexpr QRgb muxGround = qRgb(222, 235, 246);

/// The drawing on white ground, with 256 colours at most, one byte a pixel.
QImage paintPicture(const Drawing& drawing, const QSize& size);
