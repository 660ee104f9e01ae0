#include "chain.h"

#include <limits>

namespace {

constexpr double endless = std::numeric_limits<double>::infinity();

/// What the words say before the sides are known.
struct Step
{
    QString text;
    QString wire;
    double x = 0; ///< of its middle, along the row
    bool explicitEnd = false;
};

struct Words
{
    QVector<Step> steps;
    QStringList behind;
    std::optional<double> row;
};

bool isColumn(const QString& text)
{
    return text.startsWith(QLatin1String("x="));
}

/// "control.right", "mux.nose", "radio.in" or "wire@x=240", as against a bare name.
bool isExplicit(const QString& text)
{
    return text.contains(QLatin1Char('.')) || text.contains(QLatin1Char('@'));
}

Step stepOf(const QString& text, const QString& wire, const Anchors& anchors)
{
    if (isColumn(text))
        return {text, wire, anchors.coordinate(text.mid(2), Qt::Horizontal), true};
    if (isExplicit(text))
        return {text, wire, anchors.anchor(text).point.x(), true};
    return {text, wire, anchors.rectOf(text).center().x(), false};
}

Words wordsOf(const Statement& statement, const Anchors& anchors)
{
    Words words;
    QString wire = statement.name;
    bool behind = false;
    for (const Word& word : statement.words) {
        if (behind)
            words.behind << word.text;
        else if (word.text == QLatin1String("behind"))
            behind = true;
        else if (word.text.endsWith(QLatin1Char(':')))
            wire = word.text.chopped(1);
        else if (word.text.startsWith(QLatin1String("y=")))
            words.row = anchors.coordinate(word.text.mid(2), Qt::Vertical);
        else
            words.steps << stepOf(word.text, std::exchange(wire, QString()), anchors);
    }
    if (words.steps.size() < 2)
        throw TreeError(QStringLiteral("%1 takes two steps or more").arg(statement.keyword));
    return words;
}

Anchor facing(const Anchors& anchors, const QString& owner, double from, double to)
{
    return anchors.side(owner, to < from ? Side::Left : Side::Right);
}

Link linkOf(const QVector<Step>& steps, int at, const Anchors& anchors)
{
    const Step& step = steps[at];
    const bool first = at == 0;
    const bool last = at == steps.size() - 1;
    Link link{std::nullopt, std::nullopt, step.wire};
    if (isColumn(step.text)) {
        if (!last)
            throw TreeError(QStringLiteral("%1 stands before the end of the row").arg(step.text));
        Anchor end;
        end.point.setX(onPixel(step.x));
        end.direction = Qt::Horizontal;
        end.low = -endless;
        end.high = endless;
        link.in = end;
    } else if (step.explicitEnd) {
        const bool leaves = first || step.text.endsWith(QLatin1String(".nose"));
        (leaves ? link.out : link.in) = anchors.anchor(step.text);
    } else {
        if (!first)
            link.in = facing(anchors, step.text, step.x, steps[at - 1].x);
        if (!last)
            link.out = facing(anchors, step.text, step.x, steps[at + 1].x);
    }
    return link;
}

double rowOf(const Chain& chain, const std::optional<double>& given, const Anchors& anchors)
{
    if (given)
        return onPixel(*given);
    const std::optional<Anchor>& start = chain.links.first().out;
    if (start && !start->direction)
        return start->point.y();
    QVector<Anchor> ends;
    for (const Link& link : chain.links) {
        for (const std::optional<Anchor>& end : {link.in, link.out}) {
            // A free end goes with any row.
            if (end && end->direction == Qt::Horizontal && !end->owner.isEmpty())
                ends << *end;
        }
    }
    for (const QString& field : chain.behind)
        ends << anchors.side(field, Side::Left);
    return commonLevel(ends);
}

} // namespace

Chain chainOf(const Statement& statement, const Anchors& anchors)
{
    const Words words = wordsOf(statement, anchors);
    Chain chain;
    chain.behind = words.behind;
    for (int i = 0; i < words.steps.size(); ++i)
        chain.links << linkOf(words.steps, i, anchors);
    chain.row = rowOf(chain, words.row, anchors);
    return chain;
}
