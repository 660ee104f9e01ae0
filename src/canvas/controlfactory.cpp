#include "canvas/controlfactory.h"

#include "canvas/accessibletree.h"
#include "canvas/appearance.h"
#include "widgets/look.h"

#include <QCoreApplication>
#include <QGroupBox>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

constexpr int outputEditWidth = 80;
constexpr int outputEditHeight = 25;
// From the corner of an output edit to that of its label.
constexpr int outputLabelRight = 85;
constexpr int outputLabelDown = 3;

QFont arial(int pointSize, int weight)
{
    return QFont(QStringLiteral("Arial"), pointSize, weight);
}

/// The top-level widget that a proxy embeds. Unlike a plain dialog it does not vanish on Escape, and it
/// follows its control when that grows or shrinks, so that it covers no wire of the picture.
class ControlWrapper : public QDialog
{
public:
    ControlWrapper(ControlFactory& page, Qt::WindowFlags flags) : QDialog(&page, flags), m_page(page) {}
    void reject() override {}

protected:
    /// Of a control that is greyed while it has the focus, too. One that only had it once leaves it alone.
    bool focusNextPrevChild(bool next) override
    {
        return graphicsProxyWidget() && graphicsProxyWidget()->hasFocus() && m_page.tabOrder().move(next);
    }
    bool event(QEvent* event) override
    {
        const bool handled = QDialog::event(event);
        if (event->type() == QEvent::LayoutRequest) {
            // The proxy keeps the bounds of the size that it saw first until it is told to ask again.
            if (graphicsProxyWidget())
                static_cast<QGraphicsLayoutItem*>(graphicsProxyWidget())->updateGeometry();
            resize(sizeHint());
        }
        return handled;
    }

private:
    ControlFactory& m_page;
};

} // namespace

ControlFactory::ControlFactory(const QPixmap& picture, const tree::Picture& figures, QWidget* parent)
    : QWidget(parent), m_GraphicsView(new PinGraphicsView),
      m_GraphicsScene(std::make_unique<QGraphicsScene>()), m_tabOrder(*m_GraphicsScene),
      m_background(new TreeItem(picture, figures))
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

    m_GraphicsScene->addItem(m_background);
    m_GraphicsView->SetPixMapItem(m_background);
    fitScene();

    auto* layout = new QVBoxLayout;
    layout->addWidget(m_GraphicsView);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    setLayout(layout);
}

ControlFactory::~ControlFactory()
{
    // The scene goes first and takes the embedded controls along; neither the view nor the walk must look at
    // it any more.
    m_tabOrder.setControls({});
    m_GraphicsView->setTabOrder(nullptr);
    m_GraphicsView->setScene(nullptr);
    m_GraphicsScene.reset();
}

void ControlFactory::fitScene()
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

QGraphicsProxyWidget* ControlFactory::proxyOf(const QWidget* control)
{
    return control->window()->graphicsProxyWidget();
}

QDialog* ControlFactory::embed(QWidget* control, int x, int y, QGraphicsProxyWidget** proxy)
{
    auto* wrapper = new ControlWrapper(*this, Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    wrapper->setContentsMargins(0, 0, 0, 0);
    auto* layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    wrapper->setLayout(layout);
    layout->addWidget(control);
    QGraphicsProxyWidget* item = m_GraphicsScene->addWidget(wrapper);
    item->setPos(x, y);
    if (proxy)
        *proxy = item;
    return wrapper;
}

CustomComboBox1* ControlFactory::NewComboBoxInScenePos(int x, int y, int width, int z)
{
    QGraphicsProxyWidget* proxy = nullptr;
    return NewComboBoxInScenePos(x, y, width, z, &proxy);
}

CustomComboBox1* ControlFactory::NewComboBoxInScenePos(int x, int y, int width, int z,
                                                       QGraphicsProxyWidget** proxy)
{
    auto* combo = new CustomComboBox1(this);
    connect(combo->listView(), SIGNAL(focusInThis(bool)), m_GraphicsView, SLOT(Focus_InControl_Slot(bool)));
    // Queued: the list has its place, or is gone, a little later.
    connect(combo->listView(), SIGNAL(focusInThis(bool)), this, SLOT(fitScene()), Qt::QueuedConnection);
    combo->setFont(arial(10, 0));
    combo->setFixedWidth(width);
    combo->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    embed(combo, x, y, proxy);
    (*proxy)->setZValue(z);
    return combo;
}

QLineEdit* ControlFactory::NewCustomLineEditInScenePos(const QString& text, int x, int y, int maxWidth)
{
    QGraphicsProxyWidget* proxy = nullptr;
    QLineEdit* edit = NewCustomLineEditInScenePos(text, x, y, &proxy);
    edit->setMaximumWidth(maxWidth);
    return edit;
}

QLineEdit* ControlFactory::NewCustomLineEditInScenePos(const QString& text, int x, int y,
                                                       QGraphicsProxyWidget** proxy)
{
    auto* edit = new QLineEdit(this);
    edit->setText(text);
    edit->setAlignment(Qt::AlignCenter);
    edit->setFont(arial(10, 0));
    edit->setMaximumWidth(60);
    edit->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    embed(edit, x, y, proxy);
    return edit;
}

QLabel* ControlFactory::NewQLabelInScenePos(const QString& text, int x, int y, int pointSize, int weight)
{
    return NewQLabelInScenePos(text, x, y, pointSize, weight, nullptr);
}

QLabel* ControlFactory::NewQLabelInScenePos(const QString& text, int x, int y, int pointSize, int weight,
                                            QGraphicsProxyWidget** proxy)
{
    auto* label = new QLabel(text, this);
    label->setFont(arial(pointSize, weight));
    embed(label, x, y, proxy);
    // A press on it is one on the picture.
    proxyOf(label)->setFocusPolicy(Qt::NoFocus);
    return label;
}

QRadioButton* ControlFactory::NewRadioButtonInScenePos(int x, int y)
{
    auto* radio = new RoundRadioButton(this);
    radio->setStyleSheet(appearance::radioSheet("rgb(0, 176, 240)", "spacing: 0px; spacing: 0px;"));
    embed(radio, x, y);
    return radio;
}

QLineEdit* ControlFactory::New_toperipheralControl(const QString& text, int x, int y, int pointSize)
{
    NewQLabelInScenePos(text, x + outputLabelRight, y + outputLabelDown, pointSize, 0);
    return New_toperipheralControl(x, y, pointSize);
}

QLineEdit* ControlFactory::New_toperipheralControl(int x, int y, int)
{
    QLineEdit* edit = NewCustomLineEditInScenePos(QString(), x, y, 60);
    edit->setReadOnly(true);
    edit->setFixedHeight(outputEditHeight);
    edit->setFixedWidth(outputEditWidth);
    return edit;
}

QPushButton* ControlFactory::New_toperipheralListButton(int x, int y, int)
{
    auto* button = new QPushButton(this);
    // First of all: what assistive tools see of it is settled when it gets its text.
    accessibletree::tellListOpen(button, false);
    button->setIcon(QIcon(QStringLiteral(":/image/btn_right_slider_hover.png")));
    // The tables of translations know it by the base of the pages.
    button->setText(QCoreApplication::translate("ZN64MCUPLL", "List"));
    button->setFont(arial(10, 75));
    button->setStyleSheet(QStringLiteral("border-style: none;"));
    embed(button, x, y);
    return button;
}

QDialog* ControlFactory::New_toperipheralListGroup(const QStringList& texts, int x, int y, int, int spacing)
{
    auto* box = new QGroupBox(this);
    auto* layout = new QVBoxLayout;
    for (const QString& text : texts) {
        auto* label = new QLabel(text);
        label->setFont(arial(9, 0));
        layout->addWidget(label);
    }
    layout->setSpacing(spacing);
    box->setLayout(layout);
    box->setStyleSheet(QStringLiteral("background: rgb(153, 217, 234); border-style: outset; "
                                      "border-width: 1px; border-color: rgb(0, 176, 240);border-radius:2px;"
                                      "padding:1px 2px;"));
    QGraphicsProxyWidget* proxy = nullptr;
    QDialog* wrapper = embed(box, x, y, &proxy);
    proxy->setZValue(2.0);
    connect(proxy, SIGNAL(visibleChanged()), this, SLOT(fitScene()));
    return wrapper;
}
