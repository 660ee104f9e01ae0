#include "loopbackserver.h"
#include "processdata.h"
#include "update/httpsdownload.h"
#include "update/progressdialog.h"
#include "widgets/dialoganswers.h"

#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QtTest>

#include <sys/stat.h>

using Server = LoopbackServer;

namespace {

const QByteArray Content("The package.\r\n\0\xff", 16);
const QByteArray NoFile("(no file)");
const QByteArray Older("older");
const QString Failed = "critical | Error | Download failed: %1 | Ok"_s;
const QString Invalid = "critical | Error | Invalid URL : %1 | Ok"_s;

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

void clickCancel(QProgressDialog* dialog)
{
    QTest::mouseClick(dialog->findChild<QPushButton*>(), Qt::LeftButton);
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
    const QByteArray all = contentOf("/proc/self/status"_s);
    const int start = all.indexOf(line + ':') + line.size() + 1;
    return all.mid(start, all.indexOf("kB", start) - start).trimmed().toInt();
}

void checkGrowth(int kilobytes, int limit)
{
#ifdef __SANITIZE_ADDRESS__
    Q_UNUSED(limit);
    QSKIP(qPrintable("The sanitizers keep freed memory: %1 kB are no figure"_s.arg(kilobytes)));
#else
    QVERIFY2(kilobytes < limit, qPrintable("%1 kB"_s.arg(kilobytes)));
#endif
}

// The older content of the target, "folder" for a folder of its name; what is left there; %1 in the boxes is
// the target; the answer to the first box.
void row(const QString& name, const QString& address, const QByteArray& older, const QByteArray& left,
         const QStringList& boxes = {}, const QString& answer = "Ok"_s)
{
    QTest::newRow(qPrintable(name)) << address << older << left << boxes << answer;
}
} // namespace

/// One transfer after the other against a real TLS server, and every way in which it can go wrong.
class TestHttpsDownload : public QObject
{
    Q_OBJECT

private:
    QString pathOf(const QString& name) const { return m_folder->filePath(name.section(u'/', -1)); }
    QStringList leftFiles() const { return QDir(m_folder->path()).entryList(QDir::Files); }
    // One transfer into the folder; m_path becomes what the call makes of the folder.
    bool fetch(const QString& address, bool loud, qint64 size = 0)
    {
        m_download->SetErrorInfoFlag(loud);
        m_path = m_folder->path();
        return m_download->downloadFile(address, m_path, QString(), size);
    }
    void addFailures()
    {
        const auto bad = [this](const char* path, const Server::Handler& handler, const QString& reason) {
            m_server.on(path, handler);
            row(QLatin1String(path), m_server.url(path), {}, NoFile, {Failed.arg(reason)});
        };
        const QString replied = "Error transferring %1 - server replied: %2"_s;
        const QString closed = "Connection closed"_s;
        bad("/d/broken.zip", Server::answer("Sorry.", "500 Broken"),
            replied.arg(m_server.url("/d/broken.zip"), "Broken"_s));
        bad("/d/nowhere.zip", Server::redirect("missing.zip"),
            replied.arg(m_server.url("/d/missing.zip"), "Not Found"_s));
        bad("/d/local.zip", Server::redirect("file:///etc/passwd"), "Protocol \"file\" is unknown"_s);
        bad("/d/closed.zip", Server::cut(""), closed);
        bad("/d/garbage.zip", Server::cut("\1\2\3 what?\r\n\r\n"), closed);
        bad("/d/password.zip",
            Server::answer("Who?", "401 Unauthorized", "WWW-Authenticate: Basic realm=\"x\"\r\n"),
            "Host requires authentication"_s);
        // Answers that hold no package, though the network layer takes them for good ones.
        bad("/d/nocontent.zip", Server::cut("HTTP/1.1 204 No Content\r\n\r\n"),
            replied.arg(m_server.url("/d/nocontent.zip"), "No Content"_s));
        bad("/d/notmodified.zip", Server::cut("HTTP/1.1 304 Not Modified\r\n\r\n"),
            replied.arg(m_server.url("/d/notmodified.zip"), "Not Modified"_s));
        // The network layer takes a size that it cannot read for the last.
        const QString noContent = "Error transferring %1 - server sends no content"_s;
        for (const char* size : {"ffffffffffffffff", "10000000000000000", "zz"}) {
            const QByteArray path = "/d/chunk" + QByteArray(size) + ".zip";
            bad(path.constData(),
                Server::cut("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + QByteArray(size) +
                            "\r\n" + Content),
                noContent.arg(m_server.url(path)));
        }
        // Texts of the server show as one line, which ends.
        bad("/d/controls.zip", Server::answer("", "500 a\tb\x1b[31m\xe2\x80\xaegnp.exe"),
            replied.arg(m_server.url("/d/controls.zip"), "a\tb\u241b[31m\u00e2<U+0080>\u00aegnp.exe"_s));
        bad("/d/large.zip", Server::answer(QByteArray(4 << 20, 'x')), "File too large"_s);
        row("nobody listens"_s, m_deafAddress, {}, NoFile, {Failed.arg("Connection refused"_s)});
        // What is not in the web is not fetched, though the network layer could: reading a pipe would never
        // end.
        const QString pipe = m_place.filePath("pipe"_s);
        for (const QString& address :
             {"nothing://127.0.0.1/tool.zip"_s, "ftp://127.0.0.1/tool.zip"_s, "file:///dev/ptmx"_s,
              "file://"_s + pipe, pipe, "qrc:/qt-project.org/imports/tool.zip"_s,
              "data:text/plain,/tool.zip"_s})
            row(address, address, {}, NoFile,
                {Failed.arg("Protocol \"%1\" is unknown"_s.arg(QUrl::fromUserInput(address).scheme()))});
        for (const QString& address :
             {QString(), " \t"_s, " www.clockwright.example "_s, m_server.url("/d/..%2Ftool.zip")})
            row("invalid: "_s + address, address, {}, NoFile, {Invalid.arg(address)});

        const QString foreign = m_foreignServer.url("/d/tool.zip");
        const QString ssl = "warning | SSL Errors | One or more SSL errors has occurred: \n"
                            "The host name did not match any of the valid hosts for this certificate | "
                            "Abort, Ignore"_s;
        const QStringList aborted{ssl, Failed.arg("Operation canceled"_s)};
        row("TLS error ignored"_s, foreign, {}, Content, {ssl}, "Ignore"_s);
        row("TLS error refused"_s, foreign, {}, NoFile, aborted, "Abort"_s);
        row("TLS box closed"_s, foreign, {}, NoFile, aborted, QString());
    }

    void addExistingTargets()
    {
        const QString ask =
            "question | Overwrite Existing File | %1 already exists in the current directory. "
            "Overwrite? | Cancel, Ok"_s;
        const QString good = m_server.url("/d/tool.zip");
        row("overwrite"_s, good, Older, Content, {ask});
        row("keep"_s, good, Older, Older, {ask}, "Cancel"_s);
        row("box closed"_s, good, Older, Older, {ask}, QString());
        row("a failure destroys the older file"_s, m_server.url("/d/cut.zip"), Older, NoFile,
            {ask, Failed.arg("Connection closed"_s)});
        // A folder of that name stands in the way; unlike permissions, that also stops root.
        row("unwritable"_s, m_server.url("/d/folder"), "folder", NoFile,
            {ask, "critical | Error | Unable to save the file %1 | Ok"_s});
    }

    Server m_server;
    Server m_foreignServer{"127.0.0.2"_s};
    QString m_deafAddress;
    QTemporaryDir m_place; // of what no transfer may touch
    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<HttpsDownload> m_download;
    QString m_path;

private slots:
    void initTestCase()
    {
        QVERIFY2(m_server.isListening() && m_foreignServer.isListening(), "openssl made no certificate");
        m_server.on("/d/tool.zip", Server::answer(Content));
        m_foreignServer.on("/d/tool.zip", Server::answer(Content));
        m_server.on("/d/cut.zip", Server::cut("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n" + Content));
        m_server.on("/d/stalled.zip", inTwoPieces("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n"));
        m_server.on("/d/open.zip", inTwoPieces("HTTP/1.1 200 OK\r\n\r\n"));
        m_server.on("/d/tostalled.zip", Server::redirect("stalled.zip"));
        m_server.on("/d/endless.zip", Server::redirect("endless.zip"));
        QCOMPARE(mkfifo(QFile::encodeName(m_place.filePath("pipe"_s)).constData(), 0600), 0);
        QTcpServer closedAgain;
        QVERIFY(closedAgain.listen(QHostAddress::LocalHost));
        m_deafAddress = "https://127.0.0.1:%1/d/tool.zip"_s.arg(closedAgain.serverPort());
    }

    void init()
    {
        m_folder.reset(new QTemporaryDir);
        m_download.reset(new HttpsDownload(nullptr));
    }

    void transfers_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QByteArray>("older");
        QTest::addColumn<QByteArray>("left");
        QTest::addColumn<QStringList>("boxes");
        QTest::addColumn<QString>("answer");
        const auto good = [this](const char* path, const Server::Handler& handler,
                                 const QByteArray& content) {
            m_server.on(path, handler);
            row(QLatin1String(path), m_server.url(path), {}, content);
        };
        good("/d/nolength.zip", Server::cut("HTTP/1.1 200 OK\r\n\r\n" + Content), Content);
        good("/d/packed.zip", Server::answer(Content, "200 OK", "Content-Encoding: gzip\r\n"), Content);
        good("/d/relative.zip", Server::redirect("../d/tool.zip"), Content);
        good("/d/absolute.zip", Server::redirect(m_server.url("/d/relative.zip").toLatin1()), Content);
        good("/d/empty.zip", Server::answer(""), QByteArray(""));
        good("/d/chunks.zip",
             Server::cut("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5;x=y\r\n" + Content.left(5) +
                         "\r\nB\r\n" + Content.mid(5) + "\r\n0\r\n\r\n"),
             Content);
        addFailures();
        addExistingTargets();
    }

    // Each case loud and silent: the same result, but a silent transfer asks about certificates only.
    void transfers()
    {
        QFETCH(QString, address);
        QFETCH(QByteArray, older);
        QFETCH(QByteArray, left);
        QFETCH(QStringList, boxes);
        QFETCH(QString, answer);
        limitFiles(1 << 20);
        const auto unlimited = qScopeGuard([] { limitFiles(RLIM_INFINITY); });
        for (const bool loud : {true, false}) {
            init();
            const QString target = pathOf(address);
            if (!older.isEmpty())
                QVERIFY(older == "folder" ? QDir().mkdir(target) : writeFile(target, older));
            if (!loud && left == Older)
                left = Content;
            const bool stops = left == Older || older == "folder";
            const int requests = m_server.requestCount();
            DialogAnswers answers({answer, "Ok"_s});
            QCOMPARE(fetch(address, loud), left != NoFile && left != Older);
            const QStringList all = QStringList(boxes).replaceInStrings("%1"_s, target);
            QCOMPARE(answers.shown(), loud ? all : all.filter("SSL Errors"_s));
            QCOMPARE(visibleProgressDialogs(), 0);
            QCOMPARE(leftFiles().size(), left == NoFile ? 0 : 1);
            QVERIFY(older.isEmpty() || stops == (m_server.requestCount() == requests));
            if (left != NoFile)
                QCOMPARE(contentOf(target), left);
            if (left == Content)
                QCOMPARE(m_path, target);
        }
    }

    void targetGivenInFull()
    {
        DialogAnswers answers({"Ok"_s, "Ok"_s});
        m_download->SetErrorInfoFlag(true);
        const QString target = pathOf("own name"_s);
        QVERIFY(m_download->downloadFileWithSaveTarget(m_server.url("/d/tool.zip"), target, 0));
        QVERIFY(!m_download->downloadFileWithSaveTarget(" "_s, target, 0));
        QCOMPARE(contentOf(target), Content);
        const QString local = "file://"_s + target;
        QVERIFY(!m_download->downloadFileWithSaveTarget(local, pathOf("copy"_s), 0));
        QCOMPARE(answers.shown(),
                 QStringList({Invalid.arg(" "_s), Failed.arg("Protocol \"file\" is unknown"_s)}));
        QCOMPARE(leftFiles(), QStringList("own name"_s));
    }

    // The reply may end and go while the user still reads the box.
    void breakWhileAskingAboutTheCertificate()
    {
        QNetworkAccessManager network;
        QPointer<QNetworkReply> reply = network.get(QNetworkRequest(QUrl(m_deafAddress)));
        DialogAnswers answers({"Ignore"_s, "Abort"_s});
        QTimer::singleShot(0, this, [&reply] { delete reply; });
        m_download->sslErrors(reply, {QSslError(QSslError::CertificateExpired), QSslError()});
        QVERIFY(reply.isNull());
        // A chain of hundreds of bad certificates still fits the screen.
        m_download->sslErrors(nullptr, QVector<QSslError>(500, QSslError()).toList());
        QCOMPARE(answers.shown().size(), 2);
        QCOMPARE(answers.shown().constLast().count(u'\n'), 21);
        QVERIFY(answers.shown().constFirst().contains("\nThe certificate has expired\nNo error"_s));
    }

    void cancel_data()
    {
        // Path, the size known beforehand, the bar's maximum, and how the dialog is left.
        fieldRows({"/d/stalled.zip | 0 | 100 | close", "/d/stalled.zip | 50 | 100 | cancel",
                   "/d/open.zip | 40 | 40 | cancel", "/d/open.zip | 0 | 0 | cancel",
                   "/d/tostalled.zip | 50 | 100 | cancel"});
    }

    // The progress dialog is all that tells of the end; what had come stays.
    void cancel()
    {
        QFETCH(QStringList, fields);
        const QString target = pathOf(fields[0]);
        DialogAnswers answers;
        bool reached = false;
        answers.onProgress = [&](QProgressDialog* dialog) {
            if (dialog->value() != Content.size() || dialog->maximum() != fields[2].toInt() ||
                contentOf(target) != Content)
                return;
            reached = true;
            QCOMPARE(dialog->windowTitle(), "Download Progress"_s);
            QCOMPARE(dialog->windowModality(), Qt::ApplicationModal);
            QCOMPARE(visibleProgressDialogs(), 1);
            // The address that the transfer has been sent to.
            const QByteArray path = fields[0].toLatin1().replace("tostalled", "stalled");
            QCOMPARE(dialog->labelText(), "Downloading %1."_s.arg(m_server.url(path)));
            fields[3] == "close"_s ? void(dialog->close()) : clickCancel(dialog);
        };
        // For a state that never comes.
        QTimer::singleShot(5000, m_download.data(), &HttpsDownload::cancelDownload);
        QVERIFY(!fetch(m_server.url(fields[0].toLatin1()), true, fields[1].toInt()));
        QVERIFY(reached);
        QCOMPARE(answers.shown(), QStringList());
        QCOMPARE(contentOf(target), Content);
        QCOMPARE(visibleProgressDialogs(), 0);
        // The same object goes on with the next transfer.
        QVERIFY(fetch(m_server.url("/d/tool.zip"), true));
    }

    // What never comes to the body stays in memory, so a server that only goes on and on is left.
    void endlessBeforeTheBody_data()
    {
        QTest::addColumn<QByteArray>("start");
        QTest::newRow("status line") << QByteArray("HTTP/1.1 200 ");
        QTest::newRow("header") << QByteArray("HTTP/1.1 200 OK\r\nX: ");
        QTest::newRow("chunk size") << QByteArray(
            "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nThe p\r\n1;x=");
        QTest::newRow("early answers") << QByteArray();
    }

    void endlessBeforeTheBody()
    {
        QFETCH(QByteArray, start);
        constexpr int Enough = 64 << 20;
        const QByteArray more = start.isEmpty() ? QByteArray("HTTP/1.1 100 Continue\r\n\r\n").repeated(2000)
                                                : QByteArray(50000, 'x');
        int sent = 0;
        m_server.on("/d/babble.zip", [&](QSslSocket& socket) {
            socket.write(start);
            const auto feed = [&socket, &sent, more] {
                if (socket.encryptedBytesToWrite() > 0 || socket.bytesToWrite() > 0)
                    return;
                sent += more.size();
                sent < Enough ? void(socket.write(more)) : socket.disconnectFromHost();
            };
            connect(&socket, &QSslSocket::encryptedBytesWritten, this, feed);
            feed();
        });
        const QString reason = "Error transferring %1 - server sends no content"_s;
        for (const bool loud : {true, false}) {
            sent = 0;
            DialogAnswers answers({"Ok"_s});
            QVERIFY(!fetch(m_server.url("/d/babble.zip"), loud));
            QVERIFY2(sent < Enough / 2, qPrintable(QString::number(sent)));
            QCOMPARE(answers.shown(), loud
                                          ? QStringList(Failed.arg(reason.arg(m_server.url("/d/babble.zip"))))
                                          : QStringList());
            QCOMPARE(leftFiles(), QStringList());
        }
    }

    // A server that is silent is waited for, whatever else the program reads meanwhile.
    void silentServerIsWaitedFor()
    {
        m_server.on("/d/late.zip", [](QSslSocket& socket) {
            QFile other("/dev/zero"_s);
            QVERIFY(other.open(QIODevice::ReadOnly) && other.read(64 << 20).size() == 64 << 20);
            QTimer::singleShot(300, &socket, [&socket] { Server::answer(Content)(socket); });
        });
        QVERIFY(fetch(m_server.url("/d/late.zip"), false));
        QCOMPARE(contentOf(m_path), Content);
    }

    // A limit holds for the body, whatever the server says of its length.
    void sizeLimit_data()
    {
        fieldRows({"/d/tool.zip | 16 | complete", "/d/tool.zip | 15 |", "/d/nolength.zip | 16 | complete",
                   "/d/nolength.zip | 15 |", "/d/open.zip | 15 |"});
    }

    void sizeLimit()
    {
        QFETCH(QStringList, fields);
        m_server.on("/d/nolength.zip", Server::cut("HTTP/1.1 200 OK\r\n\r\n" + Content));
        m_download->SetSizeLimit(fields[1].toInt());
        QCOMPARE(fetch(m_server.url(fields[0].toLatin1()), false), !fields[2].isEmpty());
        QCOMPARE(leftFiles().size(), fields[2].isEmpty() ? 0 : 1);
    }

    // A link in the target's place is replaced, whether it leads to a file or to none.
    void linkInTheWay()
    {
        const QString outside = m_place.filePath("outside"_s);
        for (const bool dangling : {true, false}) {
            init();
            QVERIFY(dangling || writeFile(outside, Older));
            QVERIFY(QFile::link(outside, pathOf("tool.zip"_s)));
            QVERIFY(fetch(m_server.url("/d/tool.zip"), false));
            QVERIFY(!QFileInfo(pathOf("tool.zip"_s)).isSymLink());
            QCOMPARE(contentOf(pathOf("tool.zip"_s)), Content);
            QCOMPARE(contentOf(outside), dangling ? NoFile : Older);
        }
    }

    // However long a text from the net is and whatever it consists of, its box fits a screen.
    void longTextsFitAScreen()
    {
        const QString path(300000, u'W');
        for (const QString& address : {"nothing:"_s + path + u'/', m_server.url(path.toLatin1()),
                                       m_server.url("/d/") + QString(250, u'W')}) {
            QSize size;
            DialogAnswers answers{[&size](QDialog* box) {
                size = box->findChild<QLabel*>("qt_msgbox_label"_s)->sizeHint();
                box->reject();
            }};
            m_download->SetErrorInfoFlag(true);
            QVERIFY(!fetch(address, true));
            QCOMPARE(answers.shown().size(), 1);
            QVERIFY(answers.shown().constFirst().size() < 1300);
            QVERIFY2(size.width() <= 1920 && size.height() <= 1080 && size.width() > 100,
                     qPrintable("%1 x %2"_s.arg(size.width()).arg(size.height())));
        }
    }

    void progressOfLargeFiles()
    {
        ProgressDialog dialog(QUrl("https://a.example/"_s + QString(5000, u'x')), nullptr);
        QVERIFY(dialog.sizeHint().width() <= dialog.screen()->availableSize().width());
        const qint64 sixGigabytes = 6LL << 30;
        dialog.setTotalBytes(sixGigabytes);
        dialog.networkReplyProgress(sixGigabytes / 3, -1);
        QVERIFY(dialog.maximum() > 0 && qAbs(dialog.maximum() / 3 - dialog.value()) <= 1);
    }

    void endlessRedirection()
    {
        DialogAnswers answers;
        const int start = m_server.requestCount();
        int settled = 0;
        int last = 0;
        answers.onProgress = [&](QProgressDialog* dialog) {
            const int count = m_server.requestCount() - start;
            if (settled == 0 && count > 200)
                settled = memoryKilobytes("VmRSS");
            if (count < 1000)
                return;
            last = memoryKilobytes("VmRSS");
            clickCancel(dialog);
        };
        QVERIFY(!fetch(m_server.url("/d/endless.zip"), true));
        QCOMPARE(answers.shown(), QStringList());
        QVERIFY(settled > 0 && last > 0);
        checkGrowth(last - settled, 1000);
    }

    // Nobody sees a silent transfer, so it keeps neither the core nor the server busy, and can be ended.
    void silentRedirectionSlowsDown()
    {
        const int start = m_server.requestCount();
        QTimer::singleShot(1500, m_download.data(), &HttpsDownload::cancelDownload);
        QVERIFY(!fetch(m_server.url("/d/endless.zip"), false));
        const int count = m_server.requestCount() - start;
        QVERIFY2(count > 20 && count < 40, qPrintable(QString::number(count)));
        QTest::qWait(1100);
        QCOMPARE(m_server.requestCount() - start, count);
        QVERIFY(fetch(m_server.url("/d/tool.zip"), false));
        // Ended with the program, it leaves nothing.
        init();
        QTimer::singleShot(1500, qApp, &QCoreApplication::quit);
        QTimer::singleShot(0, this, [this] {
            QVERIFY(!fetch(m_server.url("/d/endless.zip"), false));
            m_download.reset();
        });
        QCoreApplication::exec();
        QCOMPARE(leftFiles(), QStringList());
    }

    void quittingEndsTheTransfer()
    {
        bool returned = false;
        QTimer::singleShot(0, this, [&] {
            QVERIFY(!fetch(m_server.url("/d/stalled.zip"), false));
            m_download.reset();
            returned = true;
        });
        QTimer poll;
        poll.callOnTimeout(this, [this] {
            if (contentOf(pathOf("stalled.zip"_s)) == Content)
                QCoreApplication::quit();
        });
        poll.start(1);
        QCoreApplication::exec();
        QVERIFY(returned);
        QCOMPARE(leftFiles(), QStringList());
    }

    // The server is a process of its own here, so that it neither waits for the client nor counts with it.
    void largePackageStaysOutOfMemory()
    {
        constexpr qint64 Size = 300 << 20;
        const QTemporaryDir site;
        const QString package = site.filePath("large.zip"_s);
        const QByteArray header =
            "HTTP/1.0 200 OK\r\nContent-Length: " + QByteArray::number(Size) + "\r\n\r\n";
        QVERIFY(writeFile(package, header) && QFile::resize(package, header.size() + Size));
        QProcess server;
        server.setWorkingDirectory(site.path());
        const QString options = "s_server -HTTP -accept 127.0.0.1:0 -key %1 -cert %2"_s;
        server.start("openssl"_s, options.arg(m_server.keyFile(), m_server.certificateFile()).split(u' '));
        QByteArray said;
        QTRY_VERIFY((said += server.readAllStandardOutput()).contains("ACCEPT 127.0.0.1:"));
        const QString port = QString::fromLatin1(said.mid(said.indexOf("127.0.0.1:") + 10).trimmed());

        QFile resetPeak("/proc/self/clear_refs"_s);
        QVERIFY(resetPeak.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && resetPeak.write("5") == 1);
        const int before = memoryKilobytes("VmHWM");
        const bool done = fetch("https://127.0.0.1:%1/large.zip"_s.arg(port), false);
        const int growth = memoryKilobytes("VmHWM") - before;
        server.kill();
        server.waitForFinished();
        QVERIFY(done);
        QCOMPARE(QFileInfo(m_path).size(), Size);
        checkGrowth(growth, 8000);
    }
};

QTEST_MAIN(TestHttpsDownload)
#include "tst_httpsdownload.moc"
