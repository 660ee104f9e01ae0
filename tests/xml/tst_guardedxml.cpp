#include "xml/guardedxml.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <sys/stat.h>

/// Files as strangers write them: what is turned away, what is not, and that neither takes long.
class TestGuardedXml : public QObject
{
    Q_OBJECT

private slots:
    void contents_data();
    void contents();
    void specialFiles_data();
    void specialFiles();
    void failureEmptiesTheDocument();

private:
    QString write(const QByteArray& bytes);
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

QString TestGuardedXml::write(const QByteArray& bytes)
{
    QFile file(m_dir.filePath(QStringLiteral("file.xml")));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return QString();
    return file.fileName();
}

void TestGuardedXml::contents_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("accepted");
    // The text of element b, or of the whole document where there is no such element.
    QTest::addColumn<QString>("text");
    const auto refused = [](const char* name, const QByteArray& bytes) {
        QTest::newRow(name) << bytes << false << QString();
    };
    const auto accepted = [](const char* name, const QByteArray& bytes,
                             const QString& text = QStringLiteral("x")) {
        QTest::newRow(name) << bytes << true << text;
    };
    QTextCodec* gbk = QTextCodec::codecForName("GBK");
    QTextCodec* utf16 = QTextCodec::codecForName("UTF-16");
    const QString chinese = QStringLiteral("\u65f6\u949f");
    const QString utf16Text = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-16\"?><a><b>x</b></a>");

    accepted("plain", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>\n    <b>x</b>\n</a>");
    accepted("byte order mark", "\xef\xbb\xbf<a><b>x</b></a>");
    accepted("declared GBK",
             "<?xml version='1.0' encoding='GBK'?><a><b>" + gbk->fromUnicode(chinese) + "</b></a>", chinese);
    accepted("UTF-16", utf16->fromUnicode(utf16Text));
    accepted("comment, CDATA, predefined entities", "<a><!--<!DOCTYPE a>--><b>&lt;<![CDATA[&]]></b></a>",
             QStringLiteral("<&"));
    accepted("undeclared prefix", "<n:a><n:b>y</n:b><b>x</b></n:a>");
    accepted("deepest", nested(GuardedXml::MaxDepth));
    accepted("largest", ofSize(GuardedXml::MaxBytes));
    accepted("most attributes", withAttributes(GuardedXml::MaxEqualsSigns));
    accepted("megabyte of siblings", "<a><b>x</b>" + QByteArray("<c/>").repeated(200000) + "</a>");

    refused("empty", "");
    refused("blanks", " \n");
    refused("no XML", "MCU=ZN64G150\n");
    refused("open end", "<a><b>x</b>");
    refused("crossed tags", "<a><b>x</a></b>");
    refused("two roots", "<a><b>x</b></a><a/>");
    refused("undeclared entity", "<a><b>&e;</b></a>");
    refused("broken UTF-8", "<a><b>\xff\xfe x</b></a>");
    refused("cut UTF-8", "<a><b>x</b></a>\xe6\x97");
    refused("zero byte", QByteArray("<a><b>x\0</b></a>", 17));
    refused("unknown encoding", "<?xml version='1.0' encoding='never-heard'?><a><b>x</b></a>");
    refused("document type", "<!DOCTYPE a><a><b>x</b></a>");
    refused("document type in UTF-16", utf16->fromUnicode(QStringLiteral("<!DOCTYPE a><a><b>x</b></a>")));
    refused("entity bomb", entityBomb());
    refused("one too deep", nested(GuardedXml::MaxDepth + 1));
    refused("40000 deep", nested(40000));
    refused("one byte too large", ofSize(GuardedXml::MaxBytes + 1));
    refused("one attribute too many", withAttributes(GuardedXml::MaxEqualsSigns + 1));
    refused("100000 attributes", withAttributes(100000).left(int(GuardedXml::MaxBytes)));
}

void TestGuardedXml::contents()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, accepted);
    QFETCH(QString, text);
    const QString path = write(bytes);
    QVERIFY(!path.isEmpty());

    QElapsedTimer timer;
    timer.start();
    QDomDocument document;
    QCOMPARE(loadGuardedXml(path, document), accepted);
    QVERIFY2(timer.elapsed() < 5000, "a hostile file holds the program up"); // ample, for the sanitizers

    const QDomElement b = document.documentElement().firstChildElement(QStringLiteral("b"));
    QCOMPARE(b.isNull() ? document.documentElement().text() : b.text(), text);
}

void TestGuardedXml::specialFiles_data()
{
    QTest::addColumn<QString>("path");
    const QString pipe = m_dir.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QFile large(m_dir.filePath(QStringLiteral("large.xml")));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.write("<a><b>x</b></a>") > 0);
    QVERIFY(large.resize(50 * 1024 * 1024));

    QTest::newRow("missing") << m_dir.filePath(QStringLiteral("nowhere.xml"));
    QTest::newRow("no name") << QString();
    QTest::newRow("directory") << m_dir.path();
    QTest::newRow("endless device") << QStringLiteral("/dev/zero");
    QTest::newRow("pipe without a writer") << pipe;
    QTest::newRow("50 MB") << large.fileName();
}

void TestGuardedXml::specialFiles()
{
    QFETCH(QString, path);
    QElapsedTimer timer;
    timer.start();
    QDomDocument document;
    QVERIFY(!loadGuardedXml(path, document));
    QVERIFY(timer.elapsed() < 1000);
}

void TestGuardedXml::failureEmptiesTheDocument()
{
    QDomDocument document;
    QVERIFY(loadGuardedXml(write("<a><b>x</b></a>"), document));
    QVERIFY(!loadGuardedXml(write("<a>"), document));
    QVERIFY(document.isNull() || !document.hasChildNodes());
}

QTEST_GUILESS_MAIN(TestGuardedXml)
#include "tst_guardedxml.moc"
