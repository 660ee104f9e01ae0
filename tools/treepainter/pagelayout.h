#pragma once

#include <QFont>
#include <QRectF>
#include <QSize>
#include <QString>

#include <vector>

class ClockTreePage;

enum class ControlKind
{
    Radio,
    Label,
    Field ///< an edit, a combo box or a button
};

/// A control as it stands on the picture. A label that code never asks for has its text in quotes for a name.
struct PlacedControl
{
    QString name;
    ControlKind kind = ControlKind::Field;
    QRectF rect;
    bool empty = false;  ///< a label that shows nothing until there is a value
    bool output = false; ///< a field of the output column
    QFont font = {};
};

/// What the painter knows of a page: the size of its picture and the rectangle of every control.
struct PageLayout
{
    QSize size;
    std::vector<PlacedControl> controls;

    PlacedControl* find(const QString& name);
    const PlacedControl* find(const QString& name) const;
};

/// Takes the rectangles from the scene of a page that is shown. The lists of peripherals are left out: they
/// open over the picture.
PageLayout layoutOf(const ClockTreePage& page);
