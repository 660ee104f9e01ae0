#include "boxwatcher.h"
#include "loopbackserver.h"
#include "update/onlineupdate.h"

#include <QDesktopServices>
#include <QtTest>

using Server = LoopbackServer;

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
    void secondCallWhileWaiting();

private:
    DownloadSite site(bool chinese) const;

    Server m_server;
    QScopedPointer<QTemporaryDir> m_current;
    QScopedPointer<QTemporaryDir> m_chosen;
    QWidget m_form;
    QList<QUrl> m_opened;
};

// What the server sends for the list.
Q_DECLARE_METATYPE(LoopbackServer::Handler)

namespace {

const QByteArray ListPath("/download/VelmoraDownloadResource.xml");
const QString OpenFolder = QStringLiteral(" Open Folder  ");
const QStringList
    Latest(QStringLiteral("information | Information | The current tool is the latest version. | Ok"));
const QStringList
    NewVersion(QStringLiteral("question | Infomation | A new version of \"ZN64 Clockwright\" has "
                              "been detected, do you want to download it? | Cancel, Ok"));

Server::Handler listOf(const QByteArray& version, const QByteArray& chinese, const QByteArray& english,
                       const QByteArray& tool = "ZN64 Clockwright Linux")
{
    return Server::answer(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Resources><VelmoraTool>"
        "<Tool><Name>Other</Name><Version>9.9.9</Version><URLEN>https://a.example/other.zip</URLEN></Tool>"
        "<Tool><Name>" +
        tool + "</Name><Version>" + version + "</Version><Size>7</Size><URL>" + chinese + "</URL><URLEN>" +
        english + "</URLEN></Tool></VelmoraTool></Resources>");
}

} // namespace

DownloadSite TestOnlineUpdate::site(bool chinese) const
{
    return {m_server.url("/download/"), downloadSite(chinese).packageElement};
}

void TestOnlineUpdate::initTestCase()
{
    QVERIFY2(m_server.isListening(), "openssl made no certificate");
    for (const char* name :
         {"tool.tar.gz", "tool_V3.0.20.zip", "tool_V3x0y20.zip", "tool_v3.0.20.zip", "zh.zip"})
        m_server.on(QByteArray("/files/") + name, Server::answer("package"));
}

void TestOnlineUpdate::init()
{
    m_current.reset(new QTemporaryDir);
    m_chosen.reset(new QTemporaryDir);
    QVERIFY(QDir::setCurrent(m_current->path()));
    m_opened.clear();
    QTest::ignoreMessage(QtDebugMsg, qPrintable(m_server.url(ListPath)));
}

void TestOnlineUpdate::flow_data()
{
    QTest::addColumn<Server::Handler>("list");
    QTest::addColumn<bool>("chinese");
    QTest::addColumn<QStringList>("answers");
    QTest::addColumn<QStringList>("boxes"); // %1 is the chosen folder
    QTest::addColumn<QString>("left");      // in the chosen folder; none is chosen for "-"
    const QByteArray files = m_server.url("/files/").toLatin1();
    const QStringList ok(QStringLiteral("Ok"));
    const Server::Handler good = listOf("3.0.18", files + "zh.zip", files + "tool.tar.gz");

    const auto ends = [&](const char* name, const Server::Handler& list, const QStringList& boxes) {
        QTest::newRow(name) << list << false << ok << boxes << "-";
    };
    ends("latest version", listOf("3.0.17", "", files + "tool.tar.gz"), Latest);
    ends("version of two fields", listOf("3.1", "", files + "tool.tar.gz"), Latest);
    ends("list not well formed", Server::answer("<Resources><VelmoraTool>"), Latest);
    ends("list of others only", listOf("9.9.9", "", "", "ZN64 Other"), Latest);
    const QByteArray deep = QByteArray("<a>").repeated(40000) + QByteArray("</a>").repeated(40000);
    ends("list nested too deep", Server::answer(deep), Latest);
    ends("no folder chosen", good, NewVersion);
    // A list that cannot be had ends the flow without a word.
    ends("list missing", Server::answer("no", "404 Not Found"), {});
    ends("list cut", Server::cut("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n<Resources>"), {});
    ends("list garbage", Server::cut("\1\2\3"), {});
    ends("list elsewhere", Server::redirect("https://127.0.0.1:1/x"), {});

    const QStringList cancel(QStringLiteral("Cancel"));
    QTest::newRow("not wanted") << good << false << cancel << NewVersion << "";

    const auto fails = [&](const char* name, const QByteArray& address, const QString& text) {
        const QStringList error(QStringLiteral("critical | Error | %1 | Ok").arg(text));
        QTest::newRow(name) << listOf("3.0.18", files + "zh.zip", address) << false << ok + ok
                            << NewVersion + error << "";
    };
    fails("no address", "", QStringLiteral("Invalid URL : "));
    fails("package missing", files + "missing.zip",
          QStringLiteral("Download failed: Error transferring %1 - server replied: Not Found")
              .arg(m_server.url("/files/missing.zip")));

    const auto succeeds = [&](const char* version, bool chinese, const char* english, const char* left,
                              const QString& answer) {
        const QStringList stored(
            QStringLiteral("information | Information | Download succeeded, storage location: \n%1/%2 | "
                           " Open Folder  , OK")
                .arg(QStringLiteral("%1"), QLatin1String(left)));
        QTest::newRow(left) << listOf(version, files + "zh.zip", files + english) << chinese
                            << ok + QStringList(answer) << NewVersion + stored << QString::fromLatin1(left);
    };
    succeeds("3.0.18", false, "tool.tar.gz", "tool.tar_V3.0.18.gz", QStringLiteral("OK"));
    succeeds("3.0.1A", false, "tool.tar.gz", "tool.tar_V3.0.1A.gz", QString());
    // An address that holds a version, or something of its form, gets none.
    succeeds("3.0.20", false, "tool_V3.0.20.zip", "tool_V3.0.20.zip", OpenFolder);
    succeeds("3.0.20", false, "tool_V3x0y20.zip", "tool_V3x0y20.zip", OpenFolder);
    succeeds("3.0.20", false, "tool_v3.0.20.zip", "tool_v3.0.20_V3.0.20.zip", OpenFolder);
    succeeds("3.0.18", true, "tool.tar.gz", "zh_V3.0.18.zip", OpenFolder);
}

// An older list lies there each time; neither it nor the new one stays.
void TestOnlineUpdate::flow()
{
    QFETCH(LoopbackServer::Handler, list);
    QFETCH(bool, chinese);
    QFETCH(QStringList, answers);
    QFETCH(QStringList, boxes);
    QFETCH(QString, left);
    m_server.on(ListPath, list);
    QFile older(QStringLiteral("VelmoraDownloadResource.xml"));
    QVERIFY(older.open(QIODevice::WriteOnly) && older.write("older") == 5);
    older.close();
    BoxWatcher watcher(answers);
    int asked = 0;
    watcher.onFiles = [&](QFileDialog& dialog) {
        ++asked;
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Select directory"));
        QVERIFY(dialog.testOption(QFileDialog::ShowDirsOnly));
        QCOMPARE(dialog.parentWidget(), &m_form);
        dialog.selectFile(m_chosen->path());
        QMetaObject::invokeMethod(&dialog, left == QLatin1String("-") ? "reject" : "accept");
    };
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "folderOpened");
    OnlineUpdate(&m_form, site(chinese)).OnlineDownload();
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));

    QCOMPARE(watcher.seen(), boxes.replaceInStrings(QStringLiteral("%1"), m_chosen->path()));
    QCOMPARE(asked, int(boxes.mid(0, 1) == NewVersion && answers.constFirst() == QLatin1String("Ok")));
    const QString stored = QDir(m_chosen->path()).entryList(QDir::Files).join(u' ');
    QCOMPARE(stored, left == QLatin1String("-") ? QString() : left);
    QCOMPARE(QDir(m_current->path()).entryList(QDir::Files), QStringList());
    const QUrl folder = QUrl::fromLocalFile(m_chosen->path() + u'/');
    QCOMPARE(m_opened, answers.constLast() == OpenFolder ? QList<QUrl>{folder} : QList<QUrl>());
}

// The form stays usable while the list is on its way, and so does its menu.
void TestOnlineUpdate::secondCallWhileWaiting()
{
    const int requests = m_server.requestCount();
    OnlineUpdate update(&m_form, site(false));
    m_server.on(ListPath, [&update](QSslSocket& socket) {
        update.OnlineDownload();
        listOf("3.0.17", "", "")(socket);
    });
    BoxWatcher watcher({QStringLiteral("Ok")});
    update.OnlineDownload();
    QCOMPARE(m_server.requestCount(), requests + 1);
    QCOMPARE(watcher.seen(), Latest);
}

QTEST_MAIN(TestOnlineUpdate)
#include "tst_onlineupdate.moc"
