#include "loopbackserver.h"
#include "update/onlineupdate.h"
#include "widgets/dialoganswers.h"

#include <QDesktopServices>
#include <QtTest>

using Server = LoopbackServer;
// What the server sends for the list.
Q_DECLARE_METATYPE(LoopbackServer::Handler)

namespace {

const QByteArray ListPath("/download/VelmoraDownloadResource.xml");
const QString Latest = "information | Information | The current tool is the latest version. | Ok"_s;
const QString NewVersion = "question | Infomation | A new version of \"ZN64 Clockwright\" has been detected, "
                           "do you want to download it? | Cancel, Ok"_s;
const QString Select = "Select directory"_s;
const QString OpenFolder = " Open Folder  "_s;

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

/// The menu entry "New version download" from the list to the stored package, as the user meets it.
class TestOnlineUpdate : public QObject
{
    Q_OBJECT

public slots:
    void folderOpened(const QUrl& url) { m_opened += url; }

private:
    DownloadSite site(bool chinese) const
    {
        return {m_server.url("/download/"), downloadSite(chinese).packageElement};
    }

    Server m_server;
    QTemporaryDir m_current;
    QScopedPointer<QTemporaryDir> m_chosen;
    QWidget m_form;
    QList<QUrl> m_opened;

private slots:
    void initTestCase()
    {
        QVERIFY2(m_server.isListening(), "openssl made no certificate");
        QVERIFY(QDir::setCurrent(m_current.path()));
        for (const char* name :
             {"tool.tar.gz", "tool_V3.0.20.zip", "tool_V3x0y20.zip", "tool_v3.0.20.zip", "zh.zip"})
            m_server.on(QByteArray("/files/") + name, Server::answer("package"));
    }

    void init()
    {
        m_chosen.reset(new QTemporaryDir);
        m_opened.clear();
        QTest::ignoreMessage(QtDebugMsg, qPrintable(m_server.url(ListPath)));
    }

    void flow_data()
    {
        QTest::addColumn<Server::Handler>("list");
        QTest::addColumn<bool>("chinese");
        QTest::addColumn<QStringList>("answers"); // buttons, and "choose" for a folder
        QTest::addColumn<QStringList>("boxes");   // %1 is the chosen folder
        QTest::addColumn<QString>("left");        // in the chosen folder
        const QByteArray files = m_server.url("/files/").toLatin1();
        const auto offer = [&](const char* version, const QByteArray& english) {
            return listOf(version, files + "zh.zip", english);
        };
        const Server::Handler good = offer("3.0.18", files + "tool.tar.gz");
        const auto ends = [&](const char* name, const Server::Handler& list, const QStringList& boxes,
                              const QString& answers = "Ok"_s) {
            QTest::newRow(name) << list << false << answers.split(u',') << boxes << QString();
        };
        ends("latest version", offer("3.0.17", files + "tool.tar.gz"), {Latest});
        ends("version of two fields", offer("3.1", files + "tool.tar.gz"), {Latest});
        ends("list not well formed", Server::answer("<Resources><VelmoraTool>"), {Latest});
        ends("list in an encoding that it does not tell",
             listOf("3.0.18", "", files + "tool.tar.gz",
                    "ZN64 Clockwright Linux</Name><Name>\xca\xb1\xd6\xd3"),
             {NewVersion}, "Cancel"_s);
        ends("list of others only", listOf("9.9.9", "", "", "ZN64 Other"), {Latest});
        const QByteArray deep = QByteArray("<a>").repeated(40000) + QByteArray("</a>").repeated(40000);
        ends("list nested too deep", Server::answer(deep), {Latest});
        // A list that cannot be had ends the flow without a word.
        ends("list too long", Server::answer(QByteArray((1 << 20) + 1, ' ')), {});
        ends("list without an end",
             [](QSslSocket& socket) { socket.write("HTTP/1.1 200 OK\r\n\r\n" + QByteArray(2 << 20, 'x')); },
             {});
        ends("list missing", Server::answer("no", "404 Not Found"), {});
        ends("list cut", Server::cut("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n<Resources>"), {});
        ends("list garbage", Server::cut("\1\2\3"), {});
        ends("list elsewhere", Server::redirect("https://127.0.0.1:1/x"), {});
        ends("not wanted", good, {NewVersion}, "Cancel"_s);
        ends("no folder chosen", good, {NewVersion, Select}, "Ok,"_s);
        ends("no address", offer("3.0.18", ""),
             {NewVersion, Select, "critical | Error | Invalid URL :  | Ok"_s}, "Ok,choose,Ok"_s);
        ends("address of no web", offer("3.0.18", "file:///dev/ptmx"),
             {NewVersion, Select, "critical | Error | Download failed: Protocol \"file\" is unknown | Ok"_s},
             "Ok,choose,Ok"_s);
        ends("hidden name", offer("3.0.18", files + ".bashrc"),
             {NewVersion, Select,
              "critical | Error | Invalid URL : %1 | Ok"_s.arg(m_server.url("/files/.bashrc"))},
             "Ok,choose,Ok"_s);
        ends("package missing", offer("3.0.18", files + "missing.zip"),
             {NewVersion, Select,
              "critical | Error | Download failed: Error transferring %1 - server replied: Not Found | Ok"_s
                  .arg(m_server.url("/files/missing.zip"))},
             "Ok,choose,Ok"_s);

        const auto stores = [&](const char* version, bool chinese, const char* english, const QString& left,
                                const QString& answer) {
            const QString stored =
                "information | Information | Download succeeded, storage location: \n%1/"_s + left +
                " |  Open Folder  , OK"_s;
            QTest::newRow(qPrintable(left))
                << offer(version, files + english) << chinese << QStringList{"Ok"_s, "choose"_s, answer}
                << QStringList{NewVersion, Select, stored} << left;
        };
        stores("3.0.18", false, "tool.tar.gz", "tool.tar_V3.0.18.gz"_s, "OK"_s);
        stores("3.0.1A", false, "tool.tar.gz", "tool.tar_V3.0.1A.gz"_s, QString());
        // An address that holds a version, or something of its form, gets none.
        stores("3.0.20", false, "tool_V3.0.20.zip", "tool_V3.0.20.zip"_s, OpenFolder);
        stores("3.0.20", false, "tool_V3x0y20.zip", "tool_V3x0y20.zip"_s, OpenFolder);
        stores("3.0.20", false, "tool_v3.0.20.zip", "tool_v3.0.20_V3.0.20.zip"_s, OpenFolder);
        stores("3.0.18", true, "tool.tar.gz", "zh_V3.0.18.zip"_s, OpenFolder);
    }

    // An older list lies there each time; neither it nor the new one stays.
    void flow()
    {
        QFETCH(LoopbackServer::Handler, list);
        QFETCH(bool, chinese);
        QFETCH(QStringList, answers);
        QFETCH(QStringList, boxes);
        QFETCH(QString, left);
        m_server.on(ListPath, list);
        QVERIFY(writeFile("VelmoraDownloadResource.xml"_s, "older"));
        DialogAnswers dialogs;
        for (const QString& each : answers)
            dialogs.add(each != "choose"_s ? DialogAnswers::press(each) : [this](QDialog* dialog) {
                QVERIFY(static_cast<QFileDialog*>(dialog)->testOption(QFileDialog::ShowDirsOnly));
                QCOMPARE(dialog->parentWidget(), &m_form);
                DialogAnswers::choose(m_chosen->path())(dialog);
            });
        QDesktopServices::setUrlHandler("file"_s, this, "folderOpened");
        OnlineUpdate(&m_form, site(chinese)).OnlineDownload();
        QDesktopServices::unsetUrlHandler("file"_s);

        QCOMPARE(dialogs.shown(), boxes.replaceInStrings("%1"_s, m_chosen->path()));
        QCOMPARE(QDir(m_chosen->path()).entryList(QDir::Files).join(u' '), left);
        QCOMPARE(QDir().entryList(QDir::Files), QStringList());
        const QUrl folder = QUrl::fromLocalFile(m_chosen->path() + u'/');
        QCOMPARE(m_opened, answers.constLast() == OpenFolder ? QList<QUrl>{folder} : QList<QUrl>());
    }

    // A server that says nothing is waited for, until the user chooses the entry again.
    void secondChoiceBeginsAnew_data() { fieldRows({"silent", "redirected for ever"}); }

    void secondChoiceBeginsAnew()
    {
        const bool silent = QByteArray(QTest::currentDataTag()) == "silent";
        const int requests = m_server.requestCount();
        const OnlineUpdate first(&m_form, site(false));
        const OnlineUpdate second(&m_form, site(true));
        const QByteArray elsewhere("/download/elsewhere.xml");
        const auto choose = [&] {
            QTest::ignoreMessage(QtDebugMsg, qPrintable(m_server.url(ListPath)));
            m_server.on(ListPath, listOf("3.0.17", "", ""));
            OnlineUpdate(second).OnlineDownload();
        };
        m_server.on(elsewhere, Server::redirect("elsewhere.xml"));
        m_server.on(ListPath, [&](QSslSocket& socket) {
            if (!silent)
                Server::redirect("elsewhere.xml")(socket);
            QTimer::singleShot(silent ? 100 : 1500, this, choose);
        });
        DialogAnswers dialogs({"Ok"_s});
        OnlineUpdate(first).OnlineDownload();
        QCOMPARE(dialogs.shown(), QStringList(Latest));
        const int made = m_server.requestCount() - requests;
        QVERIFY2(silent ? made == 2 : made > 20 && made < 40, qPrintable(QString::number(made)));
        QCOMPARE(QDir().entryList(QDir::Files), QStringList());
    }
};

QTEST_MAIN(TestOnlineUpdate)
#include "tst_onlineupdate.moc"
