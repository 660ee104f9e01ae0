#include "builder.h"
#include "treebuilder.h"

#include <algorithm>
#include <cmath>

namespace {

// Pixels. A multiplexer reaches from its radio buttons this far.
constexpr double muxBeforeRadios = 4;
constexpr double muxBehindRadios = 11;
constexpr double muxAtEnds = 11;
constexpr double muxSlope = 12;
// Between a multiplexer and its title.
constexpr double titleGap = 5;
// A title further away belongs to something else.
constexpr double titleReach = 60;

constexpr double boxHeight = 20;
constexpr double boxTextMargin = 6;
constexpr double padSize = 10;
constexpr double frameTitleRight = 8;
constexpr double frameTitleMargin = 3;

// The leads of a crystal end so far from the corners of their oscillator.
constexpr double leadInset = 4;
constexpr double leadBehindPin = 5;
constexpr double crystalWidth = 16;

QRectF around(const QPointF& middle, double width, double height)
{
    return {middle.x() - width / 2, middle.y() - height / 2, width, height};
}

/// A frame around a text. An even width and height put it on whole pixels around a middle that lies on one.
QRectF framed(const QString& text, const QPointF& middle)
{
    const double textWidth = extentOf(text, tree::captionFont()).width();
    return around(middle, 2 * std::ceil(textWidth / 2 + boxTextMargin), boxHeight);
}

/// Makes the shape even about the level of its nose and as high as its title lets it; where the title stands
/// too close for that, it reaches up or down to it.
void balance(QRectF& mux, double nose, const std::optional<QRectF>& title)
{
    const double half = std::max(nose - mux.top(), mux.bottom() - nose);
    if (!title) {
        mux.setTop(nose - half);
        mux.setBottom(nose + half);
        return;
    }
    const bool above = title->center().y() < nose;
    const double reach = (above ? nose - title->bottom() : title->top() - nose) - titleGap;
    if (reach >= half) {
        mux.setTop(nose - reach);
        mux.setBottom(nose + reach);
    } else {
        above ? mux.setTop(nose - reach) : mux.setBottom(nose + reach);
    }
}

/// A trapezoid that fills the rectangle, short at the nose. Its lines lie on whole pixels.
QPolygonF muxOutline(const QRectF& whole, Side nose)
{
    const QRectF rect = whole.adjusted(0.5, 0.5, -0.5, -0.5);
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

Side leftOrRight(const QString& word, const QString& what)
{
    if (word != QLatin1String("left") && word != QLatin1String("right"))
        throw TreeError(QStringLiteral("%1 is left or right").arg(what));
    return word == QLatin1String("left") ? Side::Left : Side::Right;
}

} // namespace

QRectF padAround(const QPointF& middle)
{
    return around(middle, padSize, padSize);
}

QPointF TreeBuilder::point(const Statement& statement) const
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

void TreeBuilder::addMux(const Statement& statement)
{
    if (statement.words.size() < 2)
        throw TreeError(QStringLiteral("mux takes the side of its nose and its radio buttons"));
    claimName(statement.name);
    const Side nose = leftOrRight(statement.words[0].text, QStringLiteral("the nose of a multiplexer"));
    Mux mux{statement.source, statement.name, nose, {}, {}, {}, {}};
    for (const Word& word : statement.words.mid(1)) {
        if (control(word.text).kind == ControlKind::Label)
            mux.title = word.text;
        else
            mux.radios << word.text;
    }
    placeMux(mux);
}

void TreeBuilder::placeMux(Mux mux)
{
    for (const QString& radio : mux.radios)
        mux.rect |= control(radio).rect;
    if (mux.nose == Side::Left)
        mux.rect.adjust(-muxBehindRadios, -muxAtEnds, muxBeforeRadios, muxAtEnds);
    else
        mux.rect.adjust(-muxBeforeRadios, -muxAtEnds, muxBehindRadios, muxAtEnds);
    if (!mux.title.isEmpty()) {
        const QRectF title = control(mux.title).rect;
        const double distance = std::max(mux.rect.top() - title.bottom(), title.top() - mux.rect.bottom());
        if (distance < -muxAtEnds || distance > titleReach)
            throw TreeError(QStringLiteral("the title stands neither above nor below its multiplexer"));
    }
    m_drawing.muxes.push_back(mux);
}

void TreeBuilder::shapeMuxes()
{
    for (Mux& mux : m_drawing.muxes) {
        const auto nose = std::find_if(m_drawing.wires.begin(), m_drawing.wires.end(),
                                       [&mux](const Wire& wire) { return wire.from == mux.name; });
        const double level =
            nose != m_drawing.wires.end() ? nose->points.first().y() : onPixel(mux.rect.center().y());
        balance(mux.rect, level,
                mux.title.isEmpty() ? std::nullopt : std::make_optional(control(mux.title).rect));
        mux.outline = muxOutline(mux.rect, mux.nose);
    }
}

void TreeBuilder::addFrame(const Statement& statement)
{
    needWords(statement, 5);
    if (!statement.words.first().quoted)
        throw TreeError(QStringLiteral("frame takes its title and the places of its sides"));
    const auto side = [&](int word, Qt::Orientation axis) {
        return m_anchors.coordinate(statement.words[word].text, axis);
    };
    const QRectF rect(QPointF(side(1, Qt::Horizontal), side(2, Qt::Vertical)),
                      QPointF(side(3, Qt::Horizontal), side(4, Qt::Vertical)));
    const QString title = statement.words.first().text;
    m_drawing.frames.push_back({statement.source, rect});
    // The title interrupts the upper line.
    const QSizeF extent = extentOf(title, tree::captionFont(tree::Style::Frame));
    const double width = 2 * std::ceil(extent.width() / 2 + frameTitleMargin);
    m_drawing.captions.push_back({
        statement.source,
        {rect.left() + frameTitleRight, rect.top() - std::ceil(extent.height() / 2), width, extent.height()},
        title,
        tree::Style::Frame
    });
}

void TreeBuilder::addBox(const Statement& statement)
{
    needWords(statement, 3);
    claimName(statement.name);
    const QString text = statement.words[2].text;
    m_drawing.boxes.push_back({statement.source, statement.name, framed(text, point(statement)), text});
}

void TreeBuilder::addPad(const Statement& statement)
{
    needWords(statement, 2);
    claimName(statement.name);
    m_drawing.pads.push_back({statement.source, statement.name, padAround(point(statement))});
}

void TreeBuilder::addTag(const Statement& statement)
{
    needWords(statement, 4);
    claimName(statement.name);
    const Side tip = leftOrRight(statement.words[0].text, QStringLiteral("the tip of a tag"));
    const QPointF middle = point(statement);
    const QString text = statement.words[3].text;
    // Its edges lie between pixels, like those of the flags around labels.
    const QRectF rect = framed(text, middle).adjusted(-0.5, -0.5, 0.5, 0.5);
    m_drawing.tags.push_back({statement.source, statement.name, rect, tip, middle.y(), text, {}});
}

void TreeBuilder::addText(const Statement& statement)
{
    needWords(statement, 3);
    const QString text = statement.words[2].text;
    const tree::Style style =
        statement.keyword == QLatin1String("region") ? tree::Style::Region : tree::Style::Plain;
    const QSizeF extent = extentOf(text, tree::captionFont(style));
    m_drawing.captions.push_back({statement.source,
                                  around(point(statement), std::ceil(extent.width()), extent.height()), text,
                                  style});
}

void TreeBuilder::addCrystal(const Statement& statement)
{
    needWords(statement, 3);
    const QRectF oscillator = control(statement.words[0].text).rect;
    const QRectF in = control(statement.words[1].text).rect;
    const QRectF out = control(statement.words[2].text).rect;
    const double top = onPixel(oscillator.top() + leadInset);
    const double bottom = onPixel(oscillator.bottom() - leadInset) - 1;
    const double left = std::max(in.right(), out.right()) + leadBehindPin;
    Crystal crystal{statement.source, statement.words[0].text, {}, {}, {}};
    crystal.leads = {lead(in, top, oscillator.left()), lead(out, bottom, oscillator.left())};
    crystal.middle = {onPixel((left + oscillator.left()) / 2), (top + bottom) / 2};
    crystal.room = QRectF(QPointF(left, top), QPointF(oscillator.left(), bottom));
    if (crystal.room.width() < crystalWidth)
        throw TreeError(QStringLiteral("there is no room for a crystal at %1").arg(statement.words[0].text));
    m_drawing.crystals.push_back(crystal);
}
