#include "canvas/ZN64MCUPLL.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestPageBase : public QObject
{
    Q_OBJECT

private slots:
    void colorDropsEarlierPaletteChanges_data();
    void colorDropsEarlierPaletteChanges();
    void elementText_data();
    void elementText();
};

void TestPageBase::colorDropsEarlierPaletteChanges_data()
{
    QTest::addColumn<bool>("label");
    QTest::addColumn<bool>("setBefore");
    QTest::addRow("edit") << false << false;
    QTest::addRow("edit with the same colour") << false << true;
    QTest::addRow("label") << true << false;
    QTest::addRow("label with the same colour") << true << true;
}

void TestPageBase::colorDropsEarlierPaletteChanges()
{
    QFETCH(bool, label);
    QFETCH(bool, setBefore);
    QLineEdit edit;
    QLabel text;
    QWidget* control = label ? static_cast<QWidget*>(&text) : &edit;
    const auto set = [&] {
        label ? ZN64MCUPLL::SetLabelColor(&text, Qt::red) : ZN64MCUPLL::SetLineEditColor(&edit, Qt::red);
    };
    if (setBefore)
        set();
    QPalette other = control->palette();
    other.setColor(QPalette::Base, Qt::yellow);
    other.setColor(QPalette::Highlight, Qt::cyan);
    control->setPalette(other);
    set();

    const QPalette::ColorRole role = label ? QPalette::WindowText : QPalette::Text;
    for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(control->palette().color(group, role), QColor(Qt::red));
        QVERIFY(control->palette().color(group, QPalette::Base) != QColor(Qt::yellow));
        QVERIFY(control->palette().color(group, QPalette::Highlight) != QColor(Qt::cyan));
    }
}

void TestPageBase::elementText_data()
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
    row("behind others", "<r> <!-- MCU --> <?MCU x?> text <hext>8</hext><MCU>a</MCU></r>", "a");
    row("any root", "<MCU><MCU>a</MCU></MCU>", "a");
    row("not the root", "<MCU>a</MCU>", "");
    row("not the second level", "<r><s><MCU>a</MCU></s></r>", "");
    row("second level does not hide", "<r><s><MCU>a</MCU></s><MCU>b</MCU></r>", "b");
    row("texts below it", "<r><MCU>a<x>b</x><![CDATA[<c>]]></MCU></r>", "ab<c>");
    row("empty first", "<r><MCU/><MCU>b</MCU></r>", "");
    row("case", "<r><mcu>a</mcu></r>", "");
    row("prefix", "<r xmlns:p='u'><p:MCU>a</p:MCU></r>", "");
    row("blanks stay", "<r><MCU> a </MCU></r>", " a ");
    row("UTF-8", "<r><MCU>\xe6\x97\xb6</MCU></r>", "\xe6\x97\xb6");
    row("no name", "<r><MCU>a</MCU></r>", "", "");
    row("not XML", "MCU = ZN64G110", "");
    row("cut off", "<r><MCU>a</MCU>", "");
    row("two roots", "<r><MCU>a</MCU></r><r/>", "");
    row("empty file", "", "");
}

void TestPageBase::elementText()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, name);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a design.ZNCK"));
    QCOMPARE(ZN64MCUPLL::GetXMLElementString(path, name), QString());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(document);
    file.close();
    QTEST(ZN64MCUPLL::GetXMLElementString(path, name), "expected");
    QCOMPARE(ZN64MCUPLL::GetXMLElementString(folder.path(), name), QString());
}

QTEST_MAIN(TestPageBase)
#include "tst_pagebase.moc"
