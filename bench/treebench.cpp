#include "treebench.h"

#include "barepage.h"
#include "figures.h"

#include "pages/series/seriespages.h"

#include <QApplication>
#include <QMouseEvent>
#include <QRadioButton>
#include <QScrollBar>

namespace {

constexpr int runs = 51;
const QSize viewSize(1420, 840);

void show(QWidget& widget)
{
    widget.resize(viewSize);
    widget.show();
    QApplication::processEvents();
}

double panned(QGraphicsView& view, double zoom)
{
    view.setTransform(QTransform::fromScale(zoom, zoom));
    int way = 5;
    return figures::median(runs, [&] {
        way = -way;
        view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->value() + way);
        view.viewport()->repaint();
    });
}

double zoomed(QGraphicsView& view, double zoom)
{
    bool in = false;
    return figures::median(runs, [&] {
        in = !in;
        const double scale = in ? zoom * 1.03 : zoom;
        view.setTransform(QTransform::fromScale(scale, scale));
        view.viewport()->repaint();
    });
}

/// As a screen with twice the pixels wants it.
double renderedTwice(QGraphicsView& view)
{
    view.setTransform(QTransform());
    QImage screen(viewSize * 2, QImage::Format_RGB32);
    screen.setDevicePixelRatio(2);
    return figures::median(runs, [&] { view.viewport()->render(&screen); });
}

/// The same page with the picture as a pixmap.
std::unique_ptr<ClockTreePage> pageWithPixmap(const ClockTreePage& page)
{
    std::unique_ptr<ClockTreePage> plain(createSeriesPage(page.description().series, nullptr));
    TreeItem& tree = plain->treeItem();
    tree.setVisible(false);
    auto* pixmap = plain->view()->scene()->addPixmap(tree.pixmap());
    pixmap->setTransformationMode(Qt::SmoothTransformation);
    pixmap->setZValue(-1);
    return plain;
}

/// The system clock from hext, and back from the PLL.
double turnedOver(ClockTreePage& page)
{
    auto* hext = page.findChild<QRadioButton*>(QStringLiteral("m_sclkselect_hext_RadioButton"));
    auto* pll = page.findChild<QRadioButton*>(QStringLiteral("m_sclkselect_pll_RadioButton"));
    return figures::median(runs, [&] {
        (pll->isChecked() ? hext : pll)->click();
        page.view()->viewport()->repaint();
    });
}

/// One move of the pointer, along a diagonal over all of the picture.
double moved(ClockTreePage& page)
{
    QWidget* viewport = page.view()->viewport();
    int step = 0;
    return figures::median(runs * 4, [&] {
        step = (step + 7) % viewSize.height();
        const QPointF place(step * 1.6, step);
        QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
    });
}

} // namespace

void benchTree(ClockTreePage& page, const BarePage& bare)
{
    const std::unique_ptr<QGraphicsView> plain = bare.build();
    show(page);
    show(*plain);
    for (const double zoom : {1.0, 1.5, 5.0}) {
        const QString at = QStringLiteral(" step at %1%").arg(100 * zoom);
        double pixmap = panned(*plain, zoom);
        figures::print(qPrintable(QLatin1String("pan") + at), panned(*page.view(), zoom), "with a pixmap",
                       pixmap);
        pixmap = zoomed(*plain, zoom);
        figures::print(qPrintable(QLatin1String("zoom") + at), zoomed(*page.view(), zoom), "with a pixmap",
                       pixmap);
    }
    const double pixmap = renderedTwice(*plain);
    figures::print("painted at twice the pixels", renderedTwice(*page.view()), "with a pixmap", pixmap);
    page.view()->setTransform(QTransform());
    const std::unique_ptr<ClockTreePage> other = pageWithPixmap(page);
    show(*other);
    const double still = turnedOver(*other);
    figures::print("edit that turns a path over", turnedOver(page), "with a pixmap", still);
    figures::print("pointer move", moved(page), "with a pixmap", moved(*other));
    page.ZoomReset();
}
