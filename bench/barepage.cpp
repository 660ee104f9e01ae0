#include "barepage.h"

#include <QGraphicsPixmapItem>
#include <QGroupBox>
#include <QStyleFactory>
#include <QVBoxLayout>

namespace {

QStringList itemsOf(const QComboBox* combo)
{
    QStringList items;
    for (int i = 0; i < combo->count(); ++i)
        items << combo->itemText(i);
    return items;
}

QStyle* windowsStyle()
{
    static QStyle* style = QStyleFactory::create(QStringLiteral("Windows"));
    return style;
}

QWidget* plainCombo(const QStringList& items)
{
    auto* combo = new QComboBox;
    combo->setView(new QListView(combo));
    combo->setStyle(windowsStyle());
    combo->addItems(items);
    return combo;
}

QWidget* plainList(const QStringList& texts)
{
    auto* box = new QGroupBox;
    auto* layout = new QVBoxLayout(box);
    for (const QString& text : texts)
        layout->addWidget(new QLabel(text));
    return box;
}

} // namespace

BarePage::Maker BarePage::makerOf(const QWidget* control)
{
    if (auto* combo = qobject_cast<const QComboBox*>(control))
        return [items = itemsOf(combo)] { return plainCombo(items); };
    if (auto* edit = qobject_cast<const QLineEdit*>(control))
        return [text = edit->text()] { return new QLineEdit(text); };
    if (auto* label = qobject_cast<const QLabel*>(control))
        return [text = label->text()] { return new QLabel(text); };
    if (qobject_cast<const QRadioButton*>(control))
        return [] { return new QRadioButton; };
    if (auto* button = qobject_cast<const QPushButton*>(control))
        return [icon = button->icon(), text = button->text()] { return new QPushButton(icon, text); };
    QStringList texts;
    for (const QLabel* label : control->findChildren<QLabel*>())
        texts << label->text();
    return [texts] { return plainList(texts); };
}

BarePage::BarePage(const ZN64MCUPLL& page, const QString& picture) : m_picture(picture)
{
    for (QGraphicsItem* item : page.view()->scene()->items(Qt::AscendingOrder)) {
        const auto* proxy = qgraphicsitem_cast<QGraphicsProxyWidget*>(item);
        if (!proxy)
            continue;
        const QWidget* control = proxy->widget()->layout()->itemAt(0)->widget();
        Maker make = [kind = makerOf(control), sheet = control->styleSheet(), font = control->font(),
                      size = control->size(), enabled = control->isEnabled()] {
            QWidget* widget = kind();
            widget->setFont(font);
            widget->setStyleSheet(sheet);
            widget->setFixedSize(size);
            widget->setEnabled(enabled);
            return widget;
        };
        m_items.push_back({make, proxy->pos(), proxy->zValue()});
    }
}

std::unique_ptr<QGraphicsView> BarePage::build() const
{
    auto view = std::make_unique<QGraphicsView>();
    auto* scene = new QGraphicsScene(view.get());
    view->setScene(scene);
    view->setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    scene->addItem(new QGraphicsPixmapItem(QPixmap(m_picture)));
    for (const Item& item : m_items) {
        auto* wrapper = new QDialog;
        auto* layout = new QVBoxLayout(wrapper);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(item.make());
        QGraphicsProxyWidget* proxy = scene->addWidget(wrapper);
        proxy->setPos(item.at);
        proxy->setZValue(item.z);
    }
    return view;
}
