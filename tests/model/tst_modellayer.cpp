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
        return !header.contains(QLatin1Char('/')) &&
               QFile::exists(QDir(QStringLiteral(MODEL_SOURCE_DIR)).filePath(header));
    static const QRegularExpression standardHeader(QStringLiteral("^[a-z_]+$"));
    return standardHeader.match(header).hasMatch() ||
           (!header.contains(QLatin1Char('/')) &&
            QFile::exists(QDir(QStringLiteral(QTCORE_HEADERS)).filePath(header)));
}

void TestModelLayer::includes()
{
    QVERIFY(isAllowed(QStringLiteral("<"), QStringLiteral("QString")));
    QVERIFY(!isAllowed(QStringLiteral("<"), QStringLiteral("QColor")));

    static const QRegularExpression include(QStringLiteral("^\\s*#\\s*include\\s*([\"<])([^\">]+)"),
                                            QRegularExpression::MultilineOption);
    int seen = 0;
    const QDir dir(QStringLiteral(MODEL_SOURCE_DIR), QStringLiteral("*.h;*.cpp"));
    for (const QString& name : dir.entryList()) {
        QFile file(dir.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        for (auto all = include.globalMatch(QString::fromUtf8(file.readAll())); all.hasNext(); ++seen) {
            const auto match = all.next();
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
