#include "treetext.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace {

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
    const QFileInfo info(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problems.push_back({
            {info.fileName(), 0},
            file.errorString()
        });
        return {};
    }
    return parseTree(QString::fromUtf8(file.readAll()), info.fileName(), problems);
}
