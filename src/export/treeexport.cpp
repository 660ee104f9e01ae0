#include "export/treeexport.h"

#include "canvas/controlfactory.h"
#include "export/controldrawing.h"
#include "tree/drawing.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace {

/// Picture pixels are pixels of such a screen; with it fonts keep the size that they have on the page.
constexpr int pixelsPerInch = 96;
constexpr double inchesPerMetre = 1 / 0.0254;
constexpr int imageScale = 2;

void drawControls(QPainter& painter, const QGraphicsProxyWidget& wrapper)
{
    for (const QObject* child : wrapper.widget()->children()) {
        const auto* control = qobject_cast<const QWidget*>(child);
        if (control && !control->isHidden())
            drawControl(painter, *control, wrapper.scenePos() + control->pos());
    }
}

void draw(QPainter& painter, const ControlFactory& page, const QRectF& area)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.topLeft());
    // Sizes that are no whole numbers in the units of a format may be rounded up.
    painter.fillRect(area.adjusted(-1, -1, 1, 1), Qt::white);
    TreeItem& tree = page.treeItem();
    tree::draw(painter, tree.figures(), area, tree.state());
    for (const QGraphicsItem* item :
         page.view()->scene()->items(area, Qt::IntersectsItemBoundingRect, Qt::AscendingOrder)) {
        const auto* proxy = qgraphicsitem_cast<const QGraphicsProxyWidget*>(item);
        if (proxy && proxy->isVisible() && proxy->widget())
            drawControls(painter, *proxy);
    }
}

QByteArray png(const ControlFactory& page)
{
    QImage image = treeexport::image(page);
    image.setDotsPerMeterX(qRound(imageScale * pixelsPerInch * inchesPerMetre));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray pdf(const ControlFactory& page, const QString& title)
{
    const QRectF whole = treeexport::wholeOf(page);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(title);
    writer.setResolution(pixelsPerInch);
    const QSizeF inches = whole.size() / pixelsPerInch;
    writer.setPageSize(QPageSize(inches, QPageSize::Inch, title, QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    draw(painter, page, whole);
    painter.end();
    return buffer.data();
}

} // namespace

QRectF treeexport::wholeOf(const ControlFactory& page)
{
    return page.treeItem().sceneBoundingRect();
}

QImage treeexport::image(const ControlFactory& page)
{
    const QRectF whole = wholeOf(page);
    QImage image(whole.size().toSize() * imageScale, QImage::Format_RGB32);
    image.setDevicePixelRatio(imageScale);
    image.setDotsPerMeterX(qRound(pixelsPerInch * inchesPerMetre));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    QPainter painter(&image);
    draw(painter, page, whole);
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

QByteArray treeexport::svg(const ControlFactory& page, const QRectF& area, const QString& title)
{
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setTitle(title);
    generator.setResolution(pixelsPerInch);
    generator.setSize(area.size().toSize());
    generator.setViewBox(QRectF(QPointF(), area.size()));
    QPainter painter(&generator);
    draw(painter, page, area);
    painter.end();
    return buffer.data();
}

QByteArray treeexport::file(const ControlFactory& page, const QString& suffix, const QString& title)
{
    if (suffix == QLatin1String("png"))
        return png(page);
    if (suffix == QLatin1String("svg"))
        return svg(page, wholeOf(page), title);
    return suffix == QLatin1String("pdf") ? pdf(page, title) : QByteArray();
}
