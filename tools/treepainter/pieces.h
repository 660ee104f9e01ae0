#pragma once

#include "drawing.h"

/// A piece of a wire between joints, with what the whole wire says of its ends left where they are.
struct Piece
{
    Wire wire;       ///< its points are those of the piece
    int net = 0;     ///< of the nets
    int before = -1; ///< the piece, further up in the list, that it goes on from; -1 at the net's source
};

struct Pieces
{
    std::vector<Piece> pieces;
    QVector<int> nets; ///< the drawing's numbers of the signals, in the order of the pieces' numbers
    QStringList sources;
};

/// The wires of the drawing, cut where others branch off. Those along a bus bar are left out: what branches
/// off the bar goes on from the wire that reaches it.
Pieces piecesOf(const Drawing& drawing);
