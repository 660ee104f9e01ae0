#pragma once

#include "drawing.h"
#include "pagelayout.h"

#include <QSet>

/// What wires and figures must not cross.
struct Block
{
    QString name;
    QRectF rect;
    QStringList owners; ///< names by which a wire or figure may be joined to it
    SourceLine source;
    bool field = false;
    bool label = false;
    bool mux = false;
};

/// The faults of a drawing on a page in one state.
class Checker
{
public:
    Checker(const Drawing& drawing, const PageLayout& page, const QString& tree);

    void checkPage();
    void checkFigures();
    /// What the eye finds uneven: a nose off its middle, lines between pixels, blocks that stand too close to
    /// each other or read as one.
    void checkGrid();
    void checkWires();
    void checkComplete();

    const Problems& problems() const { return m_problems; }
    /// The allowances that kept a fault from being told, by index.
    const QSet<int>& used() const { return m_used; }

private:
    void tell(const SourceLine& source, const QString& message) { m_problems.push_back({source, message}); }
    /// Tells a fault between two names unless the tree allows it.
    void tell(const SourceLine& source, const QString& message, const QStringList& some,
              const QStringList& others);

    void checkPair(const PlacedControl& one, const PlacedControl& other);
    void checkWire(const Wire& wire);
    void checkCovers(const Wire& wire, const Block& block);
    void checkEnds(const Wire& wire);
    void checkEnd(const Wire& wire, const QString& name, const Segment& piece, const QPointF& end);
    void checkBesides(const Wire& one, const Wire& other);
    void checkNose(const Mux& mux);
    void checkTitles(const Mux& mux);
    void checkGutter(const Tag& tag);
    void checkPixels(const SourceLine& source, const QString& name, const QRectF& lines);
    void checkRow(const Block& block);
    bool isFlagged(const Wire& wire) const;

    const Drawing& m_drawing;
    const PageLayout& m_page;
    SourceLine m_tree;
    std::vector<Block> m_controls;
    std::vector<Block> m_figures;
    Problems m_problems;
    QSet<int> m_used;
};

QRectF grown(const QRectF& rect, double by);
