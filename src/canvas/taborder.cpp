#include "canvas/taborder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QButtonGroup>
#include <QComboBox>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QLineEdit>

#include <algorithm>

namespace {

bool canBeUsed(const QWidget* control)
{
    const auto* edit = qobject_cast<const QLineEdit*>(control);
    return control->isEnabled() && control->isVisible() && !(edit && edit->isReadOnly());
}

QVector<QAbstractButton*> usableButtons(const QButtonGroup* group)
{
    QVector<QAbstractButton*> usable;
    for (QAbstractButton* button : group->buttons())
        if (canBeUsed(button))
            usable += button;
    return usable;
}

/// The button at which the walk stops for the whole group.
bool standsForGroup(const QWidget* control)
{
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    if (!button || !button->group())
        return true;
    const QVector<QAbstractButton*> usable = usableButtons(button->group());
    const QAbstractButton* checked = button->group()->checkedButton();
    return button == (checked && canBeUsed(checked) ? checked : usable.constFirst());
}

Qt::FocusReason reasonOf(bool next)
{
    return next ? Qt::TabFocusReason : Qt::BacktabFocusReason;
}

} // namespace

QWidget* TabOrder::current() const
{
    for (QWidget* control : m_controls)
        if (control->window()->graphicsProxyWidget()->hasFocus())
            return control;
    return nullptr;
}

bool TabOrder::listIsOpen() const
{
    const auto* combo = qobject_cast<const QComboBox*>(m_last.data());
    return combo && combo->view()->isVisible();
}

QVector<QWidget*> TabOrder::stops() const
{
    QVector<QWidget*> usable;
    for (QWidget* control : m_controls)
        if (canBeUsed(control) && standsForGroup(control))
            usable += control;
    return usable;
}

// In the whole order, since the control may have been greyed in the meantime.
int TabOrder::placeOfLast() const
{
    return m_controls.indexOf(m_last);
}

bool TabOrder::move(bool next)
{
    QVector<QWidget*> ahead = stops();
    if (!next)
        std::reverse(ahead.begin(), ahead.end());
    const int from = placeOfLast();
    const auto* button = qobject_cast<const QAbstractButton*>(m_last.data());
    const QButtonGroup* group = button ? button->group() : nullptr;
    for (QWidget* control : ahead) {
        const int place = m_controls.indexOf(control);
        const auto* other = qobject_cast<const QAbstractButton*>(control);
        if (next ? place <= from : from >= 0 && place >= from)
            continue;
        if (group && other && other->group() == group)
            continue;
        focus(control, reasonOf(next));
        return true;
    }
    return false;
}

bool TabOrder::enter(bool atFirst)
{
    const QVector<QWidget*> all = stops();
    if (!all.isEmpty())
        focus(atFirst ? all.constFirst() : all.constLast(), reasonOf(atFirst));
    return !all.isEmpty();
}

bool TabOrder::moveInGroup(bool next)
{
    auto* button = qobject_cast<QAbstractButton*>(current());
    if (!button || !button->group())
        return false;
    const QVector<QAbstractButton*> usable = usableButtons(button->group());
    const int count = usable.size();
    // Greyed since, all of them.
    if (count == 0)
        return false;
    QAbstractButton* neighbour = usable.at((usable.indexOf(button) + (next ? 1 : count - 1)) % count);
    focus(neighbour, reasonOf(next));
    neighbour->click();
    return true;
}

void TabOrder::focusChanged()
{
    if (QWidget* control = current())
        m_last = control;
}

void TabOrder::restore()
{
    if (m_last)
        focus(m_last, Qt::PopupFocusReason);
}

void TabOrder::focus(QWidget* control, Qt::FocusReason reason)
{
    QGraphicsProxyWidget* proxy = control->window()->graphicsProxyWidget();
    // An item takes the focus of the scene only while no list that was open counts as the active window.
    m_scene.setActivePanel(proxy->panel());
    proxy->setFocus(reason);
    // The toolkit keeps an unchecked radio button from being the child that the window passes the focus to.
    control->setFocus(reason);
}
