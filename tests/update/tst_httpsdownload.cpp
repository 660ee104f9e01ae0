#include "boxwatcher.h"
#include "loopbackserver.h"
#include "update/httpsdownload.h"
#include "update/progressdialog.h"

#include <QApplication>
#include <QNetworkProxy>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QtTest>

#include <csignal>
#include <limits>
#include <sys/resource.h>

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
    void unwritableTarget();
    void certificateOfAnotherHost_data();
    void certificateOfAnotherHost();
    void breakWhileAskingAboutTheCertificate();
    void progress_data();
    void progress();
    void progressOfLargeFiles();
    void cancel_data();
    void cancel();
    void endlessRedirection();
    void fullDisk();
    void quittingEndsTheTransfer();
    void largePackageStaysOutOfMemory();

private:
    QString write(const QString& name, const QByteArray& content) const;
    QStringList leftFiles() const { return QDir(m_folder->path()).entryList(QDir::Files, QDir::Name); }

    QTemporaryDir m_keys;
    ServerIdentity m_identity;
    QScopedPointer<LoopbackServer> m_server;
    QScopedPointer<LoopbackServer> m_foreignServer;
    QScopedPointer<QTemporaryDir> m_folder;
    QString m_deafAddress;
};

namespace {

const QByteArray Content("The package.\r\n\0\xff", 16);

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(no file)");
}

QString errorBox(const QString& text)
{
    return QStringLiteral("Critical | Error | ") + text + QStringLiteral(" | Ok");
}

// Sends the header with half of the content, the rest a little later, and leaves it at that. A transfer
// reports its progress at most ten times a second: what comes within the first tenth is reported with what
// comes after.
LoopbackServer::Handler inTwoPieces(const QByteArray& header)
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
    int count = 0;
    for (QWidget* widget : QApplication::topLevelWidgets())
        count += qobject_cast<ProgressDialog*>(widget) != nullptr && widget->isVisible();
    return count;
}

// A line such as VmHWM of the process status, in kB.
int memoryKilobytes(const QByteArray& line)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray all = status.readAll();
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

} // namespace

QString TestHttpsDownload::write(const QString& name, const QByteArray& content) const
{
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName()
                                                                                    : QString();
}

void TestHttpsDownload::initTestCase()
{
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    m_identity = ServerIdentity::make(m_keys.path(), QStringLiteral("127.0.0.1"));
    const ServerIdentity foreign = ServerIdentity::make(m_keys.path(), QStringLiteral("127.0.0.2"));
    QVERIFY2(!m_identity.keyFile.isEmpty() && !foreign.keyFile.isEmpty(), "openssl made no certificate");
    m_server.reset(new LoopbackServer(m_identity));
    m_foreignServer.reset(new LoopbackServer(foreign));
    QVERIFY(m_server->isListening() && m_foreignServer->isListening());

    const auto on = [this](const char* path, const LoopbackServer::Handler& handler) {
        m_server->on(QString::fromLatin1(path), handler);
    };
    on("/d/tool.zip", LoopbackServer::answer("200 OK", "", Content));
    on("/d/empty.zip", LoopbackServer::answer("200 OK", "", ""));
    on("/d/nolength.zip", LoopbackServer::send("HTTP/1.1 200 OK\r\n\r\n" + Content, true));
    on("/d/packed.zip", LoopbackServer::answer("200 OK", "Content-Encoding: gzip\r\n", Content));
    on("/d/relative.zip", LoopbackServer::redirect("../d/tool.zip"));
    on("/d/absolute.zip",
       LoopbackServer::redirect(m_server->url(QStringLiteral("/d/relative.zip")).toLatin1()));
    on("/d/nowhere.zip", LoopbackServer::redirect("missing.zip"));
    on("/d/local.zip", LoopbackServer::redirect("file:///etc/passwd"));
    on("/d/endless.zip", LoopbackServer::redirect("endless.zip"));
    on("/d/broken.zip", LoopbackServer::answer("500 Broken", "", "Sorry."));
    on("/d/cut.zip", LoopbackServer::send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n" + Content, true));
    on("/d/garbage.zip", LoopbackServer::send("\1\2\3 what?\r\n\r\n", true));
    on("/d/closed.zip", LoopbackServer::send("", true));
    on("/d/password.zip",
       LoopbackServer::answer("401 Unauthorized", "WWW-Authenticate: Basic realm=\"x\"\r\n", "Who are you?"));
    on("/d/stalled.zip",
       LoopbackServer::send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n" + Content, false));
    on("/d/silent.zip", LoopbackServer::send("", false));

    QTcpServer closedAgain;
    QVERIFY(closedAgain.listen(QHostAddress::LocalHost));
    m_deafAddress = QStringLiteral("https://127.0.0.1:%1/d/tool.zip").arg(closedAgain.serverPort());
}

void TestHttpsDownload::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
}

void TestHttpsDownload::transfers_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("name"); // of the file that is there afterwards; none if empty
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("message"); // of the error box; none if empty
    const auto good = [this](const char* path, const QByteArray& content = Content) {
        QTest::newRow(path) << m_server->url(QString::fromLatin1(path))
                            << QString::fromLatin1(path).section(u'/', 2) << content << QString();
    };
    const auto bad = [](const char* name, const QString& address, const QString& message) {
        QTest::newRow(name) << address << QString() << QByteArray() << message;
    };
    const auto failing = [&](const char* path, const QString& reason) {
        const QString address = m_server->url(QString::fromLatin1(path));
        bad(path, address, QStringLiteral("Download failed: ") + reason);
    };
    const auto replied = [this](const char* path, const char* reason) {
        return QStringLiteral("Error transferring %1 - server replied: %2")
            .arg(m_server->url(QLatin1String(path)), QLatin1String(reason));
    };
    const auto invalid = [&](const char* name, const QString& address) {
        bad(name, address, QStringLiteral("Invalid URL : ") + address);
    };

    good("/d/tool.zip");
    good("/d/empty.zip", "");
    good("/d/nolength.zip");
    good("/d/packed.zip");
    good("/d/relative.zip");
    good("/d/absolute.zip");

    failing("/d/missing.zip", replied("/d/missing.zip", "Not Found"));
    failing("/d/broken.zip", replied("/d/broken.zip", "Broken"));
    failing("/d/cut.zip", QStringLiteral("Connection closed"));
    failing("/d/closed.zip", QStringLiteral("Connection closed"));
    failing("/d/garbage.zip", QStringLiteral("Connection closed"));
    failing("/d/password.zip", QStringLiteral("Host requires authentication"));
    failing("/d/nowhere.zip", replied("/d/missing.zip", "Not Found"));
    failing("/d/local.zip", QStringLiteral("file:///etc/passwd"));
    bad("nobody listens", m_deafAddress, QStringLiteral("Download failed: Connection refused"));
    bad("unknown protocol", QStringLiteral("nothing://127.0.0.1/tool.zip"),
        QStringLiteral("Download failed: Protocol \"nothing\" is unknown"));

    invalid("no address", QString());
    invalid("blanks", QStringLiteral(" \t"));
    invalid("no file name", m_server->url(QStringLiteral("/d/")));
    invalid("no path", QStringLiteral(" www.clockwright.example "));
    invalid("out of the folder", m_server->url(QStringLiteral("/d/..%2Ftool.zip")));
}

// Each case loud and silent: the same result, with the box and without.
void TestHttpsDownload::transfers()
{
    QFETCH(QString, address);
    QFETCH(QString, name);
    QFETCH(QString, message);
    for (const bool loud : {true, false}) {
        init();
        BoxWatcher boxes({QStringLiteral("Ok")});
        HttpsDownload download(nullptr);
        download.SetErrorInfoFlag(loud);
        QString folder = m_folder->path();
        QCOMPARE(download.downloadFile(address, folder, QString(), 0), !name.isEmpty());
        QCOMPARE(boxes.seen(), loud && !message.isEmpty() ? QStringList(errorBox(message)) : QStringList());
        QCOMPARE(leftFiles(), name.isEmpty() ? QStringList() : QStringList(name));
        QCOMPARE(visibleProgressDialogs(), 0);
        if (!name.isEmpty()) {
            QCOMPARE(folder, m_folder->filePath(name));
            QTEST(contentOf(folder), "content");
        }
    }
}

void TestHttpsDownload::existingTarget_data()
{
    QTest::addColumn<bool>("loud");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("left");
    const QString good = QStringLiteral("/d/tool.zip");
    QTest::newRow("overwrite") << true << "Ok" << good << Content;
    QTest::newRow("keep") << true << "Cancel" << good << QByteArray("older");
    QTest::newRow("box closed") << true << QString() << good << QByteArray("older");
    QTest::newRow("silent") << false << QString() << good << Content;
    QTest::newRow("a failure destroys the older file")
        << true << "Ok" << QStringLiteral("/d/missing.zip") << QByteArray("(no file)");
}

void TestHttpsDownload::existingTarget()
{
    QFETCH(bool, loud);
    QFETCH(QString, answer);
    QFETCH(QString, path);
    QFETCH(QByteArray, left);
    const QString target = write(path.section(u'/', 2), "older");
    BoxWatcher boxes({answer, QStringLiteral("Ok")});
    HttpsDownload download(nullptr);
    download.SetErrorInfoFlag(loud);
    QString folder = m_folder->path();
    QCOMPARE(download.downloadFile(m_server->url(path), folder, QString(), 0), left == Content);
    QCOMPARE(contentOf(target), left);
    QCOMPARE(boxes.seen().value(0),
             loud ? QStringLiteral("Question | Overwrite Existing File | ") + target +
                        QStringLiteral(" already exists in the current directory. Overwrite? | Ok, Cancel")
                  : QString());
}

void TestHttpsDownload::targetGivenInFull()
{
    BoxWatcher boxes({QStringLiteral("Ok")});
    HttpsDownload download(nullptr);
    download.SetErrorInfoFlag(true);
    const QString target = m_folder->filePath(QStringLiteral("own name"));
    QVERIFY(download.downloadFileWithSaveTarget(m_server->url(QStringLiteral("/d/tool.zip")), target, 0));
    QCOMPARE(contentOf(target), Content);
    QVERIFY(!download.downloadFileWithSaveTarget(QStringLiteral(" "), target, 0));
    QCOMPARE(boxes.seen(), QStringList(errorBox(QStringLiteral("Invalid URL :  "))));
    QCOMPARE(contentOf(target), Content);
}

void TestHttpsDownload::unwritableTarget()
{
    // A folder of that name stands in the way; unlike permissions, that also stops root.
    const QString target = m_folder->filePath(QStringLiteral("tool_V3.0.20.zip"));
    QVERIFY(QDir().mkdir(target));
    const int requests = m_server->requestCount();
    for (const bool loud : {true, false}) {
        BoxWatcher boxes({QStringLiteral("Ok"), QStringLiteral("Ok")});
        HttpsDownload download(nullptr);
        download.SetErrorInfoFlag(loud);
        QString folder = m_folder->path();
        QVERIFY(!download.downloadFile(m_server->url(QStringLiteral("/d/tool.zip")), folder,
                                       QStringLiteral("3.0.20"), 0));
        QCOMPARE(folder, m_folder->path());
        QCOMPARE(boxes.seen().value(1),
                 loud ? errorBox(QStringLiteral("Unable to save the file ") + target) : QString());
    }
    QCOMPARE(m_server->requestCount(), requests);
}

void TestHttpsDownload::certificateOfAnotherHost_data()
{
    QTest::addColumn<bool>("loud");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QStringList>("furtherBoxes");
    const QStringList failed(errorBox(QStringLiteral("Download failed: Operation canceled")));
    QTest::newRow("loud, ignore") << true << "Ignore" << QStringList();
    QTest::newRow("loud, abort") << true << "Abort" << failed;
    QTest::newRow("loud, closed") << true << "" << failed;
    QTest::newRow("silent, ignore") << false << "Ignore" << QStringList();
    QTest::newRow("silent, abort") << false << "Abort" << QStringList();
}

void TestHttpsDownload::certificateOfAnotherHost()
{
    QFETCH(bool, loud);
    QFETCH(QString, answer);
    QFETCH(QStringList, furtherBoxes);
    m_foreignServer->on(QStringLiteral("/tool.zip"), LoopbackServer::answer("200 OK", "", Content));
    BoxWatcher boxes({answer, QStringLiteral("Ok")});
    HttpsDownload download(nullptr);
    download.SetErrorInfoFlag(loud);
    QString folder = m_folder->path();
    const bool ignored = answer == QLatin1String("Ignore");
    QCOMPARE(download.downloadFile(m_foreignServer->url(QStringLiteral("/tool.zip")), folder, QString(), 0),
             ignored);
    QCOMPARE(boxes.seen(), QStringList(QStringLiteral(
                               "Warning | SSL Errors | One or more SSL errors has occurred: \n"
                               "The host name did not match any of the valid hosts for this certificate"
                               " | Ignore, Abort")) +
                               furtherBoxes);
    QCOMPARE(leftFiles(), ignored ? QStringList(QStringLiteral("tool.zip")) : QStringList());
    QVERIFY(!ignored || contentOf(folder) == Content);
}

// The reply may end and go while the user still reads the box.
void TestHttpsDownload::breakWhileAskingAboutTheCertificate()
{
    QNetworkAccessManager network;
    QPointer<QNetworkReply> reply = network.get(QNetworkRequest(QUrl(m_deafAddress)));
    BoxWatcher boxes({QStringLiteral("Ignore")});
    QTimer::singleShot(0, this, [&reply] { delete reply; });
    HttpsDownload(nullptr).sslErrors(reply, {QSslError(QSslError::CertificateExpired), QSslError()});
    QVERIFY(reply.isNull());
    QCOMPARE(boxes.seen().size(), 1);
    QVERIFY(boxes.seen().constFirst().contains(
        QStringLiteral("occurred: \nThe certificate has expired\nNo error")));
}

void TestHttpsDownload::progress_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("known");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("label");
    const int received = Content.size();
    const QString stalled = QStringLiteral("/d/stalled.zip");
    const QString endless = QStringLiteral("/d/nolength.zip");
    const QString redirected = QStringLiteral("/d/tostalled.zip");
    QTest::newRow("the server's length") << stalled << 0 << 100 << received << stalled;
    QTest::newRow("the server's length goes first") << stalled << 50 << 100 << received << stalled;
    QTest::newRow("only the list's size") << endless << 40 << 40 << received << endless;
    QTest::newRow("no size at all") << endless << 0 << 0 << received << endless;
    QTest::newRow("after a redirection") << redirected << 50 << 100 << received << stalled;
}

void TestHttpsDownload::progress()
{
    QFETCH(QString, path);
    QFETCH(int, known);
    QFETCH(int, maximum);
    QFETCH(int, value);
    QFETCH(QString, label);
    LoopbackServer server(m_identity);
    server.on(QStringLiteral("/d/stalled.zip"),
              inTwoPieces("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n"));
    server.on(QStringLiteral("/d/nolength.zip"), inTwoPieces("HTTP/1.1 200 OK\r\n\r\n"));
    server.on(QStringLiteral("/d/tostalled.zip"), LoopbackServer::redirect("stalled.zip"));
    BoxWatcher boxes;
    bool reached = false;
    boxes.onProgress = [&](ProgressDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Download Progress"));
        QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
        QCOMPARE(visibleProgressDialogs(), 1);
        if (dialog.value() != value || dialog.maximum() != maximum)
            return;
        reached = true;
        QCOMPARE(dialog.labelText(), QStringLiteral("Downloading %1.").arg(server.url(label)));
        clickCancel(dialog);
    };
    HttpsDownload download(nullptr);
    download.SetErrorInfoFlag(true);
    QString folder = m_folder->path();
    QTimer::singleShot(5000, &download, &HttpsDownload::cancelDownload); // for a state that never comes
    QVERIFY(!download.downloadFile(server.url(path), folder, QString(), known));
    QVERIFY(reached);
}

void TestHttpsDownload::progressOfLargeFiles()
{
    ProgressDialog dialog(QUrl(QStringLiteral("https://a.example/") + QString(5000, u'x')), nullptr);
    QVERIFY(dialog.sizeHint().width() <= dialog.screen()->availableSize().width());
    const qint64 sixGigabytes = 6LL << 30;
    dialog.setTotalBytes(sixGigabytes);
    dialog.networkReplyProgress(sixGigabytes / 3, -1);
    QVERIFY(dialog.maximum() > 0 && qAbs(dialog.maximum() / 3 - dialog.value()) <= 1);
    dialog.networkReplyProgress(1000, 2000);
    QCOMPARE(dialog.maximum(), 2000);
    QCOMPARE(dialog.value(), 1000);
}

void TestHttpsDownload::cancel_data()
{
    QTest::addColumn<bool>("close");
    QTest::newRow("button") << false;
    QTest::newRow("window closed") << true;
}

// The progress dialog is all that tells of the end; what had come stays.
void TestHttpsDownload::cancel()
{
    QFETCH(bool, close);
    BoxWatcher boxes;
    const QString target = m_folder->filePath(QStringLiteral("stalled.zip"));
    boxes.onProgress = [&](ProgressDialog& dialog) {
        if (contentOf(target) != Content)
            return;
        if (close)
            dialog.close();
        else
            clickCancel(dialog);
    };
    HttpsDownload download(nullptr);
    download.SetErrorInfoFlag(true);
    QString folder = m_folder->path();
    QVERIFY(!download.downloadFile(m_server->url(QStringLiteral("/d/stalled.zip")), folder, QString(), 0));
    QCOMPARE(boxes.seen(), QStringList());
    QCOMPARE(contentOf(target), Content);
    QCOMPARE(visibleProgressDialogs(), 0);

    // The same object goes on with the next transfer.
    boxes.onProgress = nullptr;
    folder = m_folder->path();
    QVERIFY(download.downloadFile(m_server->url(QStringLiteral("/d/tool.zip")), folder, QString(), 0));
}

void TestHttpsDownload::endlessRedirection()
{
    BoxWatcher boxes;
    const int start = m_server->requestCount();
    int settled = 0;
    int last = 0;
    boxes.onProgress = [&](ProgressDialog& dialog) {
        const int count = m_server->requestCount() - start;
        if (settled == 0 && count > 200)
            settled = memoryKilobytes("VmRSS");
        if (count < 1000)
            return;
        last = memoryKilobytes("VmRSS");
        clickCancel(dialog);
    };
    HttpsDownload download(nullptr);
    download.SetErrorInfoFlag(true);
    QString folder = m_folder->path();
    QVERIFY(!download.downloadFile(m_server->url(QStringLiteral("/d/endless.zip")), folder, QString(), 0));
    QCOMPARE(boxes.seen(), QStringList());
    QVERIFY(settled > 0 && last > 0);
    if (isSanitized())
        QSKIP("The sanitizers keep freed memory: no figure for the growth");
    qInfo("800 redirections took %d kB", last - settled);
    QVERIFY(last - settled < 1000);
}

// The disk takes the first megabyte only.
void TestHttpsDownload::fullDisk()
{
    m_server->on(QStringLiteral("/d/large.zip"),
                 LoopbackServer::answer("200 OK", "", QByteArray(4 << 20, 'x')));
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit old;
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &old), 0);
    rlimit small = old;
    small.rlim_cur = 1 << 20;
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);

    BoxWatcher boxes({QStringLiteral("Ok")});
    HttpsDownload download(nullptr);
    download.SetErrorInfoFlag(true);
    QString folder = m_folder->path();
    const bool done =
        download.downloadFile(m_server->url(QStringLiteral("/d/large.zip")), folder, QString(), 0);

    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, oldHandler);
    QVERIFY(!done);
    QCOMPARE(boxes.seen(), QStringList(errorBox(QStringLiteral("Download failed: File too large"))));
    QCOMPARE(leftFiles(), QStringList());
    QCOMPARE(visibleProgressDialogs(), 0);
}

void TestHttpsDownload::quittingEndsTheTransfer()
{
    bool returned = false;
    QTimer::singleShot(0, this, [&] {
        HttpsDownload download(nullptr);
        QString folder = m_folder->path();
        QVERIFY(
            !download.downloadFile(m_server->url(QStringLiteral("/d/stalled.zip")), folder, QString(), 0));
        returned = true;
    });
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [this] {
        if (contentOf(m_folder->filePath(QStringLiteral("stalled.zip"))) == Content)
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
    server.start(QStringLiteral("openssl"),
                 {QStringLiteral("s_server"), QStringLiteral("-HTTP"), QStringLiteral("-accept"),
                  QStringLiteral("127.0.0.1:0"), QStringLiteral("-key"),
                  m_keys.filePath(QStringLiteral("127.0.0.1.key")), QStringLiteral("-cert"),
                  m_keys.filePath(QStringLiteral("127.0.0.1.pem"))});
    QByteArray said;
    QTRY_VERIFY((said += server.readAllStandardOutput()).contains("ACCEPT 127.0.0.1:"));
    const QByteArray port = said.mid(said.indexOf("127.0.0.1:") + 10).trimmed();

    HttpsDownload download(nullptr);
    QString folder = m_folder->path();
    QFile resetPeak(QStringLiteral("/proc/self/clear_refs"));
    QVERIFY(resetPeak.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && resetPeak.write("5") == 1);
    const int before = memoryKilobytes("VmHWM");
    const bool done =
        download.downloadFile(QStringLiteral("https://127.0.0.1:%1/large.zip").arg(QString::fromLatin1(port)),
                              folder, QString(), 0);
    const int growth = memoryKilobytes("VmHWM") - before;
    server.kill();
    server.waitForFinished();
    QVERIFY(done);
    QCOMPARE(QFileInfo(folder).size(), Size);
    if (isSanitized())
        QSKIP("The sanitizers keep freed memory: no figure for the growth");
    qInfo("300 MB took %d kB", growth);
    QVERIFY(growth < 8000);
}

QTEST_MAIN(TestHttpsDownload)
#include "tst_httpsdownload.moc"
