#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QPixmap>
#include <QWidget>

/// Whether the window shows the dark frame right outside the part of it.
inline bool isFramed(QWidget* window, const QWidget* part)
{
    QCoreApplication::processEvents();
    const QPoint corner = part->mapTo(window, QPoint(part->width() / 2, -1));
    return window->grab(QRect(corner, QSize(1, 1))).toImage().pixelColor(0, 0) == QColor(0, 32, 82);
}
