#include "testdata.h"

#include <QDirIterator>
#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
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
    const QDomNodeList contexts = document.elementsByTagName("context"_s);
    for (int i = 0; i < contexts.size(); ++i) {
        const QDomElement context = contexts.at(i).toElement();
        auto& texts = table[context.firstChildElement("name"_s).text()];
        for (auto message = context.firstChildElement("message"_s); !message.isNull();
             message = message.nextSiblingElement("message"_s))
            texts[message.firstChildElement("source"_s).text()] =
                message.firstChildElement("translation"_s).text();
    }
    return table;
}

/// How many contexts a table has, and how many entries in all.
QPair<int, int> sizeOf(const Table& table)
{
    int entries = 0;
    for (const auto& texts : table)
        entries += texts.size();
    return {table.size(), entries};
}

bool isSeriesPage(const QString& context)
{
    static const QRegularExpression page("^ZN64[A-Z]+\\d+R?PLL$"_s);
    return page.match(context).hasMatch();
}

/// The string literals in the sources of the pages, with adjacent ones joined.
QSet<QString> literalsOfThePages()
{
    static const QRegularExpression literal("\"((?:[^\"\\\\\\n]|\\\\.)*)\""_s);
    static const QRegularExpression seam("(?<!\\\\)\"\\s*\""_s);
    QString code;
    QDirIterator files(QStringLiteral(SOURCE_FOLDER "/pages"), {"*.cpp"_s, "*.h"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly))
            code += QString::fromUtf8(file.readAll());
    }
    QSet<QString> literals;
    for (auto match = literal.globalMatch(code.remove(seam)); match.hasNext();)
        literals += match.next().captured(1).replace("\\n"_s, "\n"_s).replace("\\\""_s, "\""_s);
    return literals;
}

/// The numbers of a text, and the names of clocks and parameters, which no language changes.
QStringList fixedWords(const QString& text)
{
    static const QRegularExpression word("\\d+(\\.\\d+)?|[a-z]+(\\d[a-z]+|_[a-z]+)|hext|sclk|pll|%1"_s);
    QStringList words;
    for (auto match = word.globalMatch(text); match.hasNext();)
        words += match.next().captured();
    words.sort();
    return words;
}

} // namespace

/// The tables against the code that asks for their texts.
class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_english = readTable(QStringLiteral(TABLE_FOLDER "/tr_en.ts"));
        m_chinese = readTable(QStringLiteral(TABLE_FOLDER "/tr_zh.ts"));
        m_own = readTable(QStringLiteral(TABLE_FOLDER "/own_zh.ts"));
        // Contexts, then entries: a page that drops out of a set is missed by its users only.
        QCOMPARE(sizeOf(m_chinese), qMakePair(33, 776));
        QCOMPARE(sizeOf(m_english), qMakePair(32, 709));
    }

    void contextsHoldWhatTheirClassesAskFor()
    {
        const QTemporaryDir folder;
        const QString found = folder.filePath("found.ts"_s);
        QCOMPARE(QProcess::execute(QStringLiteral(LUPDATE), {"-silent"_s, "-recursive"_s,
                                                             QStringLiteral(SOURCE_FOLDER), "-ts"_s, found}),
                 0);
        const Table asked = readTable(found);
        QVERIFY(asked.size() >= 9);
        QStringList contexts = asked.keys() + m_chinese.keys() + m_own.keys();
        contexts.removeDuplicates();
        for (const QString& context : qAsConst(contexts)) {
            if (isSeriesPage(context))
                continue;
            QStringList told = m_chinese[context].keys() + m_own[context].keys();
            told.sort();
            QCOMPARE(told, asked[context].keys());
        }
    }

    void pageTextsStandInTheTableAndInTheCode()
    {
        const QSet<QString> literals = literalsOfThePages();
        QSet<QString> texts;
        for (auto context = m_chinese.begin(); context != m_chinese.end(); ++context)
            if (isSeriesPage(context.key()))
                texts += QSet<QString>(context->keyBegin(), context->keyEnd());
        for (const QString& text : qAsConst(texts))
            QVERIFY2(literals.contains(text), qPrintable("not in the code: "_s + text));

        // Only sentences for the user end like this.
        static const QRegularExpression sentence("\\w(!|\\?| than|<= \\d+MHz)$"_s);
        for (const QString& literal : literals)
            if (sentence.match(literal).hasMatch())
                QVERIFY2(texts.contains(literal), qPrintable("not in the table: "_s + literal));
    }

    void translationsKeepNumbersAndNames()
    {
        int withWords = 0;
        for (const Table& table : {m_english, m_chinese})
            for (const auto& texts : table)
                for (auto text = texts.begin(); text != texts.end(); ++text) {
                    // Names another bus and a mark of its own in both languages, and has to.
                    if (text->isEmpty() || text.key() == "Can not support apb3clk greater than"_s)
                        continue;
                    QVERIFY2(fixedWords(*text) == fixedWords(text.key()), qPrintable(*text));
                    withWords += !fixedWords(*text).isEmpty();
                }
        QVERIFY2(withWords > 300, qPrintable(QString::number(withWords)));
    }

    void compiledTablesGiveTheTranslations()
    {
        for (const char* language : {"en", "zh"}) {
            QTranslator translator;
            QVERIFY(translator.load(":/image/tr_%1.qm"_s.arg(QLatin1String(language))));
            const Table& table = *language == 'z' ? m_chinese : m_english;
            for (auto context = table.begin(); context != table.end(); ++context) {
                for (auto text = context->begin(); text != context->end(); ++text) {
                    const QString given = translator.translate(context.key().toUtf8().constData(),
                                                               text.key().toUtf8().constData());
                    QCOMPARE(given, text.value());
                    // A null text lets the source show.
                    QCOMPARE(given.isNull(), text->isEmpty());
                }
            }
        }
    }

private:
    Table m_english;
    Table m_chinese;
    Table m_own;
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "testdata.h"
#include "tst_translations.moc"
