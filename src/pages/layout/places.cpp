#include "pages/layout/places.h"

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

void Places::add(const ControlPlace& place)
{
    add(QLatin1String(place.name), placed(place));
}

void Places::add(const QString& name, const Control& control)
{
    if (has(name))
        qFatal("%s has two places", qPrintable(name));
    m_controls.insert(name, control);
}

Control& Places::control(const QString& name)
{
    at(name);
    return m_controls[name];
}

void Places::move(const std::vector<ControlPlace>& moves)
{
    for (const ControlPlace& move : moves) {
        Control& moved = control(QLatin1String(move.name));
        if (moved.x == move.x && moved.y == move.y && !move.text)
            qFatal("%s stands where it is moved to", move.name);
        moved.x = move.x;
        moved.y = move.y;
        if (move.text)
            moved.text = QLatin1String(move.text);
    }
}

void Places::setFonts(const std::vector<ControlFont>& fonts)
{
    for (const ControlFont& font : fonts) {
        Control& changed = control(QLatin1String(font.name));
        changed.pointSize = font.pointSize;
        changed.weight = font.weight;
    }
}

void Places::rename(const QString& name, const QString& spelling)
{
    if (name == spelling)
        return;
    add(spelling, at(name));
    m_controls.remove(name);
}

void Places::changeTexts(const std::function<QString(const QString&)>& change)
{
    for (Control& control : m_controls)
        control.text = change(control.text);
}

const Control& Places::at(const QString& name) const
{
    const auto control = m_controls.constFind(name);
    if (control == m_controls.constEnd())
        qFatal("no place for %s", qPrintable(name));
    return *control;
}
