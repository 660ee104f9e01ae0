#include "boxwatcher.h"
#include "loopbackserver.h"
#include "update/httpsdownload.h"

#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

using Server = LoopbackServer;

/// One transfer after the other against a real TLS server, and every way in which it can go wrong.
class TestHttpsDownload : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void transfers_data();
    void transfers();
    void existingTarget_data();
    void existingTarget();
    void targetGivenInFull();
    void breakWhileAskingAboutTheCertificate();
    void cancel_data();
    void cancel();
    void progressOfLargeFiles();
    void endlessRedirection();
    void quittingEndsTheTransfer();
    void largePackageStaysOutOfMemory();

private:
    QString pathOf(const QString& name) const { return m_folder->filePath(name.section(u'/', -1)); }
    QStringList leftFiles() const { return QDir(m_folder->path()).entryList(QDir::Files); }
    // One transfer into the folder; m_path becomes what the call makes of the folder.
    bool fetch(const QString& address, bool loud, qint64 size = 0);

    Server m_server;
    Server m_foreignServer{QStringLiteral("127.0.0.2")};
    QString m_deafAddress;
    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<HttpsDownload> m_download;
    QString m_path;
};

namespace {

const QByteArray Content("The package.\r\n\0\xff", 16);
const QByteArray NoFile("(no file)");

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : NoFile;
}

QStringList errorBox(const QString& text)
{
    return {QStringLiteral("critical | Error | %1 | Ok").arg(text)};
}

// Sends the header with half of the content, the rest a little later, and leaves it at that. A transfer
// reports its progress at most ten times a second: what comes within the first tenth is reported with what
// comes after.
Server::Handler inTwoPieces(const QByteArray& header)
{
    return [header](QSslSocket& socket) {
        socket.write(header + Content.left(5));
        QTimer::singleShot(200, &socket, [&socket] { socket.write(Content.mid(5)); });
    };
}

void clickCancel(ProgressDialog& dialog)
{
    QTest::mouseClick(dialog.findChild<QPushButton*>(), Qt::LeftButton);
}

int visibleProgressDialogs()
{
    const QWidgetList all = QApplication::topLevelWidgets();
    return int(std::count_if(all.begin(), all.end(), [](const QWidget* each) {
        return qobject_cast<const ProgressDialog*>(each) != nullptr && each->isVisible();
    }));
}

// A line such as VmHWM of the process status, in kB.
int memoryKilobytes(const QByteArray& line)
{
    const QByteArray all = contentOf(QStringLiteral("/proc/self/status"));
    const int start = all.indexOf(line + ':') + line.size() + 1;
    return all.mid(start, all.indexOf("kB", start) - start).trimmed().toInt();
}

bool isSanitized()
{
#ifdef __SANITIZE_ADDRESS__
    return true;
#else
    return false;
#endif
}

// While it lives, the disk takes the first megabyte of a file only.
struct SmallDisk
{
    SmallDisk() { setrlimit(RLIMIT_FSIZE, &small); }
    ~SmallDisk() { setrlimit(RLIMIT_FSIZE, &unlimited); }

    const rlimit unlimited{RLIM_INFINITY, RLIM_INFINITY};
    const rlimit small{1 << 20, RLIM_INFINITY};
};

} // namespace

bool TestHttpsDownload::fetch(const QString& address, bool loud, qint64 size)
{
    m_download->SetErrorInfoFlag(loud);
    m_path = m_folder->path();
    return m_download->downloadFile(address, m_path, QString(), size);
}

void TestHttpsDownload::initTestCase()
{
    std::signal(SIGXFSZ, SIG_IGN); // what would end the program at the end of a small disk
    QVERIFY2(m_server.isListening() && m_foreignServer.isListening(), "openssl made no certificate");
    m_server.on("/d/tool.zip", Server::answer(Content));
    m_foreignServer.on("/d/tool.zip", Server::answer(Content));
    m_server.on("/d/cut.zip", Server::cut("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n" + Content));
    m_server.on("/d/stalled.zip", inTwoPieces("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n"));
    m_server.on("/d/open.zip", inTwoPieces("HTTP/1.1 200 OK\r\n\r\n"));
    m_server.on("/d/tostalled.zip", Server::redirect("stalled.zip"));
    m_server.on("/d/endless.zip", Server::redirect("endless.zip"));

    QTcpServer closedAgain;
    QVERIFY(closedAgain.listen(QHostAddress::LocalHost));
    m_deafAddress = QStringLiteral("https://127.0.0.1:%1/d/tool.zip").arg(closedAgain.serverPort());
}

void TestHttpsDownload::init()
{
    m_folder.reset(new QTemporaryDir);
    m_download.reset(new HttpsDownload(nullptr));
}

void TestHttpsDownload::transfers_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("boxes");
    QTest::addColumn<QString>("answer"); // to the first box
    const QString failed = QStringLiteral("Download failed: ");
    const auto bad = [](const char* name, const QString& address, const QString& text) {
        QTest::newRow(name) << address << NoFile << errorBox(text) << "Ok";
    };
    const auto good = [this](const char* path, const Server::Handler& handler) {
        m_server.on(path, handler);
        QTest::newRow(path) << m_server.url(path) << Content << QStringList() << "";
    };
    const auto failing = [&](const char* path, const Server::Handler& handler, const QString& reason) {
        m_server.on(path, handler);
        bad(path, m_server.url(path), failed + reason);
    };
    const auto replied = [this](const char* path, const char* reason) {
        return QStringLiteral("Error transferring %1 - server replied: %2")
            .arg(m_server.url(path), QLatin1String(reason));
    };

    good("/d/nolength.zip", Server::cut("HTTP/1.1 200 OK\r\n\r\n" + Content));
    good("/d/packed.zip", Server::answer(Content, "200 OK", "Content-Encoding: gzip\r\n"));
    good("/d/relative.zip", Server::redirect("../d/tool.zip"));
    good("/d/absolute.zip", Server::redirect(m_server.url("/d/relative.zip").toLatin1()));
    m_server.on("/d/empty.zip", Server::answer(""));
    QTest::newRow("empty") << m_server.url("/d/empty.zip") << QByteArray("") << QStringList() << "";

    const QString closed = QStringLiteral("Connection closed");
    failing("/d/broken.zip", Server::answer("Sorry.", "500 Broken"), replied("/d/broken.zip", "Broken"));
    failing("/d/nowhere.zip", Server::redirect("missing.zip"), replied("/d/missing.zip", "Not Found"));
    failing("/d/local.zip", Server::redirect("file:///etc/passwd"), QStringLiteral("file:///etc/passwd"));
    bad("cut", m_server.url("/d/cut.zip"), failed + closed);
    failing("/d/closed.zip", Server::cut(""), closed);
    failing("/d/garbage.zip", Server::cut("\1\2\3 what?\r\n\r\n"), closed);
    failing("/d/password.zip",
            Server::answer("Who?", "401 Unauthorized", "WWW-Authenticate: Basic realm=\"x\"\r\n"),
            QStringLiteral("Host requires authentication"));
    failing("/d/large.zip", Server::answer(QByteArray(4 << 20, 'x')), QStringLiteral("File too large"));
    bad("nobody listens", m_deafAddress, failed + QStringLiteral("Connection refused"));
    bad("unknown protocol", QStringLiteral("nothing://127.0.0.1/tool.zip"),
        failed + QStringLiteral("Protocol \"nothing\" is unknown"));
    for (const QString& address :
         {QString(), QStringLiteral(" \t"), QStringLiteral(" www.clockwright.example "),
          m_server.url("/d/..%2Ftool.zip")})
        bad(qPrintable(QStringLiteral("invalid: ") + address), address,
            QStringLiteral("Invalid URL : ") + address);

    const QString foreign = m_foreignServer.url("/d/tool.zip");
    const QStringList ssl(QStringLiteral(
        "warning | SSL Errors | One or more SSL errors has occurred: \n"
        "The host name did not match any of the valid hosts for this certificate | Abort, Ignore"));
    const QStringList aborted = ssl + errorBox(failed + QStringLiteral("Operation canceled"));
    QTest::newRow("TLS error ignored") << foreign << Content << ssl << "Ignore";
    QTest::newRow("TLS error refused") << foreign << NoFile << aborted << "Abort";
    QTest::newRow("TLS box closed") << foreign << NoFile << aborted << "";
}

// Each case loud and silent: the same result, but a silent transfer asks about certificates only.
void TestHttpsDownload::transfers()
{
    QFETCH(QString, address);
    QFETCH(QByteArray, content);
    QFETCH(QStringList, boxes);
    QFETCH(QString, answer);
    const SmallDisk disk;
    for (const bool loud : {true, false}) {
        init();
        BoxWatcher watcher({answer, QStringLiteral("Ok")});
        QCOMPARE(fetch(address, loud), content != NoFile);
        QCOMPARE(watcher.seen(), loud ? boxes : boxes.filter(QStringLiteral("SSL Errors")));
        QCOMPARE(visibleProgressDialogs(), 0);
        QCOMPARE(leftFiles().size(), content == NoFile ? 0 : 1);
        if (content != NoFile) {
            QCOMPARE(m_path, pathOf(address));
            QCOMPARE(contentOf(m_path), content);
        }
    }
}

void TestHttpsDownload::existingTarget_data()
{
    QTest::addColumn<bool>("loud");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QStringList>("boxes"); // %1 is the file
    const QStringList ask(
        QStringLiteral("question | Overwrite Existing File | %1 already exists in the current "
                       "directory. Overwrite? | Cancel, Ok"));
    const QByteArray good("/d/tool.zip");
    const QByteArray older("older");
    QTest::newRow("overwrite") << true << "Ok" << good << Content << ask;
    QTest::newRow("keep") << true << "Cancel" << good << older << ask;
    QTest::newRow("box closed") << true << "" << good << older << ask;
    QTest::newRow("silent") << false << "" << good << Content << QStringList();
    QTest::newRow("a failure destroys the older file")
        << true << "Ok" << QByteArray("/d/cut.zip") << NoFile
        << ask + errorBox(QStringLiteral("Download failed: Connection closed"));
    // A folder of that name stands in the way; unlike permissions, that also stops root.
    QTest::newRow("unwritable") << true << "Ok" << QByteArray("/d/folder") << NoFile
                                << ask + errorBox(QStringLiteral("Unable to save the file %1"));
    QTest::newRow("unwritable, silent") << false << "" << QByteArray("/d/folder") << NoFile << QStringList();
}

void TestHttpsDownload::existingTarget()
{
    QFETCH(bool, loud);
    QFETCH(QString, answer);
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, left);
    QFETCH(QStringList, boxes);
    const QString target = pathOf(QString::fromLatin1(path));
    QFile older(target);
    QVERIFY(path == "/d/folder" ? QDir().mkdir(target)
                                : older.open(QIODevice::WriteOnly) && older.write("older") == 5);
    older.close();
    BoxWatcher watcher({answer, QStringLiteral("Ok")});
    const int before = m_server.requestCount();
    QCOMPARE(fetch(m_server.url(path), loud), left == Content);
    QCOMPARE(contentOf(target), left);
    QCOMPARE(m_server.requestCount() - before, int(left != "older" && path != "/d/folder"));
    QCOMPARE(watcher.seen(), boxes.replaceInStrings(QStringLiteral("%1"), target));
}

void TestHttpsDownload::targetGivenInFull()
{
    BoxWatcher watcher({QStringLiteral("Ok")});
    m_download->SetErrorInfoFlag(true);
    const QString target = pathOf(QStringLiteral("own name"));
    QVERIFY(m_download->downloadFileWithSaveTarget(m_server.url("/d/tool.zip"), target, 0));
    QVERIFY(!m_download->downloadFileWithSaveTarget(QStringLiteral(" "), target, 0));
    QCOMPARE(watcher.seen(), errorBox(QStringLiteral("Invalid URL :  ")));
    QCOMPARE(contentOf(target), Content);
}

// The reply may end and go while the user still reads the box.
void TestHttpsDownload::breakWhileAskingAboutTheCertificate()
{
    QNetworkAccessManager network;
    QPointer<QNetworkReply> reply = network.get(QNetworkRequest(QUrl(m_deafAddress)));
    BoxWatcher watcher({QStringLiteral("Ignore")});
    QTimer::singleShot(0, this, [&reply] { delete reply; });
    m_download->sslErrors(reply, {QSslError(QSslError::CertificateExpired), QSslError()});
    QVERIFY(reply.isNull());
    QCOMPARE(watcher.seen().size(), 1);
    QVERIFY(watcher.seen().constFirst().contains(QStringLiteral("\nThe certificate has expired\nNo error")));
}

void TestHttpsDownload::cancel_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<int>("known");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<bool>("close");
    QTest::newRow("the server's length") << QByteArray("/d/stalled.zip") << 0 << 100 << true;
    QTest::newRow("the server's length goes first") << QByteArray("/d/stalled.zip") << 50 << 100 << false;
    QTest::newRow("only the list's size") << QByteArray("/d/open.zip") << 40 << 40 << false;
    QTest::newRow("no size at all") << QByteArray("/d/open.zip") << 0 << 0 << false;
    QTest::newRow("after a redirection") << QByteArray("/d/tostalled.zip") << 50 << 100 << false;
}

// The progress dialog is all that tells of the end; what had come stays.
void TestHttpsDownload::cancel()
{
    QFETCH(QByteArray, path);
    QFETCH(int, known);
    QFETCH(int, maximum);
    QFETCH(bool, close);
    const QString target = pathOf(QString::fromLatin1(path));
    BoxWatcher watcher;
    bool reached = false;
    watcher.onProgress = [&](ProgressDialog& dialog) {
        if (dialog.value() != Content.size() || dialog.maximum() != maximum || contentOf(target) != Content)
            return;
        reached = true;
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Download Progress"));
        QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
        QCOMPARE(visibleProgressDialogs(), 1);
        // The address that the transfer has been sent to.
        QCOMPARE(dialog.labelText(),
                 QStringLiteral("Downloading %1.").arg(m_server.url(path.replace("tostalled", "stalled"))));
        if (close)
            dialog.close();
        else
            clickCancel(dialog);
    };
    // For a state that never comes.
    QTimer::singleShot(5000, m_download.data(), &HttpsDownload::cancelDownload);
    QVERIFY(!fetch(m_server.url(path), true, known));
    QVERIFY(reached);
    QCOMPARE(watcher.seen(), QStringList());
    QCOMPARE(contentOf(target), Content);
    QCOMPARE(visibleProgressDialogs(), 0);
    // The same object goes on with the next transfer.
    QVERIFY(fetch(m_server.url("/d/tool.zip"), true));
}

void TestHttpsDownload::progressOfLargeFiles()
{
    ProgressDialog dialog(QUrl(QStringLiteral("https://a.example/") + QString(5000, u'x')), nullptr);
    QVERIFY(dialog.sizeHint().width() <= dialog.screen()->availableSize().width());
    const qint64 sixGigabytes = 6LL << 30;
    dialog.setTotalBytes(sixGigabytes);
    dialog.networkReplyProgress(sixGigabytes / 3, -1);
    QVERIFY(dialog.maximum() > 0 && qAbs(dialog.maximum() / 3 - dialog.value()) <= 1);
}

void TestHttpsDownload::endlessRedirection()
{
    BoxWatcher watcher;
    const int start = m_server.requestCount();
    int settled = 0;
    int last = 0;
    watcher.onProgress = [&](ProgressDialog& dialog) {
        const int count = m_server.requestCount() - start;
        if (settled == 0 && count > 200)
            settled = memoryKilobytes("VmRSS");
        if (count < 1000)
            return;
        last = memoryKilobytes("VmRSS");
        clickCancel(dialog);
    };
    QVERIFY(!fetch(m_server.url("/d/endless.zip"), true));
    QCOMPARE(watcher.seen(), QStringList());
    QVERIFY(settled > 0 && last > 0);
    if (isSanitized())
        QSKIP("The sanitizers keep freed memory: no figure for the growth");
    qInfo("800 redirections took %d kB", last - settled);
    QVERIFY(last - settled < 1000);
}

void TestHttpsDownload::quittingEndsTheTransfer()
{
    bool returned = false;
    QTimer::singleShot(0, this, [&] {
        QVERIFY(!fetch(m_server.url("/d/stalled.zip"), false));
        m_download.reset();
        returned = true;
    });
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [this] {
        if (contentOf(pathOf(QStringLiteral("stalled.zip"))) == Content)
            QCoreApplication::quit();
    });
    poll.start(1);
    QCoreApplication::exec();
    QVERIFY(returned);
    QCOMPARE(leftFiles(), QStringList());
}

// The server is a process of its own here, so that it neither waits for the client nor counts with it.
void TestHttpsDownload::largePackageStaysOutOfMemory()
{
    constexpr qint64 Size = 300 << 20;
    QTemporaryDir site;
    QFile package(site.filePath(QStringLiteral("large.zip")));
    const QByteArray header = "HTTP/1.0 200 OK\r\nContent-Length: " + QByteArray::number(Size) + "\r\n\r\n";
    QVERIFY(package.open(QIODevice::WriteOnly) && package.write(header) == header.size());
    QVERIFY(package.resize(header.size() + Size));
    QProcess server;
    server.setWorkingDirectory(site.path());
    const QString options = QStringLiteral("s_server -HTTP -accept 127.0.0.1:0 -key %1 -cert %2");
    server.start(QStringLiteral("openssl"),
                 options.arg(m_server.keyFile(), m_server.certificateFile()).split(u' '));
    QByteArray said;
    QTRY_VERIFY((said += server.readAllStandardOutput()).contains("ACCEPT 127.0.0.1:"));
    const QString port = QString::fromLatin1(said.mid(said.indexOf("127.0.0.1:") + 10).trimmed());

    QFile resetPeak(QStringLiteral("/proc/self/clear_refs"));
    QVERIFY(resetPeak.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && resetPeak.write("5") == 1);
    const int before = memoryKilobytes("VmHWM");
    const bool done = fetch(QStringLiteral("https://127.0.0.1:%1/large.zip").arg(port), false);
    const int growth = memoryKilobytes("VmHWM") - before;
    server.kill();
    server.waitForFinished();
    QVERIFY(done);
    QCOMPARE(QFileInfo(m_path).size(), Size);
    if (isSanitized())
        QSKIP("The sanitizers keep freed memory: no figure for the growth");
    qInfo("300 MB took %d kB", growth);
    QVERIFY(growth < 8000);
}

QTEST_MAIN(TestHttpsDownload)
#include "tst_httpsdownload.moc"
