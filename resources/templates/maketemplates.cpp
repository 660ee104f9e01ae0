// Puts the firmware templates of all stems together from the shared sources and the table of what differs.
// The language of the sources is told in README.md.

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTextStream>

#include <cstdlib>

namespace {
[[noreturn]] void fail(const QString& message)
{
    QTextStream(stderr) << "maketemplates: " << message << '\n';
    std::exit(EXIT_FAILURE);
}

QString read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail(path + QStringLiteral(": cannot be read"));
    return QString::fromUtf8(file.readAll());
}

void write(const QString& path, const QString& text)
{
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        fail(path + QStringLiteral(": cannot be written"));
}

QStringList wordsOf(const QString& text)
{
    return text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// One row of the table, with all that it takes over from the row that it is like.
struct Stem
{
    QSet<QString> has;
    QMap<QString, QString> values;
};

/// Every name that the sources ask for: a name of the table that none asks for is a slip.
QSet<QString> asked;

Stem stemOf(const QJsonObject& root, const QString& name)
{
    const QJsonObject stems = root[QStringLiteral("stems")].toObject();
    const QJsonObject families = root[QStringLiteral("families")].toObject();
    if (!stems.contains(name) && !families.contains(name))
        fail(QStringLiteral("no row is named ") + name);
    const QJsonObject row = (stems.contains(name) ? stems : families)[name].toObject();
    const QString like = row[QStringLiteral("like")].toString();
    Stem stem;
    if (!like.isEmpty())
        stem = stemOf(root, like);
    for (auto each = row.begin(); each != row.end(); ++each) {
        if (!each->isString())
            fail(name + QStringLiteral(": not a text: ") + each.key());
        if (each.key() != QLatin1String("has") && each.key() != QLatin1String("like"))
            stem.values[each.key()] = each->toString();
    }
    for (const QString& word : wordsOf(row[QStringLiteral("has")].toString()))
        stem.has += word;
    return stem;
}

/// Expands the sources for one stem.
class Expansion
{
public:
    Expansion(const QDir& sources, const Stem& stem) : m_sources(sources), m_stem(stem) {}

    QString expand(const QString& source)
    {
        QStringList lines = read(m_sources.filePath(source)).split(QLatin1Char('\n'));
        if (!lines.takeLast().isEmpty())
            fail(source + QStringLiteral(": ends without a line feed"));
        m_source = source;
        int at = 0;
        const QString text = block(lines, at, true);
        if (at < lines.size())
            fail(source + QStringLiteral(": %end or %else without a beginning"));
        return text;
    }

private:
    /// Reads up to the %end or %else that closes the block, or to the end of the lines.
    QString block(const QStringList& lines, int& at, bool kept)
    {
        QString text;
        for (; at < lines.size(); ++at) {
            const QString& line = lines[at];
            const QString directive =
                line.startsWith(QLatin1Char('%')) ? line.section(QLatin1Char(' '), 0, 0) : QString();
            const QString rest = line.mid(directive.size() + 1);
            if (directive.isEmpty())
                text += kept ? substituted(line) + QLatin1Char('\n') : QString();
            else if (directive == QLatin1String("%end") || directive == QLatin1String("%else"))
                return text;
            else if (directive == QLatin1String("%if"))
                text += choice(lines, at, kept, holds(rest));
            else if (directive == QLatin1String("%modules"))
                text += forEachModule(lines, at, kept);
            else if (directive == QLatin1String("%part"))
                text += kept ? part(substituted(rest)) : QString();
            else
                fail(m_source + QStringLiteral(": ") + line);
        }
        return text;
    }

    QString choice(const QStringList& lines, int& at, bool kept, bool condition)
    {
        QString text = block(lines, ++at, kept && condition);
        if (at < lines.size() && lines[at] == QLatin1String("%else"))
            text += block(lines, ++at, kept && !condition);
        expectEnd(lines, at);
        return text;
    }

    QString forEachModule(const QStringList& lines, int& at, bool kept)
    {
        const int first = at + 1;
        QString text;
        for (const QString& module : wordsOf(value(QStringLiteral("modules")))) {
            m_stem.values[QStringLiteral("module")] = module.toLower();
            at = first;
            text += block(lines, at, kept);
            expectEnd(lines, at);
        }
        return text;
    }

    QString part(const QString& name)
    {
        const QString source = m_source;
        const QString text = expand(QStringLiteral("parts/%1.in").arg(name));
        m_source = source;
        return text;
    }

    void expectEnd(const QStringList& lines, int at) const
    {
        if (at >= lines.size() || lines[at] != QLatin1String("%end"))
            fail(m_source + QStringLiteral(": an %end is missing"));
    }

    /// Whether the stem has one of the words; "!word" is had by the stems without the word.
    bool holds(const QString& words) const
    {
        bool any = false;
        for (QString word : wordsOf(words)) {
            const bool without = word.startsWith(QLatin1Char('!'));
            word.remove(QLatin1Char('!'));
            asked += word;
            any = any || m_stem.has.contains(word) != without;
        }
        return any;
    }

    QString value(const QString& name) const
    {
        asked += name;
        const auto found = m_stem.values.find(name);
        if (found == m_stem.values.end())
            fail(m_stem.values[QStringLiteral("stem")] + QStringLiteral(" lacks the value ") + name);
        return substituted(*found);
    }

    QString substituted(QString line) const
    {
        static const QRegularExpression reference(QStringLiteral(R"(\$\{(\w+)\})"));
        for (auto match = reference.match(line); match.hasMatch(); match = reference.match(line)) {
            const QString name = match.captured(1);
            const bool upper = name == name.toUpper();
            const QString text = value(name.toLower());
            line.replace(match.capturedStart(), match.capturedLength(), upper ? text.toUpper() : text);
        }
        return line;
    }

    const QDir m_sources;
    Stem m_stem;
    QString m_source;
};

QStringList makeStem(const QDir& sources, const QDir& target, const Stem& stem)
{
    QStringList names;
    for (const QString& ending : wordsOf(QStringLiteral("clock.c clock.h conf.h main.c"))) {
        QString text = Expansion(sources, stem).expand(ending + QStringLiteral(".in"));
        if (ending != QLatin1String("conf.h") || !stem.has.contains(QStringLiteral("lf-conf")))
            text.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
        names << stem.values[QStringLiteral("stem")] + QLatin1Char('_') + ending;
        write(target.filePath(names.last()), text);
    }
    return names;
}
} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3)
        fail(QStringLiteral("wanted: the folder of the sources, the folder of the templates"));
    const QDir sources(QString::fromLocal8Bit(argv[1]));
    const QDir target(QString::fromLocal8Bit(argv[2]));
    QJsonParseError error;
    const QJsonObject root =
        QJsonDocument::fromJson(read(sources.filePath(QStringLiteral("stems.json"))).toUtf8(), &error)
            .object();
    if (root.isEmpty())
        fail(QStringLiteral("stems.json: ") + error.errorString());

    const QJsonObject defaults = root[QStringLiteral("defaults")].toObject();
    QSet<QString> told;
    QString files;
    asked << QStringLiteral("lf-conf") << QStringLiteral("stem");
    for (const QString& name : root[QStringLiteral("stems")].toObject().keys()) {
        Stem stem = stemOf(root, name);
        for (auto each = defaults.begin(); each != defaults.end(); ++each)
            if (!stem.values.contains(each.key()))
                stem.values[each.key()] = each->toString();
        stem.values[QStringLiteral("stem")] = name;
        for (const QString& file : makeStem(sources, target, stem))
            files += QStringLiteral("        <file>%1</file>\n").arg(file);
        told += stem.has;
        for (const QString& key : stem.values.keys())
            told += key;
    }
    const QSet<QString> idle = told - asked;
    if (!idle.isEmpty())
        fail(QStringLiteral("no source asks for: ") + idle.values().join(QStringLiteral(", ")));
    write(
        target.filePath(QStringLiteral("templates.qrc")),
        QStringLiteral("<RCC>\n    <qresource prefix=\"/image\">\n%1    </qresource>\n</RCC>\n").arg(files));
    return EXIT_SUCCESS;
}
