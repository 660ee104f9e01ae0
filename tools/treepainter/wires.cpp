#include "builder.h"
#include "treebuilder.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

// Pixels.
constexpr double barOverhang = 7; // of a bus bar beyond its first and its last branch
constexpr double busNameGap = 6;

bool isBehind(const Word& word)
{
    return !word.quoted && word.text == QLatin1String("behind");
}

/// The row with the named steps in place of their name; the fields that may cover it go to its end.
Statement withSteps(Statement row, const QHash<QString, QVector<Word>>& steps)
{
    if (row.words.isEmpty() || !steps.contains(row.words.first().text))
        return row;
    const QVector<Word> named = steps.value(row.words.takeFirst().text);
    const auto cover = std::find_if(named.begin(), named.end(), isBehind);
    QVector<Word> words;
    std::copy(named.begin(), cover, std::back_inserter(words));
    words += row.words;
    std::copy(cover, named.end(), std::back_inserter(words));
    row.words = words;
    return row;
}

} // namespace

Wire& TreeBuilder::append(const Statement& statement, const QString& name, const QPolygonF& points,
                          const Anchor& start, const std::optional<Anchor>& end)
{
    const int net = start.net.value_or(static_cast<int>(m_drawing.wires.size()));
    claimName(name, net);
    Wire wire{statement.source, name, points, start.owner, end ? end->owner : QString(), net};
    wire.branch = start.net.has_value();
    wire.dot = start.dot;
    m_drawing.wires.push_back(wire);
    return m_drawing.wires.back();
}

void TreeBuilder::addWire(const Statement& statement)
{
    if (statement.words.size() < 2)
        throw TreeError(QStringLiteral("wire takes a start and an end"));
    const Anchor start = m_anchors.anchor(statement.words.first().text);
    QVector<Bend> bends;
    std::optional<Anchor> end;
    QStringList behind;
    for (auto word = statement.words.begin() + 1; word != statement.words.end(); ++word) {
        if (isBehind(*word)) {
            while (++word != statement.words.end())
                behind << control(word->text).name;
            break;
        }
        if (end)
            throw TreeError(QStringLiteral("%1 stands behind the wire's end").arg(word->text));
        if (const std::optional<Qt::Orientation> axis = axisOf(word->text))
            bends.append({*axis, m_anchors.coordinate(word->text.mid(2), *axis)});
        else
            end = m_anchors.anchor(word->text);
    }
    append(statement, statement.name, route(start, bends, end), start, end).behind = behind;
}

/// Those of the fields that stand between the ends of a wire.
QStringList TreeBuilder::coversOf(const Wire& wire, const QStringList& fields) const
{
    const QRectF way = wire.points.boundingRect();
    QStringList covers;
    for (const QString& field : fields) {
        const double x = m_anchors.rectOf(field).center().x();
        if (x > way.left() && x < way.right())
            covers << field;
    }
    return covers;
}

void TreeBuilder::addChain(const Statement& statement)
{
    joinInRow(chainOf(withSteps(statement, m_steps), m_anchors), statement);
}

void TreeBuilder::joinInRow(const Chain& chain, const Statement& statement)
{
    const auto onRow = [&chain](const Anchor& anchor) {
        if (!anchor.direction)
            return anchor.point;
        if (anchor.direction != Qt::Horizontal || chain.row < anchor.low || chain.row > anchor.high)
            throw TreeError(QStringLiteral("the row y=%1 misses %2").arg(chain.row).arg(anchor.owner));
        return anchor.at(chain.row);
    };
    QSet<QString> uncovered(chain.behind.begin(), chain.behind.end());
    for (int i = 1; i < chain.links.size(); ++i) {
        const std::optional<Anchor>& start = chain.links[i - 1].out;
        const std::optional<Anchor>& end = chain.links[i].in;
        // An input of a multiplexer and the nose behind it stand side by side without a wire.
        if (!start && !end)
            continue;
        if (!start || !end)
            throw TreeError(QStringLiteral("only the nose of a multiplexer follows one of its inputs"));
        Wire& wire =
            append(statement, chain.links[i].wire, QVector<QPointF>{onRow(*start), onRow(*end)}, *start, end);
        wire.width = statement.keyword == QLatin1String("spine") ? weight::spine : weight::branch;
        wire.behind = coversOf(wire, chain.behind);
        uncovered -= QSet<QString>(wire.behind.begin(), wire.behind.end());
    }
    if (!uncovered.isEmpty())
        throw TreeError(QStringLiteral("no wire of the row passes %1")
                            .arg(*std::min_element(uncovered.begin(), uncovered.end())));
}

void TreeBuilder::addBar(const Statement& statement, const Wire& trunk, const QVector<double>& rows)
{
    const QPointF joint = trunk.points.last();
    const auto [top, bottom] = std::minmax_element(rows.begin(), rows.end());
    const Anchor start{joint, std::nullopt, 0, 0, {}, trunk.net};
    const QString name = trunk.name;
    const double half = weight::bar / 2;
    m_drawing.bars.push_back({
        QRectF{QPointF(joint.x() - half, std::floor(*top - barOverhang)),
               QPointF(joint.x() + half, std::floor(*bottom + barOverhang))},
        trunk.net
    });
    for (const double end : {*top - barOverhang, *bottom + barOverhang}) {
        Wire& bar =
            append(statement, name, QVector<QPointF>{joint, QPointF(joint.x(), end)}, start, std::nullopt);
        bar.width = weight::bar;
        bar.end = WireEnd::Plain;
    }
}

void TreeBuilder::addFan(const Statement& statement)
{
    const auto trunk =
        std::find_if(m_drawing.wires.begin(), m_drawing.wires.end(), [&statement](const Wire& wire) {
            return wire.name == statement.name && wire.to.isEmpty() && wire.end == WireEnd::Arrow;
        });
    if (trunk == m_drawing.wires.end())
        throw TreeError(QStringLiteral("no wire %1 stops free").arg(statement.name));
    if (statement.words.isEmpty() || !statement.words.first().quoted)
        throw TreeError(QStringLiteral("fan takes the name to write at the bus bar"));
    trunk->end = WireEnd::Plain;
    const Wire from = *trunk;
    QVector<double> rows{from.points.last().y()};
    for (const Word& word : statement.words.mid(1))
        rows << onPixel(m_anchors.rectOf(word.text).center().y());
    std::vector<Anchor> ends;
    for (const PlacedControl& output : m_page.controls) {
        if (output.bus != statement.name || output.divided)
            continue;
        ends.push_back(m_anchors.side(output.name, Side::Left));
        rows << ends.back().level();
    }
    addBar(statement, from, rows);
    const double x = from.points.last().x();
    for (const Anchor& end : ends) {
        const QPointF joint(x, end.level());
        append(statement, statement.name, QVector<QPointF>{joint, end.point},
               {joint, std::nullopt, 0, 0, {}, from.net}, end);
    }
    const QSizeF extent = extentOf(statement.words.first().text, tree::captionFont(tree::Style::Bus));
    const double top = *std::min_element(rows.begin(), rows.end()) - barOverhang - busNameGap;
    const double width = 2 * std::ceil(extent.width() / 2);
    m_drawing.captions.push_back({statement.source,
                                  QRectF(x - width / 2, top - extent.height(), width, extent.height()),
                                  statement.words.first().text, tree::Style::Bus});
}
