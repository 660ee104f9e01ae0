#include "canvas/ZN64MCUPLL.h"
#include "testdata.h"

#include <QFile>
#include <QTemporaryDir>

class TestPageBase : public QObject
{
    Q_OBJECT

private slots:
    void colorDropsEarlierPaletteChanges()
    {
        for (const bool setBefore : {false, true}) {
            QLabel label;
            if (setBefore)
                ZN64MCUPLL::SetLabelColor(&label, Qt::red);
            QPalette other = label.palette();
            other.setColor(QPalette::Base, Qt::yellow);
            label.setPalette(other);
            ZN64MCUPLL::SetLabelColor(&label, Qt::red);
            for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
                QCOMPARE(label.palette().color(group, QPalette::WindowText), QColor(Qt::red));
                QVERIFY(label.palette().color(group, QPalette::Base) != QColor(Qt::yellow));
            }
        }
    }

    void elementText_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* title, const char* document, const char* expected,
                            const char* name = "MCU") {
            QTest::newRow(title) << QByteArray(document) << QString::fromLatin1(name)
                                 << QString::fromUtf8(expected);
        };
        row("first of two", "<r><MCU>a</MCU><MCU>b</MCU></r>", "a");
        row("not the root", "<MCU>a</MCU>", "");
        row("not the second level", "<r><s><MCU>a</MCU></s></r>", "");
        row("second level does not hide", "<r><s><MCU>a</MCU></s><MCU>b</MCU></r>", "b");
        row("texts below it", "<r><MCU>a<x>b</x><![CDATA[<c>]]></MCU></r>", "ab<c>");
        row("empty first", "<r><MCU/><MCU>b</MCU></r>", "");
        row("prefix", "<r xmlns:p='u'><p:MCU>a</p:MCU></r>", "");
        row("no name", "<r><MCU>a</MCU></r>", "", "");
        row("not XML", "MCU = ZN64G110", "");
    }

    void elementText()
    {
        QFETCH(QByteArray, document);
        QFETCH(QString, name);
        QTemporaryDir folder;
        const QString path = folder.filePath("a design.ZNCK"_s);
        QCOMPARE(ZN64MCUPLL::GetXMLElementString(path, name), QString());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(document);
        file.close();
        QTEST(ZN64MCUPLL::GetXMLElementString(path, name), "expected");
        QCOMPARE(ZN64MCUPLL::GetXMLElementString(folder.path(), name), QString());
    }
};

QTEST_MAIN(TestPageBase)
#include "tst_pagebase.moc"
