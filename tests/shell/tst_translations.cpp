#include <QDirIterator>
#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

namespace {

/// Source texts and their translations, by context.
using Table = QMap<QString, QMap<QString, QString>>;

Table readTable(const QString& path)
{
    Table table;
    QFile file(path);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return table;
    const QDomNodeList contexts = document.elementsByTagName(QStringLiteral("context"));
    for (int i = 0; i < contexts.size(); ++i) {
        const QDomElement context = contexts.at(i).toElement();
        auto& texts = table[context.firstChildElement(QStringLiteral("name")).text()];
        for (auto message = context.firstChildElement(QStringLiteral("message")); !message.isNull();
             message = message.nextSiblingElement(QStringLiteral("message")))
            texts[message.firstChildElement(QStringLiteral("source")).text()] =
                message.firstChildElement(QStringLiteral("translation")).text();
    }
    return table;
}

bool isSeriesPage(const QString& context)
{
    static const QRegularExpression page(QStringLiteral("^ZN64[A-Z]+\\d+R?PLL$"));
    return page.match(context).hasMatch();
}

/// The string literals in the sources of the pages, with adjacent ones joined.
QSet<QString> literalsOfThePages()
{
    static const QRegularExpression literal(QStringLiteral("\"((?:[^\"\\\\\\n]|\\\\.)*)\""));
    static const QRegularExpression seam(QStringLiteral("(?<!\\\\)\"\\s*\""));
    QString code;
    QDirIterator files(QStringLiteral(SOURCE_FOLDER "/pages"),
                       {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly))
            code += QString::fromUtf8(file.readAll());
    }
    QSet<QString> literals;
    for (auto match = literal.globalMatch(code.remove(seam)); match.hasNext();)
        literals += match.next()
                        .captured(1)
                        .replace(QLatin1String("\\n"), QLatin1String("\n"))
                        .replace(QLatin1String("\\\""), QLatin1String("\""));
    return literals;
}

} // namespace

/// The tables against the code that asks for their texts.
class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void contextsHoldWhatTheirClassesAskFor();
    void pageTextsStandInTheTableAndInTheCode();
    void compiledTablesGiveTheTranslations();

private:
    Table m_english;
    Table m_chinese;
};

void TestTranslations::initTestCase()
{
    m_english = readTable(QStringLiteral(TABLE_FOLDER "/tr_en.ts"));
    m_chinese = readTable(QStringLiteral(TABLE_FOLDER "/tr_zh.ts"));
    QVERIFY(!m_english.isEmpty() && !m_chinese.isEmpty());
}

void TestTranslations::contextsHoldWhatTheirClassesAskFor()
{
    const QTemporaryDir folder;
    const QString found = folder.filePath(QStringLiteral("found.ts"));
    QCOMPARE(QProcess::execute(QStringLiteral(LUPDATE),
                               {QStringLiteral("-silent"), QStringLiteral("-recursive"),
                                QStringLiteral(SOURCE_FOLDER), QStringLiteral("-ts"), found}),
             0);
    const Table asked = readTable(found);
    QVERIFY(asked.size() >= 9);
    QStringList contexts = asked.keys() + m_chinese.keys();
    contexts.removeDuplicates();
    for (const QString& context : qAsConst(contexts))
        if (!isSeriesPage(context))
            QCOMPARE(m_chinese[context].keys(), asked[context].keys());
}

void TestTranslations::pageTextsStandInTheTableAndInTheCode()
{
    const QSet<QString> literals = literalsOfThePages();
    QSet<QString> texts;
    for (auto context = m_chinese.begin(); context != m_chinese.end(); ++context)
        if (isSeriesPage(context.key()))
            texts += QSet<QString>(context->keyBegin(), context->keyEnd());
    for (const QString& text : qAsConst(texts))
        QVERIFY2(literals.contains(text), qPrintable(QStringLiteral("not in the code: ") + text));

    // Only sentences for the user end like this.
    static const QRegularExpression sentence(QStringLiteral("\\w(!|\\?| than|<= \\d+MHz)$"));
    static const QRegularExpression noPageYet(QStringLiteral("(1000MHz|less than|apb3.*)$"));
    for (const QString& literal : literals)
        if (sentence.match(literal).hasMatch() && !noPageYet.match(literal).hasMatch())
            QVERIFY2(texts.contains(literal), qPrintable(QStringLiteral("not in the table: ") + literal));
}

void TestTranslations::compiledTablesGiveTheTranslations()
{
    for (const char* language : {"en", "zh"}) {
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(":/image/tr_%1.qm").arg(QLatin1String(language))));
        const Table& table = *language == 'z' ? m_chinese : m_english;
        for (auto context = table.begin(); context != table.end(); ++context) {
            for (auto text = context->begin(); text != context->end(); ++text) {
                const QString given =
                    translator.translate(context.key().toUtf8().constData(), text.key().toUtf8().constData());
                QCOMPARE(given, text.value());
                // A null text lets the source show.
                QCOMPARE(given.isNull(), text->isEmpty());
            }
        }
    }
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
