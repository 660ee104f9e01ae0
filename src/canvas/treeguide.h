#pragma once

#include <QStringList>
#include <QVector>

class QWidget;

/// What a person who points at the tree wants to know. The page answers; the picture only shows.
class TreeGuide
{
public:
    virtual ~TreeGuide() = default;

    /// The signals that are one with this one of the picture's circuit, itself included: where it is taken up
    /// elsewhere by its name.
    virtual QVector<int> sameSignal(int net) const = 0;
    /// The sentences on a signal; none if there is nothing to tell.
    virtual QStringList tellSignal(int net) const = 0;
    /// The sentences on a control as it stands; none if there is nothing to tell.
    virtual QStringList tellControl(const QWidget* control) const = 0;
};
