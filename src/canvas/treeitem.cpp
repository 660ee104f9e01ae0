#include "canvas/treeitem.h"

#include "tree/drawing.h"

#include <QStyleOptionGraphicsItem>

TreeItem::TreeItem(const QPixmap& picture, tree::Picture figures)
    : QGraphicsPixmapItem(picture), m_figures(std::move(figures))
{
    setTransformationMode(Qt::SmoothTransformation);
    // To be told what of it is seen: zoomed in, little is.
    setFlag(ItemUsesExtendedStyleOption);
}

void TreeItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget)
{
    if (m_figures.isEmpty())
        QGraphicsPixmapItem::paint(painter, option, widget);
    else
        tree::draw(*painter, m_figures, option->exposedRect);
}
