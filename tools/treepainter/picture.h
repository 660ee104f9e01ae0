#pragma once

#include "drawing.h"

#include <QImage>

/// The ground of multiplexers, which the radio buttons of the pages paint too.
constexpr QRgb muxGround = qRgb(222, 235, 246);

/// The drawing on white ground, with 256 colours at most, one byte a pixel. A scale of 2 gives each pixel of
/// the drawing 2 by 2 pixels of the picture, and the picture that device pixel ratio.
QImage paintPicture(const Drawing& drawing, const QSize& size, int scale = 1);
