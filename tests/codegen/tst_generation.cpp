#include "designs.h"

#include <QtTest>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

/// The run over the four files: what is asked, what is written, and what is left after a stop.
class GenerationTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void writesWithoutAQuestion();
    void looksAsTold();
    void stopsAtARefusedFile_data();
    void stopsAtARefusedFile();
    void remembersTheTick();
    void failsOnAnUnwritableFile();
    void failsWithoutATemplate();

private:
    struct Answer
    {
        QMessageBox::StandardButton button; // NoButton closes the box
        bool tick = false;
    };
    /// Runs a generation and answers its boxes in turn; a box beyond the answers is closed.
    bool generate(const QList<Answer>& answers = {});
    void fillWithOldFiles();
    QStringList oldFiles() const;

    QScopedPointer<QTemporaryDir> m_base;
    QScopedPointer<ZN64ConfigCLK> m_clock;
    QStringList m_asked;
    QList<bool> m_ticks; // the tick as each box showed it
};

namespace {
// In the order in which they are written.
const QStringList files{QStringLiteral("src/zn64g110_clock.c"), QStringLiteral("inc/zn64g110_clock.h"),
                        QStringLiteral("src/main.c"), QStringLiteral("inc/zn64g110_conf.h")};

QMessageBox* openBox()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

QLabel* question(const QMessageBox* box)
{
    for (QLabel* label : box->findChildren<QLabel*>())
        if (label->text().contains(QLatin1String("already exists")))
            return label;
    return nullptr;
}

} // namespace

void GenerationTest::init()
{
    m_base.reset(new QTemporaryDir);
    QVERIFY(QDir(m_base->path()).mkpath(QStringLiteral("src")) &&
            QDir(m_base->path()).mkpath(QStringLiteral("inc")));
    m_clock.reset(new ZN64ConfigCLK(namedDesign(QStringLiteral("g110_hick"))));
    m_clock->Set_GenerateCodeMode(MODE_USER_BUTTON);
}

bool GenerationTest::generate(const QList<Answer>& answers)
{
    m_asked.clear();
    m_ticks.clear();
    QTimer answering;
    connect(&answering, &QTimer::timeout, this, [&] {
        QMessageBox* box = openBox();
        if (!box)
            return;
        auto* tick = box->findChild<QCheckBox*>();
        m_ticks << tick->isChecked();
        m_asked << question(box)->text();
        const Answer answer = answers.value(m_asked.size() - 1, {QMessageBox::NoButton});
        tick->setChecked(answer.tick);
        if (answer.button == QMessageBox::NoButton)
            box->close();
        else
            box->button(answer.button)->click();
    });
    answering.start(0);
    return m_clock->GenerateCode(m_base->filePath(QStringLiteral("inc")),
                                 m_base->filePath(QStringLiteral("src")), QStringLiteral("zn64g110"));
}

void GenerationTest::fillWithOldFiles()
{
    for (const QString& name : files) {
        QFile file(m_base->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("old");
    }
}

QStringList GenerationTest::oldFiles() const
{
    QStringList old;
    for (const QString& name : files) {
        QFile file(m_base->filePath(name));
        if (file.open(QIODevice::ReadOnly) && file.readAll() == "old")
            old << name;
    }
    return old;
}

void GenerationTest::writesWithoutAQuestion()
{
    QVERIFY(generate()); // nothing is there yet
    QCOMPARE(m_asked, QStringList());
    for (const QString& name : files)
        QVERIFY(QFile::exists(m_base->filePath(name)));
    fillWithOldFiles();
    m_clock->Set_GenerateCodeMode(MODE_CODE_VIEW);
    QVERIFY(generate());
    QCOMPARE(m_asked, QStringList());
    QCOMPARE(oldFiles(), QStringList());
}

void GenerationTest::looksAsTold()
{
    bool seen = false;
    QTimer::singleShot(0, this, [&seen] {
        QMessageBox* box = openBox();
        QVERIFY(box);
        QCOMPARE(box->icon(), QMessageBox::Warning);
        QCOMPARE(box->windowTitle(), QStringLiteral("warning"));
        QCOMPARE(box->text(), QString());
        QCOMPARE(question(box)->text(),
                 QStringLiteral("a.c file already exists.Do you want to replace it ? "));
        QCOMPARE(box->findChild<QCheckBox*>()->text(), QStringLiteral("Do this for the next conflicts"));
        QCOMPARE(box->button(QMessageBox::Yes)->text(), QStringLiteral("Yes"));
        QCOMPARE(box->button(QMessageBox::Cancel)->text(), QStringLiteral("Cancel"));
        QVERIFY(!box->button(QMessageBox::Yes)->visibleRegion().isEmpty());
        seen = true;
        QTest::keyClick(box, Qt::Key_Escape);
    });
    bool proceed = true;
    bool replaceAll = true;
    m_clock->ShowConflictMessage(QStringLiteral("a.c"), proceed, replaceAll);
    QVERIFY(seen && !proceed && !replaceAll);
}

void GenerationTest::stopsAtARefusedFile_data()
{
    QTest::addColumn<int>("refused");
    QTest::addColumn<bool>("close");
    for (int refused = 0; refused <= files.size(); ++refused)
        QTest::addRow("%d", refused) << refused << (refused % 2 == 0);
}

void GenerationTest::stopsAtARefusedFile()
{
    QFETCH(int, refused);
    QFETCH(bool, close);
    fillWithOldFiles();
    QList<Answer> answers;
    for (int i = 0; i < refused; ++i)
        answers << Answer{QMessageBox::Yes};
    answers << Answer{close ? QMessageBox::NoButton : QMessageBox::Cancel, true};
    QCOMPARE(generate(answers), refused == files.size());
    QStringList questions;
    for (const QString& name : files.mid(0, refused + 1))
        questions << name.mid(4) + QStringLiteral(" file already exists.Do you want to replace it ? ");
    QCOMPARE(m_asked, questions);
    QCOMPARE(oldFiles(), files.mid(refused));
    // Anything but Yes forgets the tick, though it was set in the refused box.
    generate();
    QCOMPARE(m_ticks.value(0), false);
}

void GenerationTest::remembersTheTick()
{
    fillWithOldFiles();
    QVERIFY(generate({
        {QMessageBox::Yes, true}
    }));
    QCOMPARE(m_ticks, QList<bool>{false});
    QCOMPARE(oldFiles(), QStringList());
    // The clock source is asked about all the same, with the box ticked; unticking asks for the rest again.
    QVERIFY(generate({
        {QMessageBox::Yes, true}
    }));
    QCOMPARE(m_ticks, QList<bool>{true});
    QVERIFY(generate({
        {QMessageBox::Yes, false},
        {QMessageBox::Yes, true }
    }));
    QCOMPARE(m_ticks, (QList<bool>{true, false}));
    QVERIFY(!generate({
        {QMessageBox::Cancel, true}
    }));
    QVERIFY(!generate({{QMessageBox::Cancel}}));
    QCOMPARE(m_ticks, QList<bool>{false});
}

void GenerationTest::failsOnAnUnwritableFile()
{
    for (int unwritable = files.size() - 1; unwritable >= 0; --unwritable) {
        init();
        QVERIFY(QDir(m_base->path()).mkpath(files[unwritable])); // a folder stands in its place
        m_clock->Set_GenerateCodeMode(MODE_CODE_VIEW);
        QVERIFY(!generate());
        for (int i = 0; i < files.size(); ++i)
            QCOMPARE(QFileInfo(m_base->filePath(files[i])).isFile(), i < unwritable);
    }
}

void GenerationTest::failsWithoutATemplate()
{
    QVERIFY(!m_clock->GenerateCode(m_base->path(), m_base->path(), QStringLiteral("zn64none")));
    QVERIFY(QDir(m_base->path()).entryList(QDir::Files).isEmpty());
}

QTEST_MAIN(GenerationTest)
#include "tst_generation.moc"
