#include "canvas/treeitem.h"

#include "canvas/CustomQControl.h"
#include "tree/pointing.h"

#include <QGraphicsProxyWidget>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyleOptionGraphicsItem>

#include <algorithm>

namespace {

tree::ControlState stateOf(const QWidget* control)
{
    tree::ControlState state;
    state.enabled = control->isEnabled();
    if (const auto* radio = qobject_cast<const QRadioButton*>(control))
        state.passes = radio->isChecked();
    else if (const auto* combo = qobject_cast<const CustomComboBox1*>(control))
        state.passes = !combo->isOff();
    else if (qobject_cast<const QLineEdit*>(control))
        state.red = control->palette().color(QPalette::Text) == Qt::red;
    return state;
}

bool sameFields(const QVector<tree::Cover>& one, const QVector<tree::Cover>& other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](const tree::Cover& left, const tree::Cover& right) {
                          return left.field == right.field && left.middle == right.middle;
                      });
}

} // namespace

TreeItem::TreeItem(const QPixmap& picture, tree::Picture figures)
    : QGraphicsPixmapItem(picture), m_whole(std::move(figures)), m_figures(m_whole)
{
    setTransformationMode(Qt::SmoothTransformation);
    // To be told what of it is seen: zoomed in, little is.
    setFlag(ItemUsesExtendedStyleOption);
}

void TreeItem::follow(const QList<QWidget*>& controls, const QHash<QString, QStringList>& takenUp)
{
    for (QWidget* control : controls)
        m_controls.insert(control->objectName(), control);
    m_takenUp = takenUp;
    QStringList fields;
    for (const tree::Wire& wire : m_whole.wires)
        fields += wire.behind;
    fields.removeDuplicates();
    for (const QString& field : fields)
        if (QWidget* control = m_controls.value(field))
            m_fields.append(control);
    cut();
}

void TreeItem::cut()
{
    m_covers = covers();
    m_figures = tree::cutAt(m_whole, m_covers);
    m_circuit = tree::Circuit(m_figures, m_takenUp);
    // Signals have other numbers now.
    m_marked.clear();
    m_watched.clear();
    for (const QString& control : m_circuit.controls())
        m_watched.append(m_controls.value(control));
}

QVector<tree::Cover> TreeItem::covers() const
{
    QVector<tree::Cover> covers;
    for (const QWidget* field : m_fields)
        if (!field->isHidden())
            covers.append(
                {field->objectName(), field->window()->graphicsProxyWidget()->sceneBoundingRect().center()});
    std::sort(covers.begin(), covers.end(), [](const tree::Cover& one, const tree::Cover& other) {
        return one.middle.x() < other.middle.x();
    });
    return covers;
}

void TreeItem::refit()
{
    if (!m_fields.isEmpty() && !sameFields(m_covers, covers()))
        cut();
}

const tree::Picture& TreeItem::figures()
{
    refit();
    return m_figures;
}

const tree::Circuit& TreeItem::circuit()
{
    refit();
    return m_circuit;
}

QVector<tree::ControlState> TreeItem::states()
{
    refit();
    QVector<tree::ControlState> states;
    states.reserve(m_watched.size());
    for (const QWidget* control : m_watched)
        states.append(control ? stateOf(control) : tree::ControlState());
    return states;
}

tree::State TreeItem::state()
{
    tree::State state;
    if (!m_controls.isEmpty())
        state.uses = circuit().usesOf(states());
    return state;
}

void TreeItem::mark(const QVector<int>& nets)
{
    if (m_marked == nets)
        return;
    m_marked = nets;
    update();
}

void TreeItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget)
{
    if (m_whole.isEmpty()) {
        QGraphicsPixmapItem::paint(painter, option, widget);
        return;
    }
    tree::State now = state();
    now.marks = tree::marksOf(m_figures, m_circuit, m_marked);
    tree::draw(*painter, m_figures, option->exposedRect, now);
}
