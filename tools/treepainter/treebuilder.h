#pragma once

#include "chain.h"
#include "route.h"

#include <QMap>

/// Places what the statements of one tree ask for, statement by statement. Everything throws TreeError on a
/// statement that cannot be drawn.
class TreeBuilder
{
public:
    TreeBuilder(PageLayout& page, Drawing& drawing)
        : m_page(page), m_drawing(drawing), m_anchors(m_page, m_drawing)
    {
    }
    void add(const Statement& statement);
    /// Keeps the room of a text free at a label that is narrower now.
    void reserve(const QString& label, const QString& text);
    /// Gives all multiplexers their shapes, once the wires that leave them are there.
    void shapeMuxes();
    /// What a part needs must be given by one, and be drawn.
    void checkJoints(Problems& problems) const;

private:
    using Handler = void (TreeBuilder::*)(const Statement&);
    static const QHash<QString, Handler>& handlers();

    void addAllowance(const Statement& statement);
    void addLet(const Statement& statement);
    void addRoom(const Statement& statement);
    void addSteps(const Statement& statement);
    void addNeeds(const Statement& statement);
    void addGives(const Statement& statement);

    void addMux(const Statement& statement);
    void addBox(const Statement& statement);
    void addPad(const Statement& statement);
    void addTag(const Statement& statement);
    void addText(const Statement& statement);
    void addFrame(const Statement& statement);
    void addCrystal(const Statement& statement);

    void addWire(const Statement& statement);
    void addChain(const Statement& statement);
    void addFan(const Statement& statement);

    void addClockOutput(const Statement& statement);
    void addSources(const Statement& statement);

    bool counts(const Statement& statement) const;
    /// Figures have names of their own; wires share one only if they carry the same signal.
    void claimName(const QString& name, std::optional<int> net = std::nullopt) const;
    PlacedControl& control(const QString& name);
    QPointF point(const Statement& statement) const;
    void placeMux(Mux mux);

    Wire& append(const Statement& statement, const QString& name, const QPolygonF& points,
                 const Anchor& start, const std::optional<Anchor>& end);
    void joinInRow(const Chain& chain, const Statement& statement);
    QStringList coversOf(const Wire& wire, const QStringList& fields) const;
    /// Pulls a bus bar from the end of a wire up and down to the rows, and past them.
    void addBar(const Statement& statement, const Wire& trunk, const QVector<double>& rows);

    /// A multiplexer with its nose joined to fields and figures on one row, and a flag for the name of every
    /// source.
    void addSelector(const Statement& statement, Mux mux, const QStringList& fields);
    void addSource(const Statement& statement, const QString& radio, double row);
    /// Gives the flags of the multiplexer's sources one width, or lets all of them end open.
    void evenOut(const Mux& mux, std::size_t firstTag);
    /// The label that names the source of a radio button, and the one that shows its value, if there is one.
    const PlacedControl& nameOf(const QString& radio) const;
    const PlacedControl* valueOf(const QString& radio) const;
    QStringList radiosOf(const QString& stem) const;

    PageLayout& m_page;
    Drawing& m_drawing;
    Anchors m_anchors;
    QHash<QString, QVector<Word>> m_steps; ///< of rows, by name
    QMap<QString, SourceLine> m_given;     ///< what leaves a part, by name
    std::vector<std::pair<SourceLine, QString>> m_needed;
};

/// Throws unless the statement has so many words.
void needWords(const Statement& statement, int count);
/// The place of the sign of a pin.
QRectF padAround(const QPointF& middle);
/// Whether the word is "x=..." or "y=...", and along which axis.
std::optional<Qt::Orientation> axisOf(const QString& word);
