#include "files/previewfolder.h"
#include "pagefixture.h"
#include "testdata.h"

#include <QDir>
#include <QTemporaryDir>

#include <cmath>

// What saving and generating refuse or ask. Clocks that a user reaches with luck only are put into the model.

class TestLimits : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        // What file dialogs list, hundreds of times.
        QVERIFY(QDir::setCurrent(m_folder.path()));
    }
    void hardLimits_data();
    void hardLimits();
    void softLimits_data();
    void softLimits();
    void phyIsAskedAbout();
    void apb3BeforeGenerating_data();
    void apb3BeforeGenerating();
    void typedValuesBeforeGenerating_data();
    void typedValuesBeforeGenerating();
    void savingNeedsASeriesName();

private:
    void refusals(const PageFixture& page, int when, const QStringList& limits) const;
    void questions(const PageFixture& page, int when, bool asksUsb, double adcLimit,
                   const QString& adcEnd) const;

    const QTemporaryDir m_folder{scratchFolder()};
};

namespace {

QString warningBox(const char* text)
{
    return QStringLiteral("warning | Warning | %1 | Cancel, Yes").arg(QLatin1String(text));
}

/// Low clocks everywhere, with AHB, the buses and the ADC calculated from it.
void putAhb(ZN64ConfigCLK& model, double ahb, int apb1div, int apb2div)
{
    model.Set_SYSCLKSelect(SYSCLK_HEXT);
    model.Set_Hext_Input_Value(ahb);
    model.Set_APB1DIV(apb1div);
    model.Set_APB2DIV(apb2div);
    model.Set_APB3DIV(16);
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
    if (clock == QLatin1String("apb3clk")) {
        // Generating looks at the divider first: only a clock that it does not know of comes so far.
        model.Set_APB3DIV(2);
        model.CalculateCLK();
        model.Set_APB3DIV(16);
        model.Set_SYSCLKValue(8.0);
        model.Set_PLLCLKValue(64.0);
    }
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

enum Flow
{
    Saving,
    Generating
};

/// The dialogs of saving or generating while the given buttons are pressed. What passes is told as "passed":
/// it comes to the file dialog, or gives a preview, which asks for no folder and is made much faster.
QStringList dialogs(const PageFixture& page, Flow flow, std::initializer_list<const char*> buttons)
{
    DialogAnswers answers;
    for (const char* button : buttons)
        answers.add(press(button));
    page.page->Set_GenerateCodeMode(MODE_CODE_VIEW);
    const bool generated = flow == Generating && page.page->GenerateCode();
    previewfolder::release();
    if (flow == Saving)
        page.page->SaveToFile(page.series());
    QStringList shown = answers.shown();
    shown.replaceInStrings(QRegularExpression("^Save$"_s), "passed"_s);
    return generated ? shown + QStringList("passed"_s) : shown;
}

const QStringList passed{QStringLiteral("passed")};

} // namespace

void TestLimits::hardLimits_data()
{
    // When; clock, the limit compared and the one shown, in the order of the tests; "<" is a lower limit.
    rows({
        "G110 H110R G120 | both | sclk 200 200, apb1clk 100 100, apb2clk 100 100, pll clock 200 200",
        "G110R G114 | both | sclk 240 240, apb1clk 120 120, apb2clk 120 120, pll clock 240 240",
        "G125 TQ125 | both | sclk 150 150, apb1clk 75 75, apb2clk 75 75, pll clock 150 150, pll clock 16 <16",
        "G130 | both | sclk 120 120, apb1clk 120 120, apb2clk 120 120, pll clock 120 120, pll clock 16 <16",
        "G135 | both | sclk 96 96, apb1clk 96 96, apb2clk 96 96, pll clock 96 96, pll clock 16 <16",
        "D042 | both | sclk 80 80, apb1clk 80 80, apb2clk 80 80, pll clock 80 80, pll clock 16 <16",
        "G142 G146 | both | sclk 200 200, apb1clk 200 200, apb2clk 200 200, pll clock 200 200, pll clock 16 "
        "<16",
        "G150 G152 | both | sclk 288 288, apb1clk 144 144, apb2clk 144 144, pll clock 288 288",
        "G133 H133 | saving | sclk 150 150, apb1clk 120 75, apb2clk 150 75",
        "G133 H133 | generating | sclk 150 150, apb1clk 120 120, apb2clk 150 150",
        "G171 G174 G190 | saving | sclk 216 216, apb1clk 120 108, apb2clk 216 108",
        "G171 G174 G190 | generating | sclk 216 216, apb1clk 120 120, apb2clk 216 216",
        "G165 G166 G167 | saving | sclk 192 192, apb1clk 192 96, apb2clk 192 96",
        "G165 G166 G167 | generating | sclk 192 192, apb1clk 192 192, apb2clk 192 192",
        "P212 P216 | saving | sclk 180 180, apb1clk 180 90, apb2clk 180 90, pll clock 180 180",
        "P212 P216 | generating | sclk 180 180, apb1clk 180 180, apb3clk 90 90, pll clock 180 180",
    });
}

void TestLimits::hardLimits()
{
    QFETCH(QStringList, fields);
    for (Flow flow : {Saving, Generating})
        if (fields.at(1) != (flow == Saving ? "generating"_s : "saving"_s))
            refusals(PageFixture(fields.at(0)), flow, fields.at(2).split(", "_s));
}

void TestLimits::refusals(const PageFixture& page, int when, const QStringList& limits) const
{
    const Flow flow = static_cast<Flow>(when);
    ZN64ConfigCLK& model = page.model();
    for (const QString& limit : limits) {
        const QString clock = limit.section(u' ', 0, -3);
        const double compared = limit.section(u' ', -2, -2).toDouble();
        QString shown = limit.section(u' ', -1);
        const bool lowest = shown.startsWith(u'<');
        const QStringList refusal(errorBox("Can not support %1 %2 than %3MHz"_s.arg(
            clock, lowest ? "less"_s : "greater"_s, shown.remove(u'<'))));
        put(model, clock, compared);
        QCOMPARE(dialogs(page, flow, {}), passed);
        put(model, clock, lowest ? std::nextafter(compared, 0) : above(compared));
        // Nothing is asked behind a refusal, and a later limit is not told.
        model.Set_TO_USB_Switch(TO_USB_SWITCH_ENABLE);
        model.Set_USBCLKValue(47.0);
        if (clock != "pll clock"_s)
            model.Set_PLLCLKValue(1000.0);
        QCOMPARE(dialogs(page, flow, {"Ok"}), refusal);
        model.Set_TO_USB_Switch(TO_USB_SWITCH_DISABLE);
    }
    // An unused PLL may have any output.
    page.take("sclkselect_hick"_s);
    put(model, "pll clock"_s, 1000.0);
    QCOMPARE(dialogs(page, flow, {}), passed);
}

void TestLimits::softLimits_data()
{
    // Whether USB is asked about, the limit of the ADC, and what its text has behind "wrong" on saving.
    rows({
        "G110 G110R G114 H110R | usb | 28 | . ",
        "G120 G125 TQ125 G135 | usb | 28 | ,",
        "G130 D042 G142 G146 | | 28 | ,",
        "G152 | usb | 80 | . ",
        "G150 G133 H133 G171 G174 G190 G165 G166 G167 | usb | |",
        "P212 P216 | | |",
    });
}

void TestLimits::softLimits()
{
    QFETCH(QStringList, fields);
    for (Flow flow : {Saving, Generating})
        questions(PageFixture(fields.at(0)), flow, !fields.at(1).isEmpty(), fields.at(2).toDouble(),
                  flow == Saving && fields.at(3) == ","_s ? ","_s : ". "_s);
}

void TestLimits::questions(const PageFixture& page, int when, bool asksUsb, double adcLimit,
                           const QString& adcEnd) const
{
    const Flow flow = static_cast<Flow>(when);
    ZN64ConfigCLK& model = page.model();
    const QString usb = asksUsb ? warningBox("USB clock must be 48MHz. But the USB clock of current config "
                                             "is wrong.  please confirm whether to continue?")
                                : QString();
    const QString adc =
        adcLimit > 0 ? warningBox("The maximum ADC clock is %1 MHz. The currently configured ADC clock is "
                                  "wrong%2 please confirm whether to continue?")
                           .arg(QString::number(adcLimit), adcEnd)
                     : QString();
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
    QCOMPARE(dialogs(page, flow, {}), passed);
    for (double bad : {above(48.0), std::nextafter(48.0, 0), qQNaN()}) {
        setUsb(TO_USB_SWITCH_ENABLE, bad);
        QCOMPARE(dialogs(page, flow, {"Yes"}), boxes({usb}) + passed);
        QCOMPARE(dialogs(page, flow, {"Cancel"}), asksUsb ? QStringList(usb) : passed);
        setUsb(TO_USB_SWITCH_DISABLE, bad);
        QCOMPARE(dialogs(page, flow, {}), passed);
    }

    const double limit = adcLimit > 0 ? adcLimit : 28.0;
    model.Set_ToADCDIV(1);
    for (bool on : {false, true}) {
        model.Set_ToADC_Switch(on);
        putAhb(model, limit, 1, 1);
        QCOMPARE(dialogs(page, flow, {}), passed);
        putAhb(model, above(limit), 1, 1);
        QCOMPARE(dialogs(page, flow, {"Yes"}), boxes({on ? adc : QString()}) + passed);
    }
    setUsb(TO_USB_SWITCH_ENABLE, 0.0);
    QCOMPARE(dialogs(page, flow, {"Yes", "Yes"}), boxes({usb, adc}) + passed);
    if (asksUsb && adcLimit > 0)
        QCOMPARE(dialogs(page, flow, {"Yes", "Cancel"}), boxes({usb, adc}));
}

void TestLimits::phyIsAskedAbout()
{
    const QString usb = warningBox("USB clock must be 48MHz. But the USB clock of current config is wrong.  "
                                   "please confirm whether to continue?");
    const QString phy = warningBox("USBHS PHY clock must be 12MHz. But the PHY clock of current config is "
                                   "wrong.  please confirm whether to continue?");
    const PageFixture page("G174"_s);
    for (Flow flow : {Saving, Generating})
        QCOMPARE(dialogs(page, flow, {}), passed);
    // The field takes the typed hext with every pass, committed or not, and tells it rounded.
    page.take("hext_lineEdit~11.9996 ahbdiv=/2"_s);
    QCOMPARE(page.shows("tousbhsphy_lineEdit?"_s), "tousbhsphy_lineEdit?: 12.000 red"_s);
    QCOMPARE(dialogs(page, Saving, {}), passed);
    page.take("hext_lineEdit=8"_s);
    QCOMPARE(page.shows("tousbhsphy_lineEdit?"_s), "tousbhsphy_lineEdit?: 8.000 red"_s);
    page.model().Set_TO_USB_Switch(TO_USB_SWITCH_ENABLE);
    for (Flow flow : {Saving, Generating}) {
        QCOMPARE(dialogs(page, flow, {"Yes", "Cancel"}), QStringList({usb, phy}));
        QCOMPARE(dialogs(page, flow, {"Yes", "Yes"}), QStringList({usb, phy}) + passed);
    }
}

void TestLimits::apb3BeforeGenerating_data()
{
    rows({"G142 G146 P212 P216 G165 G166 G167 |"});
}

void TestLimits::apb3BeforeGenerating()
{
    QFETCH(QStringList, fields);
    const PageFixture page(fields.at(0));
    QCOMPARE(dialogs(page, Generating, {}), passed);
    page.take("apb3div=/1"_s);
    QCOMPARE(dialogs(page, Generating, {"Ok"}), QStringList(errorBox("apb3div input error!"_s)));
    // Saving never looks at it.
    QCOMPARE(dialogs(page, Saving, {}), passed);
    page.find<QLineEdit>("sclk_lineEdit"_s)->setText("300"_s);
    QCOMPARE(dialogs(page, Generating, {"Ok"}), QStringList(errorBox("sclk input error!"_s)));
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
    QCOMPARE(dialogs(page, Saving, {}), passed);
    const QStringList refusal(errorBox(fields.at(4)));
    QCOMPARE(dialogs(page, Generating, {"Ok"}), fields.at(4).isEmpty() ? passed : refusal);
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
