#include "files/replacefile.h"
#include "model/seriestraits.h"
#include "pages/ClockTreePage.h"
#include "pages/series/seriespages.h"
#include "processdata.h"
#include "shell/ZN64PLLConfig.h"
#include "widgets/dialoganswers.h"

#include <QDir>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QByteArray Older("older");
int syncs = 0;

int counted(const char* name, int descriptor)
{
    ++syncs;
    return reinterpret_cast<int (*)(int)>(dlsym(RTLD_NEXT, name))(descriptor);
}

} // namespace

// In front of the system's, for Qt's calls too.
int fsync(int descriptor)
{
    return counted("fsync", descriptor);
}
int fdatasync(int descriptor)
{
    return counted("fdatasync", descriptor);
}

/// What the program leaves on the disk, and how often it looks there.
class TestDiskFiles : public QObject
{
    Q_OBJECT

private:
    QString path(const char* name) const { return m_folder->filePath(QString::fromLatin1(name)); }
    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files | QDir::System); }

    QScopedPointer<QTemporaryDir> m_folder;

private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init() { m_folder.reset(new QTemporaryDir); }

    void replacing()
    {
        QVERIFY(replaceFile(path("new"), "text"));
        QCOMPARE(contentOf(path("new")), QByteArray("text"));
        // As any other file of this user.
        QVERIFY(writeFile(path("plain"), Older));
        QCOMPARE(QFile::permissions(path("new")), QFile::permissions(path("plain")));
        QVERIFY(QFile::setPermissions(path("new"), QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(replaceFile(path("new"), ""));
        QCOMPARE(contentOf(path("new")), QByteArray());
        QCOMPARE(QFile::permissions(path("new")) & (QFile::ReadGroup | QFile::ReadOther),
                 QFile::Permissions());
        // The file that a link leads to, and the link stays.
        QVERIFY(QFile::link(path("plain"), path("link")) && replaceFile(path("link"), "text"));
        QVERIFY(QFileInfo(path("link")).isSymLink());
        QCOMPARE(contentOf(path("plain")), QByteArray("text"));
        // A device stays one.
        QVERIFY(QFile::link("/dev/null"_s, path("device")) && replaceFile(path("device"), "text"));
        QVERIFY(!QFileInfo("/dev/null"_s).isFile() && !replaceFile(m_folder->path(), "text"));
        QVERIFY(!replaceFile(path("no folder/file"), "text"));
        QVERIFY(mkfifo(qPrintable(path("pipe")), 0600) == 0 && !replaceFile(path("pipe"), "text"));
        QCOMPARE(files(), QStringList({"device"_s, "link"_s, "new"_s, "pipe"_s, "plain"_s}));
        // A link to nowhere makes the file there; links to each other lead to none.
        QVERIFY(QFile::link(path("far"), path("near")) && replaceFile(path("near"), "text"));
        QCOMPARE(contentOf(path("far")), QByteArray("text"));
        QVERIFY(QFile::link(path("two"), path("one")) && QFile::link(path("one"), path("two")));
        QVERIFY(!replaceFile(path("one"), "text") && QFileInfo(path("one")).isSymLink());
    }

    // What is only read back replaces whatever lies there, follows no link, and does not wait for the disk.
    void previewFiles()
    {
        const QScopedPointer<ClockTreePage> page(createSeriesPage(ZN64G110, nullptr));
        const QString folder = m_folder->path();
        const auto generate = [&](GENERATE_CODE_MODE mode) {
            page->model().Set_GenerateCodeMode(mode);
            return page->model().GenerateCode(folder, folder, "zn64g110"_s);
        };
        const QStringList all{"main.c"_s, "zn64g110_clock.c"_s, "zn64g110_clock.h"_s, "zn64g110_conf.h"_s};
        QVERIFY(generate(MODE_USER_BUTTON) && files() == all);
        const QByteArray text = contentOf(path("main.c"));
        for (const QString& each : all)
            QVERIFY(QFile::remove(m_folder->filePath(each)));

        const QTemporaryDir elsewhere;
        const QString outside = elsewhere.filePath("outside"_s);
        QVERIFY(writeFile(outside, Older) && QFile::link(outside, path("main.c")));
        QVERIFY(QFile::link(elsewhere.filePath("none"_s), path("zn64g110_clock.c")));
        QVERIFY(mkfifo(qPrintable(path("zn64g110_clock.h")), 0600) == 0);
        QVERIFY(writeFile(path("zn64g110_conf.h"), Older));
        syncs = 0;
        QVERIFY(generate(MODE_CODE_VIEW));
        QCOMPARE(syncs, 0);
        QCOMPARE(contentOf(path("main.c")), text);
        QCOMPARE(contentOf(outside), Older);
        for (const QString& each : all)
            QVERIFY(QFileInfo(m_folder->filePath(each)).isFile() &&
                    !QFileInfo(m_folder->filePath(each)).isSymLink());
        QVERIFY(!QFile::exists(elsewhere.filePath("none"_s)));

        // A full disk leaves nothing that could be taken for this design's.
        limitFiles(100);
        const auto unlimited = qScopeGuard([] { limitFiles(RLIM_INFINITY); });
        QVERIFY(!generate(MODE_CODE_VIEW));
        QCOMPARE(files(), QStringList());
    }

    // A user's file is on the disk before the old one is gone.
    void replacedFilesAreSynced()
    {
        syncs = 0;
        QVERIFY(replaceFile(path("new"), "text"));
        QCOMPARE(syncs, 1);
    }

    // A full disk is not told of, but takes nothing away.
    void fullDisk()
    {
        const QScopedPointer<ClockTreePage> page(createSeriesPage(ZN64G110, nullptr));
        QVERIFY(writeFile(path("design"), Older) && writeFile(path("zn64g110_clock.h"), Older));
        limitFiles(100);
        const auto unlimited = qScopeGuard([] { limitFiles(RLIM_INFINITY); });
        // Confirmed later, so that the question about the file that is there can be answered.
        const DialogAnswers::Answer choose = [this](QDialog* dialog) {
            static_cast<QFileDialog*>(dialog)->selectFile(path("design"));
            QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
        };
        DialogAnswers answers{choose, DialogAnswers::press("&Yes"), DialogAnswers::press("Ok")};
        page->SaveToFile("ZN64G110"_s);
        QVERIFY(answers.shown().contains("information | Information | Save file succeed! | Ok"_s));
        QCOMPARE(contentOf(path("design")), Older);
        page->model().Set_GenerateCodeMode(MODE_USER_BUTTON);
        answers.add(DialogAnswers::press("Yes"));
        QVERIFY(page->model().GenerateCode(m_folder->path(), m_folder->path(), "zn64g110"_s));
        QCOMPARE(contentOf(path("zn64g110_clock.h")), Older);
        QCOMPARE(files(), QStringList({"design"_s, "zn64g110_clock.h"_s}));
    }

    // What is read twice may have changed, or gone, in between.
    void openReadsOnce()
    {
        const QByteArray design =
            "<x><MCU>ZN64G110</MCU><ahbdiv>4</ahbdiv><!--" + QByteArray(800000, 'x') + "--></x>";
        QVERIFY(writeFile(path("design"), design));
        ZN64PLLConfig project;
        QString name;
        // With what is loaded at the first design only.
        project.OpenFromFile(path("design"), name);
        const qint64 before = bytesRead();
        project.OpenFromFile(path("design"), name);
        const qint64 read = bytesRead() - before;
        QCOMPARE(name, "ZN64G110"_s);
        QCOMPARE(project.findChild<ClockTreePage*>()->model().Get_AHBDIV(), 4);
        QVERIFY2(read >= design.size() && read < design.size() * 3 / 2, qPrintable(QString::number(read)));
    }
};

QTEST_MAIN(TestDiskFiles)
#include "tst_diskfiles.moc"
