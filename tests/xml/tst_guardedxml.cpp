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
    accepted("deepest", nested(GuardedXml::MaxDepth));
    accepted("largest", ofSize(GuardedXml::MaxBytes));
    accepted("most attributes", withAttributes(GuardedXml::MaxEqualsSigns));
    accepted("megabyte of siblings", "<a><b>x</b>" + QByteArray("<c/>").repeated(200000) + "</a>");

    refused("empty", "");
    refused("open end", "<a><b>x</b>");
    refused("two roots", "<a><b>x</b></a><a/>");
    refused("undeclared entity", "<a><b>&e;</b></a>");
    refused("broken UTF-8", "<a><b>\xff\xfe x</b></a>");
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
    QFile file(m_dir.filePath(QStringLiteral("file.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();

    QElapsedTimer timer;
    timer.start();
    QDomDocument document;
    document.setContent(QByteArray("<old/>"));
    QCOMPARE(loadGuardedXml(file.fileName(), document), accepted);
    QVERIFY2(timer.elapsed() < 5000, "a hostile file holds the program up"); // ample, for the sanitizers
    QCOMPARE(document.hasChildNodes(), accepted);

    const QDomElement b = document.documentElement().firstChildElement(QStringLiteral("b"));
    QCOMPARE(b.isNull() ? document.documentElement().text() : b.text(), text);
}

void TestGuardedXml::specialFiles()
{
    const QString pipe = m_dir.filePath(QStringLiteral("pipe without a writer"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QFile large(m_dir.filePath(QStringLiteral("50 MB")));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.write("<a><b>x</b></a>") > 0);
    QVERIFY(large.resize(50 * 1024 * 1024));

    const QString missing = m_dir.filePath(QStringLiteral("missing"));
    for (const QString& path :
         {missing, QString(), m_dir.path(), QStringLiteral("/dev/zero"), pipe, large.fileName()}) {
        QElapsedTimer timer;
        timer.start();
        QDomDocument document;
        QVERIFY2(!loadGuardedXml(path, document), qPrintable(path));
        QVERIFY2(timer.elapsed() < 1000, qPrintable(path));
    }
}

QTEST_GUILESS_MAIN(TestGuardedXml)
#include "tst_guardedxml.moc"
