#pragma once

#include "anchors.h"

/// A turn on the way of a wire: it runs along the axis up to the coordinate.
struct Bend
{
    Qt::Orientation axis;
    double coordinate;
};

/// The points of a wire from its start over the bends to its end; without an end it stops at the last bend.
/// A straight wire takes a level that both ends allow. A wire that arrives along x or y after a bend along
/// the same axis first runs across to the level of its end. Throws TreeError if a diagonal piece would be
/// needed.
QPolygonF route(const Anchor& start, const QVector<Bend>& bends, const std::optional<Anchor>& end);
