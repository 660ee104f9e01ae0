#pragma once

#include <QByteArray>
#include <QImage>
#include <QRectF>
#include <QString>

class ControlFactory;

/// The picture of a page for documents: the whole tree in its present state with its controls and their
/// values, drawn anew. Zoom, scrolling, focus, the mouse, open lists and the screen do not show.
namespace treeexport {

/// All of the picture, in its pixels.
QRectF wholeOf(const ControlFactory& page);

/// With twice the pixels of the picture.
QImage image(const ControlFactory& page);

/// The part of the picture in this area. Texts are texts and lines are lines.
QByteArray svg(const ControlFactory& page, const QRectF& area, const QString& title);

/// The content of a file with the whole picture. The suffix is png, svg or pdf; nothing comes of another one.
QByteArray file(const ControlFactory& page, const QString& suffix, const QString& title);

} // namespace treeexport
