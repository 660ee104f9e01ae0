#include "canvas/accessibletree.h"

#include "canvas/pingraphicsview.h"

#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QApplication>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QPushButton>
#include <QVariant>
#include <QWindow>

#include <algorithm>
#include <iterator>

namespace {

const char listOpen[] = "listOpen";

/// Whether it is the window that carries a control on a scene.
bool isWrapper(const QObject* object)
{
    if (!object || !object->isWidgetType())
        return false;
    const auto* widget = static_cast<const QWidget*>(object);
    return widget->isWindow() && widget->windowType() != Qt::Popup && widget->graphicsProxyWidget();
}

QAccessibleInterface* interfaceOf(QObject* object)
{
    return object ? QAccessible::queryAccessibleInterface(object) : nullptr;
}

/// The program, without the wrappers among its windows.
class Application : public QAccessibleApplication
{
public:
    int childCount() const override { return windows().size(); }
    QAccessibleInterface* child(int index) const override { return windows().value(index); }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return windows().indexOf(const_cast<QAccessibleInterface*>(child));
    }

private:
    static QVector<QAccessibleInterface*> windows()
    {
        QVector<QAccessibleInterface*> seen;
        for (const QWindow* window : QGuiApplication::topLevelWindows()) {
            if (window->type() == Qt::Popup || window->type() == Qt::Desktop)
                continue;
            QAccessibleInterface* root = const_cast<QWindow*>(window)->accessibleRoot();
            if (root && root->object() && !isWrapper(root->object()))
                seen += root;
        }
        return seen;
    }
};

/// The view of a page, with the wrappers below it in the order in which they were made.
class Tree : public QAccessibleWidget
{
public:
    explicit Tree(QWidget* view) : QAccessibleWidget(view, QAccessible::Grouping) {}

    int childCount() const override { return wrappers().size(); }
    QAccessibleInterface* child(int index) const override { return interfaceOf(wrappers().value(index)); }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return wrappers().indexOf(child->object());
    }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        for (QObject* wrapper : wrappers()) {
            QAccessibleInterface* found = interfaceOf(wrapper);
            if (!found->state().invisible && found->rect().contains(x, y))
                return found;
        }
        return nullptr;
    }
    QAccessibleInterface* focusChild() const override
    {
        const QGraphicsScene* scene = static_cast<QGraphicsView*>(widget())->scene();
        const auto* proxy = qgraphicsitem_cast<QGraphicsProxyWidget*>(scene ? scene->focusItem() : nullptr);
        return proxy && proxy->widget() ? interfaceOf(proxy->widget()->focusWidget())
                                        : QAccessibleWidget::focusChild();
    }

private:
    QVector<QObject*> wrappers() const
    {
        QVector<QObject*> found;
        const QObjectList all =
            widget()->parentWidget() ? widget()->parentWidget()->children() : QObjectList();
        std::copy_if(all.begin(), all.end(), std::back_inserter(found), isWrapper);
        return found;
    }
};

/// A wrapper, which is nothing but the place of its control.
class Wrapper : public QAccessibleWidget
{
public:
    explicit Wrapper(QWidget* wrapper) : QAccessibleWidget(wrapper, QAccessible::Client) {}

    QAccessibleInterface* parent() const override
    {
        return interfaceOf(widget()->parentWidget()->findChild<PinGraphicsView*>());
    }
    QWindow* window() const override { return widget()->parentWidget()->window()->windowHandle(); }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? QString() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.active = state.movable = state.sizeable = false;
        return state;
    }
};

class ListButton : public QAccessibleWidget
{
public:
    explicit ListButton(QWidget* button) : QAccessibleWidget(button, QAccessible::PushButton) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const bool open = widget()->property(listOpen).toBool();
        state.expandable = true;
        state.expanded = open;
        state.collapsed = !open;
        return state;
    }
    QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override
    {
        if (name == pressAction())
            static_cast<QPushButton*>(widget())->click();
        else
            QAccessibleWidget::doAction(name);
    }
};

/// Of the class that it is asked for, from the object's own down to QObject.
QAccessibleInterface* make(const QString& className, QObject* object)
{
    if (object == qApp && className == QLatin1String("QApplication"))
        return new Application;
    if (!object || !object->isWidgetType())
        return nullptr;
    auto* widget = static_cast<QWidget*>(object);
    if (isWrapper(widget))
        return new Wrapper(widget);
    if (className == QLatin1String("PinGraphicsView"))
        return new Tree(widget);
    if (className == QLatin1String("QPushButton") && widget->property(listOpen).isValid())
        return new ListButton(widget);
    // The toolkit knows frames of its own class only.
    if (className == QLatin1String("QWidget") && widget->windowType() == Qt::Window)
        return new QAccessibleWidget(widget, QAccessible::Window);
    return nullptr;
}

} // namespace

void accessibletree::install()
{
    QAccessible::installFactory(make);
}

void accessibletree::tellListOpen(QPushButton* button, bool open)
{
    button->setProperty(listOpen, open);
    QAccessible::State changed;
    changed.expanded = true;
    QAccessibleStateChangeEvent event(button, changed);
    QAccessible::updateAccessibility(&event);
}
