#include "review.h"

#include "pagelayout.h"

#include <QCoreApplication>
#include <QGraphicsPixmapItem>

namespace {

// Room for the view's own margins.
constexpr int margin = 20;

void show(ClockTreePage& page, const QImage& picture)
{
    for (QGraphicsItem* item : page.view()->scene()->items()) {
        if (auto* background = qgraphicsitem_cast<QGraphicsPixmapItem*>(item))
            background->setPixmap(QPixmap::fromImage(picture));
    }
}

bool grab(ClockTreePage& page, const QImage& picture, int scale, const QString& path)
{
    show(page, picture);
    const QSize logical = picture.size() / picture.devicePixelRatio();
    page.view()->setTransform(QTransform::fromScale(scale, scale));
    page.window()->resize(logical * scale + QSize(margin, margin));
    page.resize(page.window()->size());
    // All of the picture, and nothing of what lies closed beyond its edges.
    page.view()->setSceneRect(QRectF(QPointF(), QSizeF(logical)));
    page.view()->centerOn(QRectF(QPointF(), QSizeF(logical)).center());
    QCoreApplication::processEvents();
    return page.grab().save(path);
}

} // namespace

bool writeReview(ClockTreePage& page, const QImage& picture, const QImage& doubled, const QString& base)
{
    const QStringList states = statesOf(page);
    for (int i = 0; i < states.size(); ++i) {
        enterState(page, i);
        const QString stem = states[i].isEmpty() ? base : base + QLatin1Char('-') + states[i];
        if (!grab(page, picture, 1, stem + QLatin1String("-100.png")) ||
            !grab(page, doubled, 2, stem + QLatin1String("-200.png")))
            return false;
    }
    return true;
}
