#include "canvas/ZN64MCUPLL.h"
#include "testdata.h"

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
        // The document, the name, the text.
        fieldRows({"<r><MCU>a</MCU><MCU>b</MCU></r> | MCU | a", "<MCU>a</MCU> | MCU | ",
                   "<r><s><MCU>a</MCU></s></r> | MCU | ", "<r><s><MCU>a</MCU></s><MCU>b</MCU></r> | MCU | b",
                   "<r><MCU>a<x>b</x><![CDATA[<c>]]></MCU></r> | MCU | ab<c>",
                   "<r><MCU/><MCU>b</MCU></r> | MCU | ", "<r xmlns:p='u'><p:MCU>a</p:MCU></r> | MCU | ",
                   "<r><MCU>a</MCU></r> | | ", "MCU = ZN64G110 | MCU | "});
    }

    void elementText()
    {
        QFETCH(QStringList, fields);
        const QTemporaryDir folder;
        const QString path = folder.filePath("a design.ZNCK"_s);
        QCOMPARE(ZN64MCUPLL::GetXMLElementString(path, fields[1]), QString());
        QVERIFY(writeFile(path, fields[0].toUtf8()));
        QCOMPARE(ZN64MCUPLL::GetXMLElementString(path, fields[1]), fields[2]);
        QCOMPARE(ZN64MCUPLL::GetXMLElementString(folder.path(), fields[1]), QString());
    }
};

QTEST_MAIN(TestPageBase)
#include "tst_pagebase.moc"
