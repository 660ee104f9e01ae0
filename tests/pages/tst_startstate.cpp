#include "pagefixture.h"

#include <QRegularExpression>

class TestStartState : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void frequencies_data();
    void frequencies();
    void everyControlCanBeReached_data();
    void everyControlCanBeReached();
    void resetEqualsAFreshPage_data() { seriesRows(); }
    void resetEqualsAFreshPage();
    void passThatChangesNothingSetsNothing_data() { seriesRows(); }
    void passThatChangesNothingSetsNothing();
};

namespace {

/// Counts what makes a pass slow.
class LookChanges : public QObject
{
public:
    LookChanges() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange ||
            event->type() == QEvent::EnabledChange)
            changed += object->objectName();
        return false;
    }
    QStringList changed;
};

} // namespace

void TestStartState::frequencies_data()
{
    QTest::addColumn<double>("sysclk");
    QTest::addColumn<double>("apb1");
    QTest::addColumn<double>("apb2");
    QTest::addColumn<double>("pll");
    const auto rows = [](const char* words, double sysclk, double apb1, double apb2, double pll) {
        for (const QString& word : QString::fromLatin1(words).split(QLatin1Char(' ')))
            if (hasPage(word))
                QTest::newRow(qPrintable(word)) << sysclk << apb1 << apb2 << pll;
    };
    rows("G110", 192, 96, 96, 192);
    rows("G110R G114", 240, 120, 120, 240);
    rows("H110R G120", 200, 100, 100, 200);
    rows("G125 TQ125", 144, 72, 72, 144);
    rows("G130", 120, 120, 120, 120);
    rows("G135", 96, 96, 96, 96);
    rows("D042", 80, 80, 80, 80);
    rows("G142 G146", 200, 200, 200, 200);
    rows("G133 H133", 150, 75, 150, 300);
    rows("G150 G152", 288, 144, 144, 288);
    rows("G171 G174 G190", 216, 108, 216, 216);
    rows("G165 G166 G167", 192, 192, 192, 192);
    rows("P212 P216", 180, 180, 180, 180);
}

void TestStartState::frequencies()
{
    QFETCH(double, sysclk);
    QFETCH(double, apb1);
    QFETCH(double, apb2);
    QFETCH(double, pll);
    const auto text = [](double value) { return QString::number(value, 'f', 3); };
    const PageFixture page(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(page.text("m_sclk_lineEdit"), text(sysclk));
    QCOMPARE(page.text("m_tosystick_lineEdit"), text(sysclk / 8));
    QCOMPARE(page.text("m_todma_lineEdit"), text(sysclk));
    QCOMPARE(page.text("m_toapb1peripheral_lineEdit"), text(apb1));
    QCOMPARE(page.text("m_toapb2peripheral_lineEdit"), text(apb2));
    QCOMPARE(page.text("m_toapb1tmr_lineEdit"), text(sysclk));
    QCOMPARE(page.text("m_toapb2tmr_lineEdit"), text(sysclk));
    QCOMPARE(page.text("m_apb1div_ComboBox"), apb1 < sysclk ? QStringLiteral("/2") : QStringLiteral("/1"));
    QCOMPARE(page.text("m_toapb2tmr_mul"), apb2 < sysclk ? QStringLiteral("* 2") : QStringLiteral("* 1"));
    QCOMPARE(page.text("m_pllclk_Label"), text(pll) + QStringLiteral("MHz"));
    for (const char* result : {"m_sclk_lineEdit", "m_todma_lineEdit", "m_toapb1peripheral_lineEdit",
                               "m_toapb2tmr_lineEdit", "m_pllclk_Label"})
        QCOMPARE(page.color(result), QStringLiteral("darkGreen"));
}

void TestStartState::everyControlCanBeReached_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<float>("zoom");
    for (const SeriesTraits& traits : seriesList())
        for (int percent : {25, 100, 400})
            if (hasSeriesPage(traits.series))
                QTest::addRow("%s at %d%%", traits.word, percent)
                    << QString::fromLatin1(traits.word) << static_cast<float>(percent) / 100;
}

void TestStartState::everyControlCanBeReached()
{
    QFETCH(QString, word);
    QFETCH(float, zoom);
    const PageFixture page(word);
    PinGraphicsView* view = page.page->view();
    view->zoom(zoom);
    int tried = 0;
    for (const QWidget* control :
         page.page->findChildren<QWidget*>(QRegularExpression(QStringLiteral("^m_")))) {
        if (control->isHidden() || qobject_cast<const QLabel*>(control) || control->isWindow())
            continue;
        const QGraphicsProxyWidget* item = ZN64MCUPLL::proxyOf(control);
        view->centerOn(item->sceneBoundingRect().center());
        QVERIFY2(view->itemAt(page.onViewport(control)) == item, qPrintable(control->objectName()));
        ++tried;
    }
    QVERIFY(tried > 50);
}

void TestStartState::resetEqualsAFreshPage()
{
    QFETCH(QString, word);
    QRandomGenerator random(20);
    const PageFixture fresh(word);
    const PageFixture page(word);
    for (int round = 0; round < 20; ++round) {
        for (int step = 0; step < 20; ++step)
            page.takeRandomStep(random);
        QVERIFY(page.state() != fresh.state());
        DialogAnswers answers{};
        page.page->InitAllControl();
        QCOMPARE(page.state(), fresh.state());
        QCOMPARE(answers.shown(), QStringList());
    }
}

void TestStartState::passThatChangesNothingSetsNothing()
{
    QFETCH(QString, word);
    QRandomGenerator random(7);
    const PageFixture page(word);
    const auto pass = [&page] {
        page.page->UI_Display();
        page.page->UpdateCalculateResult();
        page.page->UpdateRTCParam();
    };
    for (int round = 0; round < 20; ++round) {
        pass();
        const QStringList before = page.state();
        LookChanges look;
        pass();
        QCOMPARE(look.changed, QStringList());
        QCOMPARE(page.state(), before);
        for (int step = 0; step < 10; ++step)
            page.takeRandomStep(random);
    }
}

QTEST_MAIN(TestStartState)
#include "tst_startstate.moc"
