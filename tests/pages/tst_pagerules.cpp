#include "pagefixture.h"
#include "testdata.h"

#include <QLayout>
#include <QTranslator>

// What a table of a series can break without any edit going wrong: over all pages.

class TestPageRules : public QObject
{
    Q_OBJECT

private slots:
    void placesAreTakenAndInThePicture_data() { pageRows(); }
    void placesAreTakenAndInThePicture();
    void listsHaveNoDoubles_data() { pageRows(); }
    void listsHaveNoDoubles();
    void everyTextIsTranslated_data() { pageRows(); }
    void everyTextIsTranslated();
};

namespace {

bool hasDoubles(const QStringList& list)
{
    return QSet<QString>(list.begin(), list.end()).size() != list.size();
}

} // namespace

void TestPageRules::placesAreTakenAndInThePicture()
{
    QFETCH(QString, word);
    const PageFixture page(word);
    QCOMPARE(page.page->unusedPlaces(), QStringList());
    const QRectF picture(QPointF(), page.page->description().pictureSize);
    int seen = 0;
    for (const QGraphicsItem* item : page.page->view()->scene()->items()) {
        const auto* proxy = qgraphicsitem_cast<const QGraphicsProxyWidget*>(item);
        // The long lists may reach out: where they open is given.
        if (!proxy || proxy->widget()->objectName().endsWith("_list_group"_s))
            continue;
        const QRectF rect(proxy->pos(), QSizeF(proxy->widget()->sizeHint().expandedTo({1, 1})));
        const auto* control = proxy->widget()->layout()->itemAt(0)->widget();
        QVERIFY2(picture.contains(rect), qPrintable(control->objectName() + proxy->widget()->objectName()));
        ++seen;
    }
    QVERIFY(seen > 100);
}

void TestPageRules::listsHaveNoDoubles()
{
    QFETCH(QString, word);
    const PageFixture page(word);
    for (const auto* combo : page.page->findChildren<CustomComboBox1*>()) {
        QStringList items;
        for (int i = 0; i < combo->count(); ++i)
            items += combo->itemText(i);
        QVERIFY2(!items.isEmpty() && !hasDoubles(items), qPrintable(combo->objectName()));
    }
    for (const ListNames& names : listNames()) {
        const PeripheralList& list = page.page->description().lists.*names.list;
        QVERIFY2(!hasDoubles(QString::fromLatin1(list.peripherals).split(u' ')), names.group);
    }
}

void TestPageRules::everyTextIsTranslated()
{
    QFETCH(QString, word);
    const PageFixture page(word);
    QStringList texts = QStringLiteral("Error|Ok|Warning|Yes|Cancel|Save|Information|OK| Open Folder  |"
                                       "Config file (*.ZNCK)|hext input error!|sclk input error!|"
                                       "Select directory|Generate code failed!|Save file failed!|"
                                       "Save file succeed!|Creating \"inc\" folder error!|"
                                       "Creating \"src\" folder error!|Generate code finished!  Files:")
                            .split(u'|');
    const PageDescription& description = page.page->description();
    // The tables hold one of the two questions about the ADC, that with the comma where a series has both.
    const bool comma = std::any_of(description.onSaving.begin(), description.onSaving.end(),
                                   [](const Limit& each) { return each.question == limits::adc28Comma; });
    for (const Limits* list : {&description.onSaving, &description.onGenerating})
        for (const Limit& limit : *list)
            if (!comma || limit.question != limits::adc28)
                texts += QString::fromLatin1(limit.question ? limit.question : limits::refusal(limit));
    if (description.checksPllInput())
        texts += "pll input clock source range 2-16MHz!"_s;
    if (description.generatedApb3)
        texts += "apb3div input error!"_s;
    if (description.pllParameters())
        texts += QStringList{"pll_ms input error!"_s, "pll_ns input error!"_s};
    QTranslator chinese;
    QVERIFY(chinese.load(":/image/tr_zh.qm"_s));
    for (const QString& text : qAsConst(texts))
        QVERIFY2(
            !chinese.translate(page.page->metaObject()->className(), text.toUtf8().constData()).isEmpty(),
            qPrintable(text));
}

QTEST_MAIN(TestPageRules)
#include "tst_pagerules.moc"
