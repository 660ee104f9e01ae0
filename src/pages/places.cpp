#include "places.h"

Places::Places(std::initializer_list<ControlPlace> places)
{
    for (const ControlPlace& place : places) {
        Q_ASSERT_X(!has(QLatin1String(place.name)), "Places", place.name);
        m_places.insert(QLatin1String(place.name), place);
    }
}

Places Places::operator+(const Places& other) const
{
    Places all(*this);
    for (const ControlPlace& place : other.m_places) {
        Q_ASSERT_X(!has(QLatin1String(place.name)), "Places", place.name);
        all.m_places.insert(QLatin1String(place.name), place);
    }
    return all;
}

Places Places::with(std::initializer_list<ControlPlace> places) const
{
    Places all(*this);
    for (const ControlPlace& place : places)
        all.m_places.insert(QLatin1String(place.name), place);
    return all;
}

Places Places::moved(std::initializer_list<ControlMove> moves) const
{
    Places all(*this);
    for (const ControlMove& move : moves) {
        ControlPlace place = at(QLatin1String(move.name));
        place.x = move.x;
        place.y = move.y;
        all.m_places.insert(QLatin1String(move.name), place);
    }
    return all;
}

Places Places::without(std::initializer_list<const char*> stems) const
{
    Places rest(*this);
    for (const char* stem : stems) {
        for (const QString& name : m_places.keys())
            if (name.startsWith(QLatin1String(stem)))
                rest.m_places.remove(name);
    }
    return rest;
}

const ControlPlace& Places::at(const QString& name) const
{
    const auto place = m_places.constFind(name);
    if (place == m_places.constEnd())
        qFatal("no place for %s", qPrintable(name));
    return *place;
}
