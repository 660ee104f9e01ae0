#include "tree/pointing.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace tree {

namespace {

/// Between the place and a straight piece along an axis.
double distance(const QPointF& one, const QPointF& other, const QPointF& place)
{
    const auto outside = [](double one, double other, double at) {
        return std::max({0.0, std::min(one, other) - at, at - std::max(one, other)});
    };
    return std::hypot(outside(one.x(), other.x(), place.x()), outside(one.y(), other.y(), place.y()));
}

double distance(const Wire& wire, const QPointF& place)
{
    double least = QLineF(wire.points.first(), place).length() - wire.dot;
    for (int i = 1; i < wire.points.size(); ++i)
        least = std::min(least, distance(wire.points[i - 1], wire.points[i], place) - wire.width / 2);
    return least;
}

int netOf(const Figure& figure, const Circuit& circuit)
{
    return figure.net >= 0 ? figure.net : circuit.netAt(figure.name);
}

QVector<int> carrying(const QVector<Figure>& figures, const Circuit& circuit, const QVector<int>& nets)
{
    QVector<int> found;
    for (int i = 0; i < figures.size(); ++i)
        if ((figures[i].shape == Shape::Flag || figures[i].shape == Shape::Bar) &&
            nets.contains(netOf(figures[i], circuit)))
            found.append(i);
    return found;
}

} // namespace

int netAt(const Picture& picture, const Circuit& circuit, const QPointF& place, double reach)
{
    for (const QVector<Figure>* figures : {&picture.above, &picture.below})
        for (const Figure& figure : *figures)
            if (netOf(figure, circuit) >= 0 && figure.outline.containsPoint(place, Qt::OddEvenFill))
                return netOf(figure, circuit);
    int net = -1;
    for (const Wire& wire : picture.wires) {
        const double away = distance(wire, place);
        if (away <= reach) {
            reach = away;
            net = wire.net;
        }
    }
    return net;
}

Marks marksOf(const Picture& picture, const Circuit& circuit, const QVector<int>& nets)
{
    Marks marks;
    for (int i = 0; i < picture.wires.size(); ++i)
        if (nets.contains(picture.wires[i].net))
            marks.wires.append(i);
    marks.below = carrying(picture.below, circuit, nets);
    marks.above = carrying(picture.above, circuit, nets);
    return marks;
}

} // namespace tree
