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
    void softLimits_data();
    void softLimits();
    void typedValuesBeforeGenerating_data();
    void typedValuesBeforeGenerating();
    void savingNeedsASeriesName();
};

namespace {

QString warningBox(const char* text)
{
    return QStringLiteral("warning | Warning | %1 | Cancel, Yes").arg(QLatin1String(text));
}

double above(double limit)
{
    return std::nextafter(limit, 1e9);
}

/// Low clocks everywhere, with AHB, the buses and the ADC calculated from it.
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

/// One clock at the value, the others low. A bus gets its value from an AHB of twice as much, so that no rule
/// moves its divider.
void put(ZN64ConfigCLK& model, const QString& clock, double value)
{
    const bool bus = clock.startsWith(QLatin1String("apb"));
    putAhb(model, bus ? 2 * value : 8.0, clock == QLatin1String("apb1clk") ? 2 : 16,
           clock == QLatin1String("apb2clk") ? 2 : 16);
    if (clock == QLatin1String("sclk"))
        model.Set_SYSCLKValue(value);
    if (clock == QLatin1String("pll clock"))
        model.Set_PLLCLKValue(value);
}

/// Presses the button, or closes the file dialog where no box is left.
DialogAnswers::Answer press(const char* button)
{
    return [button](QDialog* dialog) {
        (qobject_cast<QMessageBox*>(dialog) ? DialogAnswers::press(button) : DialogAnswers::close())(dialog);
    };
}

/// The dialogs of saving and, the same, of generating while the given buttons are pressed. What passes comes
/// to the file dialog, told as "passed".
QStringList dialogs(const PageFixture& page, std::initializer_list<const char*> buttons)
{
    QStringList shown[2]; // on generating, on saving
    for (bool saves : {true, false}) {
        DialogAnswers answers;
        for (const char* button : buttons)
            answers.add(press(button));
        page.page->Set_GenerateCodeMode(MODE_USER_BUTTON);
        if (saves)
            page.page->SaveToFile(page.series());
        else if (page.page->GenerateCode())
            qFatal("generated without a folder");
        shown[saves] = answers.shown();
        shown[saves].replaceInStrings(QRegularExpression(QStringLiteral("^(Save|Select directory)$")),
                                      QStringLiteral("passed"));
    }
    // Some series have a comma in the question about the ADC on saving, and only there.
    QStringList generating = shown[1];
    generating.replaceInStrings(QStringLiteral("is wrong, please"), QStringLiteral("is wrong.  please"));
    return shown[0] == generating ? shown[1] : QStringList{QStringLiteral("differ")} + shown[0] + shown[1];
}

const QStringList passed{QStringLiteral("passed")};

} // namespace

void TestLimits::hardLimits_data()
{
    // Clock, the limit compared and the one shown, in the order of the tests; "<" is a lower limit.
    rows({
        "G110 H110R G120 | sclk 200 200, apb1clk 100 100, apb2clk 100 100, pll clock 200 200",
        "G110R G114 | sclk 240 240, apb1clk 120 120, apb2clk 120 120, pll clock 240 240",
        "G125 TQ125 | sclk 150 150, apb1clk 75 75, apb2clk 75 75, pll clock 150 150, pll clock 16 <16",
        "G130 | sclk 120 120, apb1clk 120 120, apb2clk 120 120, pll clock 120 120, pll clock 16 <16",
        "G135 | sclk 96 96, apb1clk 96 96, apb2clk 96 96, pll clock 96 96, pll clock 16 <16",
        "D042 | sclk 80 80, apb1clk 80 80, apb2clk 80 80, pll clock 80 80, pll clock 16 <16",
        "G142 G146 | sclk 200 200, apb1clk 200 200, apb2clk 200 200, pll clock 200 200, pll clock 16 <16",
        "G150 G152 | sclk 288 288, apb1clk 144 144, apb2clk 144 144, pll clock 288 288",
        "G133 H133 | sclk 150 150, apb1clk 120 75, apb2clk 150 75",
        "G171 G190 | sclk 216 216, apb1clk 120 108, apb2clk 216 108",
        "G165 G166 G167 | sclk 192 192, apb1clk 192 96, apb2clk 192 96",
    });
}

void TestLimits::hardLimits()
{
    QFETCH(QStringList, fields);
    const PageFixture page(fields.at(0));
    ZN64ConfigCLK& model = page.model();
    for (const QString& limit : fields.at(1).split(QStringLiteral(", "))) {
        const QString clock = limit.section(QLatin1Char(' '), 0, -3);
        const double compared = limit.section(QLatin1Char(' '), -2, -2).toDouble();
        QString shown = limit.section(QLatin1Char(' '), -1);
        const bool lowest = shown.startsWith(QLatin1Char('<'));
        const QStringList refusal(
            errorBox(QStringLiteral("Can not support %1 %2 than %3MHz")
                         .arg(clock, lowest ? QStringLiteral("less") : QStringLiteral("greater"),
                              shown.remove(QLatin1Char('<')))));
        put(model, clock, compared);
        QCOMPARE(dialogs(page, {}), passed);
        put(model, clock, lowest ? std::nextafter(compared, 0) : above(compared));
        // Nothing is asked behind a refusal, and a later limit is not told.
        model.Set_TO_USB_Switch(TO_USB_SWITCH_ENABLE);
        model.Set_USBCLKValue(47.0);
        if (clock != QLatin1String("pll clock"))
            model.Set_PLLCLKValue(1000.0);
        QCOMPARE(dialogs(page, {"Ok"}), refusal);
        model.Set_TO_USB_Switch(TO_USB_SWITCH_DISABLE);
    }
    // An unused PLL may have any output.
    page.take(QStringLiteral("sclkselect_hick"));
    put(model, QStringLiteral("pll clock"), 1000.0);
    QCOMPARE(dialogs(page, {}), passed);
}

void TestLimits::softLimits_data()
{
    // Whether USB is asked about, the limit of the ADC, and what its text has behind "wrong".
    rows({
        "G110 G110R G114 H110R | usb | 28 | . ",
        "G120 G125 TQ125 G135 | usb | 28 | ,",
        "G130 D042 G142 G146 | | 28 | ,",
        "G152 | usb | 80 | . ",
        "G150 G133 H133 G171 G190 G165 G166 G167 | usb | |",
        "P212 P216 | | |",
    });
}

void TestLimits::softLimits()
{
    QFETCH(QStringList, fields);
    const PageFixture page(fields.at(0));
    ZN64ConfigCLK& model = page.model();
    const QString usb =
        fields.at(1).isEmpty()
            ? QString()
            : warningBox("USB clock must be 48MHz. But the USB clock of current config is wrong.  please "
                         "confirm whether to continue?");
    const QString end = fields.at(3) == QLatin1String(".") ? QStringLiteral(". ") : fields.at(3);
    const QString adc =
        fields.at(2).isEmpty()
            ? QString()
            : warningBox(
                  "The maximum ADC clock is %1 MHz. The currently configured ADC clock is wrong%2 please "
                  "confirm whether to continue?")
                  .arg(fields.at(2), end);
    // What is left of the boxes where the series lacks some of them.
    const auto boxes = [](QStringList list) {
        list.removeAll(QString());
        return list;
    };
    const auto setUsb = [&](TO_USB_SWITCH on, double value) {
        model.Set_TO_USB_Switch(on);
        model.Set_USBCLKValue(value);
    };
    putAhb(model, 8.0, 1, 1);
    setUsb(TO_USB_SWITCH_ENABLE, 48.0);
    QCOMPARE(dialogs(page, {}), passed);
    for (double bad : {above(48.0), std::nextafter(48.0, 0), qQNaN()}) {
        setUsb(TO_USB_SWITCH_ENABLE, bad);
        QCOMPARE(dialogs(page, {"Yes"}), boxes({usb}) + passed);
        QCOMPARE(dialogs(page, {"Cancel"}), usb.isEmpty() ? passed : QStringList(usb));
        setUsb(TO_USB_SWITCH_DISABLE, bad);
        QCOMPARE(dialogs(page, {}), passed);
    }

    const double limit = adc.isEmpty() ? 28.0 : fields.at(2).toDouble();
    model.Set_ToADCDIV(1);
    for (bool on : {false, true}) {
        model.Set_ToADC_Switch(on);
        putAhb(model, limit, 1, 1);
        QCOMPARE(dialogs(page, {}), passed);
        putAhb(model, above(limit), 1, 1);
        QCOMPARE(dialogs(page, {"Yes"}), boxes({on ? adc : QString()}) + passed);
    }
    setUsb(TO_USB_SWITCH_ENABLE, 0.0);
    QCOMPARE(dialogs(page, {"Yes", "Yes"}), boxes({usb, adc}) + passed);
    if (!usb.isEmpty() && !adc.isEmpty())
        QCOMPARE(dialogs(page, {"Yes", "Cancel"}), boxes({usb, adc}));
}

void TestLimits::typedValuesBeforeGenerating_data()
{
    // Source of the system clock, typed hext and system clock, the refusal.
    rows({
        "G110 | pll | 3.999 | 192 | hext input error!",
        "G110 | pll | 25.001 | 192 | hext input error!",
        "G110 | pll | 4.0 | 192 |",
        "G110 | pll | 25.0 | 192 |",
        "G110 | hext | 1.2.3 | 8 | hext input error!",
        "G110 | hick | .. | 8 |",
        "G110 | pll | 8 | 200.001 | sclk input error!",
        "G110 | pll | 8 | 200 |",
        "G110 | pll | 8 | 3.999 | sclk input error!",
        "G110 | pll | 8 | 4 |",
        "G110 | pll | 3 | 201 | hext input error!",
        "G150 | pll | 8 | 288.001 | sclk input error!",
        "G152 | pll | 8 | 288 |",
    });
}

void TestLimits::typedValuesBeforeGenerating()
{
    QFETCH(QStringList, fields);
    const PageFixture page(fields.at(0));
    page.take(QStringLiteral("sclkselect_") + fields.at(1));
    page.find<QLineEdit>(QStringLiteral("hext_lineEdit"))->setText(fields.at(2));
    page.find<QLineEdit>(QStringLiteral("sclk_lineEdit"))->setText(fields.at(3));
    // Saving writes the committed values and leaves the typed ones alone.
    const QStringList refusal{QStringLiteral("differ"), errorBox(fields.at(4)), QStringLiteral("passed")};
    QCOMPARE(dialogs(page, {"Ok"}), fields.at(4).isEmpty() ? passed : refusal);
}

void TestLimits::savingNeedsASeriesName()
{
    const PageFixture page(QStringLiteral("G110"));
    DialogAnswers answers;
    page.page->SaveToFile(QString());
    QCOMPARE(answers.shown(), QStringList());
}

QTEST_MAIN(TestLimits)
#include "tst_limits.moc"
