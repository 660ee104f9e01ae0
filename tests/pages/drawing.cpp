#include "drawing.h"

#include <algorithm>

namespace {

// Pixels by which a wire may miss what it joins: lines have a width, and shapes stand around their buttons.
constexpr double touch = 3;

QRectF grown(const QRectF& rect, double by)
{
    return rect.adjusted(-by, -by, by, by);
}

bool isOn(const tree::Wire& wire, const QPointF& point)
{
    for (int i = 1; i < wire.points.size(); ++i)
        if (grown(QRectF(wire.points[i - 1], wire.points[i]).normalized(), 0.1).contains(point))
            return true;
    return false;
}

/// What "/ 8", "*144" or "  /1.5" makes of a clock.
std::optional<double> factor(const QString& text)
{
    static const QRegularExpression step(QStringLiteral(R"(^\s*([*/])\s*([\d.]+)$)"));
    const auto match = step.match(text);
    if (!match.hasMatch())
        return {};
    const double number = match.captured(2).toDouble();
    return match.captured(1) == QLatin1String("/") ? 1.0 / number : number;
}

QString textOf(const QWidget* control)
{
    const auto* combo = qobject_cast<const QComboBox*>(control);
    return combo ? combo->currentText() : control->property("text").toString();
}

} // namespace

Eye::Eye(const PageFixture& page)
    : m_page(page), m_picture(tree::readPicture(QLatin1String(":/image/") +
                                                page.page->description().pictureName().replace(
                                                    QStringLiteral(".bmp"), QStringLiteral(".figures"))))
{
    for (const QWidget* control : page.controls())
        if (!control->isWindow() && !control->isHidden())
            m_places.push_back(
                {control->objectName(), ZN64MCUPLL::proxyOf(control)->sceneBoundingRect(), control});
    for (const auto* figures : {&m_picture.below, &m_picture.above})
        for (const tree::Figure& figure : *figures)
            if (figure.shape != tree::Shape::Frame && figure.shape != tree::Shape::Crystal)
                m_places.push_back({figure.name, figure.outline.boundingRect(), nullptr, &figure});
}

QStringList Eye::ends() const
{
    QStringList ends;
    for (const tree::Wire& wire : m_picture.wires)
        if (const Place* place = wire.ends == tree::Ends::Arrow ? at(wire.points.last()) : nullptr)
            ends << place->name;
    ends.removeDuplicates();
    return ends;
}

/// The smallest thing that the point touches: a button before the multiplexer around it.
const Eye::Place* Eye::at(const QPointF& point) const
{
    const Place* found = nullptr;
    const auto area = [](const Place& place) { return place.rect.width() * place.rect.height(); };
    for (const Place& place : m_places)
        if (grown(place.rect, touch).contains(point) && !qobject_cast<const QLabel*>(place.control) &&
            (!found || area(place) < area(*found)))
            found = &place;
    return found;
}

std::optional<double> Eye::into(const QString& end) const
{
    m_flag.clear();
    m_depth = 0;
    const auto place = std::find_if(m_places.begin(), m_places.end(),
                                    [&end](const Place& each) { return each.name == end; });
    return place != m_places.end() ? reaching(place->rect) : std::nullopt;
}

std::optional<double> Eye::reaching(const QRectF& rect) const
{
    for (const tree::Wire& wire : m_picture.wires)
        if (wire.ends == tree::Ends::Arrow && grown(rect, touch + 1).contains(wire.points.last()) &&
            !grown(rect, touch + 1).contains(wire.points.first()))
            return along(wire);
    return {};
}

/// At the end of the piece: what comes in at its start, and what fields in front of it make of that.
std::optional<double> Eye::along(const tree::Wire& wire) const
{
    if (++m_depth > 60)
        qFatal("the wires of %s lead in a circle", qPrintable(m_page.series()));
    const QPointF start = wire.points.first();
    std::optional<double> clock;
    const auto before =
        std::find_if(m_picture.wires.begin(), m_picture.wires.end(), [&](const tree::Wire& each) {
            return &each != &wire && isOn(each, start) && each.points.first() != start;
        });
    if (before != m_picture.wires.end()) {
        clock = along(*before);
    } else if (const Place* place = at(start)) {
        clock = outOf(*place);
    }
    for (const Place& place : m_places)
        if (clock && place.control && !qobject_cast<const QLabel*>(place.control) &&
            place.rect.left() > start.x() + touch && place.rect.right() < wire.points.last().x() - touch &&
            place.rect.top() < start.y() && place.rect.bottom() > start.y() && wire.points.size() == 2)
            *clock *= factor(textOf(place.control)).value_or(1.0);
    return clock;
}

std::optional<double> Eye::outOf(const Place& place) const
{
    const ZN64ConfigCLK& model = m_page.model();
    if (place.name == QLatin1String("m_lick_lineEdit"))
        return model.Get_Lick_Input_Value() / 1000;
    if (place.name == QLatin1String("m_lext_lineEdit"))
        return model.Get_Lext_Input_Value() / 1000;
    if (place.name == QLatin1String("m_hick_lineEdit"))
        return model.Get_Hick_Input_Value();
    if (place.name == QLatin1String(m_page.page->description().hextEdit))
        return model.Get_Hext_Input_Value();
    if (place.control) {
        const std::optional<double> clock = reaching(place.rect);
        return clock ? std::make_optional(*clock * factor(textOf(place.control)).value_or(1.0)) : clock;
    }
    switch (place.figure->shape) {
    case tree::Shape::Mux:
        for (const Place& each : m_places)
            if (const auto* radio = qobject_cast<const QRadioButton*>(each.control))
                if (radio->isChecked() &&
                    place.figure->outline.containsPoint(each.rect.center(), Qt::OddEvenFill))
                    return reaching(
                        QRectF(place.rect.left(), each.rect.top(), place.rect.width(), each.rect.height()));
        return {};
    case tree::Shape::Flag: {
        QString text = place.figure->text;
        for (const Place& each : m_places)
            if (text.isEmpty() && qobject_cast<const QLabel*>(each.control) &&
                place.rect.contains(each.rect.center()))
                text = textOf(each.control);
        return named(text, place.name);
    }
    case tree::Shape::Bar:
        for (const tree::Wire& wire : m_picture.wires)
            if (grown(place.rect, touch).contains(wire.points.last()))
                return along(wire);
        return {};
    default: {
        const std::optional<double> clock = reaching(place.rect);
        return clock ? std::make_optional(*clock * factor(place.figure->text).value_or(1.0)) : clock;
    }
    }
}

/// The model's clock of the name on a flag; of a bus by the peripheral that takes it.
std::optional<double> Eye::named(const QString& flag, const QString& subject) const
{
    m_flag = flag;
    const ZN64ConfigCLK& model = m_page.model();
    const bool onApb2 = subject.contains(QLatin1String("usart1")) || subject.contains(QLatin1String("i2c1"));
    const QHash<QString, double> clocks{
        {QStringLiteral("lick"),   model.Get_Lick_Input_Value() / 1000                              },
        {QStringLiteral("lext"),   model.Get_Lext_Input_Value() / 1000                              },
        {QStringLiteral("hext"),   model.Get_Hext_Input_Value()                                     },
        {QStringLiteral("hick"),   model.Get_Hick_Input_Value()                                     },
        {QStringLiteral("hick48"), model.Get_Hick_Input_Value()                                     },
        {QStringLiteral("sclk"),   model.Get_SYSCLKValue()                                          },
        {QStringLiteral("hclk"),   model.Get_AHBCLKValue()                                          },
        {QStringLiteral("pclk"),   onApb2 ? model.Get_APB2CLKValue() : model.Get_APB1CLKValue()     },
        {QStringLiteral("pll"),    model.Get_PLLCLKValue()                                          },
        {QStringLiteral("pllp"),   model.Get_PLLCLKValue()                                          },
        {QStringLiteral("pllclk"), model.Get_PLLCLKValue()                                          },
        {QStringLiteral("pll/2"),  model.Get_PLLCLKValue() / 2                                      },
        {QStringLiteral("pll/4"),  model.Get_PLLCLKValue() / 4                                      },
        {QStringLiteral("pllu"),   model.Get_PLLCLKValue() * model.Get_PLL_FP() / model.Get_PLL_FU()},
        {QStringLiteral("usb"),    model.Get_USBCLKValue()                                          },
        {QStringLiteral("usbfs"),  model.Get_USBCLKValue()                                          },
        {QStringLiteral("adcclk"), model.Get_ADCCLK_Value()                                         },
        {QStringLiteral("adc"),    model.Get_ADCCLK_Value()                                         },
    };
    const auto clock = clocks.constFind(flag);
    return clock != clocks.constEnd() ? std::make_optional(*clock) : std::nullopt;
}
