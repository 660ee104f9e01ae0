#include "canvas/treepointer.h"

#include "canvas/pingraphicsview.h"
#include "canvas/treeguide.h"
#include "canvas/treeitem.h"
#include "tree/pointing.h"

#include <QGraphicsProxyWidget>
#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QToolTip>

namespace {
// Between the pointer and a wire that it means, screen pixels.
constexpr double reach = 5;
} // namespace

TreePointer::TreePointer(PinGraphicsView& view, TreeItem& tree, const TreeGuide& guide)
    : m_view(view), m_tree(tree), m_guide(guide)
{
    view.viewport()->setMouseTracking(true);
    view.viewport()->installEventFilter(this);
}

TreePointer::~TreePointer()
{
    QToolTip::hideText();
}

bool TreePointer::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        // A pan moves the picture under the pointer, which means nothing then.
        if (static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton)
            follow(static_cast<QMouseEvent*>(event)->pos());
        break;
    case QEvent::Leave:
        m_source.clear();
        m_tree.mark({});
        break;
    case QEvent::ToolTip:
        tellAt(static_cast<QHelpEvent*>(event)->pos(), static_cast<QHelpEvent*>(event)->globalPos());
        return true;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

const QWidget* TreePointer::controlAt(const QPoint& pos) const
{
    const auto* proxy = qgraphicsitem_cast<QGraphicsProxyWidget*>(m_view.itemAt(pos));
    if (!proxy || !proxy->widget())
        return nullptr;
    const QWidget* control = proxy->widget()->childAt(proxy->mapFromScene(m_view.mapToScene(pos)).toPoint());
    return control ? control : proxy->widget();
}

int TreePointer::netAt(const QPoint& pos) const
{
    // A flag lies around a label of the scene; every other control, and every list that is open, hides what
    // is below it.
    const QWidget* control = controlAt(pos);
    if (control && !(qobject_cast<const QLabel*>(control) && control->parentWidget()->graphicsProxyWidget()))
        return -1;
    const double scale = m_view.transform().m11();
    return tree::netAt(m_tree.figures(), m_tree.circuit(), m_view.mapToScene(pos), reach / scale);
}

void TreePointer::follow(const QPoint& pos)
{
    const int net = netAt(pos);
    const QString source = net >= 0 ? m_tree.circuit().sourceOf(net) : QString();
    if (source != m_source)
        m_tree.mark(net >= 0 ? m_guide.sameSignal(net) : QVector<int>());
    if (source != m_source || controlAt(pos) != m_told)
        QToolTip::hideText();
    m_source = source;
}

void TreePointer::tellAt(const QPoint& pos, const QPoint& global)
{
    const int net = netAt(pos);
    m_told = controlAt(pos);
    QStringList sentences;
    if (net >= 0)
        sentences = m_guide.tellSignal(net);
    else if (m_told && m_told->objectName().startsWith(QLatin1String("m_")))
        sentences = m_guide.tellControl(m_told);
    // Of no widget: the sheet of the view would take its frame away.
    QToolTip::showText(global, sentences.join(QLatin1Char('\n')));
}
