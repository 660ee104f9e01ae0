#include "canvas/ZN64MCUPLL.h"

#include "canvas/appearance.h"
#include "widgets/look.h"
#include "xml/guardedxml.h"

#include <QDomDocument>
#include <QGraphicsPixmapItem>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

/// The picture as the screen can show it: with twice the pixels where its own are finer than the desktop's.
QPixmap pictureFor(qreal pixelRatio, const QString& picture)
{
    if (pixelRatio <= 1.0)
        return QPixmap(picture);
    const int suffix = picture.lastIndexOf(QLatin1Char('.'));
    // The suffix tells the reader of images that the logical size is half of the pixels.
    const QPixmap fine(picture.left(suffix) + QLatin1String("@2x") + picture.mid(suffix));
    return fine.isNull() ? QPixmap(picture) : fine;
}

} // namespace

ZN64MCUPLL::ZN64MCUPLL(ZN64MCUSERIALS series, const QString& picture, QWidget* parent)
    : QWidget(parent), m_GraphicsView(new PinGraphicsView),
      m_ZN64ClockConf(std::make_unique<ZN64ConfigCLK>(series)),
      m_GraphicsScene(std::make_unique<QGraphicsScene>()), m_tabOrder(*m_GraphicsScene),
      m_background(new QGraphicsPixmapItem(pictureFor(devicePixelRatioF(), picture)))
{
    m_GraphicsScene->setBackgroundBrush(QBrush(Qt::white, Qt::SolidPattern));
    m_GraphicsView->setRenderHint(QPainter::Antialiasing, true);
    m_GraphicsView->setScene(m_GraphicsScene.get());
    m_GraphicsView->setTabOrder(&m_tabOrder);
    m_GraphicsView->setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    m_GraphicsView->setStyleSheet(QStringLiteral("background-color: rgb(255, 255, 255); border: none;"));
    m_GraphicsView->verticalScrollBar()->setStyleSheet(look::scrollBarSheet(QStringLiteral("width: 12px;")));
    m_GraphicsView->horizontalScrollBar()->setStyleSheet(
        look::scrollBarSheet(QStringLiteral("height: 12px;")));

    m_background->setTransformationMode(Qt::SmoothTransformation);
    m_GraphicsScene->addItem(m_background);
    m_GraphicsView->SetPixMapItem(m_background);
    fitScene();

    auto* layout = new QVBoxLayout;
    layout->addWidget(m_GraphicsView);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    setLayout(layout);
}

ZN64MCUPLL::~ZN64MCUPLL()
{
    // The scene goes first and takes the embedded controls along; neither the view nor the walk must look at
    // it any more.
    m_tabOrder.setControls({});
    m_GraphicsView->setTabOrder(nullptr);
    m_GraphicsView->setScene(nullptr);
    m_GraphicsScene.reset();
}

void ZN64MCUPLL::fitScene()
{
    const QRectF picture = m_background->sceneBoundingRect();
    QRectF seen = picture;
    for (const QGraphicsItem* item : m_GraphicsScene->items())
        if (item->isVisible())
            seen |= item->sceneBoundingRect();
    // As much on both sides: a picture that has room in the view stays where it is.
    const qreal across = qMax(picture.left() - seen.left(), seen.right() - picture.right());
    const qreal down = qMax(picture.top() - seen.top(), seen.bottom() - picture.bottom());
    const QPoint before = m_GraphicsView->mapFromScene(0, 0);
    const QPointF middle = m_GraphicsView->mapToScene(m_GraphicsView->viewport()->rect().center());
    m_GraphicsScene->setSceneRect(picture.adjusted(-across, -down, across, down));
    if (m_GraphicsView->mapFromScene(0, 0) != before)
        m_GraphicsView->centerOn(middle);
}

void ZN64MCUPLL::SetLineEditColor(QLineEdit* edit, const QColor& color)
{
    appearance::setRoleColor(edit, QPalette::Text, color);
}

void ZN64MCUPLL::SetLabelColor(QLabel* label, const QColor& color)
{
    appearance::setRoleColor(label, QPalette::WindowText, color);
}

QString ZN64MCUPLL::GetXMLElementString(const QString& fileName, const QString& elementName)
{
    QDomDocument document;
    loadGuardedXml(fileName, document);
    return GetXMLElementString(document, elementName);
}

QString ZN64MCUPLL::GetXMLElementString(const QDomDocument& document, const QString& elementName)
{
    // Without a name the document model would take any element.
    if (elementName.isEmpty())
        return {};
    return document.documentElement().firstChildElement(elementName).text();
}

QGraphicsProxyWidget* ZN64MCUPLL::proxyOf(const QWidget* control)
{
    return control->window()->graphicsProxyWidget();
}
