#include <QDir>
#include <QRegularExpression>
#include <QTest>

// The model stands on Qt Core alone: it must build and run without a display.
class TestModelLayer : public QObject
{
    Q_OBJECT

private slots:
    void needsQtCoreAlone();
};

static bool isAllowed(const QString& header)
{
    static const QRegularExpression standardHeader(QStringLiteral("^[a-z_]+$"));
    if (header.startsWith(QLatin1String("model/")))
        return QFile::exists(QStringLiteral(MODEL_SOURCE_DIR "/../") + header);
    return standardHeader.match(header).hasMatch() ||
           (!header.contains(u'/') &&
            QFile::exists(QStringLiteral(QTCORE_HEADERS "/") + header));
}

void TestModelLayer::needsQtCoreAlone()
{
    QVERIFY(isAllowed(QStringLiteral("QString")) && !isAllowed(QStringLiteral("QColor")));

    static const QRegularExpression include(QStringLiteral("^\\s*#\\s*include\\s*[\"<]([^\">]+)"),
                                            QRegularExpression::MultilineOption);
    int seen = 0;
    const QDir dir(QStringLiteral(MODEL_SOURCE_DIR), QStringLiteral("*.h;*.cpp"));
    for (const QString& name : dir.entryList()) {
        QFile file(dir.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        for (auto all = include.globalMatch(QString::fromUtf8(file.readAll())); all.hasNext(); ++seen) {
            const QString header = all.next().captured(1);
            QVERIFY2(isAllowed(header), qPrintable(name + QLatin1String(" includes ") + header));
        }
    }
    QVERIFY(seen > 20);
    QCOMPARE(QStringLiteral(MODEL_LINKS), QStringLiteral("Qt5::Core"));
    QCOMPARE(QStringLiteral(MODEL_INTERFACE_LINKS), QStringLiteral("Qt5::Core"));
}

QTEST_GUILESS_MAIN(TestModelLayer)
#include "tst_modellayer.moc"
