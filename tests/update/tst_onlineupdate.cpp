#include "boxwatcher.h"
#include "loopbackserver.h"
#include "update/onlineupdate.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QNetworkProxy>
#include <QtTest>

/// The menu entry "New version download" from the list to the stored package, as the user meets it.
class TestOnlineUpdate : public QObject
{
    Q_OBJECT

public slots:
    void folderOpened(const QUrl& url) { m_opened += url; }

private slots:
    void initTestCase();
    void init();
    void flow_data();
    void flow();
    void opensTheFolder_data();
    void opensTheFolder();
    void listStaysOffTheDisk_data();
    void listStaysOffTheDisk();
    void secondCallWhileWaiting();

private:
    DownloadSite site(bool chinese) const;
    void serveList(const QByteArray& list);
    // Takes the place of the user in the directory dialog: chooses m_chosen, or nothing.
    void chooseFolder(BoxWatcher& boxes, bool accept);

    QTemporaryDir m_keys;
    QScopedPointer<LoopbackServer> m_server;
    QScopedPointer<QTemporaryDir> m_current;
    QScopedPointer<QTemporaryDir> m_chosen;
    QWidget m_form;
    QList<QUrl> m_opened;
    int m_dialogs = 0;
};

namespace {

const QString ListName = QStringLiteral("VelmoraDownloadResource.xml");

const QString Latest =
    QStringLiteral("Information | Information | The current tool is the latest version. | Ok");
const QString NewVersion =
    QStringLiteral("Question | Infomation | A new version of \"ZN64 Clockwright\" has been "
                   "detected, do you want to download it? | Ok, Cancel");

QString stored(const QString& path)
{
    return QStringLiteral("Information | Information | Download succeeded, storage location: \n") + path +
           QStringLiteral(" |  Open Folder  , OK");
}

QByteArray listOf(const QByteArray& version, const QByteArray& chinese, const QByteArray& english)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Resources><VelmoraTool>"
           "<Tool><Name>Other "
           "Tool</Name><Version>9.9.9</Version><URLEN>https://a.example/other.zip</URLEN></Tool>"
           "<Tool><Name>ZN64 Clockwright Linux</Name><Version>" +
           version + "</Version><Size>7</Size><URL>" + chinese + "</URL><URLEN>" + english +
           "</URLEN></Tool></VelmoraTool></Resources>";
}

} // namespace

DownloadSite TestOnlineUpdate::site(bool chinese) const
{
    return {m_server->url(QStringLiteral("/download/")), downloadSite(chinese).packageElement};
}

void TestOnlineUpdate::serveList(const QByteArray& list)
{
    m_server->on(QStringLiteral("/download/") + ListName, LoopbackServer::answer("200 OK", "", list));
}

void TestOnlineUpdate::chooseFolder(BoxWatcher& boxes, bool accept)
{
    boxes.onOther = [this, accept](QWidget& window) {
        auto* dialog = qobject_cast<QFileDialog*>(&window);
        QVERIFY(dialog != nullptr);
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Select directory"));
        QVERIFY(dialog->testOption(QFileDialog::ShowDirsOnly));
        QCOMPARE(dialog->parentWidget(), &m_form);
        ++m_dialogs;
        dialog->selectFile(m_chosen->path());
        QMetaObject::invokeMethod(dialog, accept ? "accept" : "reject");
    };
}

void TestOnlineUpdate::initTestCase()
{
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    const ServerIdentity identity = ServerIdentity::make(m_keys.path(), QStringLiteral("127.0.0.1"));
    QVERIFY2(!identity.keyFile.isEmpty(), "openssl made no certificate");
    m_server.reset(new LoopbackServer(identity));
    QVERIFY(m_server->isListening());
    for (const char* name :
         {"tool.tar.gz", "tool_V3.0.20.zip", "tool_V3x0y20.zip", "tool_v3.0.20.zip", "zh.zip"})
        m_server->on(QStringLiteral("/files/") + QLatin1String(name),
                     LoopbackServer::answer("200 OK", "", "package"));
}

void TestOnlineUpdate::init()
{
    m_current.reset(new QTemporaryDir);
    m_chosen.reset(new QTemporaryDir);
    QVERIFY(QDir::setCurrent(m_current->path()));
    m_opened.clear();
    m_dialogs = 0;
}

void TestOnlineUpdate::flow_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<bool>("chinese");
    QTest::addColumn<QStringList>("answers");
    QTest::addColumn<bool>("choose");
    QTest::addColumn<QStringList>("boxes"); // %1 is the chosen folder
    QTest::addColumn<QString>("left");      // in the chosen folder
    const QByteArray files = m_server->url(QStringLiteral("/files/")).toLatin1();
    const QStringList ok(QStringLiteral("Ok"));
    const QStringList toTheEnd = ok + QStringList(QStringLiteral("OK"));

    const auto ends = [&](const char* name, const QByteArray& list, const QStringList& boxes) {
        QTest::newRow(name) << list << false << ok << false << boxes << QString();
    };
    ends("latest version", listOf("3.0.17", "", files + "tool.tar.gz"), {Latest});
    ends("older version", listOf("2.F.FF", "", files + "tool.tar.gz"), {Latest});
    ends("version of two fields", listOf("3.1", "", files + "tool.tar.gz"), {Latest});
    ends("list not well formed", "<Resources><VelmoraTool>", {Latest});
    ends("list of others only", listOf("9.9.9", "", "").replace("Clockwright", "Other"), {Latest});
    ends("list nested too deep", QByteArray("<a>").repeated(40000) + QByteArray("</a>").repeated(40000),
         {Latest});
    ends("no folder chosen", listOf("3.0.18", "", files + "tool.tar.gz"), {NewVersion});

    QTest::newRow("not wanted") << listOf("3.0.18", "", files + "tool.tar.gz") << false
                                << QStringList(QStringLiteral("Cancel")) << true << QStringList(NewVersion)
                                << QString();

    const auto fails = [&](const char* name, const QByteArray& address, const QString& box) {
        QTest::newRow(name) << listOf("3.0.18", files + "zh.zip", address) << false << ok + ok << true
                            << QStringList{NewVersion, QStringLiteral("Critical | Error | ") + box}
                            << QString();
    };
    fails("no address", "", QStringLiteral("Invalid URL :  | Ok"));
    fails("package missing", files + "missing.zip",
          QStringLiteral("Download failed: Error transferring %1 - server replied: Not Found | Ok")
              .arg(QString::fromLatin1(files + "missing.zip")));

    const auto succeeds = [&](const char* name, const char* version, bool chinese, const char* english,
                              const char* left) {
        QTest::newRow(name) << listOf(version, files + "zh.zip", files + english) << chinese << toTheEnd
                            << true
                            << QStringList{NewVersion, stored(QStringLiteral("%1/") + QLatin1String(left))}
                            << QString::fromLatin1(left);
    };
    succeeds("next version", "3.0.18", false, "tool.tar.gz", "tool.tar_V3.0.18.gz");
    succeeds("hexadecimal version", "3.0.1A", false, "tool.tar.gz", "tool.tar_V3.0.1A.gz");
    succeeds("address with a version", "3.0.20", false, "tool_V3.0.20.zip", "tool_V3.0.20.zip");
    succeeds("address with a kind of version", "3.0.20", false, "tool_V3x0y20.zip", "tool_V3x0y20.zip");
    succeeds("address with a small v", "3.0.20", false, "tool_v3.0.20.zip", "tool_v3.0.20_V3.0.20.zip");
    succeeds("Chinese interface", "3.0.18", true, "tool.tar.gz", "zh_V3.0.18.zip");
}

void TestOnlineUpdate::flow()
{
    QFETCH(QByteArray, list);
    QFETCH(bool, chinese);
    QFETCH(QStringList, answers);
    QFETCH(bool, choose);
    QFETCH(QStringList, boxes);
    QFETCH(QString, left);
    serveList(list);
    BoxWatcher watcher(answers);
    chooseFolder(watcher, choose);
    const QString logged = m_server->url(QStringLiteral("/download/") + ListName);
    QTest::ignoreMessage(QtDebugMsg, qPrintable(logged));
    OnlineUpdate(&m_form, site(chinese)).OnlineDownload();

    boxes.replaceInStrings(QStringLiteral("%1"), m_chosen->path());
    QCOMPARE(watcher.seen(), boxes);
    QCOMPARE(QDir(m_chosen->path()).entryList(QDir::Files),
             left.isEmpty() ? QStringList() : QStringList(left));
    QCOMPARE(QDir(m_current->path()).entryList(QDir::Files), QStringList());
    QCOMPARE(m_dialogs,
             boxes.constFirst() == NewVersion && answers.constFirst() == QLatin1String("Ok") ? 1 : 0);
}

void TestOnlineUpdate::opensTheFolder_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("opens");
    QTest::newRow("first button") << " Open Folder  " << true;
    QTest::newRow("second button") << "OK" << false;
    QTest::newRow("box closed") << QString() << false;
}

void TestOnlineUpdate::opensTheFolder()
{
    QFETCH(QString, answer);
    QFETCH(bool, opens);
    const QByteArray address = m_server->url(QStringLiteral("/files/zh.zip")).toLatin1();
    serveList(listOf("3.0.18", address, address));
    BoxWatcher watcher({QStringLiteral("Ok"), answer});
    chooseFolder(watcher, true);
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "folderOpened");
    OnlineUpdate(&m_form, site(true)).OnlineDownload();
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));

    const QUrl folder = QUrl::fromLocalFile(m_chosen->path() + QLatin1Char('/'));
    QCOMPARE(watcher.seen(),
             (QStringList{NewVersion, stored(m_chosen->filePath(QStringLiteral("zh_V3.0.18.zip")))}));
    QCOMPARE(m_opened, opens ? QList<QUrl>{folder} : QList<QUrl>());
}

void TestOnlineUpdate::listStaysOffTheDisk_data()
{
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("missing") << QByteArray("HTTP/1.1 404 Not Found\r\nContent-Length: 2\r\n\r\nno");
    QTest::newRow("cut") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n<Resources>");
    QTest::newRow("garbage") << QByteArray("\1\2\3");
    QTest::newRow("elsewhere") << QByteArray("HTTP/1.1 302 Found\r\nLocation: https://127.0.0.1:1/x\r\n"
                                             "Content-Length: 0\r\n\r\n");
}

// A list that cannot be had ends the flow without a word; an older list is gone all the same.
void TestOnlineUpdate::listStaysOffTheDisk()
{
    QFETCH(QByteArray, sent);
    m_server->on(QStringLiteral("/download/") + ListName, LoopbackServer::send(sent, true));
    QFile older(ListName);
    QVERIFY(older.open(QIODevice::WriteOnly) && older.write(listOf("9.0.0", "", "")) > 0);
    older.close();
    BoxWatcher watcher;
    OnlineUpdate(&m_form, site(false)).OnlineDownload();
    QCOMPARE(watcher.seen(), QStringList());
    QCOMPARE(QDir(m_current->path()).entryList(QDir::Files), QStringList());
}

// The form stays usable while the list is on its way, and so does its menu.
void TestOnlineUpdate::secondCallWhileWaiting()
{
    const int requests = m_server->requestCount();
    OnlineUpdate update(&m_form, site(false));
    m_server->on(QStringLiteral("/download/") + ListName, [&update](QSslSocket& socket) {
        update.OnlineDownload();
        LoopbackServer::answer("200 OK", "", listOf("3.0.17", "", ""))(socket);
    });
    BoxWatcher watcher({QStringLiteral("Ok")});
    update.OnlineDownload();
    QCOMPARE(m_server->requestCount(), requests + 1);
    QCOMPARE(watcher.seen(), QStringList(Latest));
}

QTEST_MAIN(TestOnlineUpdate)
#include "tst_onlineupdate.moc"
