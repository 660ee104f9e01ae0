#include "designs.h"
#include "firmware/firmwarebuild.h"
#include "testdata.h"
#include "widgets/dialoganswers.h"

#include <QCheckBox>
#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

/// The files of a run against files written by hand, and what no page shows of a run: the pages' tests lead
/// the runs themselves.
class GenerationTest : public QObject
{
    Q_OBJECT

private slots:
    void matches_data()
    {
        QTest::addColumn<QString>("design");
        for (const char* name :
             {"g110_stepped src/clock.c", "g110_stepped src/main.c", "g110_hick src/clock.c",
              "g110_hick src/main.c", "g150_pll src/clock.c", "g150_pll src/main.c",
              "g150_hick48 src/clock.c", "g150_hick48 src/main.c", "g110_hick inc/clock.h",
              "g110_hick inc/conf.h", "g150_pll inc/clock.h", "g150_pll inc/conf.h"})
            QTest::newRow(name) << QString::fromLatin1(name).section(u' ', 0, 0);
    }

    void matches()
    {
        QFETCH(QString, design);
        const QString file = QString::fromLatin1(QTest::currentDataTag()).section(u' ', 1);
        ZN64ConfigCLK clock = namedDesign(design);
        const QString stem = stemOf(clock);
        const QTemporaryDir base;
        QVERIFY(firmware::generate(clock, base.path(), stem));
        const QString name =
            file.endsWith("main.c"_s) ? file : QString(file).replace(u'/', u'/' + stem + u'_');
        const auto made = contentOf(base.filePath(name)).split('\n');
        const auto wanted =
            contentOf(QStringLiteral(EXPECTED_DIR "/%1_%2.txt").arg(design, file.section(u'/', 1)))
                .split('\n');
        QVERIFY(wanted.size() > 10);
        for (int i = 0; i < qMin(made.size(), wanted.size()); ++i)
            QVERIFY2(
                made[i] == wanted[i],
                (QByteArray::number(i + 1) + ": '" + made[i] + "', not '" + wanted[i] + '\'').constData());
        QCOMPARE(made.size(), wanted.size());
    }

    void conflictBoxLooksAsTold()
    {
        QStringList texts;
        DialogAnswers answers{[&texts](QDialog* box) {
            for (const QWidget* each : box->findChildren<QWidget*>())
                if ((qobject_cast<const QLabel*>(each) || qobject_cast<const QAbstractButton*>(each)) &&
                    !each->visibleRegion().isEmpty())
                    texts += each->property("text").toString();
            QTest::keyClick(box, Qt::Key_Escape);
        }};
        bool proceed = true;
        bool replaceAll = true;
        ZN64ConfigCLK(ZN64G110).ShowConflictMessage("a.c"_s, proceed, replaceAll);
        QVERIFY(!proceed && !replaceAll);
        QCOMPARE(answers.shown(), QStringList("warning | warning |  | Cancel, Yes"_s));
        texts.removeAll(QString());
        texts.sort();
        QCOMPARE(texts.join(" | "_s),
                 "Cancel | Do this for the next conflicts | Yes | a.c file already exists.Do you "
                 "want to replace it ? "_s);
    }

    void failsWithoutATemplate()
    {
        const QTemporaryDir base;
        ZN64ConfigCLK clock(ZN64G110);
        QVERIFY(!clock.GenerateCode(base.path(), base.path(), "zn64none"_s));
        QVERIFY(QDir(base.path()).entryList(QDir::Files).isEmpty());
    }
};

QTEST_MAIN(GenerationTest)
#include "tst_generation.moc"
