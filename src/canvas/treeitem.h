#pragma once

#include "tree/figures.h"

#include <QGraphicsPixmapItem>

/// The background of a page. To the scene it is the picture of the clock tree, at its size; what it paints
/// are the figures of that picture, sharp at every zoom and on every screen. Without figures it paints the
/// picture.
class TreeItem : public QGraphicsPixmapItem
{
public:
    TreeItem(const QPixmap& picture, tree::Picture figures);

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    const tree::Picture m_figures;
};
