#include "seriestree.h"

#include "pages/description/captions.h"
#include "pages/description/pagedescription.h"

#include <QFileInfo>

#include <algorithm>

namespace {

/// The lines that the pages have read already.
bool isPlace(const Statement& statement)
{
    static const QStringList keywords{QStringLiteral("place"), QStringLiteral("part"),
                                      QStringLiteral("columns"), QStringLiteral("rows")};
    return keywords.contains(statement.keyword);
}

QString textOf(const QString& pages, const QString& part)
{
    const QString shared = QStringLiteral("%1/layout/%2.tree").arg(pages, part);
    return QFileInfo::exists(shared) ? shared : QStringLiteral("%1/series/%2.tree").arg(pages, part);
}

/// The statement as the series has it.
Statement adapted(Statement statement, const PageDescription& page)
{
    const QString spelling = QLatin1String(page.hextEdit);
    for (Word& word : statement.words) {
        if (word.quoted)
            word.text = caption(word.text, page);
        else
            word.text.replace(QLatin1String("m_hext_lineEdit"), spelling);
    }
    for (QString& condition : statement.conditions)
        condition.replace(QLatin1String("m_hext_lineEdit"), spelling);
    return statement;
}

Statement made(const SourceLine& source, const char* keyword, const QString& name, const QStringList& words)
{
    Statement statement{source, QLatin1String(keyword), name, {}};
    for (const QString& word : words)
        statement.words.append({word, false});
    return statement;
}

} // namespace

std::vector<Statement> treeOf(const PageDescription& page, const QString& pages, Problems& problems)
{
    std::vector<PlacedPart> parts{{"grid"}};
    const std::vector<PlacedPart> own = layout::withInner(page.parts());
    parts.insert(parts.end(), own.begin(), own.end());
    std::vector<Statement> all;
    for (const PlacedPart& part : parts)
        for (Statement& statement : readTree(textOf(pages, QLatin1String(part.name)), problems)) {
            statement.corner = QPointF(part.x, part.y);
            if (!isPlace(statement))
                all.push_back(adapted(std::move(statement), page));
        }
    const SourceLine series{page.word(), 0};
    for (const ClockOutput& output : page.clockOutputs)
        all.push_back(made(series, "clockout", {}, {QLatin1String(output.stem)}));
    for (const PeripheralClock& clock : page.peripherals)
        all.push_back(made(
            series, "sources", QLatin1String(clock.stem),
            {clock.selector() + QLatin1Char('_'), clock.switchBox(), clock.result(), clock.titleLabel()}));
    return all;
}
