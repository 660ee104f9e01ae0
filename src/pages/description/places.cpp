#include "pages/description/places.h"

#include <QStringList>

namespace {

/// "i2s, MHz" of an output that shows "i2s (MHz)" beside it.
QString spokenOf(const ControlEntry& entry, const QString& text)
{
    if (entry.kind != ControlType::Output || *entry.spoken)
        return QLatin1String(entry.spoken);
    return text.section(QLatin1Char('('), 0, 0).trimmed() + QLatin1String(", ") +
           text.section(QLatin1Char('('), 1).remove(QLatin1Char(')'));
}

Control placed(const ControlPlace& place)
{
    const ControlEntry* entry = controlcatalogue::find(QLatin1String(place.name));
    if (!entry)
        qFatal("no control is named %s", place.name);
    const QString text = QString::fromLatin1(place.text ? place.text : entry->text);
    return {entry->kind,           place.x,  place.y,          text,
            entry->width,          entry->z, entry->pointSize, entry->weight,
            spokenOf(*entry, text)};
}

} // namespace

Places::Places(std::initializer_list<ControlPlace> places)
{
    for (const ControlPlace& place : places)
        add(QLatin1String(place.name), placed(place));
}

void Places::add(const QString& name, const Control& control)
{
    if (has(name))
        qFatal("%s has two places", qPrintable(name));
    m_controls.insert(name, control);
}

Places Places::operator+(const Places& other) const
{
    Places all(*this);
    for (auto each = other.m_controls.cbegin(); each != other.m_controls.cend(); ++each)
        all.add(each.key(), each.value());
    return all;
}

Control& Places::control(const char* name)
{
    at(QLatin1String(name));
    return m_controls[QLatin1String(name)];
}

Places Places::moved(std::initializer_list<ControlPlace> moves) const
{
    Places all(*this);
    for (const ControlPlace& move : moves) {
        Control& control = all.control(move.name);
        control.x = move.x;
        control.y = move.y;
        if (move.text)
            control.text = QLatin1String(move.text);
    }
    return all;
}

Places Places::without(std::initializer_list<const char*> names) const
{
    Places rest(*this);
    for (const char* name : names) {
        at(QLatin1String(name));
        rest.m_controls.remove(QLatin1String(name));
    }
    return rest;
}

Places Places::withFonts(std::initializer_list<ControlFont> fonts) const
{
    Places all(*this);
    for (const ControlFont& font : fonts) {
        Control& control = all.control(font.name);
        control.pointSize = font.pointSize;
        control.weight = font.weight;
    }
    return all;
}

Places Places::withLevels(std::initializer_list<ControlLevel> levels) const
{
    Places all(*this);
    for (const ControlLevel& level : levels)
        all.control(level.name).z = level.z;
    return all;
}

const Control& Places::at(const QString& name) const
{
    const auto control = m_controls.constFind(name);
    if (control == m_controls.constEnd())
        qFatal("no place for %s", qPrintable(name));
    return *control;
}
