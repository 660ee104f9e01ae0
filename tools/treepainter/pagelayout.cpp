#include "pagelayout.h"

#include "pages/ClockTreePage.h"
#include "pages/description/outputs.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLayout>
#include <QSet>

#include <algorithm>

namespace {

// Layouts in the scene settle over a few rounds of events.
constexpr int mostRounds = 20;

ControlKind kindOf(const QWidget& control)
{
    if (qobject_cast<const QRadioButton*>(&control))
        return ControlKind::Radio;
    return qobject_cast<const QLabel*>(&control) ? ControlKind::Label : ControlKind::Field;
}

QString nameOf(const QWidget& control)
{
    const auto* label = qobject_cast<const QLabel*>(&control);
    if (!label || !label->objectName().isEmpty())
        return control.objectName();
    return QLatin1Char('"') + label->text() + QLatin1Char('"');
}

bool startsEmpty(const ClockTreePage& page, const QString& name)
{
    const Places& places = page.description().places;
    return places.has(name) && places.at(name).text.isEmpty();
}

/// How trees call the clock that feeds outputs.
QString busOf(ClockSource clock)
{
    switch (clock) {
    case ClockSource::Sclk:
        return QStringLiteral("sclk");
    case ClockSource::Ahb:
        return QStringLiteral("ahb");
    case ClockSource::Apb1:
        return QStringLiteral("apb1");
    case ClockSource::Apb2:
        return QStringLiteral("apb2");
    case ClockSource::Apb3:
        return QStringLiteral("apb3");
    default:
        return QStringLiteral("other");
    }
}

/// Tells controls of the output column what feeds them.
void addBus(const ClockTreePage& page, PlacedControl& control)
{
    for (const OutputRow& row : page.description().outputRows) {
        if (control.name != row.edit)
            continue;
        const OutputEntry& entry = outputEntry(control.name);
        control.bus = busOf(entry.source);
        control.divided = entry.divisor != 1.0;
    }
}

/// A label may be hidden for now or have grown since its item saw it: it needs the room of its text.
QRectF rectOf(const QGraphicsProxyWidget& item, const QWidget& control, ControlKind kind)
{
    const QRectF rect = item.sceneBoundingRect();
    return kind == ControlKind::Label ? rect | QRectF(rect.topLeft(), QSizeF(control.sizeHint())) : rect;
}

/// The control that a scene item carries; null for what is no control.
const QWidget* controlOf(const QGraphicsItem* item)
{
    const auto* proxy = qgraphicsitem_cast<const QGraphicsProxyWidget*>(item);
    const QLayout* layout = proxy && proxy->widget() ? proxy->widget()->layout() : nullptr;
    return layout && layout->count() > 0 ? layout->itemAt(0)->widget() : nullptr;
}

std::vector<PlacedControl> snapshot(const ClockTreePage& page)
{
    std::vector<PlacedControl> controls;
    for (const QGraphicsItem* item : page.view()->scene()->items(Qt::AscendingOrder)) {
        const QWidget* control = controlOf(item);
        if (!control || control->inherits("QGroupBox"))
            continue;
        const auto* proxy = static_cast<const QGraphicsProxyWidget*>(item);
        const ControlKind kind = kindOf(*control);
        PlacedControl placed{nameOf(*control), kind, rectOf(*proxy, *control, kind)};
        placed.empty = kind == ControlKind::Label && startsEmpty(page, placed.name);
        placed.font = control->font();
        placed.shown = proxy->isVisible() && control->isVisibleTo(proxy->widget());
        addBus(page, placed);
        controls.push_back(std::move(placed));
    }
    return controls;
}

/// The combo box of the PLL's modes; null on a page without.
QComboBox* modesOf(const ClockTreePage& page)
{
    return page.findChild<QComboBox*>(QStringLiteral("m_pllmode_ComboBox"));
}

bool same(const std::vector<PlacedControl>& some, const std::vector<PlacedControl>& others)
{
    return std::equal(some.begin(), some.end(), others.begin(), others.end(),
                      [](const auto& one, const auto& other) {
                          return one.rect == other.rect && one.shown == other.shown;
                      });
}

/// The controls once they stand still.
std::vector<PlacedControl> settle(const ClockTreePage& page)
{
    std::vector<PlacedControl> controls;
    for (int round = 0; round < mostRounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        std::vector<PlacedControl> now = snapshot(page);
        const bool settled = same(now, controls);
        controls = std::move(now);
        if (settled)
            break;
    }
    return controls;
}

/// What no state shows waits for a value or a warning and keeps its place.
void withoutHidden(std::vector<PlacedControl>& controls, const QSet<QString>& somewhere)
{
    controls.erase(std::remove_if(controls.begin(), controls.end(),
                                  [&somewhere](const PlacedControl& control) {
                                      return !control.shown && somewhere.contains(control.name);
                                  }),
                   controls.end());
}

} // namespace

PlacedControl* PageLayout::find(const QString& name)
{
    return const_cast<PlacedControl*>(std::as_const(*this).find(name));
}

const PlacedControl* PageLayout::find(const QString& name) const
{
    const auto found = std::find_if(controls.begin(), controls.end(),
                                    [&name](const PlacedControl& each) { return each.name == name; });
    return found != controls.end() ? &*found : nullptr;
}

QStringList statesOf(const ClockTreePage& page)
{
    QStringList states;
    if (const QComboBox* modes = modesOf(page)) {
        for (int i = 0; i < modes->count(); ++i)
            states << modes->itemText(i);
    }
    return states.isEmpty() ? QStringList{QString()} : states;
}

void enterState(const ClockTreePage& page, int state)
{
    if (QComboBox* modes = modesOf(page))
        modes->setCurrentIndex(state);
    settle(page);
}

std::vector<PageLayout> layoutsOf(const ClockTreePage& page)
{
    const QStringList names = statesOf(page);
    std::vector<PageLayout> states;
    QSet<QString> somewhere;
    for (int i = 0; i < names.size(); ++i) {
        enterState(page, i);
        states.push_back({page.description().pictureSize, settle(page), names[i]});
        for (const PlacedControl& control : states.back().controls) {
            if (control.shown)
                somewhere << control.name;
        }
    }
    enterState(page, 0);
    for (PageLayout& state : states)
        withoutHidden(state.controls, somewhere);
    return states;
}

PageLayout together(const std::vector<PageLayout>& states)
{
    PageLayout all{states.front().size, states.front().controls};
    for (const PageLayout& state : states) {
        for (const PlacedControl& control : state.controls) {
            if (!all.find(control.name))
                all.controls.push_back(control);
        }
    }
    return all;
}
