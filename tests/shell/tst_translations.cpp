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

/// Whole numbers of entries that the tables of the shell and the base classes hold.
struct Count
{
    const char* context;
    int chinese;
    int english;
};
constexpr Count counts[] = {
    {"FormConfiguration", 39, 39},
    {"MCUSelect_Form",    13, 3 },
    {"HttpsDownload",     13, 13},
    {"ZN64PLLConfig",     10, 10},
    {"QObject",           5,  5 },
    {"MyQsciScintilla",   4,  0 },
    {"VersionAbout",      3,  3 },
    {"ProgressDialog",    3,  3 },
    {"ZN64MCUPLL",        1,  1 },
    {"ZN64G110PLL",       26, 26},
    {"ZN64G150PLL",       31, 29},
    {"ZN64G152PLL",       32, 30},
};

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
    static const QRegularExpression joined(
        QStringLiteral("\"((?:[^\"\\\\\\n]|\\\\.)*)\"(?:\\s*\"((?:[^\"\\\\\\n]|\\\\.)*)\")*"));
    static const QRegularExpression seam(QStringLiteral("(?<!\\\\)\"\\s*\""));
    QSet<QString> literals;
    QDirIterator files(QStringLiteral(SOURCE_FOLDER "/pages"),
                       {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        auto match = joined.globalMatch(QString::fromUtf8(file.readAll()));
        while (match.hasNext()) {
            QString text = match.next().captured();
            text = text.mid(1, text.size() - 2).remove(seam);
            literals += text.replace(QLatin1String("\\n"), QLatin1String("\n"))
                            .replace(QLatin1String("\\\""), QLatin1String("\""));
        }
    }
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
    void everyContextHasItsNumberOfEntries();
    void compiledTablesGiveTheTranslations_data();
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
    const QString noPageYet = QStringLiteral("1000MHz");
    for (const QString& literal : literals)
        if (sentence.match(literal).hasMatch() && !literal.endsWith(noPageYet))
            QVERIFY2(texts.contains(literal), qPrintable(QStringLiteral("not in the table: ") + literal));
}

void TestTranslations::everyContextHasItsNumberOfEntries()
{
    for (const Count& each : counts) {
        const QString context = QLatin1String(each.context);
        QVERIFY2(m_chinese[context].size() == each.chinese, each.context);
        QVERIFY2(m_english.value(context).size() == each.english, each.context);
    }
    QCOMPARE(m_chinese.size(), int(std::size(counts)));
    QCOMPARE(m_english.size(), int(std::size(counts)) - 1);
}

void TestTranslations::compiledTablesGiveTheTranslations_data()
{
    QTest::addColumn<QString>("resource");
    QTest::newRow("en") << QStringLiteral(":/image/tr_en.qm");
    QTest::newRow("zh") << QStringLiteral(":/image/tr_zh.qm");
}

void TestTranslations::compiledTablesGiveTheTranslations()
{
    QFETCH(QString, resource);
    const Table& table = resource.contains(QLatin1String("zh")) ? m_chinese : m_english;
    QTranslator translator;
    QVERIFY(translator.load(resource));
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

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
