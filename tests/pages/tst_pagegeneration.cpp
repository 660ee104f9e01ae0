#include "pagefixture.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
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
    void firstRunAsksNothing_data() { seriesRows(); }
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
    bool generate(const PageFixture& page, const QStringList& presses, QStringList& shown);

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
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(text) == text.size();
}

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
    m_folder.reset(new QTemporaryDir);
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
        if (read(folder + QLatin1Char('/') + file) != "old")
            names += file.section(QLatin1Char('/'), 1).remove(QStringLiteral("zn64g110_"));
    return names.join(QLatin1Char(' '));
}

/// Presses a button, or acts on a conflict box: "yes", "ticked", "unticked" (all press Yes), "no" (ticks and
/// presses Cancel), "x" closes it.
DialogAnswers::Answer TestPageGeneration::answer(const QString& word)
{
    return [this, word](QDialog* box) {
        if (qobject_cast<QFileDialog*>(box))
            return DialogAnswers::choose(m_folder->path())(box);
        auto* tick = box->findChild<QCheckBox*>();
        if (!tick)
            return DialogAnswers::press(word.toLatin1().constData())(box);
        QString question;
        for (const QLabel* label : box->findChildren<QLabel*>())
            question += label->text();
        m_asked += question.remove(QStringLiteral(" file already exists.Do you want to replace it ? ")) +
                   (tick->isChecked() ? QLatin1String(" ticked") : QLatin1String());
        if (tick->text() != QLatin1String("Do this for the next conflicts"))
            m_asked += tick->text();
        if (word != QLatin1String("yes"))
            tick->setChecked(word == QLatin1String("ticked") || word == QLatin1String("no"));
        if (word == QLatin1String("x"))
            return DialogAnswers::close()(box);
        DialogAnswers::press(word == QLatin1String("no") ? "Cancel" : "Yes")(box);
    };
}

bool TestPageGeneration::generate(const PageFixture& page, const QStringList& presses, QStringList& shown)
{
    const auto at = [&](int i) { return answer(presses.value(i)); };
    DialogAnswers answers{at(-1), at(0), at(1), at(2), at(3), at(4)};
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
    const QString stem = QString::fromLatin1(page.page->description().stem);
    QStringList shown;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "takeUrl");
    QVERIFY(generate(page, {QStringLiteral(" Open Folder  ")}, shown));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QCOMPARE(shown, QStringList({QStringLiteral("Select directory"), finished(stem)}));
    QCOMPARE(m_opened, QStringList(m_folder->path()));
    for (QString file : files) {
        const QByteArray text = read(path(file.replace(QStringLiteral("zn64g110"), stem)));
        QVERIFY2(text.size() > 100 && !text.contains('\r'), qPrintable(file));
    }
    QCOMPARE(QDir(path(QStringLiteral("src"))).entryList(QDir::Files).size(), 2);
    QCOMPARE(QDir(path(QStringLiteral("inc"))).entryList(QDir::Files).size(), 2);
}

void TestPageGeneration::conflicts_data()
{
    QTest::addColumn<QString>("presses");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* presses, const char* asked, const char* expected) {
        QTest::newRow(presses) << QString::fromLatin1(presses) << QString::fromLatin1(asked)
                               << QString::fromLatin1(expected);
    };
    const char all[] = "clock.c clock.h main.c conf.h";
    row("yes yes yes yes OK", "clock.c, clock.h, main.c, conf.h", all);
    row("ticked OK", "clock.c", all);
    row("yes ticked OK", "clock.c, clock.h", all);
    row("yes yes ticked OK", "clock.c, clock.h, main.c", all);
    row("no OK", "clock.c", "");
    row("x OK", "clock.c", "");
    row("yes no OK", "clock.c, clock.h", "clock.c");
    row("yes yes no OK", "clock.c, clock.h, main.c", "clock.c clock.h");
    row("yes yes yes x OK", "clock.c, clock.h, main.c, conf.h", "clock.c clock.h main.c");
}

void TestPageGeneration::conflicts()
{
    QFETCH(QString, presses);
    QFETCH(QString, expected);
    const PageFixture page(ZN64G110);
    putOldFiles(m_folder->path());
    QStringList shown;
    const bool done = generate(page, presses.split(QLatin1Char(' ')), shown);
    QCOMPARE(done, expected.endsWith(QStringLiteral("conf.h")));
    QCOMPARE(shown, QStringList({QStringLiteral("Select directory"),
                                 done ? finished(QStringLiteral("zn64g110")) : QString::fromLatin1(failed)}));
    QTEST(m_asked.join(QStringLiteral(", ")).remove(QStringLiteral("zn64g110_")), "asked");
    QCOMPARE(replaced(m_folder->path()), expected);
    QCOMPARE(m_opened, QStringList());
}

void TestPageGeneration::tickedAnswerOutlivesTheRun()
{
    const PageFixture page(ZN64G110);
    const auto asked = [&](const char* presses) {
        m_asked.clear();
        QStringList shown;
        putOldFiles(m_folder->path());
        generate(page, QString::fromLatin1(presses).split(QLatin1Char(' ')), shown);
        return m_asked.join(QStringLiteral(", ")).remove(QStringLiteral("zn64g110_"));
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
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* obstacle, const QString& error, const char* expected) {
        QTest::newRow(name) << QString::fromLatin1(obstacle) << error << QString::fromLatin1(expected);
    };
    // A link to nowhere: nothing is there, and no folder can be made there.
    row("link for inc", "inc -> nowhere/x", errorBox("Creating \"inc\" folder error!"), "");
    row("link for src", "src -> nowhere/x", errorBox("Creating \"src\" folder error!"), "");
    row("file for src", "src", QLatin1String(failed), "");
    row("file for inc", "inc", QLatin1String(failed), "src/zn64g110_clock.c");
    row("folder for main.c", "src/main.c/", QLatin1String(failed),
        "src/zn64g110_clock.c inc/zn64g110_clock.h");
}

void TestPageGeneration::whatIsInTheWay()
{
    QFETCH(QString, obstacle);
    QFETCH(QString, error);
    QFETCH(QString, expected);
    const QStringList link = obstacle.split(QStringLiteral(" -> "));
    if (link.size() == 2)
        QVERIFY(QFile::link(path(link.last()), path(link.first())));
    else
        QVERIFY(obstacle.endsWith(QLatin1Char('/')) ? QDir().mkpath(path(obstacle))
                                                    : write(path(obstacle), "x"));
    const PageFixture page(ZN64G110);
    QStringList shown;
    QVERIFY(!generate(
        page,
        {obstacle.endsWith(QLatin1Char('/')) ? QStringLiteral("yes") : error.section(QLatin1Char(' '), -1),
         QStringLiteral("OK")},
        shown));
    QCOMPARE(shown, QStringList({QStringLiteral("Select directory"), error}));
    QStringList written;
    for (const QString& file : files)
        if (QFileInfo(path(file)).isFile())
            written += file;
    QCOMPARE(written.join(QLatin1Char(' ')), expected);
}

void TestPageGeneration::codeViewAsksNothing()
{
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/Code_Sample");
    const PageFixture page(ZN64G110);
    putOldFiles(folder);
    DialogAnswers answers{};
    page.page->Set_GenerateCodeMode(MODE_CODE_VIEW);
    QVERIFY(page.page->GenerateCode());
    QCOMPARE(answers.shown(), QStringList());
    QCOMPARE(replaced(folder), QStringLiteral("clock.c clock.h main.c conf.h"));
}

QTEST_MAIN(TestPageGeneration)
#include "tst_pagegeneration.moc"
