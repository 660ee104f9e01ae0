#include "model/ZN64ConfigCLK.h"
#include "testdata.h"
#include "widgets/dialoganswers.h"

#include <QCheckBox>
#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

/// What the run over the four files does that no page shows: the pages' tests lead the runs themselves.
class GenerationTest : public QObject
{
    Q_OBJECT

private slots:
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
