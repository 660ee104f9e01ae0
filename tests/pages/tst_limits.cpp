#include "pagefixture.h"

#include <cmath>

// What saving and generating refuse or ask. Clocks that a user reaches with luck only are put into the model.

class TestLimits : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void hardLimits_data();
    void hardLimits();
    void softLimits_data() { hardLimits_data(); }
    void softLimits();
    void typedValuesBeforeGenerating_data();
    void typedValuesBeforeGenerating();
    void savingNeedsASeriesName();
};

namespace {

/// MHz; 0 for a limit that the series lacks.
struct Limits
{
    const char* words; ///< series
    double sysclk;
    double apb1;
    int apb1Shown;
    double apb2;
    int apb2Shown;
    double pll;
    double pllLowest;
    bool usb;
    const char* adcText;
    double adc;
};

const char adc28[] =
    "The maximum ADC clock is 28 MHz. The currently configured ADC clock is wrong.  please confirm "
    "whether to continue?";
const char adc28Comma[] =
    "The maximum ADC clock is 28 MHz. The currently configured ADC clock is wrong, please "
    "confirm whether to continue?";
const char adc80[] =
    "The maximum ADC clock is 80 MHz. The currently configured ADC clock is wrong.  please confirm "
    "whether to continue?";
const char usb48[] =
    "USB clock must be 48MHz. But the USB clock of current config is wrong.  please confirm whether "
    "to continue?";

// The series whose buses generate and save alike.
const Limits all[] = {
    {"G110 H110R",     200, 100, 100, 100, 100, 200, 0,  true,  adc28,      28},
    {"G120",           200, 100, 100, 100, 100, 200, 0,  true,  adc28Comma, 28},
    {"G110R G114",     240, 120, 120, 120, 120, 240, 0,  true,  adc28,      28},
    {"G125 TQ125",     150, 75,  75,  75,  75,  150, 16, true,  adc28Comma, 28},
    {"G130",           120, 120, 120, 120, 120, 120, 16, false, adc28Comma, 28},
    {"G135",           96,  96,  96,  96,  96,  96,  16, true,  adc28Comma, 28},
    {"D042",           80,  80,  80,  80,  80,  80,  16, false, adc28Comma, 28},
    {"G142 G146",      200, 200, 200, 200, 200, 200, 16, false, adc28Comma, 28},
    {"G150",           288, 144, 144, 144, 144, 288, 0,  true,  nullptr,    28},
    {"G152",           288, 144, 144, 144, 144, 288, 0,  true,  adc80,      80},
    {"G133 H133",      150, 120, 75,  150, 75,  0,   0,  true,  nullptr,    28},
    {"G171 G190",      216, 120, 108, 216, 108, 0,   0,  true,  nullptr,    28},
    {"G165 G166 G167", 192, 192, 96,  192, 96,  0,   0,  true,  nullptr,    28},
};

const Limits& limitsOf(const QString& word)
{
    for (const Limits& limits : all)
        if (QString::fromLatin1(limits.words).split(QLatin1Char(' ')).contains(word))
            return limits;
    qFatal("no limits of %s", qPrintable(word));
}

double above(double limit)
{
    return std::nextafter(limit, 1e9);
}

/// Low clocks everywhere, with AHB and the buses calculated from it.
void putAhb(ZN64ConfigCLK& model, double ahb, int apb1div, int apb2div)
{
    model.Set_SYSCLKSelect(SYSCLK_HEXT);
    model.Set_Hext_Input_Value(ahb);
    model.Set_APB1DIV(apb1div);
    model.Set_APB2DIV(apb2div);
    model.CalculateCLK();
    model.Set_SYSCLKValue(8.0);
    model.Set_PLLCLKValue(64.0);
}

/// One clock at the value, the others low.
void put(ZN64ConfigCLK& model, Clock clock, double value)
{
    const bool bus = clock == Clock::Apb1 || clock == Clock::Apb2;
    putAhb(model, bus ? 2 * value : 8.0, clock == Clock::Apb1 ? 2 : 16, clock == Clock::Apb2 ? 2 : 16);
    if (clock == Clock::Sysclk)
        model.Set_SYSCLKValue(value);
    if (clock == Clock::Pll)
        model.Set_PLLCLKValue(value);
}

/// The dialogs of saving or generating while the given buttons are pressed. What passes comes to the file
/// dialog, which is closed.
QStringList dialogs(const PageFixture& page, bool saves, std::initializer_list<DialogAnswers::Answer> presses)
{
    DialogAnswers answers(presses);
    page.page->Set_GenerateCodeMode(MODE_USER_BUTTON);
    if (saves)
        page.page->SaveToFile(page.series());
    else if (page.page->GenerateCode())
        qFatal("generated without a folder");
    return answers.shown();
}

QString fileDialog(bool saves)
{
    return saves ? QStringLiteral("Save") : QStringLiteral("Select directory");
}

/// Presses the button, or closes the file dialog where no box is left.
DialogAnswers::Answer press(const char* button)
{
    return [button](QDialog* dialog) {
        (qobject_cast<QMessageBox*>(dialog) ? DialogAnswers::press(button) : DialogAnswers::close())(dialog);
    };
}

const DialogAnswers::Answer ok = press("Ok");
const DialogAnswers::Answer yes = press("Yes");
const DialogAnswers::Answer cancel = press("Cancel");

} // namespace

void TestLimits::hardLimits_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<bool>("saves");
    for (const Limits& limits : all)
        for (const QString& word : QString::fromLatin1(limits.words).split(QLatin1Char(' ')))
            for (bool saves : {true, false})
                if (hasPage(word))
                    QTest::addRow("%s %s", qPrintable(word), saves ? "saving" : "generating")
                        << word << saves;
}

void TestLimits::hardLimits()
{
    QFETCH(QString, word);
    QFETCH(bool, saves);
    const PageFixture page(word);
    const Limits& limits = limitsOf(word);
    struct Test
    {
        Clock clock;
        double good;
        double bad;
        int shown;
        const char* words;
    };
    const auto highest = [](Clock clock, double limit, int shown, const char* words) {
        return Test{clock, limit, above(limit), shown, words};
    };
    QVector<Test> tests{
        highest(Clock::Sysclk, limits.sysclk, qRound(limits.sysclk), "Can not support sclk greater than"),
        highest(Clock::Apb1, limits.apb1, limits.apb1Shown, "Can not support apb1clk greater than"),
        highest(Clock::Apb2, limits.apb2, limits.apb2Shown, "Can not support apb2clk greater than")};
    if (limits.pll > 0)
        tests +=
            highest(Clock::Pll, limits.pll, qRound(limits.pll), "Can not support pll clock greater than");
    if (limits.pllLowest > 0)
        tests += Test{Clock::Pll, limits.pllLowest, std::nextafter(limits.pllLowest, 0),
                      qRound(limits.pllLowest), "Can not support pll clock less than"};
    for (const Test& test : tests) {
        const QString refusal =
            errorBox(QStringLiteral("%1 %2MHz").arg(QLatin1String(test.words)).arg(test.shown));
        put(page.model(), test.clock, test.good);
        QCOMPARE(dialogs(page, saves, {}), QStringList(fileDialog(saves)));
        put(page.model(), test.clock, test.bad);
        QCOMPARE(dialogs(page, saves, {ok}), QStringList(refusal));
        // Nothing is asked behind a refusal, and a later limit is not told.
        page.model().Set_TO_USB_Switch(TO_USB_SWITCH_ENABLE);
        page.model().Set_USBCLKValue(47.0);
        if (test.clock != Clock::Pll)
            page.model().Set_PLLCLKValue(1000.0);
        QCOMPARE(dialogs(page, saves, {ok}), QStringList(refusal));
        page.model().Set_TO_USB_Switch(TO_USB_SWITCH_DISABLE);
    }
    // An unused PLL may have any output.
    page.click("m_sclkselect_hick_RadioButton");
    put(page.model(), Clock::Pll, 1000.0);
    QCOMPARE(dialogs(page, saves, {}), QStringList(fileDialog(saves)));
}

void TestLimits::softLimits()
{
    QFETCH(QString, word);
    QFETCH(bool, saves);
    const PageFixture page(word);
    const Limits& limits = limitsOf(word);
    ZN64ConfigCLK& model = page.model();
    const QString usb = warningBox(usb48);
    const QString adc = limits.adcText ? warningBox(limits.adcText) : QString();
    const QString passed = fileDialog(saves);
    // The boxes that are left of a list when the series lacks some of them.
    const auto boxes = [&](QStringList list) {
        if (!limits.usb)
            list.removeAll(usb);
        list.removeAll(QString());
        return list;
    };
    const auto setUsb = [&](TO_USB_SWITCH on, double value) {
        model.Set_TO_USB_Switch(on);
        model.Set_USBCLKValue(value);
    };
    put(model, Clock::Sysclk, 8.0);
    setUsb(TO_USB_SWITCH_ENABLE, 48.0);
    QCOMPARE(dialogs(page, saves, {}), QStringList(passed));
    for (double bad : {above(48.0), std::nextafter(48.0, 0), qQNaN()}) {
        setUsb(TO_USB_SWITCH_ENABLE, bad);
        QCOMPARE(dialogs(page, saves, {yes}), boxes({usb, passed}));
        if (limits.usb)
            QCOMPARE(dialogs(page, saves, {cancel}), QStringList(usb));
        setUsb(TO_USB_SWITCH_DISABLE, bad);
        QCOMPARE(dialogs(page, saves, {}), QStringList(passed));
    }

    model.Set_ToADCDIV(1);
    for (bool on : {false, true}) {
        model.Set_ToADC_Switch(on);
        putAhb(model, limits.adc, 1, 1);
        QCOMPARE(dialogs(page, saves, {}), QStringList(passed));
        putAhb(model, above(limits.adc), 1, 1);
        QCOMPARE(dialogs(page, saves, {yes}), boxes({on ? adc : QString(), passed}));
    }
    setUsb(TO_USB_SWITCH_ENABLE, 0.0);
    QCOMPARE(dialogs(page, saves, {yes, yes}), boxes({usb, adc, passed}));
    if (limits.usb && limits.adcText) {
        QCOMPARE(dialogs(page, saves, {yes, cancel}), boxes({usb, adc}));
        QCOMPARE(dialogs(page, saves, {cancel}), boxes({usb}));
    }
}

void TestLimits::typedValuesBeforeGenerating_data()
{
    QTest::addColumn<QByteArray>("select");
    QTest::addColumn<QString>("hext");
    QTest::addColumn<QString>("sysclk");
    QTest::addColumn<QStringList>("boxes");
    const auto row = [](const char* name, const char* select, const char* hext, const char* sysclk,
                        const char* error) {
        QTest::newRow(name) << QByteArray(select) << QString::fromLatin1(hext) << QString::fromLatin1(sysclk)
                            << (*error ? QStringList(errorBox(error)) : QStringList());
    };
    row("G110 low hext", "pll", "3.999", "192", "hext input error!");
    row("G110 high hext", "pll", "25.001", "192", "hext input error!");
    row("G110 lowest hext", "pll", "4.0", "192", "");
    row("G110 highest hext", "pll", "25.0", "192", "");
    row("G110 no number", "hext", "1.2.3", "8", "hext input error!");
    row("G110 hext not in use", "hick", "..", "8", "");
    row("G110 high sclk", "pll", "8", "200.001", "sclk input error!");
    row("G110 highest sclk", "pll", "8", "200", "");
    row("G110 low sclk", "pll", "8", "3.999", "sclk input error!");
    row("G110 lowest sclk", "pll", "8", "4", "");
    row("G110 both bad", "pll", "3", "201", "hext input error!");
    row("G150 high sclk", "pll", "8", "288.001", "sclk input error!");
    row("G152 highest sclk", "pll", "8", "288", "");
}

void TestLimits::typedValuesBeforeGenerating()
{
    QFETCH(QByteArray, select);
    QFETCH(QString, hext);
    QFETCH(QString, sysclk);
    QFETCH(QStringList, boxes);
    const PageFixture page(QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(' '), 0, 0));
    page.find<QRadioButton>(QStringLiteral("m_sclkselect_%1_RadioButton").arg(QLatin1String(select)))
        ->click();
    page.find<QLineEdit>(QStringLiteral("m_hext_lineEdit"))->setText(hext);
    page.find<QLineEdit>(QStringLiteral("m_sclk_lineEdit"))->setText(sysclk);
    QCOMPARE(dialogs(page, false, {ok}), boxes.isEmpty() ? QStringList(fileDialog(false)) : boxes);
    // Saving writes the committed values and leaves the typed ones alone.
    QCOMPARE(dialogs(page, true, {}), QStringList(fileDialog(true)));
}

void TestLimits::savingNeedsASeriesName()
{
    const PageFixture page(ZN64G110);
    DialogAnswers answers{};
    page.page->SaveToFile(QString());
    QCOMPARE(answers.shown(), QStringList());
}

QTEST_MAIN(TestLimits)
#include "tst_limits.moc"
