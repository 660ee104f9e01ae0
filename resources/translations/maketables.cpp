// Expands the table of texts into the translation sources of one language.

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QTextStream>
#include <QXmlStreamWriter>

#include <cstdlib>

namespace {

/// Source texts and their translations, by context. The maps sort, so that the output does not depend on
/// chance.
using Table = QMap<QString, QMap<QString, QString>>;

[[noreturn]] void fail(const QString& message)
{
    QTextStream(stderr) << "maketables: " << message << '\n';
    std::exit(EXIT_FAILURE);
}

QJsonObject readTexts(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail(path + QStringLiteral(": cannot be read"));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isObject())
        fail(path + QStringLiteral(": ") + error.errorString());
    return document.object();
}

QStringList contextsOf(const QString& in, const QJsonObject& sets)
{
    QStringList contexts;
    for (const QString& word : in.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (sets.contains(word))
            contexts += sets[word].toString().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        else if (word[0].isUpper())
            contexts += word;
        else
            fail(QStringLiteral("no set is named ") + word);
    }
    return contexts;
}

Table expand(const QJsonObject& root, const QString& language)
{
    Table table;
    const QJsonObject sets = root[QStringLiteral("sets")].toObject();
    const QJsonArray texts = root[QStringLiteral("texts")].toArray();
    for (const QJsonValue& each : texts) {
        const QString source = each[QStringLiteral("source")].toString();
        const bool sameAsSource = language == QLatin1String("en") && each[language].isUndefined();
        const QJsonValue translation = sameAsSource ? QJsonValue(source) : each[language];
        if (translation.isNull())
            continue;
        for (const QString& context : contextsOf(each[QStringLiteral("in")].toString(), sets)) {
            if (source.isEmpty() || !translation.isString() || table[context].contains(source))
                fail(context + QStringLiteral(": a faulty or second entry for: ") + source);
            table[context][source] = translation.toString();
        }
    }
    return table;
}

void writeTable(const Table& table, const QString& language, QIODevice* device)
{
    QXmlStreamWriter xml(device);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeDTD(QStringLiteral("<!DOCTYPE TS>"));
    xml.writeStartElement(QStringLiteral("TS"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("2.1"));
    xml.writeAttribute(QStringLiteral("language"), language);
    xml.writeAttribute(QStringLiteral("sourcelanguage"), QStringLiteral("en"));
    for (auto context = table.begin(); context != table.end(); ++context) {
        xml.writeStartElement(QStringLiteral("context"));
        xml.writeTextElement(QStringLiteral("name"), context.key());
        for (auto text = context->begin(); text != context->end(); ++text) {
            xml.writeStartElement(QStringLiteral("message"));
            xml.writeTextElement(QStringLiteral("source"), text.key());
            xml.writeTextElement(QStringLiteral("translation"), text.value());
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }
    xml.writeEndDocument();
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 4)
        fail(QStringLiteral("usage: maketables texts.json en|zh table.ts"));
    const QString language = QString::fromLocal8Bit(argv[2]);
    const Table table = expand(readTexts(QString::fromLocal8Bit(argv[1])), language);
    QFile file(QString::fromLocal8Bit(argv[3]));
    if (!file.open(QIODevice::WriteOnly))
        fail(file.fileName() + QStringLiteral(": cannot be written"));
    writeTable(table, language, &file);
    return EXIT_SUCCESS;
}
