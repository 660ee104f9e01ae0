#include "checks.h"

#include "checker.h"

#include <QHash>

#include <algorithm>

namespace {

// Pixels between the white ground of a label and the lines of a figure.
constexpr double labelRoom = 2;

std::vector<Block> controlBlocks(const PageLayout& page)
{
    std::vector<Block> blocks;
    for (const PlacedControl& control : page.controls)
        blocks.push_back({control.name,
                          control.rect,
                          {control.name},
                          {},
                          control.kind == ControlKind::Field,
                          control.kind == ControlKind::Label});
    return blocks;
}

std::vector<Block> figureBlocks(const Drawing& drawing)
{
    std::vector<Block> blocks;
    for (const Mux& mux : drawing.muxes)
        blocks.push_back({QLatin1String("mux ") + mux.name, mux.rect, mux.radios + QStringList{mux.name},
                          mux.source, false, false, true});
    for (const Box& box : drawing.boxes)
        blocks.push_back({QLatin1String("box ") + box.name, box.rect, {box.name}, box.source});
    for (const Pad& pad : drawing.pads)
        blocks.push_back({QLatin1String("pad ") + pad.name, pad.rect, {pad.name}, pad.source});
    for (const Tag& tag : drawing.tags)
        blocks.push_back({
            QLatin1String("tag ") + tag.name + tag.label, tag.rect, {tag.name, tag.label},
                  tag.source
        });
    for (const Crystal& crystal : drawing.crystals)
        blocks.push_back({QStringLiteral("crystal"), crystal.room, {}, crystal.source});
    for (const Caption& caption : drawing.captions)
        blocks.push_back({QLatin1String("text ") + caption.text, caption.rect, {}, caption.source});
    return blocks;
}

bool isReached(const Drawing& drawing, const QString& name)
{
    return std::any_of(drawing.wires.begin(), drawing.wires.end(),
                       [&name](const Wire& wire) { return wire.to == name; });
}

/// The layout with the rooms that the tree keeps free.
PageLayout roomy(PageLayout page, const Drawing& drawing)
{
    for (PlacedControl& control : page.controls) {
        if (drawing.rooms.contains(control.name))
            control.rect.setSize(drawing.rooms.value(control.name));
    }
    return page;
}

/// Tells faults of several states once, with the states where not all share them.
class Collector
{
public:
    void add(const Problems& problems, const QString& state)
    {
        ++m_states;
        for (const Problem& problem : problems) {
            const QString text = problem.text();
            if (!m_where.contains(text))
                m_all.push_back(problem);
            if (!m_where[text].contains(state))
                m_where[text] << state;
        }
    }
    void tell(Problems& problems)
    {
        for (Problem& problem : m_all) {
            const QStringList where = m_where.value(problem.text());
            if (where.size() < m_states)
                problem.message += QLatin1String(", while ") + where.join(QLatin1String(", "));
            problems.push_back(problem);
        }
    }

private:
    int m_states = 0;
    Problems m_all;
    QHash<QString, QStringList> m_where;
};

} // namespace

QRectF grown(const QRectF& rect, double by)
{
    return rect.adjusted(-by, -by, by, by);
}

Checker::Checker(const Drawing& drawing, const PageLayout& page, const QString& tree)
    : m_drawing(drawing), m_page(page), m_tree{tree, 0}, m_controls(controlBlocks(page)),
      m_figures(figureBlocks(drawing))
{
}

void Checker::tell(const SourceLine& source, const QString& message, const QStringList& some,
                   const QStringList& others)
{
    bool allowed = false;
    for (int i = 0; i < int(m_drawing.allowances.size()); ++i) {
        const Allowance& pair = m_drawing.allowances[i];
        if ((some.contains(pair.one) && others.contains(pair.other)) ||
            (some.contains(pair.other) && others.contains(pair.one))) {
            m_used << i;
            allowed = true;
        }
    }
    if (!allowed)
        tell(source, message);
}

void Checker::checkFigures()
{
    const QRectF picture(QPointF(), QSizeF(m_page.size));
    for (auto figure = m_figures.begin(); figure != m_figures.end(); ++figure) {
        if (!picture.contains(figure->rect))
            tell(figure->source, QStringLiteral("%1 reaches out of the picture").arg(figure->name));
        const auto check = [&](const Block& other) {
            if (figure->owners.contains(other.name))
                return;
            if (overlap(figure->rect, other.rect))
                tell(figure->source, QStringLiteral("%1 crosses %2").arg(figure->name, other.name),
                     figure->owners, other.owners);
            else if (figure->mux && other.label && overlap(grown(figure->rect, labelRoom), other.rect))
                tell(figure->source,
                     QStringLiteral("%1 stands too close to %2").arg(other.name, figure->name),
                     figure->owners, other.owners);
        };
        std::for_each(m_controls.begin(), m_controls.end(), check);
        std::for_each(std::next(figure), m_figures.end(), check);
    }
}

/// What the page has and the tree forgets.
void Checker::checkComplete()
{
    for (const PlacedControl& control : m_page.controls) {
        const bool radio = control.kind == ControlKind::Radio;
        if (radio && !m_drawing.mux(control.name))
            tell(m_tree, QStringLiteral("%1 lies in no multiplexer").arg(control.name));
        else if (radio && !isReached(m_drawing, control.name))
            tell(m_tree, QStringLiteral("no wire enters at %1").arg(control.name));
        if (!control.bus.isEmpty() && !isReached(m_drawing, control.name))
            tell(m_tree, QStringLiteral("no wire ends at %1").arg(control.name));
    }
}

void checkDrawing(const Drawing& drawing, const std::vector<PageLayout>& states, const QString& tree,
                  Problems& problems)
{
    Collector collector;
    QSet<int> used;
    for (const PageLayout& state : states) {
        const PageLayout page = roomy(state, drawing);
        Checker checker(drawing, page, tree);
        checker.checkPage();
        checker.checkFigures();
        checker.checkGrid();
        checker.checkWires();
        checker.checkComplete();
        collector.add(checker.problems(), state.state);
        used |= checker.used();
    }
    collector.tell(problems);
    for (int i = 0; i < int(drawing.allowances.size()); ++i) {
        const Allowance& pair = drawing.allowances[i];
        if (!used.contains(i))
            problems.push_back(
                {pair.source,
                 QStringLiteral("nothing needs this allowance of %1 and %2").arg(pair.one, pair.other)});
    }
}
