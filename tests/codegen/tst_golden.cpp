#include "designs.h"
#include "firmware/firmwarebuild.h"

#include <QtTest>

#include <QTemporaryDir>

/// Whole generated files of telling designs against files written by hand.
class GoldenTest : public QObject
{
    Q_OBJECT

private slots:
    void matches_data();
    void matches();
};

namespace {
QString readRaw(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : path;
}
} // namespace

void GoldenTest::matches_data()
{
    QTest::addColumn<QString>("design");
    QTest::addColumn<QString>("file");
    for (const char* name :
         {"g110_stepped clock.c", "g110_stepped main.c", "g110_hick clock.c", "g110_hick main.c",
          "g150_pll clock.c", "g150_pll main.c", "g150_hick48 clock.c", "g150_hick48 main.c",
          "g110_hick clock.h", "g110_hick conf.h", "g150_pll clock.h", "g150_pll conf.h"}) {
        const QStringList words = QString::fromLatin1(name).split(u' ');
        QTest::newRow(name) << words[0] << words[1];
    }
}

void GoldenTest::matches()
{
    QFETCH(QString, design);
    QFETCH(QString, file);
    ZN64ConfigCLK clock = namedDesign(design);
    const QString stem = stemOf(clock);
    QTemporaryDir base;
    QVERIFY(firmware::generate(clock, base.path(), stem));
    const QString folder = file.endsWith(QLatin1String(".h")) ? QStringLiteral("inc") : QStringLiteral("src");
    const QString name = file == QLatin1String("main.c") ? file : stem + u'_' + file;
    const QStringList made = readRaw(base.filePath(folder + u'/' + name)).split(u'\n');
    const QStringList wanted =
        readRaw(QStringLiteral(EXPECTED_DIR "/%1_%2.txt").arg(design, file)).split(u'\n');
    QVERIFY(wanted.size() > 10);
    for (int i = 0; i < qMin(made.size(), wanted.size()); ++i)
        QVERIFY2(made[i] == wanted[i],
                 qPrintable(QStringLiteral("line %1: '%2', not '%3'").arg(i + 1).arg(made[i], wanted[i])));
    QCOMPARE(made.size(), wanted.size());
}

QTEST_GUILESS_MAIN(GoldenTest)
#include "tst_golden.moc"
