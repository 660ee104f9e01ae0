#include "pages/description/clocksignals.h"

#include "model/ZN64ConfigCLK.h"

#include <algorithm>

namespace {

constexpr double kHzPerMHz = 1000.0;
// The signals between an oscillator and a result are fewer on every tree; a picture that leads in a circle
// ends.
constexpr int longestWay = 40;

} // namespace

ClockSignals::ClockSignals(const PageDescription& page, const ZN64ConfigCLK& model,
                           const tree::Picture& picture, const tree::Circuit& circuit,
                           const QVector<tree::ControlState>& states, double hickAtOutputs)
    : m_page(page), m_model(model), m_picture(picture), m_circuit(circuit), m_states(states),
      m_hickAtOutputs(hickAtOutputs)
{
    const QHash<QString, ClockSource> flags = flaggedClocks(page);
    for (int net = 0; net < circuit.nets(); ++net) {
        m_names.append(signalName(page, circuit.sourceOf(net)));
        m_flagged.append(flags.value(circuit.sourceOf(net), ClockSource::None));
    }
}

QString ClockSignals::boxText(const QString& name) const
{
    const auto box =
        std::find_if(m_picture.above.begin(), m_picture.above.end(), [&name](const auto& figure) {
            return figure.shape == tree::Shape::Box && figure.name == name;
        });
    return box != m_picture.above.end() ? box->text : QString();
}

QVector<int> ClockSignals::together(int net) const
{
    QVector<int> all{net};
    for (int other = 0; other < m_circuit.nets(); ++other)
        if (other != net && m_circuit.named(other) == m_circuit.named(net))
            all.append(other);
    return all;
}

std::optional<Factor> ClockSignals::flagFactor(ClockSource clock) const
{
    switch (clock) {
    case ClockSource::PllDiv2:
        return Factor{'/', 2.0};
    case ClockSource::PllDiv4:
        return Factor{'/', 4.0};
    case ClockSource::Hick:
        if (m_hickAtOutputs != m_model.Get_Hick_Input_Value())
            return Factor{'/', m_model.Get_Hick_Input_Value() / m_hickAtOutputs};
        break;
    default:
        break;
    }
    return {};
}

std::optional<Factor> ClockSignals::factorAt(int net) const
{
    const QString source = m_circuit.sourceOf(net);
    const QString text = boxText(source);
    if (text.startsWith(QLatin1Char('/')))
        return Factor{'/', text.mid(1).toDouble()};
    if (m_flagged[net] != ClockSource::None)
        return flagFactor(m_flagged[net]);
    return factorOf(m_page, m_model, source);
}

ClockSignals::Way ClockSignals::wayOf(int net) const
{
    Way way;
    for (int steps = 0; net >= 0 && steps < longestWay; ++steps) {
        if (const auto known = way.known ? std::nullopt : modelClock(net)) {
            way.known = known->value;
            way.behindKnown = way.factors.size();
        }
        if (const std::optional<Factor> factor = factorAt(net))
            way.factors.prepend(*factor);
        way.root = net;
        const int origin = m_circuit.named(net);
        net = origin != net ? origin : m_circuit.netInto(m_circuit.sourceOf(net), m_states);
    }
    return way;
}

std::optional<ClockReading> ClockSignals::modelClock(int net) const
{
    const ClockSource clock = m_names[net] ? m_names[net]->clock : m_flagged[net];
    const std::optional<ClockReading> reading = frequencyOf(clock, m_model, m_hickAtOutputs);
    return reading && !reading->words ? reading : std::nullopt;
}

std::optional<ClockReading> ClockSignals::oscillator(int net) const
{
    return m_circuit.sourceOf(net) == QLatin1String("m_hick_lineEdit")
               ? std::make_optional(ClockReading{m_model.Get_Hick_Input_Value()})
               : modelClock(net);
}

QString ClockSignals::nameOf(int net) const
{
    const int origin = m_circuit.named(net);
    const QString source = m_circuit.sourceOf(origin);
    const std::optional<SignalName>& own = m_names[origin];
    if (own && !own->name.isEmpty())
        return own->name;
    const int before = m_circuit.netInto(source, m_states);
    if (before >= 0)
        return nameOf(before) + boxText(source);
    return m_flagged[net] == ClockSource::Outside ? QStringLiteral("external") : ::signalName(m_flagged[net]);
}

/// "8.000000 MHz / 1 * 144", or the name of the oscillator where nothing is made of its clock on the way.
QString ClockSignals::originOf(const Way& way, const ClockReading& root, const QString& name)
{
    if (way.factors.isEmpty())
        return name;
    const bool inMHz = qstrcmp(root.unit, "MHz") == 0;
    QString origin =
        QString::number(root.value, 'f', inMHz ? 6 : 3) + QLatin1Char(' ') + QLatin1String(root.unit);
    for (const Factor& factor : way.factors)
        origin += QStringLiteral(" %1 %2").arg(QLatin1Char(factor.sign)).arg(factor.number);
    return origin;
}

ClockSignal ClockSignals::at(int net) const
{
    ClockSignal signal;
    signal.name = nameOf(net);
    const ClockSource flagged = m_flagged[net];
    if (flagged != ClockSource::None)
        if (const std::optional<Factor> factor = flagFactor(flagged))
            signal.name += QLatin1Char('/') + QString::number(factor->number);
    const QVector<int> same = together(net);
    signal.used =
        std::any_of(same.begin(), same.end(), [this](int each) { return m_circuit.inUse(each, m_states); });
    const Way way = wayOf(net);
    if (way.root < 0)
        return signal;
    const std::optional<ClockReading> root = oscillator(way.root);
    if (!root)
        return signal;
    const bool turnsToKHz = m_names[net] && m_names[net]->inKHz && qstrcmp(root->unit, "MHz") == 0;
    signal.unit = turnsToKHz ? "kHz" : root->unit;
    // From the nearest clock that the model knows: after a refused edit it may hold back those behind a new
    // source.
    signal.clock = way.known.value_or(root->value) * (turnsToKHz ? kHzPerMHz : 1.0);
    const int behind = way.known ? way.behindKnown : way.factors.size();
    for (const Factor& factor : way.factors.mid(way.factors.size() - behind))
        signal.clock = factor.applied(*signal.clock);
    signal.origin = originOf(way, *root, nameOf(way.root));
    if (signal.origin == signal.name)
        signal.origin.clear();
    return signal;
}
