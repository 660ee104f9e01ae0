#include "model/seriestraits.h"
#include "pages/series/seriespages.h"
#include "shell/ZN64PLLConfig.h"
#include "testdata.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <malloc.h>

/// A replaced design gives back everything: its page, scene, picture and model.
class tst_Memory : public QObject
{
    Q_OBJECT

private slots:
    void replacedDesignsLeaveNothing();
    void replacedPageIsGone();
};

namespace {

/// Resident pages of the process, kB, after the allocator has given back what it holds for later.
qint64 residentKb()
{
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').at(1).toLongLong() * 4;
}

QString writeDesign(const QTemporaryDir& folder, ZN64MCUSERIALS series)
{
    const QString path = folder.filePath(seriesName(series) + QLatin1String(".ZNCK"));
    std::unique_ptr<ClockTreePage> page(createSeriesPage(series, nullptr));
    return page->writeDesign(path, seriesName(series)) ? path : QString();
}

} // namespace

void tst_Memory::replacedDesignsLeaveNothing()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("the sanitizer keeps freed memory back; it reports leaks by itself");
#endif
    QTemporaryDir folder(scratchFolder());
    std::vector<std::pair<ZN64MCUSERIALS, QString>> designs;
    for (const SeriesTraits& traits : seriesList())
        designs.emplace_back(traits.series, writeDesign(folder, traits.series));
    ZN64PLLConfig project;
    project.resize(1200, 800);
    project.show();

    // All series in turn, two designs each, about 200 in all. Both readings are taken with the same series in
    // view.
    const int turns = 100 / static_cast<int>(designs.size());
    const int early = 1;
    qint64 afterFirst = 0;
    for (int turn = 1; turn <= turns; ++turn) {
        for (const auto& [series, path] : designs) {
            project.newConfig(series);
            QString name;
            project.OpenFromFile(path, name);
            QCOMPARE(name, seriesName(series));
        }
        if (turn == early)
            afterFirst = residentKb();
    }
    const qint64 afterLast = residentKb();
    QVERIFY(afterFirst > 0);
    QVERIFY2(afterLast <= afterFirst * 102 / 100,
             qPrintable(QStringLiteral("%1 kB early, %2 kB after the last").arg(afterFirst).arg(afterLast)));
    qInfo("resident: %lld kB after turn %d, %lld kB after turn %d", afterFirst, early, afterLast, turns);
}

void tst_Memory::replacedPageIsGone()
{
    ZN64PLLConfig project;
    project.newConfig(ZN64G110);
    QPointer<ClockTreePage> page = project.findChild<ClockTreePage*>();
    QPointer<QWidget> control = page->findChild<QWidget*>(QStringLiteral("m_hext_lineEdit"));
    QPointer<QGraphicsScene> scene = page->view()->scene();
    QVERIFY(page && control && scene);
    project.newConfig(ZN64G110);
    QVERIFY(!page && !control && !scene);
}

QTEST_MAIN(tst_Memory)
#include "tst_memory.moc"
