#include "tree/circuit.h"

#include <algorithm>

namespace tree {

/// One look at the states. The use of a signal is known once, however many ask for it.
class Circuit::Evaluation
{
public:
    Evaluation(const Circuit& circuit, const QVector<ControlState>& states)
        : m_circuit(circuit), m_states(states), m_nets(circuit.nets(), Unknown),
          m_wires(circuit.m_wires.size(), Use::Idle)
    {
    }

    const QVector<Use>& wires()
    {
        for (int net = 0; net < m_circuit.nets(); ++net)
            isUsed(net);
        return m_wires;
    }

    bool isUsed(int net)
    {
        if (m_nets[net] == Unknown) {
            // A signal that would feed itself is not used by that.
            m_nets[net] = Unused;
            m_nets[net] = usesPieces(net) ? Used : Unused;
        }
        return m_nets[net] == Used;
    }

    bool isUsed(const Element& element)
    {
        switch (element.kind) {
        case Kind::Radio:
            // It is grey with its selector, but for a selector that only flags elsewhere use.
            return state(element).passes && isUsed(m_circuit.m_elements[element.selector]);
        case Kind::Control:
            return state(element).passes &&
                   (state(element).enabled || (element.gives >= 0 && isUsed(element.gives)));
        case Kind::Step:
            return element.gives >= 0 && isUsed(element.gives);
        case Kind::Sink:
            return passes(m_circuit.m_elements[m_circuit.m_sources[element.takes]]);
        }
        return false;
    }

private:
    enum Known : char
    {
        Unknown,
        Unused,
        Used
    };

    ControlState state(const Element& element) const { return m_states.value(element.control); }

    bool passes(const Element& element) const
    {
        return element.control < 0 || (state(element).enabled && state(element).passes);
    }

    bool usesPieces(int net)
    {
        const QVector<int>& flags = m_circuit.m_flags[net];
        bool used = std::any_of(flags.begin(), flags.end(), [this](int flag) { return isUsed(flag); });
        const QVector<int>& pieces = m_circuit.m_pieces[net];
        for (auto at = pieces.rbegin(); at != pieces.rend(); ++at) {
            const Piece& piece = m_circuit.m_wires[*at];
            Use& use = m_wires[*at];
            if (piece.end >= 0 && isUsed(m_circuit.m_elements[piece.end]))
                use = state(m_circuit.m_elements[piece.end]).red ? Use::Red : Use::InUse;
            if (use == Use::Idle)
                continue;
            used = true;
            if (piece.before >= 0)
                m_wires[piece.before] = std::max(m_wires[piece.before], Use::InUse);
        }
        return used;
    }

    const Circuit& m_circuit;
    const QVector<ControlState>& m_states;
    QVector<Known> m_nets;
    QVector<Use> m_wires;
};

Circuit::Circuit(const Picture& picture, const QHash<QString, QStringList>& takenUp)
{
    for (const Figure& figure : picture.below)
        add(figure);
    for (const Figure& figure : picture.above)
        add(figure);
    m_pieces.resize(picture.nets.size());
    for (const Net& net : picture.nets) {
        m_sources.append(element(net.source));
        Element& source = m_elements[m_sources.last()];
        source.gives = m_sources.size() - 1;
        if (source.kind == Kind::Sink)
            source.kind = Kind::Step;
    }
    for (const Wire& wire : picture.wires) {
        const int end = wire.to.isEmpty() ? -1 : element(wire.to);
        if (end >= 0)
            m_elements[end].takes = wire.net;
        m_pieces[wire.net].append(m_wires.size());
        m_wires.append({wire.net, wire.before, end});
    }
    for (const Figure& figure : picture.below)
        m_below.append(figure.shape == Shape::Crystal ? element(figure.inputs.first())
                                                      : m_byName.value(figure.name, -1));
    for (const Figure& figure : picture.above) {
        m_above.append(m_byName.value(figure.name, -1));
        m_bars.append(figure.net);
    }
    takeUp(takenUp);
    for (Element& each : m_elements)
        if (each.kind == Kind::Control || each.kind == Kind::Radio) {
            each.control = m_controls.size();
            m_controls.append(each.name);
        }
}

void Circuit::takeUp(const QHash<QString, QStringList>& takenUp)
{
    m_flags.resize(m_sources.size());
    for (int net = 0; net < m_sources.size(); ++net) {
        m_named.append(net);
        for (const QString& source : takenUp.value(sourceOf(net))) {
            const auto known = m_byName.constFind(source);
            if (known == m_byName.constEnd() || m_elements[*known].gives < 0)
                continue;
            m_named.last() = m_elements[*known].gives;
            m_flags[m_named.last()].append(net);
            break;
        }
    }
}

/// The element of that name, which is a control if no figure is called so.
int Circuit::element(const QString& name)
{
    const auto known = m_byName.constFind(name);
    if (known != m_byName.constEnd())
        return *known;
    m_byName.insert(name, m_elements.size());
    m_elements.append({name, Kind::Control, -1, -1, -1, -1, {}});
    return m_elements.size() - 1;
}

void Circuit::add(const Figure& figure)
{
    if (figure.name.isEmpty())
        return;
    const int at = element(figure.name);
    const bool ends = figure.shape == Shape::Flag || figure.shape == Shape::Pad;
    m_elements[at].kind = ends ? Kind::Sink : Kind::Step;
    for (const QString& radio : figure.inputs) {
        const int input = element(radio);
        m_elements[input].kind = Kind::Radio;
        m_elements[input].selector = at;
        m_elements[at].inputs.append(input);
    }
}

Uses Circuit::usesOf(const QVector<ControlState>& states) const
{
    Evaluation evaluation(*this, states);
    Uses uses;
    uses.wires = evaluation.wires();
    const auto useOf = [&](int element) {
        return element < 0 || evaluation.isUsed(m_elements[element]) ? Use::InUse : Use::Idle;
    };
    for (int element : m_below)
        uses.below.append(useOf(element));
    for (int i = 0; i < m_above.size(); ++i)
        uses.above.append(m_bars[i] >= 0 && !evaluation.isUsed(m_bars[i]) ? Use::Idle : useOf(m_above[i]));
    return uses;
}

int Circuit::netAt(const QString& element) const
{
    const auto known = m_byName.constFind(element);
    if (known == m_byName.constEnd())
        return -1;
    const Element& found = m_elements[*known];
    return found.gives >= 0 ? found.gives : found.takes;
}

int Circuit::netInto(const QString& element, const QVector<ControlState>& states) const
{
    const auto known = m_byName.constFind(element);
    if (known == m_byName.constEnd())
        return -1;
    const Element& found = m_elements[*known];
    const auto checked = std::find_if(found.inputs.begin(), found.inputs.end(), [&](int input) {
        return states.value(m_elements[input].control).passes;
    });
    return checked != found.inputs.end() ? m_elements[*checked].takes : found.takes;
}

bool Circuit::inUse(int net, const QVector<ControlState>& states) const
{
    return Evaluation(*this, states).isUsed(net);
}

Picture cutAt(const Picture& picture, const QVector<Cover>& covers)
{
    Picture result = picture;
    result.wires.clear();
    QVector<int> last;
    for (const Wire& whole : picture.wires) {
        Wire piece = whole;
        if (whole.before >= 0) {
            piece.before = last[whole.before];
            piece.net = result.wires[piece.before].net;
        }
        const double end = whole.points.last().x();
        const auto keepHops = [&whole](Wire& part) {
            part.hops.clear();
            for (const Hop& hop : whole.hops)
                if (hop.x > part.points.first().x() && hop.x < part.points.last().x())
                    part.hops.append(hop);
        };
        const auto stands = [&](const Cover& cover) {
            return whole.behind.contains(cover.field) && cover.middle.x() > whole.points.first().x() &&
                   cover.middle.x() < end;
        };
        for (const Cover& cover : covers) {
            if (!stands(cover))
                continue;
            const QPointF joint(cover.middle.x(), whole.points.last().y());
            piece.points = QVector<QPointF>{piece.points.first(), joint};
            piece.to = cover.field;
            piece.ends = Ends::Plain;
            keepHops(piece);
            result.wires.append(piece);
            result.nets.append({cover.field});
            piece = whole;
            piece.points = QVector<QPointF>{joint, whole.points.last()};
            piece.dot = 0;
            piece.before = -1;
            piece.net = result.nets.size() - 1;
        }
        if (piece.points != whole.points)
            keepHops(piece);
        last.append(result.wires.size());
        result.wires.append(piece);
    }
    return result;
}

} // namespace tree
