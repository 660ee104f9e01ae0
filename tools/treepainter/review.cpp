#include "review.h"

#include <QCoreApplication>
#include <QGraphicsPixmapItem>

namespace {

// Room for the view's own margins.
constexpr int margin = 20;

bool grab(ClockTreePage& page, const QSize& picture, int scale, const QString& path)
{
    page.view()->setTransform(QTransform::fromScale(scale, scale));
    page.window()->resize(picture * scale + QSize(margin, margin));
    page.resize(page.window()->size());
    QCoreApplication::processEvents();
    return page.grab().save(path);
}

} // namespace

bool writeReview(ClockTreePage& page, const QImage& picture, const QString& base)
{
    for (QGraphicsItem* item : page.view()->scene()->items()) {
        if (auto* background = qgraphicsitem_cast<QGraphicsPixmapItem*>(item))
            background->setPixmap(QPixmap::fromImage(picture));
    }
    return grab(page, picture.size(), 1, base + QLatin1String("-100.png")) &&
           grab(page, picture.size(), 2, base + QLatin1String("-200.png"));
}
