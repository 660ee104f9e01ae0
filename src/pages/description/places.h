#pragma once

#include "pages/description/controlcatalogue.h"

#include <QHash>

#include <initializer_list>

/// A row of a family's table: where a control of the catalogue stands, in picture pixels of its top left
/// corner, and its text where it is not the catalogue's.
struct ControlPlace
{
    const char* name;
    int x;
    int y;
    const char* text = nullptr;
};

/// Another font for a label of a family.
struct ControlFont
{
    const char* name;
    int pointSize;
    int weight;
};

/// Another stacking level for a control of a family.
struct ControlLevel
{
    const char* name;
    int z;
};

/// A control at its place, with all that makes it.
struct Control
{
    ControlType kind;
    int x; ///< picture pixels of the top left corner
    int y;
    QString text; ///< "%1" stands for the highest system clock
    int width = 0;
    int z = 0;
    int pointSize = 10;
    int weight = 0;
    QString spoken = {}; ///< what assistive tools say of it
};

/// The places of all controls of a series, by name: the one answer to every question of position, for the
/// control factory as well as for the painter of the picture. A fault in a table (a name that the catalogue
/// lacks, a second place for a control, a sibling's move of a control that is not there) ends the program and
/// names the control.
class Places
{
public:
    Places() = default;
    Places(std::initializer_list<ControlPlace> places);

    void add(const QString& name, const Control& control);

    /// The places of two parts of a tree.
    Places operator+(const Places& other) const;
    /// A sibling's places with some controls at other positions.
    Places moved(std::initializer_list<ControlPlace> moves) const;
    /// A sibling's places without these controls.
    Places without(std::initializer_list<const char*> names) const;
    Places withFonts(std::initializer_list<ControlFont> fonts) const;
    Places withLevels(std::initializer_list<ControlLevel> levels) const;

    bool has(const QString& name) const { return m_controls.contains(name); }
    /// The control at its place. A name without a place ends the program.
    const Control& at(const QString& name) const;
    QStringList names() const { return m_controls.keys(); }

private:
    Control& control(const char* name);

    QHash<QString, Control> m_controls;
};
