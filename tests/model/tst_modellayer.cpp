#include <QDir>
#include <QRegularExpression>
#include <QTest>

// The model stands on Qt Core alone: it must build and run without a display.
class TestModelLayer : public QObject
{
    Q_OBJECT

private slots:
    void includes();
    void links();
};

static bool isAllowed(const QString& bracket, const QString& header)
{
    if (bracket == QLatin1String("\""))
        return QDir(QStringLiteral(MODEL_SOURCE_DIR)).exists(header) && !header.contains(QLatin1Char('/'));
    static const QRegularExpression standardHeader(QStringLiteral("^[a-z_]+$"));
    if (standardHeader.match(header).hasMatch())
        return true;
    for (const QString& dir : QStringLiteral(QTCORE_HEADER_DIRS).split(QLatin1Char('|')))
        if (dir.endsWith(QLatin1String("QtCore")) && QFile::exists(dir + QLatin1Char('/') + header))
            return true;
    return false;
}

void TestModelLayer::includes()
{
    QVERIFY(isAllowed(QStringLiteral("<"), QStringLiteral("QString")));
    QVERIFY(!isAllowed(QStringLiteral("<"), QStringLiteral("QColor")));
    QVERIFY(!isAllowed(QStringLiteral("<"), QStringLiteral("QtXml/QDomDocument")));

    static const QRegularExpression include(QStringLiteral("^\\s*#\\s*include\\s*([\"<])([^\">]+)"),
                                            QRegularExpression::MultilineOption);
    int seen = 0;
    QDir dir(QStringLiteral(MODEL_SOURCE_DIR));
    for (const QString& name : dir.entryList({QStringLiteral("*.h"), QStringLiteral("*.cpp")})) {
        QFile file(dir.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        auto matches = include.globalMatch(QString::fromUtf8(file.readAll()));
        for (; matches.hasNext(); ++seen) {
            const auto match = matches.next();
            QVERIFY2(isAllowed(match.captured(1), match.captured(2)),
                     qPrintable(name + QLatin1String(" includes ") + match.captured(2)));
        }
    }
    QVERIFY(seen > 20);
}

void TestModelLayer::links()
{
    QCOMPARE(QStringLiteral(MODEL_LINKS), QStringLiteral("Qt5::Core"));
    QCOMPARE(QStringLiteral(MODEL_INTERFACE_LINKS), QStringLiteral("Qt5::Core"));
}

QTEST_GUILESS_MAIN(TestModelLayer)
#include "tst_modellayer.moc"
