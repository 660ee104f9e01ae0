#include "builder.h"

#include "treebuilder.h"

#include <QFontMetricsF>

#include <algorithm>

namespace {

const QString fullValue = QStringLiteral("(192.000 MHz)");

/// A name that an allowance means: labels without a name go by their text in quotes.
QString pairName(const Word& word)
{
    return word.quoted ? QLatin1Char('"') + word.text + QLatin1Char('"') : word.text;
}

/// Statements that draw wires come behind those that place figures.
bool isWired(const Statement& statement)
{
    static const QStringList keywords{QStringLiteral("wire"),     QStringLiteral("chain"),
                                      QStringLiteral("spine"),    QStringLiteral("fan"),
                                      QStringLiteral("clockout"), QStringLiteral("sources")};
    return keywords.contains(statement.keyword);
}

/// What is wrong with the statement, which then leaves nothing behind.
std::optional<QString> faultOf(TreeBuilder& builder, Drawing& drawing, const Statement& statement)
{
    const Drawing before = drawing;
    try {
        builder.add(statement);
        return std::nullopt;
    } catch (const TreeError& error) {
        drawing = before;
        return error.message();
    }
}

/// A wire may branch off one of another part, whatever the order of the parts: what cannot be drawn yet is
/// tried again while anything else can.
void drawWires(TreeBuilder& builder, Drawing& drawing, std::vector<Statement> wires, Problems& problems)
{
    Problems faults;
    for (std::size_t before = wires.size() + 1; !wires.empty() && wires.size() < before;) {
        before = wires.size();
        faults.clear();
        std::vector<Statement> rest;
        for (const Statement& statement : wires)
            if (const std::optional<QString> fault = faultOf(builder, drawing, statement)) {
                faults.push_back({statement.source, *fault});
                rest.push_back(statement);
            }
        wires = std::move(rest);
    }
    problems.insert(problems.end(), faults.begin(), faults.end());
}

} // namespace

const QHash<QString, TreeBuilder::Handler>& TreeBuilder::handlers()
{
    static const QHash<QString, Handler> keywords{
        {QStringLiteral("allow"),    &TreeBuilder::addAllowance  },
        {QStringLiteral("let"),      &TreeBuilder::addLet        },
        {QStringLiteral("room"),     &TreeBuilder::addRoom       },
        {QStringLiteral("steps"),    &TreeBuilder::addSteps      },
        {QStringLiteral("needs"),    &TreeBuilder::addNeeds      },
        {QStringLiteral("gives"),    &TreeBuilder::addGives      },
        {QStringLiteral("mux"),      &TreeBuilder::addMux        },
        {QStringLiteral("box"),      &TreeBuilder::addBox        },
        {QStringLiteral("pad"),      &TreeBuilder::addPad        },
        {QStringLiteral("tag"),      &TreeBuilder::addTag        },
        {QStringLiteral("text"),     &TreeBuilder::addText       },
        {QStringLiteral("region"),   &TreeBuilder::addText       },
        {QStringLiteral("frame"),    &TreeBuilder::addFrame      },
        {QStringLiteral("crystal"),  &TreeBuilder::addCrystal    },
        {QStringLiteral("wire"),     &TreeBuilder::addWire       },
        {QStringLiteral("chain"),    &TreeBuilder::addChain      },
        {QStringLiteral("spine"),    &TreeBuilder::addChain      },
        {QStringLiteral("fan"),      &TreeBuilder::addFan        },
        {QStringLiteral("clockout"), &TreeBuilder::addClockOutput},
        {QStringLiteral("sources"),  &TreeBuilder::addSources    },
    };
    return keywords;
}

void TreeBuilder::add(const Statement& statement)
{
    const auto handler = handlers().constFind(statement.keyword);
    if (handler == handlers().constEnd())
        throw TreeError(QStringLiteral("%1 is no keyword").arg(statement.keyword));
    if (!counts(statement))
        return;
    m_anchors.define(QStringLiteral("left"), statement.corner.x());
    m_anchors.define(QStringLiteral("top"), statement.corner.y());
    (this->**handler)(statement);
}

bool TreeBuilder::counts(const Statement& statement) const
{
    return std::all_of(statement.conditions.begin(), statement.conditions.end(), [this](const QString& name) {
        return name.startsWith(QLatin1Char('!')) ? !m_page.find(name.mid(1)) : m_page.find(name) != nullptr;
    });
}

void TreeBuilder::claimName(const QString& name, std::optional<int> net) const
{
    const Wire* wire = m_drawing.wire(name);
    if (!name.isEmpty() && (m_page.find(name) || m_drawing.rectOf(name) || (wire && wire->net != net)))
        throw TreeError(QStringLiteral("the name %1 is taken").arg(name));
}

PlacedControl& TreeBuilder::control(const QString& name)
{
    if (PlacedControl* control = m_page.find(name))
        return *control;
    throw TreeError(QStringLiteral("the page has no control %1").arg(name));
}

void TreeBuilder::reserve(const QString& label, const QString& text)
{
    PlacedControl& placed = control(label);
    const QSizeF room = extentOf(text, placed.font);
    placed.rect.setSize(room);
    m_drawing.rooms.insert(label, room);
}

void TreeBuilder::addAllowance(const Statement& statement)
{
    needWords(statement, 2);
    m_drawing.allowances.push_back(
        {statement.source, pairName(statement.words[0]), pairName(statement.words[1])});
}

void TreeBuilder::addLet(const Statement& statement)
{
    needWords(statement, 2);
    const QString value = statement.words[1].text;
    const std::optional<Qt::Orientation> axis = axisOf(value);
    if (!axis)
        throw TreeError(QStringLiteral("let takes a name and x= or y="));
    m_anchors.define(statement.words[0].text, m_anchors.coordinate(value.mid(2), *axis));
}

void TreeBuilder::addSteps(const Statement& statement)
{
    if (statement.name.isEmpty() || m_steps.contains(statement.name))
        throw TreeError(QStringLiteral("steps take a name of their own"));
    m_steps.insert(statement.name, statement.words);
}

void TreeBuilder::addNeeds(const Statement& statement)
{
    for (const Word& word : statement.words)
        m_needed.push_back({statement.source, word.text});
}

void TreeBuilder::addGives(const Statement& statement)
{
    for (const Word& word : statement.words) {
        if (m_given.contains(word.text))
            throw TreeError(QStringLiteral("%1 is given twice").arg(word.text));
        m_given.insert(word.text, statement.source);
    }
}

void TreeBuilder::checkJoints(Problems& problems) const
{
    for (const auto& [source, name] : m_needed)
        if (!m_given.contains(name))
            problems.push_back({source, QStringLiteral("no part gives %1").arg(name)});
    for (auto given = m_given.cbegin(); given != m_given.cend(); ++given) {
        const QString& name = given.key();
        if (!m_drawing.wire(name) && !m_drawing.rectOf(name) && !m_steps.contains(name))
            problems.push_back({given.value(), QStringLiteral("the part does not give %1").arg(name)});
    }
}

void TreeBuilder::addRoom(const Statement& statement)
{
    needWords(statement, 2);
    reserve(statement.words[0].text, statement.words[1].text);
}

void needWords(const Statement& statement, int count)
{
    if (statement.words.size() != count)
        throw TreeError(QStringLiteral("%1 takes %2 words").arg(statement.keyword).arg(count));
}

std::optional<Qt::Orientation> axisOf(const QString& word)
{
    if (word.startsWith(QLatin1String("x=")))
        return Qt::Horizontal;
    if (word.startsWith(QLatin1String("y=")))
        return Qt::Vertical;
    return std::nullopt;
}

QSizeF extentOf(const QString& text, const QFont& font)
{
    const QFontMetricsF metrics(font);
    return {metrics.horizontalAdvance(text), metrics.height()};
}

Drawing buildDrawing(const std::vector<Statement>& statements, PageLayout& page, Problems& problems)
{
    Drawing drawing;
    TreeBuilder builder(page, drawing);
    for (const PlacedControl& control : page.controls) {
        if (control.empty)
            builder.reserve(control.name, fullValue);
    }
    std::vector<Statement> wires;
    for (const Statement& statement : statements)
        if (isWired(statement))
            wires.push_back(statement);
        else if (const std::optional<QString> fault = faultOf(builder, drawing, statement))
            problems.push_back({statement.source, *fault});
    drawWires(builder, drawing, wires, problems);
    builder.shapeMuxes();
    builder.checkJoints(problems);
    return drawing;
}
