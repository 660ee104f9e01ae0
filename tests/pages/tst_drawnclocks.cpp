#include "drawing.h"
#include "pagefixture.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QObject>
#include <QToolTip>

#include <cmath>

/// The pictures of all trees, held against the numbers on them and against what the model says is in use.
class TestDrawnClocks : public QObject
{
    Q_OBJECT

private slots:
    void numbers_data() { pageRows(); }
    void numbers();
    void derivations_data() { pageRows(); }
    void derivations();
    void inUse_data() { pageRows(); }
    void inUse();
    void everyDeviationDeviates();
    void sentences_data();
    void sentences();
    void pointer();
};

namespace {

/// Why the picture and the number at its end may differ.
struct Deviation
{
    const char* name;
    const char* reason;
    bool seen = false;
};

enum
{
    TimerHalves,
    CanFromPll,
    HickAtOutputs,
    KeptByOther,
    CanOnPclk,
    CanOnPll,
    OscillatorOfPeripheral
};

Deviation deviations[] = {
    {"timer halves",
     "the steps of / 2 on the timers' ways are drawn on some trees, and the multiplier counts alone"                  },
    {"CAN from the PLL",           "shows the system clock: these series feed it from the PLL and know the two as one"},
    {"hick at outputs",            "gives 8 MHz there on some series, or by the routes on which it is taken"          },
    {"kept by another",            "one result is kept up by the switch of another peripheral"                        },
    {"CAN on pclk",
     "counts as a user of the PLL where there are three CAN blocks, so that generated code stays"                     },
    {"CAN on the PLL",             "is not counted as its user on series without USB"                                 },
    {"oscillator of a peripheral", "is not counted by the model, nor that of a PLL that only outputs use"             },
};

const Deviation* deviationOf(const PageFixture& page, const QString& end, const QString& flag)
{
    const PageDescription& series = page.page->description();
    if (series.timerHalves() && end.contains(QLatin1String("tmr_lineEdit")))
        return &deviations[TimerHalves];
    if (flag.startsWith(QLatin1String("hick")))
        return &deviations[HickAtOutputs];
    if (end == QLatin1String("m_tocan_lineEdit") && flag == QLatin1String("pll"))
        return &deviations[CanFromPll];
    for (const PeripheralClock& clock : series.peripherals)
        if (end == clock.result() && clock.writtenWhile.get)
            return &deviations[KeptByOther];
    return nullptr;
}

/// What stands at the end, MHz: in the field itself, or beside the flag or the pad.
std::optional<double> shownAt(const PageFixture& page, const QString& end)
{
    QString name = end;
    if (end == QLatin1String("usb"))
        name = QStringLiteral("m_usbclock_Label");
    else if (end.endsWith(QLatin1String("pad")))
        name = QStringLiteral("m_%1_Value_QLabel").arg(end.chopped(3));
    const auto* control = page.page->findChild<QWidget*>(name);
    const bool field =
        qobject_cast<const QLabel*>(control) ||
        (name.startsWith(QLatin1String("m_to")) && name.endsWith(QLatin1String("_lineEdit"))) ||
        name == QLatin1String("m_sclk_lineEdit");
    if (!control || !field || (!control->isEnabled() && name != QLatin1String("m_sclk_lineEdit")) ||
        control->isHidden())
        return {};
    const QString text = control->property("text").toString();
    static const QRegularExpression number(QStringLiteral(R"(\d+(\.\d+)?)"));
    const auto match = number.match(text);
    if (!match.hasMatch())
        return {};
    const QList<QLabel*> units = page.page->findChildren<QLabel*>(
        QString(name).replace(QLatin1String("_lineEdit"), QLatin1String("_Label")));
    const bool inKHz = text.contains(QLatin1String("kHz")) || name == QLatin1String("m_towdt_lineEdit") ||
                       (!units.isEmpty() && units.first()->text().contains(QLatin1String("kHz")));
    return match.captured().toDouble() * (inKHz ? 0.001 : 1.0);
}

} // namespace

void TestDrawnClocks::numbers()
{
    QFETCH(QString, word);
    const PageFixture page(word);
    QRandomGenerator random(word.size() + page.model().series());
    int compared = 0;
    for (int round = 0; round < randomRounds(page); ++round) {
        page.takeRandomSteps(12, random);
        const Eye eye(page);
        for (const QString& end : eye.ends()) {
            const std::optional<double> shown = shownAt(page, end);
            const std::optional<double> drawn = eye.into(end);
            if (!shown || !drawn)
                continue;
            ++compared;
            // Three decimals of the number's unit.
            if (std::fabs(*shown - *drawn) <= 0.00051)
                continue;
            const Deviation* told = deviationOf(page, end, eye.lastFlag());
            QVERIFY2(told, qPrintable(QStringLiteral("%1 shows %2, the wires lead to %3\n%4")
                                          .arg(end)
                                          .arg(*shown)
                                          .arg(*drawn)
                                          .arg(page.state().join(QLatin1Char('\n')))));
            const_cast<Deviation*>(told)->seen = true;
        }
    }
    QVERIFY2(compared > 6 * randomRounds(page), qPrintable(QString::number(compared)));
}

/// The number in front of a derivation is what the derivation comes to.
void TestDrawnClocks::derivations()
{
    QFETCH(QString, word);
    const PageFixture page(word);
    QRandomGenerator random(page.model().series());
    static const QRegularExpression number(QStringLiteral(R"( ([\d.]+) (k|M)Hz = ([\d.]+) (k|M)Hz(.*)$)"));
    static const QRegularExpression step(QStringLiteral(R"( ([*/]) ([\d.]+))"));
    for (int round = 0; round < randomRounds(page); ++round) {
        page.takeRandomSteps(12, random);
        for (int net = 0; net < page.page->treeItem().circuit().nets(); ++net) {
            const QString told = page.page->tellSignal(net).join(QLatin1Char(' '));
            const auto parts = number.match(told);
            if (!parts.hasMatch())
                continue;
            double clock = parts.captured(3).toDouble();
            for (auto all = step.globalMatch(parts.captured(5)); all.hasNext();) {
                const auto each = all.next();
                const double factor = each.captured(2).toDouble();
                clock *= each.captured(1) == QLatin1String("/") ? 1 / factor : factor;
            }
            const bool toKHz = parts.captured(2) != parts.captured(4);
            QVERIFY2(std::fabs(clock * (toKHz ? 1000 : 1) - parts.captured(1).toDouble()) < 0.0011,
                     qPrintable(told));
        }
    }
}

/// What the picture draws as used is what the model, and with it generated code, switches on.
void TestDrawnClocks::inUse()
{
    QFETCH(QString, word);
    const PageFixture page(word);
    QRandomGenerator random(page.model().series() + 7);
    const auto compare = [&page](const QString& source, bool modelUses, Deviation& told, bool excused) {
        TreeItem& tree = page.page->treeItem();
        const bool drawn = tree.circuit().inUse(tree.circuit().netAt(source), tree.states());
        if (drawn == modelUses)
            return true;
        told.seen = true;
        if (!excused)
            qWarning("%s\n%s", qPrintable(source), qPrintable(page.state().join(QLatin1Char('\n'))));
        return excused;
    };
    for (int round = 0; round < randomRounds(page); ++round) {
        // What random steps seldom do.
        if (round == 0 && page.page->findChild<QWidget*>(QStringLiteral("m_canclocksel_pll_RadioButton")))
            page.take(QStringLiteral("sclkselect_hext canswitch=enable canclocksel_pll"));
        else
            page.takeRandomSteps(12, random);
        const ZN64ConfigCLK& model = page.model();
        const PageDescription& series = page.page->description();
        const auto takenByPeripheral = [&](const char* source) {
            return std::any_of(series.peripherals.begin(), series.peripherals.end(), [&](const auto& clock) {
                return clock.on.get(model) != 0.0 &&
                       std::any_of(clock.sources.begin(), clock.sources.end(), [&](const auto& each) {
                           return each.number == clock.source.get(model) &&
                                  QByteArray(each.name).startsWith(source);
                       });
            });
        };
        const bool canOnPclk =
            takenByPeripheral("pclk") &&
            (model.Get_CAN1_Switch() || model.Get_CAN2_Switch() || model.Get_CAN3_Switch());
        const bool canOnPll = takenByPeripheral("pll") && !series.usb;
        QVERIFY(compare(QStringLiteral("pllrcs"), model.pll_isEnable(),
                        deviations[canOnPll ? CanOnPll : CanOnPclk], canOnPclk || canOnPll));
        const bool pllUser = takenByPeripheral("pll") || model.Get_CLKOUT() == CLKOUT_PLL;
        const bool rtc = model.Get_ToRTC_Switch() && model.Get_RTCSEL() == RTCSEL_HEXT;
        const bool hextByPll = pllUser && model.Get_PLLRC() == PLLRC_HEXT;
        QVERIFY(compare(QLatin1String(series.hextEdit), model.hext_isEnable() || rtc,
                        deviations[OscillatorOfPeripheral], takenByPeripheral("hext") || hextByPll));
        const bool hickByPll = pllUser && model.Get_PLLRC() == PLLRC_HICK;
        QVERIFY(compare(QStringLiteral("m_hick_lineEdit"), model.hick_isEnable(),
                        deviations[OscillatorOfPeripheral], takenByPeripheral("hick") || hickByPll));
    }
}

void TestDrawnClocks::everyDeviationDeviates()
{
    for (const Deviation& each : deviations)
        QVERIFY2(each.seen, each.name);
}

void TestDrawnClocks::sentences_data()
{
    rows({
        "G110 | | toapb1peripheral_lineEdit | apb1 peripheral, MHz; at most 100 MHz; pclk1 96.000 MHz = "
        "8.000000 MHz * 24 / 1 / 2",
        "G110 | toadcswitch=enable toadcdiv=/2 | toadc_lineEdit | adc, MHz; 48.000 MHz, at most 28 MHz; "
        "adcclk 48.000 MHz = 8.000000 MHz * 24 / 1 / 2 / 2",
        "G110 | | tortc_lineEdit | RTC clock, kHz; not in use",
        "G110 | tortc=enable rtcsel_hext | tortc_lineEdit | RTC clock, kHz; rtc 62.500 kHz = 8.000000 MHz / "
        "128",
        "G110 | hext_lineEdit~9 | hext_lineEdit | hext, MHz; 4 to 25 MHz; typed, not yet applied: Return "
        "applies it; hext 8.000 MHz",
        "G110 | sclk_lineEdit=64 | sclk_lineEdit | system clock, MHz; 4 to 200 MHz; 64.000 MHz wanted, met "
        "exactly; sclk 64.000 MHz = 8.000000 MHz * 8",
        "G110 | sclk_lineEdit=65 | sclk_lineEdit | system clock, MHz; 4 to 200 MHz; 65.000 MHz wanted, "
        "nearest is 64.000 MHz, -15384.615 ppm off; sclk 64.000 MHz = 8.000000 MHz * 8",
        "G110 | sclk_lineEdit=65 pllmult=*_9 | sclk_lineEdit | system clock, MHz; 4 to 200 MHz; sclk 72.000 "
        "MHz = 8.000000 MHz * 9",
        "G110 | sclkselect_hext | sclk_lineEdit | system clock, MHz; at most 200 MHz; sclk 8.000 MHz = hext",
        "G110 | tousbswitch=enable sclk_lineEdit=80 | usbclock_Label | USB clock; 20.000 MHz, must be 48 "
        "MHz, -583333.333 ppm off; usb 20.000 MHz = 8.000000 MHz * 10 / 4",
        "G110 | tousbswitch=enable sclkselect_hext | usbclock_Label | USB clock; must be 48 MHz; 48.000 MHz "
        "wanted, met exactly; usb 48.000 MHz = 8.000000 MHz * 24 / 4",
        "G110 | hext_lineEdit~30 | hext_lineEdit | hext, MHz; 30 MHz, 4 to 25 MHz; hext 8.000 MHz",
        "G142 | sclkselect_hext canswitch=enable canclocksel_pll | tocan_lineEdit | can clock, MHz; at most "
        "180 MHz; shown is sclk; can 200.000 MHz = 8.000000 MHz * 25",
        "G133 | clockoutpin=PA8 clockout_adcclk | clockout_adcclk_RadioButton | clock output from adcclk; "
        "adcclk 0.000 MHz",
        "G152 | pllns_lineEdit~150 | pllns_lineEdit | PLL NS; 31 to 500; typed, not yet applied: Return "
        "applies it; vco 1152.000 MHz = 8.000000 MHz / 1 * 144",
        "G152 | clockout1pin=PA8 clockout1_hick | clockout1div1_ComboBox | clock output 1 divider 1; "
        "clockout1 8.000 MHz = 48.000000 MHz / 6 / 1",
        "G165 | can1switch=enable can1clocksel_pllu | tocan1_lineEdit | can1 clock, MHz; sclk at most 192 "
        "MHz; can1 72.000 MHz = 8.000000 MHz / 1 * 144 / 16",
    });
}

/// What a tool tip says of a control, and an assistive tool in the same words.
void TestDrawnClocks::sentences()
{
    QFETCH(QStringList, fields);
    const PageFixture& page = resetPage(fields[0]);
    // As if somebody listened.
    QAccessible::setActive(true);
    page.take(fields[1]);
    const QWidget* control = page.find(fields[2]);
    QCOMPARE(page.page->tellControl(control).join(QLatin1String("; ")), fields[3]);
    QTRY_COMPARE(control->accessibleDescription(), fields[3]);
}

/// The signal below the pointer is lifted out of the picture with the flags of its name, and told of.
void TestDrawnClocks::pointer()
{
    const PageFixture& page = resetPage(QStringLiteral("G165"));
    const QPoint i2s = page.page->view()->mapFromScene(895, 150);
    const auto colorAt = [&page](const QPoint& place) {
        return page.viewport()->grab().toImage().pixelColor(place);
    };
    const auto moveTo = [&page](const QPoint& place) {
        QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(page.viewport(), &move);
    };
    const QPoint beside = i2s + QPoint(3, 0);
    const QPoint flag = page.middleOf(page.find(QStringLiteral("clockout_sclk_QLabel1"))) - QPoint(30, 0);
    const QColor ground = colorAt(beside);
    moveTo(i2s);
    QVERIFY(colorAt(beside) != ground);
    QHelpEvent help(QEvent::ToolTip, i2s, page.viewport()->mapToGlobal(i2s));
    QApplication::sendEvent(page.viewport(), &help);
    QCOMPARE(QToolTip::text(), QStringLiteral("sclk 192.000 MHz = 8.000000 MHz / 1 * 144 / 6"));
    moveTo(flag);
    QVERIFY(colorAt(beside) != ground);
    moveTo(page.middleOf(page.find(QStringLiteral("ahbdiv_ComboBox"))));
    QCOMPARE(colorAt(beside), ground);
}

QTEST_MAIN(TestDrawnClocks)
#include "tst_drawnclocks.moc"
