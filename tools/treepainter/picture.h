#pragma once

#include "drawing.h"
#include "tree/figures.h"

#include <QImage>

/// The figures of the drawing, as the program draws them.
tree::Picture pictureOf(const Drawing& drawing, const QSize& size);

/// The picture on white ground, with 256 colours at most, one byte a pixel. A scale of 2 gives each pixel of
/// the picture 2 by 2 pixels of the image, and the image that device pixel ratio.
QImage paintPicture(const tree::Picture& picture, int scale = 1);
