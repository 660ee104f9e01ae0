#pragma once

#include <QFont>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>

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
    bool empty = false; ///< a label that shows nothing until there is a value
    QFont font = {};
    QString bus = {};     ///< the clock that feeds a field of the output column; empty for any other control
    bool divided = false; ///< that clock passes a fixed divider on the way
    bool shown = true;
};

/// What the painter knows of a page: the size of its picture and the rectangle of every control, in one state
/// of the page.
struct PageLayout
{
    QSize size;
    std::vector<PlacedControl> controls;
    QString state = {}; ///< empty on a page with one state

    PlacedControl* find(const QString& name);
    const PlacedControl* find(const QString& name) const;
};

/// The states of a page that show different controls: the modes of its PLL. A page without modes has one,
/// without a name.
QStringList statesOf(const ClockTreePage& page);
/// Brings the page into a state, by its index.
void enterState(const ClockTreePage& page, int state);

/// Takes the rectangles from the scene of a page that is shown, in each of its states, and leaves the page in
/// the first. A control that a state hides and another one shows is left out there. So are the lists of
/// peripherals, which open over the picture.
std::vector<PageLayout> layoutsOf(const ClockTreePage& page);

/// The controls of all states together, each where the first state with it has it.
PageLayout together(const std::vector<PageLayout>& states);
