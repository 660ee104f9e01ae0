#include "testdata.h"
#include "update/onlineupdate.h"
#include "update/targetpath.h"

#include <QTemporaryFile>

/// What the update flow reads out of texts: versions, resource lists and addresses.
class TestUpdateTexts : public QObject
{
    Q_OBJECT

private slots:
    void versions()
    {
        const auto number = [](const char* text) {
            return OnlineUpdate::VersionString2Int(QString::fromLatin1(text));
        };
        QCOMPARE(number("3.0.17"), ProgramVersion);
        // A fourth field is not looked at; the upper bits of a large one are lost, and nothing else happens.
        using Row = std::pair<const char*, uint>;
        for (const auto& [text, expected] :
             {Row("3.0.1A", 0x3001a), Row("3.0.1a", 0x3001a), Row("3.0.100", 0x30100),
              Row("10.0.0", 0x100000), Row("3.0.18.5", 0x30018), Row("7fffffff.0.0", 0xffff0000)})
            QCOMPARE(number(text), int(expected));
        for (const char* none : {"", "3", "3.0", "3.0.", ".0.17", "V3.0.18", "3.0.1G", "3.0.18 b",
                                 "80000000.0.0", "3.0.00000000000000018"})
            QVERIFY2(number(none) == 0, none);
        QCOMPARE(OnlineUpdate::VersionString2Int("3.0."_s + QString(800000, u'1')), 0);
    }

    void listElements_data()
    {
        // Shorthand: <N/> is the element with the wanted name, { and } stand for <R><Top> and </Top></R>.
        fieldRows({"not right after the name | {<T><N/><X/>text<!-- --><Tag>1</Tag></T>} | 1",
                   "before and after the name | {<T><Tag>1</Tag><N/><Tag>2</Tag></T>} | 2",
                   "the name's own element | {<T><Tag>Wanted</Tag></T>} | Wanted",
                   "the name does not reach into the next tool | {<T><N/></T><T><Tag>1</Tag></T>} | ",
                   "wanted tool twice | {<T><N/></T><U><N/><Tag>2</Tag></U>} | 2",
                   "name in part of a text | {<T><A>Wanted 2</A><Tag>1</Tag></T>} | ",
                   "name in other letters | {<T><A>wanted</A><Tag>1</Tag></T>} | ",
                   "text in pieces | {<T><N/><Tag>1<X>2</X><![CDATA[3]]></Tag></T>} | 123",
                   "empty tag ends the search | {<T><N/><Tag/><Tag>1</Tag></T>} | ",
                   "tag too deep | {<T><N/><X><Tag>1</Tag></X></T>} | ",
                   "only the first top counts | <R><Top/><Top><T><N/><Tag>1</Tag></T></Top></R> | ",
                   "top as the root | <Top><T><N/><Tag>1</Tag></T></Top> | ",
                   "top below another | <R><A><Top><T><N/><Tag>1</Tag></T></Top></A></R> | ",
                   "not well formed | <R><Top><T><N/><Tag>1</Tag></T></Top> | ",
                   "document type | <!DOCTYPE R []>{<T><N/><Tag>1</Tag></T>} | ", "empty | | "});
    }

    void listElements()
    {
        QFETCH(QStringList, fields);
        const QString list = fields[1].replace("<N/>"_s, "<Any>Wanted</Any>"_s).replace(u'{', "<R><Top>"_s);
        QTemporaryFile file;
        QVERIFY(file.open());
        QVERIFY(writeFile(file.fileName(), QString(list).replace(u'}', "</Top></R>"_s).toUtf8()));
        QCOMPARE(OnlineUpdate::GetURLDownloadXMLElement(file.fileName(), "Top"_s, "Wanted"_s, "Tag"_s),
                 fields[2]);
    }

    void fileNames_data()
    {
        // The last part of an address, the version, the name.
        fieldRows({"d/tool.zip?x=/y.zip#z | | tool.zip", "tool.tar.gz | 3.0.20 | tool.tar_V3.0.20.gz",
                   "tool | 3.0.20 | tool_V3.0.20.", "a%20b%E6%97%B6.zip | 3.0.20 | a b\u65f6_V3.0.20.zip",
                   "%2e%2e%2fd/100%25.zip | | 100%.zip", "a..b | | a..b", "other.zip | 4.0.1./../../tool |",
                   // Neither hidden nor with what changes the look of the rest.
                   ".bash_profile | | ", "%2ebashrc | 3.0.20 | ", "a%0Ab.zip | | ", "a%1B[2Jb.zip | | ",
                   "tool%E2%80%AEgpj.zip | | ", "a%C2%85b.zip | | ", "a%E2%80%A8b.zip | | ",
                   "a%F3%A0%80%81b.zip | | ", "%F0%9F%95%90.zip | 3.0.20 | \U0001f550_V3.0.20.zip"});
    }

    void fileNames()
    {
        QFETCH(QStringList, fields);
        const auto name = [](const QString& path, const QString& version) {
            return downloadFileName(QUrl::fromUserInput("https://a.example"_s + path), version);
        };
        QCOMPARE(name(u'/' + fields[0], fields[1]), fields[2]);
        QVERIFY(name("/tool.zip"_s, "3.0.\u202e8"_s).isEmpty() && name("/tool.zip"_s, "3.\n8"_s).isEmpty());
        for (const char* path :
             {"", "/", "/d/", "/d/..%2Ftool.zip", "/%2Ftool.zip", "/a%00.zip", "/%2e%2e", "/."})
            QVERIFY2(name(QString::fromLatin1(path), fields[1]).isEmpty(), path);
    }
};

QTEST_GUILESS_MAIN(TestUpdateTexts)
#include "tst_updatetexts.moc"
