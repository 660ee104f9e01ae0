#include "treebuilder.h"

#include <QRegularExpression>

#include <algorithm>

// Multiplexers whose sources go by their names: the clock outputs and the clocks of peripherals.

namespace {

// Pixels between a label and what stands around it.
constexpr double tagPadding = 3;
constexpr double tagTip = 7;
constexpr double tagAbove = 1;
// Between a flag and the value of its source.
constexpr double valueGap = 2;
// Between the middles of a radio button and of its name.
constexpr double sourceRoom = 3;
// Of a source off the row on which it could stand.
constexpr double rowRoom = 2;

// The pad of a clock output stands in one column on every page.
constexpr double padColumn = 60;

const QString sourceOfNothing = QStringLiteral("_noclk_");

/// The flag around the label of a source, its tip at the level of the radio button.
Tag tagAround(const QRectF& label, Side tip, double level)
{
    Tag tag;
    tag.rect = label.adjusted(-tagPadding, -tagAbove, tagPadding, tagAbove);
    tip == Side::Left ? tag.rect.setLeft(tag.rect.left() - tagTip)
                      : tag.rect.setRight(tag.rect.right() + tagTip);
    tag.tip = tip;
    tag.level = level;
    return tag;
}

} // namespace

QStringList TreeBuilder::radiosOf(const QString& stem) const
{
    QStringList radios;
    for (const PlacedControl& control : m_page.controls) {
        if (control.kind == ControlKind::Radio && control.name.startsWith(stem))
            radios << control.name;
    }
    if (radios.isEmpty())
        throw TreeError(QStringLiteral("the page has no radio buttons %1...").arg(stem));
    return radios;
}

const PlacedControl& TreeBuilder::nameOf(const QString& radio) const
{
    const QString stem = radio.chopped(int(qstrlen("RadioButton")));
    for (const char* kind : {"QLabel1", "QLabel"})
        if (const PlacedControl* label = m_page.find(stem + QLatin1String(kind)))
            return *label;
    throw TreeError(QStringLiteral("%1 has no label").arg(radio));
}

const PlacedControl* TreeBuilder::valueOf(const QString& radio) const
{
    const PlacedControl* value =
        m_page.find(radio.chopped(int(qstrlen("RadioButton"))) + QLatin1String("QLabel"));
    return value != &nameOf(radio) ? value : nullptr;
}

/// A source enters at the middle of its name, or on the row behind the nose where that is as good.
void TreeBuilder::addSource(const Statement& statement, const QString& radio, double row)
{
    const PlacedControl& label = nameOf(radio);
    const Mux* mux = m_drawing.mux(radio);
    const Anchor end = m_anchors.anchor(radio + QLatin1String(".in"));
    const double middle = onPixel(label.rect.center().y());
    const bool onRow = qAbs(row - middle) <= rowRoom && qAbs(row - end.level()) <= rowRoom;
    const double level = onRow ? row : middle;
    if (qAbs(level - end.level()) > sourceRoom)
        throw TreeError(QStringLiteral("%1 stands off its name").arg(radio));
    Tag tag = tagAround(label.rect, mux->nose, level);
    const bool idle = radio.contains(sourceOfNothing);
    if (!idle) {
        tag.source = statement.source;
        tag.label = label.name;
        m_drawing.tags.push_back(tag);
    }
    Anchor start;
    start.point = {mux->nose == Side::Left ? tag.rect.left() : tag.rect.right(), level};
    start.owner = label.name;
    Wire& wire = append(statement,
                        {
    },
                        QVector<QPointF>{start.point, {end.point.x(), level}}, start, end);
    wire.end = idle ? WireEnd::Idle : WireEnd::Arrow;
}

void TreeBuilder::evenOut(const Mux& mux, std::size_t firstTag)
{
    double right = 0;
    bool open = false;
    for (std::size_t i = firstTag; i < m_drawing.tags.size(); ++i)
        right = std::max(right, m_drawing.tags[i].rect.right());
    std::size_t at = firstTag;
    for (const QString& radio : mux.radios) {
        if (radio.contains(sourceOfNothing))
            continue;
        QRectF& rect = m_drawing.tags[at++].rect;
        const PlacedControl* value = valueOf(radio);
        if (!value) {
            rect.setRight(right);
            continue;
        }
        // Up to the value; a name that reaches into its value leaves no flag of the selector an end.
        open = open || nameOf(radio).rect.right() > value->rect.left() - valueGap;
        rect.setRight(value->rect.left() - valueGap);
    }
    for (std::size_t i = firstTag; i < m_drawing.tags.size(); ++i) {
        Tag& tag = m_drawing.tags[i];
        tag.open = open;
        if (tag.tip == Side::Right)
            for (Wire& wire : m_drawing.wires)
                if (wire.from == tag.label)
                    wire.points.first().setX(tag.rect.right());
    }
}

void TreeBuilder::addSelector(const Statement& statement, Mux mux, const QStringList& fields)
{
    claimName(mux.name);
    mux.source = statement.source;
    placeMux(mux);
    Statement row{
        statement.source, QStringLiteral("chain"), {}, {{mux.name + QLatin1String(".nose"), false}}};
    for (const QString& field : fields)
        row.words.append({field, false});
    const Chain chain = chainOf(row, m_anchors);
    joinInRow(chain, row);
    const std::size_t firstTag = m_drawing.tags.size();
    for (const QString& radio : mux.radios)
        addSource(statement, radio, chain.row);
    evenOut(mux, firstTag);
}

void TreeBuilder::addClockOutput(const Statement& statement)
{
    needWords(statement, 1);
    const QString stem = statement.words.first().text;
    const QString controls = QLatin1String("m_") + stem;
    const QString title = controls + QLatin1String("_QLabel");
    Mux mux{{}, stem, Side::Left, {}, {}, radiosOf(controls + QLatin1Char('_'))};
    if (m_page.find(title))
        mux.title = title;
    const QRegularExpression divider(QStringLiteral("^%1div\\d?_ComboBox$").arg(controls));
    std::vector<const PlacedControl*> steps{&control(controls + QLatin1String("pin_ComboBox"))};
    for (const PlacedControl& each : m_page.controls) {
        if (divider.match(each.name).hasMatch())
            steps.push_back(&each);
    }
    std::sort(steps.begin(), steps.end(), [](const PlacedControl* one, const PlacedControl* other) {
        return one->rect.left() > other->rect.left();
    });
    QStringList fields;
    for (const PlacedControl* step : steps)
        fields << step->name;
    const QString pad = stem + QLatin1String("pad");
    m_drawing.pads.push_back(
        {statement.source, pad, padAround({onPixel(padColumn), onPixel(steps.back()->rect.center().y())})});
    addSelector(statement, mux, fields << pad);
}

void TreeBuilder::addSources(const Statement& statement)
{
    if (statement.words.size() < 2)
        throw TreeError(QStringLiteral("sources takes the stem of radio buttons and the fields behind them"));
    Mux mux{{}, statement.name, Side::Right, {}, {}, radiosOf(statement.words.first().text)};
    QStringList fields;
    for (const Word& word : statement.words.mid(1)) {
        const PlacedControl* placed = m_page.find(word.text);
        if (placed && placed->kind == ControlKind::Label)
            mux.title = word.text;
        else
            fields << word.text;
    }
    if (fields.isEmpty())
        throw TreeError(QStringLiteral("sources needs a field behind the radio buttons"));
    if (m_anchors.rectOf(fields.first()).center().x() < control(mux.radios.first()).rect.left())
        mux.nose = Side::Left;
    addSelector(statement, mux, fields);
}
