#include "pages/layout/parts.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

struct Rows
{
    const char* name;
    std::vector<int> ys;
};

struct Columns
{
    const char* name;
    SourceColumns columns;
};

/// What the text of a part says of places.
struct Part
{
    const char* name;
    std::vector<ControlPlace> places;
    std::vector<PlacedPart> inner;
    std::vector<Columns> columns;
    std::vector<Rows> rows;
};

const Part& partOf(const PlacedPart& placed)
{
    static const Part table[] = {
#include "parttable.inc"
    };
    const auto part = std::find_if(std::begin(table), std::end(table), [&placed](const Part& each) {
        return std::strcmp(each.name, placed.name) == 0;
    });
    if (part == std::end(table))
        qFatal("no part of a tree is named %s", placed.name);
    return *part;
}

void addWithInner(const PlacedPart& placed, std::vector<PlacedPart>& all)
{
    all.push_back(placed);
    for (const PlacedPart& inner : partOf(placed).inner)
        addWithInner({inner.name, placed.x + inner.x, placed.y + inner.y}, all);
}

} // namespace

std::vector<PlacedPart> layout::withInner(const std::vector<PlacedPart>& parts)
{
    std::vector<PlacedPart> all;
    for (const PlacedPart& part : parts)
        addWithInner(part, all);
    return all;
}

Places layout::placesOf(const std::vector<PlacedPart>& parts)
{
    Places all;
    for (const PlacedPart& part : withInner(parts))
        for (const ControlPlace& place : partOf(part).places)
            all.add({place.name, part.x + place.x, part.y + place.y, place.text});
    return all;
}

std::vector<QPoint> layout::rowsOf(const std::vector<PlacedPart>& parts, const char* name)
{
    std::vector<QPoint> points;
    for (const PlacedPart& part : withInner(parts))
        for (const Rows& rows : partOf(part).rows)
            if (std::strcmp(rows.name, name) == 0)
                for (int y : rows.ys)
                    points.emplace_back(part.x, part.y + y);
    return points;
}

SourceColumns layout::columnsOf(const std::vector<PlacedPart>& parts, const char* clockOutput)
{
    for (const PlacedPart& part : withInner(parts))
        for (const auto& [name, columns] : partOf(part).columns)
            if (std::strcmp(name, clockOutput) == 0)
                return {part.x + columns.radioX, part.x + columns.nameX, part.x + columns.valueX,
                        columns.labelsDown};
    qFatal("no part of the tree places %s", clockOutput);
}
