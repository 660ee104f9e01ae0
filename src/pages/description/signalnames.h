#pragma once

#include "pages/description/pagedescription.h"

#include <QHash>

/// How the signal that a control or figure of the tree gives is called.
struct SignalName
{
    QString name; ///< empty: the name of the signal that comes in, and the factor
    /// The model's clock for it; none for a signal on the way, whose frequency follows from where it comes
    /// from.
    ClockSource clock = ClockSource::None;
    bool inKHz = false;
};

/// The name of the signal that the control or figure gives; nothing for one that this series' tree cannot
/// have.
std::optional<SignalName> signalName(const PageDescription& page, const QString& source);

/// The name of the signal that is the clock; empty for one that is not drawn by its name.
QString signalName(ClockSource clock);

/// The clocks that the flags beside selectors and fields take up, by the names of the flags.
QHash<QString, ClockSource> flaggedClocks(const PageDescription& page);
/// Of a clock that flags take up, the one that is drawn: the steps behind it are not.
ClockSource drawnAs(ClockSource clock);
/// What may give the signals of the flags' names; a tree has one of each, or none.
QHash<QString, QStringList> takenUp(const PageDescription& page);

/// What a control makes of a signal that passes it.
struct Factor
{
    char sign = '*'; ///< or '/'
    double number = 1.0;

    double applied(double clock) const { return sign == '/' ? clock / number : clock * number; }
};

/// What the control makes of its signal at present; nothing for one that only passes it on.
std::optional<Factor> factorOf(const PageDescription& page, const ZN64ConfigCLK& model,
                               const QString& control);
