#include "pagelayout.h"

#include "pages/ClockTreePage.h"

#include <QCoreApplication>
#include <QLayout>

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

bool isOutput(const ClockTreePage& page, const QString& name)
{
    const std::vector<OutputRow>& outputs = page.description().outputs.rows;
    return std::any_of(outputs.begin(), outputs.end(),
                       [&name](const OutputRow& row) { return name == outputEdit(row); });
}

/// A label may be hidden for now or have grown since its item saw it: it needs the room of its text.
QRectF rectOf(const QGraphicsProxyWidget& item, const QWidget& control, ControlKind kind)
{
    const QRectF rect = item.sceneBoundingRect();
    return kind == ControlKind::Label ? rect | QRectF(rect.topLeft(), QSizeF(control.sizeHint())) : rect;
}

std::vector<PlacedControl> snapshot(const ClockTreePage& page)
{
    std::vector<PlacedControl> controls;
    for (const QGraphicsItem* item : page.view()->scene()->items(Qt::AscendingOrder)) {
        const auto* proxy = qgraphicsitem_cast<const QGraphicsProxyWidget*>(item);
        const QLayout* layout = proxy && proxy->widget() ? proxy->widget()->layout() : nullptr;
        const QWidget* control = layout && layout->count() > 0 ? layout->itemAt(0)->widget() : nullptr;
        if (!control || control->inherits("QGroupBox"))
            continue;
        const QString name = nameOf(*control);
        const ControlKind kind = kindOf(*control);
        controls.push_back({name, kind, rectOf(*proxy, *control, kind),
                            kind == ControlKind::Label && startsEmpty(page, name), isOutput(page, name),
                            control->font()});
    }
    return controls;
}

bool same(const std::vector<PlacedControl>& some, const std::vector<PlacedControl>& others)
{
    return std::equal(some.begin(), some.end(), others.begin(), others.end(),
                      [](const auto& one, const auto& other) { return one.rect == other.rect; });
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

PageLayout layoutOf(const ClockTreePage& page)
{
    PageLayout layout{page.description().pictureSize, {}};
    for (int round = 0; round < mostRounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        std::vector<PlacedControl> now = snapshot(page);
        const bool settled = same(now, layout.controls);
        layout.controls = std::move(now);
        if (settled)
            break;
    }
    return layout;
}
