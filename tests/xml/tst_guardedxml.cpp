#include "processdata.h"
#include "xml/guardedxml.h"
#include "xml/plainxml.h"

#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <sys/stat.h>

/// Files as strangers write them: what is turned away, what is not, and how much of it is read.
class TestGuardedXml : public QObject
{
    Q_OBJECT

private slots:
    void contents_data();
    void contents();
    void specialFiles();

private:
    QTemporaryDir m_dir;
};

namespace {

QByteArray nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + "x" + QByteArray("</a>").repeated(depth);
}

QByteArray withAttributes(int count)
{
    QByteArray tag = "<a";
    for (int i = 0; i < count; ++i)
        tag += " n" + QByteArray::number(i) + "='>'";
    return tag + "><b>x</b></a>";
}

// As long as a file may be.
QByteArray filled(const QByteArray& start, const QByteArray& repeated, const QByteArray& end)
{
    return start + repeated.repeated((GuardedXml::MaxBytes - start.size() - end.size()) / repeated.size()) +
           end;
}

QByteArray ofSize(qint64 size)
{
    return "<a><b>x</b>" + QByteArray(int(size) - 15, ' ') + "</a>";
}

QByteArray entityBomb()
{
    return "<!DOCTYPE a [<!ENTITY e '" + QByteArray(20000, 'e') + "'>]><a>" +
           QByteArray("&e;").repeated(20000) + "</a>";
}

} // namespace

void TestGuardedXml::contents_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("accepted");
    // The text of element b, or of the whole document where there is no such element.
    QTest::addColumn<QString>("text");
    // Whether it is turned away before any parser sees it; only told of UTF-8.
    QTest::addColumn<bool>("unseen");
    const auto refused = [](const char* name, const QByteArray& bytes) {
        QTest::newRow(name) << bytes << false << QString() << false;
    };
    const auto unseen = [](const char* name, const QByteArray& bytes) {
        QTest::newRow(name) << bytes << false << QString() << true;
    };
    const auto accepted = [](const char* name, const QByteArray& bytes, const QString& text = "x"_s) {
        QTest::newRow(name) << bytes << true << text << false;
    };
    QTextCodec* gbk = QTextCodec::codecForName("GBK");
    QTextCodec* utf16 = QTextCodec::codecForName("UTF-16");
    const QString chinese = "\u65f6\u949f"_s;
    const QString utf16Text = "<?xml version=\"1.0\" encoding=\"UTF-16\"?><a><b>x</b></a>"_s;

    accepted("plain", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>\n    <b>x</b>\n</a>");
    accepted("byte order mark", "\xef\xbb\xbf<a><b>x</b></a>");
    accepted("declared GBK",
             "<?xml version='1.0' encoding='GBK'?><a><b>" + gbk->fromUnicode(chinese) + "</b></a>", chinese);
    accepted("UTF-16", utf16->fromUnicode(utf16Text));
    accepted("comment, CDATA, predefined entities", "<a><!--<!DOCTYPE a>--><b>&lt;<![CDATA[&]]></b></a>",
             "<&"_s);
    accepted("deepest", nested(PlainXml::MaxDepth));
    accepted("largest", ofSize(GuardedXml::MaxBytes));
    accepted("most attributes", withAttributes(PlainXml::MaxAttributes));
    accepted("most tags", "<a><b>x</b>" + QByteArray("<c/>").repeated(PlainXml::MaxTags - 4) + "</a>");
    accepted("text of markup", "<a><b>=='>'&lt;!DOCTYPE a=\"\"</b></a>", "=='>'<!DOCTYPE a=\"\""_s);
    accepted("DOCTYPE in places of text",
             "<?x <!DOCTYPE a ?><!--<!DOCTYPE a--><a x='!DOCTYPE'><![CDATA[<!DOCTYPE a]]><b>x</b></a>"
             "<!-- <!DOCTYPE a> -->");

    // What the document model reads by itself.
    accepted("undeclared GBK", "<a><c>" + gbk->fromUnicode(chinese) + "</c><b>3.0.18</b></a>", "3.0.18"_s);
    accepted("unknown encoding", "<?xml version='1.0' encoding='none'?><a><b>x\xff</b></a>", "x\ufffd"_s);
    accepted("broken UTF-8", "<a><b>\xff\xfe x</b></a>", "\ufffd\ufffd x"_s);
    accepted("control reference", "<a><b>x&#1;&#x1f;</b></a>", "x\x01\x1f"_s);
    accepted("undeclared entity", "<a><b>x&e;</b></a>");
    accepted("bare document type", "<!DOCTYPE a><a><b>x</b></a>");
    accepted("bare document type, spread", "<?x?><!DOCTYPE\n  a:b.c\n><!-- --><a><b>x</b></a>");
    accepted("instruction with a quote", "<?xml-x it's?><a><b>x</b></a>");

    refused("empty", "");
    refused("no markup", "MCU=ZN64G110\nhext=12\n");
    refused("zeros", QByteArray(5000, '\0'));
    refused("open end", "<a><b>x</b>");
    refused("two roots", "<a><b>x</b></a><a/>");
    refused("document type in UTF-16", utf16->fromUnicode("<!DOCTYPE a []><a><b>x</b></a>"_s));
    for (const char* plain : {"UTF-16LE", "UTF-16BE"})
        refused(plain, QTextCodec::codecForName(plain)->fromUnicode("<!DOCTYPE a []><a><b>x</b></a>"_s));
    refused("CDATA before the root", "<![CDATA[<!DOCTYPE a>]]><a><b>x</b></a>");
    unseen("end of a declaration in quotes",
           "<?xml version='1.0?><!--'?><!DOCTYPE a [<!ENTITY e 'x'><!-- -->]><a><b>x</b></a>");
    for (const char* type : {"<!DOCTYPE a []>", "<!DOCTYPE a[]>", "<!DOCTYPE a SYSTEM 'x'>",
                             "<!DOCTYPE a PUBLIC 'x' 'y'>", "<!DOCTYPE '>'>", "<!DOCTYPE %a;>", "<!DOCTYPE"})
        unseen(type, type + QByteArray("<a><b>x</b></a>"));
    unseen("behind a mark and comments", "\xef\xbb\xbf<?x?><!-- - -->\n<!DOCTYPE a []><a><b>x</b></a>");
    unseen("behind the root", "<a><b>x</b></a><!DOCTYPE a []>");
    unseen("entity bomb", entityBomb());
    unseen("attribute lists", filled("<!DOCTYPE a [", "<!ATTLIST a n CDATA ''>", "]><a><b>x</b></a>"));
    unseen("900 attributes in each tag", filled("<a>", withAttributes(900), "</a>"));
    unseen("megabyte of siblings", filled("<a><b>x</b>", "<c/>", "</a>"));
    unseen("megabyte of comments", filled("<a><b>x</b>", "<!---->", "</a>"));
    unseen("one too deep", nested(PlainXml::MaxDepth + 1));
    unseen("40000 deep", nested(40000));
    refused("one byte too large", ofSize(GuardedXml::MaxBytes + 1));
    unseen("one attribute too many", withAttributes(PlainXml::MaxAttributes + 1));
    unseen("one tag too many", "<a><b>x</b>" + QByteArray("<c/>").repeated(PlainXml::MaxTags - 3) + "</a>");
    unseen("100000 attributes", withAttributes(100000).left(int(GuardedXml::MaxBytes)));
}

void TestGuardedXml::contents()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, accepted);
    QFETCH(QString, text);
    QFETCH(bool, unseen);
    QVERIFY(!unseen || !isPlainXml(QString::fromUtf8(bytes)));
    const QString path = m_dir.filePath("file.xml"_s);
    QVERIFY(writeFile(path, bytes));

    QDomDocument document;
    document.setContent(QByteArray("<old/>"));
    QCOMPARE(loadGuardedXml(path, document), accepted);
    QCOMPARE(document.hasChildNodes(), accepted);
    QDomDocument byToolkit;
    if (accepted)
        QVERIFY(byToolkit.setContent(bytes) && byToolkit.toByteArray() == document.toByteArray());

    const QDomElement b = document.documentElement().firstChildElement("b"_s);
    QCOMPARE(b.isNull() ? document.documentElement().text() : b.text(), text);
}

void TestGuardedXml::specialFiles()
{
    const QString pipe = m_dir.filePath("pipe without a writer"_s);
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString large = m_dir.filePath("50 MB"_s);
    QVERIFY(writeFile(large, "<a><b>x</b></a>") && QFile::resize(large, 50 * 1024 * 1024));

    const QString missing = m_dir.filePath("missing"_s);
    for (const QString& path : {missing, QString(), m_dir.path(), "/dev/zero"_s, pipe, large}) {
        const qint64 before = bytesRead();
        QVERIFY(before > 0);
        QDomDocument document;
        QVERIFY2(!loadGuardedXml(path, document), qPrintable(path));
        QVERIFY2(bytesRead() - before < 2 * GuardedXml::MaxBytes, qPrintable(path));
    }
}

QTEST_GUILESS_MAIN(TestGuardedXml)
#include "tst_guardedxml.moc"
