#pragma once

#include "pages/layout/controlcatalogue.h"

#include <QHash>

#include <QStringList>

#include <functional>
#include <vector>

/// Where a control of the catalogue stands: its top left corner in pixels, and its text where it is not the
/// catalogue's.
struct ControlPlace
{
    const char* name;
    int x;
    int y;
    const char* text = nullptr;
};

/// Another font for a label of a series.
struct ControlFont
{
    const char* name;
    int pointSize;
    int weight;
};

/// A control at its place, with all that makes it.
struct Control
{
    ControlType kind;
    int x; ///< picture pixels of the top left corner
    int y;
    QString text;
    int width = 0;
    int z = 0;
    int pointSize = 10;
    int weight = 0;
    QString spoken = {}; ///< what assistive tools say of it
};

/// The places of all controls of a series, by name: the one answer to every question of position, for the
/// control factory as well as for the painter of the picture. A fault in a table (a name that the catalogue
/// lacks, a second place for a control, a move of a control that is not there) ends the program and names the
/// control.
class Places
{
public:
    /// A control of the catalogue.
    void add(const ControlPlace& place);
    /// A control of no catalogue.
    void add(const QString& name, const Control& control);

    /// Puts controls elsewhere; a text that is given replaces theirs.
    void move(const std::vector<ControlPlace>& moves);
    void setFonts(const std::vector<ControlFont>& fonts);
    /// Another spelling of a control's name.
    void rename(const QString& name, const QString& spelling);
    /// Lets a function have each text, and takes back what it makes of it.
    void changeTexts(const std::function<QString(const QString&)>& change);

    bool has(const QString& name) const { return m_controls.contains(name); }
    /// The control at its place. A name without a place ends the program.
    const Control& at(const QString& name) const;
    QStringList names() const { return m_controls.keys(); }

private:
    Control& control(const QString& name);

    QHash<QString, Control> m_controls;
};
