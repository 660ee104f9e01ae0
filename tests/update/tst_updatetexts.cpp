#include "update/onlineupdate.h"
#include "update/targetpath.h"

#include <QTemporaryFile>
#include <QtTest>

/// What the update flow reads out of texts: versions, resource lists and addresses.
class TestUpdateTexts : public QObject
{
    Q_OBJECT

private slots:
    void versions_data();
    void versions();
    void listElements_data();
    void listElements();
    void fileNames_data();
    void fileNames();
};

void TestUpdateTexts::versions_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("3.0.17") << ProgramVersion;
    QTest::newRow("3.0.1A") << 0x3001a;
    QTest::newRow("3.0.1a") << 0x3001a;
    QTest::newRow("3.0.100") << 0x30100;
    QTest::newRow("10.0.0") << 0x100000;
    QTest::newRow("3.0.18.5") << 0x30018;             // a fourth field is not looked at
    QTest::newRow("7fffffff.0.0") << int(0xffff0000); // the upper bits are lost, and nothing else happens
    for (const char* none :
         {"", "3", "3.0", "3.0.", ".0.17", "V3.0.18", "3.0.1G", "3.0.18 b", "80000000.0.0"})
        QTest::newRow(none) << 0;
}

void TestUpdateTexts::versions()
{
    QTEST(OnlineUpdate::VersionString2Int(QString::fromLatin1(QTest::currentDataTag())), "number");
}

void TestUpdateTexts::listElements_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const QByteArray& list, const char* text) {
        QTest::newRow(name) << list << QString::fromLatin1(text);
    };
    // Shorthand: <N/> is the element with the wanted name.
    const auto tools = [](const QByteArray& inner) { return "<R><Top>" + inner + "</Top></R>"; };

    row("not right after the name", tools("<T><N/><X/>text<!-- --><Tag>1</Tag></T>"), "1");
    row("before and after the name", tools("<T><Tag>1</Tag><N/><Tag>2</Tag></T>"), "2");
    row("the name's own element", tools("<T><Tag>Wanted</Tag></T>"), "Wanted");
    row("the name does not reach into the next tool", tools("<T><N/></T><T><Tag>1</Tag></T>"), "");
    row("wanted tool twice", tools("<T><N/></T><U><N/><Tag>2</Tag></U>"), "2");
    row("name in part of a text", tools("<T><A>Wanted 2</A><Tag>1</Tag></T>"), "");
    row("name in other letters", tools("<T><A>wanted</A><Tag>1</Tag></T>"), "");
    row("text in pieces", tools("<T><N/><Tag>1<X>2</X><![CDATA[3]]></Tag></T>"), "123");
    row("empty tag ends the search", tools("<T><N/><Tag/><Tag>1</Tag></T>"), "");
    row("tag too deep", tools("<T><N/><X><Tag>1</Tag></X></T>"), "");
    row("only the first top counts", "<R><Top/><Top><T><N/><Tag>1</Tag></T></Top></R>", "");
    row("top as the root", "<Top><T><N/><Tag>1</Tag></T></Top>", "");
    row("top below another", "<R><A><Top><T><N/><Tag>1</Tag></T></Top></A></R>", "");
    row("not well formed", "<R><Top><T><N/><Tag>1</Tag></T></Top>", "");
    row("document type", "<!DOCTYPE R>" + tools("<T><N/><Tag>1</Tag></T>"), "");
    row("empty", "", "");
}

void TestUpdateTexts::listElements()
{
    QFETCH(QByteArray, list);
    list.replace("<N/>", "<Any>Wanted</Any>");
    QTemporaryFile file;
    QVERIFY(file.open() && file.write(list) == list.size());
    file.close();
    QTEST(OnlineUpdate::GetURLDownloadXMLElement(file.fileName(), QStringLiteral("Top"),
                                                 QStringLiteral("Wanted"), QStringLiteral("Tag")),
          "text");
}

void TestUpdateTexts::fileNames_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("name");
    const auto row = [](const QByteArray& address, const char* version, const char* name) {
        QTest::newRow(address.constData()) << QString::fromLatin1(version) << QString::fromUtf8(name);
    };
    row("https://a.example/d/tool.zip?x=/y.zip#z", "", "tool.zip");
    row("https://a.example/tool.tar.gz", "3.0.20", "tool.tar_V3.0.20.gz");
    row("https://a.example/tool", "3.0.20", "tool_V3.0.20.");
    row("https://a.example/a%20b%E6%97%B6.zip", "3.0.20", "a b\u65f6_V3.0.20.zip");
    row("https://a.example/%2e%2e%2fd/100%25.zip", "", "100%.zip");
    row("https://a.example/a..b", "", "a..b");
    row("https://a.example/other.zip", "4.0.1./../../tool", "");
    for (const char* path :
         {"", "/", "/d/", "/d/..%2Ftool.zip", "/%2Ftool.zip", "/a%00.zip", "/%2e%2e", "/."})
        for (const char* version : {"", "3.0.20"})
            row(QByteArray("https://a.example") + path, version, "");
}

void TestUpdateTexts::fileNames()
{
    QFETCH(QString, version);
    const QUrl url = QUrl::fromUserInput(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(url.isValid());
    QTEST(downloadFileName(url, version), "name");
}

QTEST_GUILESS_MAIN(TestUpdateTexts)
#include "tst_updatetexts.moc"
