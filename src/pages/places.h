#pragma once

#include <QHash>
#include <QString>

#include <initializer_list>

/// Where a control stands on the picture and what it starts with. The name is the control's member name,
/// which is its objectName too; a label that no code ever asks for again has a name of its own all the same.
struct ControlPlace
{
    const char* name;
    int x; ///< picture pixels of the top left corner
    int y;
    const char* text = ""; ///< a label's or an edit's text; "%1" stands for the highest system clock
    int width = 0;         ///< pixels, where the kind has a width
    int z = 0;
    int pointSize = 10;
    int weight = 0; ///< QFont weight, 75 is bold
};

/// Another position for a control that stays as it is otherwise.
struct ControlMove
{
    const char* name;
    int x;
    int y;
};

/// The places of all controls of a series, by name: the one answer to every question of position, for the
/// control factory as well as for the painter of the picture.
class Places
{
public:
    Places(std::initializer_list<ControlPlace> places);

    /// The places of two parts of a tree.
    Places operator+(const Places& other) const;
    /// A sibling's places with some controls at other positions. A name that the sibling lacks is a fault.
    Places moved(std::initializer_list<ControlMove> moves) const;
    /// A sibling's places with some controls replaced or added.
    Places with(std::initializer_list<ControlPlace> places) const;
    /// A sibling's places without the controls whose names begin so.
    Places without(std::initializer_list<const char*> stems) const;

    bool has(const QString& name) const { return m_places.contains(name); }
    /// The place of a control. A name without a place is a fault in the series' description and ends the
    /// program.
    const ControlPlace& at(const QString& name) const;

    QHash<QString, ControlPlace>::const_iterator begin() const { return m_places.begin(); }
    QHash<QString, ControlPlace>::const_iterator end() const { return m_places.end(); }

private:
    QHash<QString, ControlPlace> m_places;
};

// One row of a table of places, by kind of control.

constexpr ControlPlace labelAt(const char* name, int x, int y, const char* text, int pointSize = 10,
                               int weight = 0)
{
    return {name, x, y, text, 0, 0, pointSize, weight};
}

constexpr ControlPlace editAt(const char* name, int x, int y, const char* text = "")
{
    return {name, x, y, text};
}

constexpr ControlPlace comboAt(const char* name, int x, int y, int width, int z = 0)
{
    return {name, x, y, "", width, z};
}

constexpr ControlPlace radioAt(const char* name, int x, int y)
{
    return {name, x, y};
}

/// A read-only output edit; label is the text to the right of it, empty for none.
constexpr ControlPlace outputAt(const char* name, int x, int y, const char* label = "")
{
    return {name, x, y, label, 0, 0, 9};
}

/// An output's list of peripherals, open.
constexpr ControlPlace groupAt(const char* name, int x, int y)
{
    return {name, x, y};
}
