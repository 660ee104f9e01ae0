#include "files/previewfolder.h"
#include "pagefixture.h"
#include "testdata.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QDir>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QUrl>

// A run of the generator as the page leads it: folder, conflicts, closing words, and what is on the disk
// then.

class TestPageGeneration : public QObject
{
    Q_OBJECT

public slots:
    void takeUrl(const QUrl& url) { m_opened += url.toLocalFile(); }

private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init();
    void firstRunAsksNothing_data() { templateRows(); }
    void firstRunAsksNothing();
    void conflicts_data();
    void conflicts();
    void tickedAnswerOutlivesTheRun();
    void whatIsInTheWay_data();
    void whatIsInTheWay();
    void codeViewAsksNothing();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    /// Fills the four files of the page with "old".
    void putOldFiles(const QString& folder) const;
    /// The names of the files that no longer hold "old".
    QString replaced(const QString& folder) const;
    DialogAnswers::Answer answer(const QString& word);
    /// The answers are words of answer(), behind the one that chooses the folder.
    bool generate(const PageFixture& page, const QString& words, QStringList& shown);

    QScopedPointer<QTemporaryDir> m_folder;
    QStringList m_opened;
    QStringList m_asked;
};

namespace {
const QStringList files{QStringLiteral("src/zn64g110_clock.c"), QStringLiteral("inc/zn64g110_clock.h"),
                        QStringLiteral("src/main.c"), QStringLiteral("inc/zn64g110_conf.h")};
const char failed[] = "critical | Error | Generate code failed! | OK";

bool write(const QString& path, const QByteArray& text)
{
    return QDir().mkpath(QFileInfo(path).path()) && writeFile(path, text);
}

QString finished(const QString& stem)
{
    return QStringLiteral(
               "information | Information | Generate code finished!  Files:\n\nsrc/main.c\nsrc/%1_clock.c\n"
               "inc/%1_clock.h\ninc/%1_conf.h\n |  Open Folder  , OK")
        .arg(stem);
}
} // namespace

void TestPageGeneration::init()
{
    m_folder.reset(new QTemporaryDir(scratchFolder()));
    QVERIFY(m_folder->isValid());
    m_opened.clear();
    m_asked.clear();
}

void TestPageGeneration::putOldFiles(const QString& folder) const
{
    for (const QString& file : files)
        QVERIFY(write(folder + QLatin1Char('/') + file, "old"));
}

QString TestPageGeneration::replaced(const QString& folder) const
{
    QStringList names;
    for (const QString& file : files)
        if (contentOf(folder + QLatin1Char('/') + file) != "old")
            names += file.section(QLatin1Char('/'), 1).remove(QStringLiteral("zn64g110_"));
    return names.join(QStringLiteral(", "));
}

/// Presses the button of the word, with "_" for a blank, or acts on a conflict box: "yes", "ticked",
/// "unticked" (all press Yes), "no" (ticks and presses Cancel), "x" (closes it).
DialogAnswers::Answer TestPageGeneration::answer(const QString& word)
{
    return [this, word](QDialog* box) {
        auto* tick = box->findChild<QCheckBox*>();
        if (!tick)
            return DialogAnswers::press(
                QString(word).replace(QLatin1Char('_'), QLatin1Char(' ')).toLatin1().constData())(box);
        QString question;
        for (const QLabel* label : box->findChildren<QLabel*>())
            question += label->text();
        m_asked += question.remove(QStringLiteral(" file already exists.Do you want to replace it ? "))
                       .remove(QStringLiteral("zn64g110_")) +
                   QLatin1String(tick->isChecked() ? " ticked" : "");
        if (tick->text() != QLatin1String("Do this for the next conflicts"))
            m_asked += tick->text();
        if (word != QLatin1String("yes"))
            tick->setChecked(word == QLatin1String("ticked") || word == QLatin1String("no"));
        if (word == QLatin1String("x"))
            return DialogAnswers::close()(box);
        DialogAnswers::press(word == QLatin1String("no") ? "Cancel" : "Yes")(box);
    };
}

bool TestPageGeneration::generate(const PageFixture& page, const QString& words, QStringList& shown)
{
    DialogAnswers answers{DialogAnswers::choose(m_folder->path())};
    for (const QString& word : words.split(QLatin1Char(' ')))
        answers.add(answer(word));
    page.page->Set_GenerateCodeMode(MODE_USER_BUTTON);
    const bool done = page.page->GenerateCode();
    shown = answers.shown();
    shown.removeAll(QStringLiteral("warning | warning |  | Cancel, Yes"));
    return done;
}

void TestPageGeneration::firstRunAsksNothing()
{
    QFETCH(QString, word);
    const PageFixture page(word);
    const QString stem = page.page->description().stem();
    QStringList shown;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "takeUrl");
    QVERIFY(generate(page, QStringLiteral("_Open_Folder__"), shown));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QCOMPARE(shown, QStringList({QStringLiteral("Select directory"), finished(stem)}));
    QCOMPARE(m_opened, QStringList(m_folder->path()));
    for (QString file : files) {
        const QByteArray text = contentOf(path(file.replace(QStringLiteral("zn64g110"), stem)));
        QVERIFY2(text.count('\n') > 20 && !text.contains('\r') && !text.contains("\n\n\n"), qPrintable(file));
        QVERIFY2(!text.contains("[#") && !text.contains("[/#"), qPrintable(file));
    }
    QCOMPARE(QDir(path(QStringLiteral("src"))).entryList(QDir::Files).size(), 2);
    QCOMPARE(QDir(path(QStringLiteral("inc"))).entryList(QDir::Files).size(), 2);
}

void TestPageGeneration::conflicts_data()
{
    // Presses, the files asked about, the files replaced.
    rows({
        "G110 | yes yes yes yes OK | clock.c, clock.h, main.c, conf.h | clock.c, clock.h, main.c, conf.h",
        "G110 | ticked OK | clock.c | clock.c, clock.h, main.c, conf.h",
        "G110 | yes ticked OK | clock.c, clock.h | clock.c, clock.h, main.c, conf.h",
        "G110 | yes yes ticked OK | clock.c, clock.h, main.c | clock.c, clock.h, main.c, conf.h",
        "G110 | no OK | clock.c |",
        "G110 | x OK | clock.c |",
        "G110 | yes no OK | clock.c, clock.h | clock.c",
        "G110 | yes yes no OK | clock.c, clock.h, main.c | clock.c, clock.h",
        "G110 | yes yes yes x OK | clock.c, clock.h, main.c, conf.h | clock.c, clock.h, main.c",
    });
}

void TestPageGeneration::conflicts()
{
    QFETCH(QStringList, fields);
    const PageFixture page(fields.at(0));
    putOldFiles(m_folder->path());
    QStringList shown;
    const bool done = generate(page, fields.at(1), shown);
    QCOMPARE(done, fields.at(3).endsWith(QStringLiteral("conf.h")));
    QCOMPARE(shown, QStringList({QStringLiteral("Select directory"),
                                 done ? finished(QStringLiteral("zn64g110")) : QString::fromLatin1(failed)}));
    QCOMPARE(m_asked.join(QStringLiteral(", ")), fields.at(2));
    QCOMPARE(replaced(m_folder->path()), fields.at(3));
    QCOMPARE(m_opened, QStringList());
}

void TestPageGeneration::tickedAnswerOutlivesTheRun()
{
    const PageFixture page(QStringLiteral("G110"));
    const auto asked = [&](const char* presses) {
        m_asked.clear();
        QStringList shown;
        putOldFiles(m_folder->path());
        generate(page, QString::fromLatin1(presses), shown);
        return m_asked.join(QStringLiteral(", "));
    };
    QCOMPARE(asked("ticked OK"), QStringLiteral("clock.c"));
    QCOMPARE(asked("yes OK"), QStringLiteral("clock.c ticked"));
    QCOMPARE(asked("no OK"), QStringLiteral("clock.c ticked"));
    QCOMPARE(asked("yes yes no OK"), QStringLiteral("clock.c, clock.h, main.c"));
    QCOMPARE(asked("ticked OK"), QStringLiteral("clock.c"));
    QCOMPARE(asked("unticked no OK"), QStringLiteral("clock.c ticked, clock.h"));
}

void TestPageGeneration::whatIsInTheWay_data()
{
    // A link to nowhere (no folder can be made there), a file or a folder; the folder that is told, if any;
    // what is written all the same.
    rows({
        "G110 | inc -> nowhere/x | inc |",
        "G110 | src -> nowhere/x | src |",
        "G110 | src | |",
        "G110 | inc | | src/zn64g110_clock.c",
        "G110 | src/main.c/ | | src/zn64g110_clock.c inc/zn64g110_clock.h",
    });
}

void TestPageGeneration::whatIsInTheWay()
{
    QFETCH(QStringList, fields);
    const QStringList link = fields.at(1).split(QStringLiteral(" -> "));
    const QString obstacle = path(link.first());
    if (link.size() == 2)
        QVERIFY(QFile::link(path(link.last()), obstacle));
    else
        QVERIFY(obstacle.endsWith(QLatin1Char('/')) ? QDir().mkpath(obstacle) : write(obstacle, "x"));
    const QString error = fields.at(2).isEmpty()
                              ? QString::fromLatin1(failed)
                              : errorBox(QStringLiteral("Creating \"%1\" folder error!").arg(fields.at(2)));
    const PageFixture page(fields.at(0));
    QStringList shown;
    const QString conflict = obstacle.endsWith(QLatin1Char('/')) ? QStringLiteral("yes ") : QString();
    QVERIFY(!generate(page, conflict + error.section(QLatin1Char(' '), -1), shown));
    QCOMPARE(shown, QStringList({QStringLiteral("Select directory"), error}));
    QStringList written;
    for (const QString& file : files)
        if (QFileInfo(path(file)).isFile())
            written += file;
    QCOMPARE(written.join(QLatin1Char(' ')), fields.at(3));
}

void TestPageGeneration::codeViewAsksNothing()
{
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/Code_Sample");
    const auto released = qScopeGuard(previewfolder::release);
    const PageFixture page(QStringLiteral("G110"));
    putOldFiles(folder);
    DialogAnswers answers{};
    page.page->Set_GenerateCodeMode(MODE_CODE_VIEW);
    QVERIFY(page.page->GenerateCode());
    QCOMPARE(answers.shown(), QStringList());
    QCOMPARE(replaced(folder), QStringLiteral("clock.c, clock.h, main.c, conf.h"));
}

QTEST_MAIN(TestPageGeneration)
#include "tst_pagegeneration.moc"
