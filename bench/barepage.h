#pragma once

#include "canvas/ZN64MCUPLL.h"

#include <functional>
#include <memory>
#include <vector>

/// What plain Qt needs for the same page: the picture, and a plain widget of the same kind in a proxy for
/// every control, with the same style sheet, font, text and size. Nothing is wired.
class BarePage
{
public:
    /// Notes the widgets of a page that stands in its start state.
    BarePage(const ZN64MCUPLL& page, const QString& picture);

    /// Builds the widgets on a scene of their own. The view owns everything.
    std::unique_ptr<QGraphicsView> build() const;

private:
    using Maker = std::function<QWidget*()>;
    struct Item
    {
        Maker make;
        QPointF at;
        qreal z;
    };

    static Maker makerOf(const QWidget* control);

    QString m_picture;
    std::vector<Item> m_items;
};
