#include "builder.h"

#include "route.h"

#include <QFontMetricsF>

#include <cmath>

namespace {

// Pixels. A multiplexer reaches from its radio buttons this far.
constexpr double muxBeforeRadios = 7;
constexpr double muxBehindRadios = 11;
constexpr double muxAtEnds = 15;
constexpr double muxSlope = 12;

constexpr double boxHeight = 20;
constexpr double boxTextMargin = 6;
constexpr double padSize = 10;

// The leads of a crystal end so far from the corners of their oscillator.
constexpr double leadInset = 4;
constexpr double leadBehindPin = 5;
constexpr double crystalWidth = 16;

constexpr int noNet = -1;

const QString fullValue = QStringLiteral("(192.000 MHz)");

class Builder
{
public:
    Builder(PageLayout& page, Drawing& drawing)
        : m_page(page), m_drawing(drawing), m_anchors(m_page, m_drawing)
    {
    }
    void add(const Statement& statement);
    void reserve(const QString& label, const QString& text);

private:
    void addLet(const Statement& statement);
    void addRoom(const Statement& statement);
    void addMux(const Statement& statement);
    void addBox(const Statement& statement);
    void addPad(const Statement& statement);
    void addText(const Statement& statement);
    void addCrystal(const Statement& statement);
    void addWire(const Statement& statement);

    void claimName(const QString& name, int net = noNet) const;
    PlacedControl& control(const QString& name);
    QPointF point(const Statement& statement) const;

    PageLayout& m_page;
    Drawing& m_drawing;
    Anchors m_anchors;
};

void needWords(const Statement& statement, int count)
{
    if (statement.words.size() != count)
        throw TreeError(QStringLiteral("%1 takes %2 words").arg(statement.keyword).arg(count));
}

/// Whether the word is "x=..." or "y=...", and along which axis.
std::optional<Qt::Orientation> axisOf(const QString& word)
{
    if (word.startsWith(QLatin1String("x=")))
        return Qt::Horizontal;
    if (word.startsWith(QLatin1String("y=")))
        return Qt::Vertical;
    return std::nullopt;
}

QRectF around(const QPointF& middle, double width, double height)
{
    return {middle.x() - width / 2, middle.y() - height / 2, width, height};
}

/// A trapezoid that fills the rectangle, short at the nose.
QPolygonF muxOutline(const QRectF& rect, Side nose)
{
    const double slope = muxSlope;
    if (nose == Side::Left)
        return {
            {rect.topLeft() + QPointF(0, slope), rect.topRight(), rect.bottomRight(),
             rect.bottomLeft() - QPointF(0, slope)}
        };
    return {
        {rect.topLeft(), rect.topRight() + QPointF(0, slope), rect.bottomRight() - QPointF(0, slope),
         rect.bottomLeft()}
    };
}

void Builder::add(const Statement& statement)
{
    static const QHash<QString, void (Builder::*)(const Statement&)> keywords{
        {QStringLiteral("let"),     &Builder::addLet    },
        {QStringLiteral("room"),    &Builder::addRoom   },
        {QStringLiteral("mux"),     &Builder::addMux    },
        {QStringLiteral("box"),     &Builder::addBox    },
        {QStringLiteral("pad"),     &Builder::addPad    },
        {QStringLiteral("text"),    &Builder::addText   },
        {QStringLiteral("crystal"), &Builder::addCrystal},
        {QStringLiteral("wire"),    &Builder::addWire   },
        {QStringLiteral("idle"),    &Builder::addWire   },
    };
    const auto handler = keywords.constFind(statement.keyword);
    if (handler == keywords.constEnd())
        throw TreeError(QStringLiteral("%1 is no keyword").arg(statement.keyword));
    (this->**handler)(statement);
}

/// Figures have names of their own; wires share one only if they carry the same signal.
void Builder::claimName(const QString& name, int net) const
{
    const Wire* wire = m_drawing.wire(name);
    if (!name.isEmpty() && (m_page.find(name) || m_drawing.rectOf(name) || (wire && wire->net != net)))
        throw TreeError(QStringLiteral("the name %1 is taken").arg(name));
}

PlacedControl& Builder::control(const QString& name)
{
    if (PlacedControl* control = m_page.find(name))
        return *control;
    throw TreeError(QStringLiteral("the page has no control %1").arg(name));
}

void Builder::reserve(const QString& label, const QString& text)
{
    PlacedControl& placed = control(label);
    placed.rect.setSize(extentOf(text, placed.font));
}

QPointF Builder::point(const Statement& statement) const
{
    QPointF point(-1, -1);
    for (const Word& word : statement.words) {
        const std::optional<Qt::Orientation> axis = axisOf(word.text);
        if (word.quoted || !axis)
            continue;
        const double value = onPixel(m_anchors.coordinate(word.text.mid(2), *axis));
        *axis == Qt::Horizontal ? point.setX(value) : point.setY(value);
    }
    if (point.x() < 0 || point.y() < 0)
        throw TreeError(QStringLiteral("%1 needs x= and y=").arg(statement.keyword));
    return point;
}

void Builder::addLet(const Statement& statement)
{
    needWords(statement, 2);
    const QString value = statement.words[1].text;
    const std::optional<Qt::Orientation> axis = axisOf(value);
    if (!axis)
        throw TreeError(QStringLiteral("let takes a name and x= or y="));
    m_anchors.define(statement.words[0].text, m_anchors.coordinate(value.mid(2), *axis));
}

void Builder::addRoom(const Statement& statement)
{
    needWords(statement, 2);
    reserve(statement.words[0].text, statement.words[1].text);
}

void Builder::addMux(const Statement& statement)
{
    if (statement.words.size() < 2)
        throw TreeError(QStringLiteral("mux takes the side of its nose and its radio buttons"));
    claimName(statement.name);
    Mux mux{statement.source, statement.name, Side::Right, {}, {}, {}};
    const QString nose = statement.words[0].text;
    if (nose != QLatin1String("left") && nose != QLatin1String("right"))
        throw TreeError(QStringLiteral("the nose of a multiplexer is left or right"));
    mux.nose = nose == QLatin1String("left") ? Side::Left : Side::Right;
    for (const Word& word : statement.words.mid(1)) {
        mux.rect |= control(word.text).rect;
        mux.radios << word.text;
    }
    if (mux.nose == Side::Left)
        mux.rect.adjust(-muxBehindRadios, -muxAtEnds, muxBeforeRadios, muxAtEnds);
    else
        mux.rect.adjust(-muxBeforeRadios, -muxAtEnds, muxBehindRadios, muxAtEnds);
    mux.outline = muxOutline(mux.rect, mux.nose);
    m_drawing.muxes.push_back(mux);
}

void Builder::addBox(const Statement& statement)
{
    needWords(statement, 3);
    claimName(statement.name);
    const QString text = statement.words[2].text;
    const double textWidth = extentOf(text, captionFont()).width();
    // An even width and height put the frame on whole pixels around a middle that lies on one.
    const double width = 2 * std::ceil(textWidth / 2 + boxTextMargin);
    m_drawing.boxes.push_back(
        {statement.source, statement.name, around(point(statement), width, boxHeight), text});
}

void Builder::addPad(const Statement& statement)
{
    needWords(statement, 2);
    claimName(statement.name);
    m_drawing.pads.push_back({statement.source, statement.name, around(point(statement), padSize, padSize)});
}

void Builder::addText(const Statement& statement)
{
    needWords(statement, 3);
    const QString text = statement.words[2].text;
    const QSizeF extent = extentOf(text, captionFont());
    m_drawing.captions.push_back(
        {statement.source, around(point(statement), std::ceil(extent.width()), extent.height()), text});
}

/// A lead from behind the label of a pin to the oscillator, level with the end of the crystal.
QPolygonF lead(const QRectF& pin, double level, double oscillator)
{
    const double middle = onPixel(pin.center().y());
    const double turn = onPixel(pin.right() + leadBehindPin);
    return {
        {QPointF(pin.right() + 1, middle), QPointF(turn, middle), QPointF(turn, level),
         QPointF(oscillator, level)}
    };
}

void Builder::addCrystal(const Statement& statement)
{
    needWords(statement, 3);
    const QRectF oscillator = control(statement.words[0].text).rect;
    const QRectF in = control(statement.words[1].text).rect;
    const QRectF out = control(statement.words[2].text).rect;
    const double top = onPixel(oscillator.top() + leadInset);
    const double bottom = onPixel(oscillator.bottom() - leadInset) - 1;
    const double left = std::max(in.right(), out.right()) + leadBehindPin;
    Crystal crystal{statement.source, {}, {}, {}};
    crystal.leads = {lead(in, top, oscillator.left()), lead(out, bottom, oscillator.left())};
    crystal.middle = {onPixel((left + oscillator.left()) / 2), (top + bottom) / 2};
    crystal.room = QRectF(QPointF(left, top), QPointF(oscillator.left(), bottom));
    if (crystal.room.width() < crystalWidth)
        throw TreeError(QStringLiteral("there is no room for a crystal at %1").arg(statement.words[0].text));
    m_drawing.crystals.push_back(crystal);
}

void Builder::addWire(const Statement& statement)
{
    if (statement.words.size() < 2)
        throw TreeError(QStringLiteral("%1 takes a start and an end").arg(statement.keyword));
    const Anchor start = m_anchors.anchor(statement.words.first().text);
    QVector<Bend> bends;
    std::optional<Anchor> end;
    for (const Word& word : statement.words.mid(1)) {
        if (end)
            throw TreeError(QStringLiteral("%1 stands behind the wire's end").arg(word.text));
        if (const std::optional<Qt::Orientation> axis = axisOf(word.text))
            bends.append({*axis, m_anchors.coordinate(word.text.mid(2), *axis)});
        else
            end = m_anchors.anchor(word.text);
    }
    const int net = start.net.value_or(static_cast<int>(m_drawing.wires.size()));
    claimName(statement.name, net);
    m_drawing.wires.push_back({statement.source, statement.name, route(start, bends, end), start.owner,
                               end ? end->owner : QString(), net, start.net.has_value(),
                               statement.keyword == QLatin1String("idle")});
}

} // namespace

QSizeF extentOf(const QString& text, const QFont& font)
{
    const QFontMetricsF metrics(font);
    return {metrics.horizontalAdvance(text), metrics.height()};
}

QFont captionFont()
{
    QFont font(QStringLiteral("Arial"), 9);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

Drawing buildDrawing(const std::vector<Statement>& statements, PageLayout& page, Problems& problems)
{
    Drawing drawing;
    Builder builder(page, drawing);
    for (const PlacedControl& control : page.controls) {
        if (control.empty)
            builder.reserve(control.name, fullValue);
    }
    for (const Statement& statement : statements) {
        try {
            builder.add(statement);
        } catch (const TreeError& error) {
            problems.push_back({statement.source, error.message()});
        }
    }
    return drawing;
}
