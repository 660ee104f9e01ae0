#include "places.h"

Places::Places(std::initializer_list<ControlPlace> places)
{
    for (const ControlPlace& place : places) {
        Q_ASSERT_X(!has(QLatin1String(place.name)), "Places", place.name);
        m_places.insert(QLatin1String(place.name), place);
    }
}

Places Places::with(std::initializer_list<ControlPlace> places) const
{
    Places all(*this);
    for (const ControlPlace& place : places)
        all.m_places.insert(QLatin1String(place.name), place);
    return all;
}

Places Places::without(std::initializer_list<const char*> names) const
{
    Places rest(*this);
    for (const char* name : names)
        rest.m_places.remove(QLatin1String(name));
    return rest;
}

const ControlPlace& Places::at(const QString& name) const
{
    const auto place = m_places.constFind(name);
    if (place == m_places.constEnd())
        qFatal("no place for %s", qPrintable(name));
    return *place;
}
