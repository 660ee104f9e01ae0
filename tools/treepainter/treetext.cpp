#include "treetext.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace {

constexpr int deepestInclude = 8;

/// Cuts a line at its blanks; a text in quotes is one word, and # begins a comment outside of quotes.
QVector<Word> wordsOf(const QString& line)
{
    QVector<Word> words;
    for (int at = 0; at < line.size() && line[at] != QLatin1Char('#');) {
        if (line[at].isSpace()) {
            ++at;
            continue;
        }
        const int start = at;
        if (line[at] == QLatin1Char('"')) {
            at = line.indexOf(QLatin1Char('"'), start + 1);
            if (at < 0)
                throw TreeError(QStringLiteral("the text has no closing quote"));
            words.append({line.mid(start + 1, at++ - start - 1), true});
            continue;
        }
        while (at < line.size() && !line[at].isSpace() && line[at] != QLatin1Char('#'))
            ++at;
        words.append({line.mid(start, at - start), false});
    }
    return words;
}

Statement statementOf(QVector<Word> words, const SourceLine& source)
{
    Statement statement{source, {}, {}, {}};
    while (!words.isEmpty() && !words.first().quoted && words.first().text.startsWith(QLatin1Char('?')))
        statement.conditions << words.takeFirst().text.mid(1);
    if (words.isEmpty())
        throw TreeError(QStringLiteral("a condition stands before a statement"));
    statement.keyword = words.takeFirst().text;
    if (!words.isEmpty() && !words.first().quoted && words.first().text.endsWith(QLatin1Char(':'))) {
        statement.name = words.takeFirst().text;
        statement.name.chop(1);
    }
    statement.words = std::move(words);
    return statement;
}

std::vector<Statement> readNested(const QString& path, Problems& problems, int depth);

/// Adds the statements of the included file in place of the include line.
void include(const Statement& line, const QString& folder, std::vector<Statement>& all, Problems& problems,
             int depth)
{
    if (line.words.size() != 1 || depth == deepestInclude) {
        problems.push_back({line.source, QStringLiteral("include takes one file, and no file itself again")});
        return;
    }
    const QString name = line.words.first().text;
    const QString path = folder + QLatin1Char('/') + name;
    if (!QFileInfo(path).isReadable()) {
        problems.push_back({line.source, QStringLiteral("there is no tree %1").arg(name)});
        return;
    }
    for (Statement& statement : readNested(path, problems, depth + 1)) {
        statement.conditions = line.conditions + statement.conditions;
        all.push_back(std::move(statement));
    }
}

std::vector<Statement> readNested(const QString& path, Problems& problems, int depth)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problems.push_back({
            {info.fileName(), 0},
            file.errorString()
        });
        return {};
    }
    std::vector<Statement> all;
    const QString text = QString::fromUtf8(file.readAll());
    for (Statement& statement : parseTree(text, info.fileName(), problems)) {
        if (statement.keyword == QLatin1String("include"))
            include(statement, info.path(), all, problems, depth);
        else
            all.push_back(std::move(statement));
    }
    return all;
}

} // namespace

QString Problem::text() const
{
    if (source.number == 0)
        return source.file + QLatin1String(": ") + message;
    return QStringLiteral("%1:%2: %3").arg(source.file).arg(source.number).arg(message);
}

std::vector<Statement> parseTree(const QString& text, const QString& file, Problems& problems)
{
    std::vector<Statement> statements;
    SourceLine source{file, 0};
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        ++source.number;
        try {
            const QVector<Word> words = wordsOf(line);
            if (!words.isEmpty())
                statements.push_back(statementOf(words, source));
        } catch (const TreeError& error) {
            problems.push_back({source, error.message()});
        }
    }
    return statements;
}

std::vector<Statement> readTree(const QString& path, Problems& problems)
{
    return readNested(path, problems, 0);
}
