#pragma once

#include "anchors.h"

/// A step of a chain: where a wire arrives and where the next one leaves.
struct Link
{
    std::optional<Anchor> in;
    std::optional<Anchor> out;
    QString wire; ///< name of the wire that arrives
};

/// Controls and figures side by side, joined by wires on one row.
struct Chain
{
    QVector<Link> links;
    double row = 0;
    QStringList behind; ///< fields that may cover its wires
};

/// Reads the words of a chain. Bare names are entered and left at the sides that look at their neighbours;
/// "name:" names the wire to the next; "x=..." stops there; "y=..." gives the row, which otherwise lies where
/// the middles of all fields are missed least. Throws TreeError on words that make no chain.
Chain chainOf(const Statement& statement, const Anchors& anchors);
