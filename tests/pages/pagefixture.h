#pragma once

#include "model/seriestraits.h"
#include "pages/series/seriespages.h"
#include "widgets/dialoganswers.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QGraphicsScene>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QWindow>

#include <cmath>

/// A shown page of one series with the hands and the eyes of a user. Controls go by their member names
/// without "m_"; a name that the page lacks ends the test program.
class PageFixture
{
public:
    explicit PageFixture(const QString& word)
        : page(createSeriesPage(seriesByName(QLatin1String("ZN64") + word)->series, nullptr))
    {
        page->resize(1430, 860);
        comeForward();
        // A box that nobody expects would stay for good; one that is about to be answered is gone by the next
        // tick.
        m_watch.callOnTimeout([this] {
            QWidget* box = QApplication::activeModalWidget();
            if (box && box == m_lastBox)
                qFatal("left open: %s", qPrintable(box->property("text").toString()));
            m_lastBox = box;
        });
        m_watch.start(10000);
    }

    void comeForward() const
    {
        page->show();
        page->activateWindow();
        // Without the rests that QTest's own wait takes, a quarter of the time of most tests.
        for (const QDeadlineTimer late(5000);
             !page->isActiveWindow() || !page->windowHandle()->isExposed();) {
            QCoreApplication::processEvents();
            if (late.hasExpired())
                qFatal("the page did not show");
        }
    }

    ZN64ConfigCLK& model() const { return page->model(); }
    /// What the blocks have done by the page.
    ClockTree& tree() const { return *page; }
    QString series() const { return seriesName(page->model().series()); }
    QWidget* viewport() const { return page->view()->viewport(); }
    QList<QWidget*> controls() const
    {
        return page->findChildren<QWidget*>(QRegularExpression(QStringLiteral("^m_")));
    }

    template <class Control = QWidget>
    Control* find(const QString& name) const
    {
        // Two series spell the member of hext's edit otherwise.
        const bool hext = name == QLatin1String("hext_lineEdit");
        auto* control = page->findChild<Control*>(hext ? QLatin1String(page->description().hextEdit)
                                                       : QLatin1String("m_") + name);
        if (!control)
            qFatal("no control %s", qPrintable(name));
        return control;
    }

    /// The steps in "clockoutpin=PA8 clockout_hext hext_lineEdit=10 sclk_lineEdit~5": an item of a combo with
    /// "_" for a blank, a radio button, a text typed and committed with Return, a text typed only.
    void take(const QString& steps) const;
    /// Clicks the middle of the control.
    void click(const QString& name) const
    {
        QTest::mouseClick(viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(find(name)));
    }
    QPoint middleOf(const QWidget* control) const
    {
        const QPoint middle = control->mapTo(control->window(), control->rect().center());
        return page->view()->mapFromScene(ZN64MCUPLL::proxyOf(control)->mapToScene(middle));
    }

    /// The expected "name: text; name: text" as the page has it. A "?" behind a name adds the colours of the
    /// text and of an edit's ground; a name may also be that of a model field.
    QString shows(const QString& expected) const;
    /// Everything that a user can see or set, one line per control, and every field of the model. Left out is
    /// what may tell of earlier states: the texts of hidden or grey labels, that of a grey RTC output, the
    /// frequencies of a PLL and a USB that are not in use.
    QStringList state() const;
    /// Random choices of those that the page offers at the moment, with all questions agreed to. A
    /// recalculation ends them: a refused edit leaves old results on the screen until the next good one.
    void takeRandomSteps(int count, QRandomGenerator& random) const;

    QScopedPointer<ClockTreePage> page;

private:
    void takeRandomStep(QRandomGenerator& random) const;
    QStringList modelState() const;
    /// Whether the result of a peripheral is kept up at present; one follows the switch of another.
    bool isWritten(const QString& control) const;
    static QString colors(const QWidget* control);
    static QString text(const QWidget* control);

    QTimer m_watch;
    /// What was open at the last tick.
    QPointer<QWidget> m_lastBox;
};

inline void PageFixture::take(const QString& steps) const
{
    for (QString step : steps.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const bool commits = step.contains(QLatin1Char('='));
        const QStringList parts = step.replace(QLatin1Char('~'), QLatin1Char('=')).split(QLatin1Char('='));
        if (auto* radio =
                page->findChild<QRadioButton*>(QLatin1String("m_") + step + QLatin1String("_RadioButton"))) {
            click(step + QLatin1String("_RadioButton"));
            if (!radio->isChecked())
                qFatal("%s took no click", qPrintable(step));
        } else if (parts.first().endsWith(QLatin1String("_lineEdit"))) {
            click(parts.first());
            find<QLineEdit>(parts.first())->selectAll();
            QTest::keyClick(viewport(), Qt::Key_Delete);
            QTest::keyClicks(viewport(), parts.last());
            if (commits)
                QTest::keyClick(viewport(), Qt::Key_Return);
        } else {
            auto* combo = find<QComboBox>(parts.first() + QLatin1String("_ComboBox"));
            const QString item = QString(parts.last()).replace(QLatin1Char('_'), QLatin1Char(' '));
            int index = combo->count() - 1;
            while (index >= 0 && combo->itemText(index).trimmed() != item)
                --index;
            if (index < 0 || !combo->isEnabled())
                qFatal("%s cannot be taken", qPrintable(step));
            combo->setCurrentIndex(index);
        }
    }
}

inline QString PageFixture::text(const QWidget* control)
{
    const auto* combo = qobject_cast<const QComboBox*>(control);
    return combo ? combo->currentText().trimmed() : control->property("text").toString();
}

inline QString PageFixture::colors(const QWidget* control)
{
    const bool label = qobject_cast<const QLabel*>(control);
    const QColor color = control->palette().color(label ? QPalette::WindowText : QPalette::Text);
    const QString sheet = control->styleSheet();
    return QLatin1String(color == Qt::red         ? " red"
                         : color == Qt::darkGreen ? " darkGreen"
                         : color == Qt::gray      ? " gray"
                                                  : " black") +
           QLatin1String(sheet.contains(QLatin1String("rgb(152, 251, 152)"))   ? " green"
                         : sheet.contains(QLatin1String("rgb(255, 255, 225)")) ? " pale"
                         : sheet.contains(QLatin1String("rgb(255, 255, 255)")) ? " white"
                                                                               : "");
}

inline QString PageFixture::shows(const QString& expected) const
{
    QStringList shown;
    for (const QString& each : expected.split(QLatin1String("; "))) {
        QString name = each.section(QLatin1Char(':'), 0, 0);
        const QStringList fields = modelState().filter(
            QRegularExpression(QStringLiteral("^%1 ").arg(name.section(QLatin1Char('?'), 0, 0))));
        const QWidget* control = fields.isEmpty() ? find(QString(name).remove(QLatin1Char('?'))) : nullptr;
        shown += name + QLatin1String(": ") +
                 (control ? text(control) : fields.first().section(QLatin1Char(' '), 1)) +
                 (name.endsWith(QLatin1Char('?')) ? colors(control) : QString());
    }
    return shown.join(QLatin1String("; "));
}

inline QStringList PageFixture::state() const
{
    QStringList lines;
    for (const QWidget* control : controls()) {
        const QString name = control->objectName();
        const auto* edit = qobject_cast<const QLineEdit*>(control);
        const auto* radio = qobject_cast<const QRadioButton*>(control);
        QString value = text(control);
        if (const auto* combo = qobject_cast<const QComboBox*>(control))
            value.prepend(QString::number(combo->currentIndex()));
        else if (radio)
            value = QLatin1String(radio->isChecked() ? "checked" : "");
        else if (edit && name.toLower() == QLatin1String("m_hext_lineedit"))
            value = QString::number(value.toDouble());
        else if (edit && name.startsWith(QLatin1String("m_to")))
            value = edit->isEnabled() && isWritten(name) ? value + colors(edit) : QString();
        else if (!edit && (control->isHidden() || !control->isEnabled() || !isWritten(name)))
            value = QLatin1String(control->isWindow() ? "hidden" : "");
        lines += name.mid(2) + QLatin1String(control->isEnabled() ? ": " : " (off): ") + value;
    }
    lines.sort();
    return lines + modelState();
}

inline bool PageFixture::isWritten(const QString& control) const
{
    for (const PeripheralClock& clock : page->description().peripherals)
        if (clock.writtenWhile.get &&
            control.startsWith(QStringLiteral("m_to%1_").arg(QLatin1String(clock.stem))))
            return clock.writtenWhile.get(page->model()) != 0.0;
    return true;
}

inline QStringList PageFixture::modelState() const
{
    const ZN64ConfigCLK& model = page->model();
#define FIELD(name) QStringLiteral(#name " %1").arg(static_cast<double>(model.Get_##name()), 0, 'g', 15)
    // clang-format off
    QStringList lines{
        FIELD(Hext_Input_Value), FIELD(Lext_Bypass_Value), FIELD(Hext_Bypass_Value), FIELD(RTCSEL),
        FIELD(ToRTC_Switch), FIELD(RTC_DIV), FIELD(HEXT_DIV), FIELD(SCLKHICK_DIV), FIELD(PLLHEXTDIV),
        FIELD(PLLRC), FIELD(ConfigMode), FIELD(PLL_MS), FIELD(PLL_NS), FIELD(PLL_FU), FIELD(PLL_MUL),
        FIELD(SYSCLKSelect), FIELD(AHBDIV), FIELD(APB1DIV), FIELD(APB2DIV), FIELD(APB3DIV),
        FIELD(APB1TMR_MUL), FIELD(APB2TMR_MUL), FIELD(HICK_TO_SCLK), FIELD(ToADC_Switch), FIELD(ToADCDIV),
        FIELD(adc_Clock_Source), FIELD(USBDIV), FIELD(HICK_TO_USB), FIELD(TO_USB_Switch), FIELD(CLKOUT),
        FIELD(CLKOUT_Div), FIELD(CLKOUT_Div1), FIELD(CLKOUT_Div2), FIELD(CLKOUT_PinSelect), FIELD(CLKOUT1),
        FIELD(CLKOUT1_Div1), FIELD(CLKOUT1_Div2), FIELD(CLKOUT1_PinSelect), FIELD(CLKOUT2),
        FIELD(CLKOUT2_Div1), FIELD(CLKOUT2_Div2), FIELD(CLKOUT2_PinSelect), FIELD(USART1_Switch),
        FIELD(USART2_Switch), FIELD(USART3_Switch), FIELD(I2C1_Switch), FIELD(I2SF5_Switch),
        FIELD(CAN1_Switch), FIELD(CAN2_Switch), FIELD(CAN3_Switch), FIELD(usart1_Clock_Source),
        FIELD(usart2_Clock_Source), FIELD(usart3_Clock_Source), FIELD(i2c1_Clock_Source),
        FIELD(i2sf5_Clock_Source), FIELD(can1_Clock_Source), FIELD(can2_Clock_Source),
        FIELD(can3_Clock_Source), FIELD(SYSCLKValue), FIELD(AHBCLKValue), FIELD(APB1CLKValue),
        FIELD(APB2CLKValue), FIELD(APB3CLKValue), FIELD(APB1TMRCLK_Value), FIELD(APB2TMRCLK_Value),
        FIELD(ADCCLK_Value)};
    // clang-format on
    // A solver wipes the output divider that the series lacks.
    lines += model.traits().pll_fp_output ? FIELD(PLL_FP) : FIELD(PLL_FR);
    if (model.pll_isEnable())
        lines += FIELD(PLLCLKValue);
    if (page->description().usb && model.usbpll_isEnable())
        lines += FIELD(USBCLKValue);
#undef FIELD
    return lines;
}

inline void PageFixture::takeRandomSteps(int count, QRandomGenerator& random) const
{
    const DialogAnswers::Answer agree = [](QDialog* box) {
        static_cast<QMessageBox*>(box)->defaultButton()->click();
    };
    for (int step = 0; step <= count; ++step) {
        DialogAnswers answers{agree, agree, agree, agree, agree, agree};
        step < count ? takeRandomStep(random) : tree().UpdateCalculateResult();
    }
}

inline void PageFixture::takeRandomStep(QRandomGenerator& random) const
{
    QList<QWidget*> choices;
    for (QWidget* each : controls())
        if (each->isEnabled() && each->isVisible() && !each->property("readOnly").toBool() &&
            !each->isWindow() && !qobject_cast<QLabel*>(each) && !qobject_cast<QPushButton*>(each))
            choices += each;
    QWidget* choice = choices.at(random.bounded(choices.size()));
    if (auto* combo = qobject_cast<QComboBox*>(choice))
        return combo->setCurrentIndex(random.bounded(combo->count()));
    if (auto* radio = qobject_cast<QRadioButton*>(choice))
        return radio->click();
    const QString name = choice->objectName();
    const int tenths = random.bounded(40, 251);
    static_cast<QLineEdit*>(choice)->setText(
        name == QLatin1String("m_pllms_lineEdit")   ? QString::number(random.bounded(1, 16))
        : name == QLatin1String("m_pllns_lineEdit") ? QString::number(random.bounded(31, 501))
        : name.toLower() == QLatin1String("m_hext_lineedit")
            ? QString::number(tenths / 10.0)
            : QString::number(tenths / 250.0 * page->model().GetSYSCLKValidMaxValue(), 'f', 3));
    QTest::keyClick(choice, Qt::Key_Return);
}

/// The same page of a series for all rows of a test program, reset: making one takes longer than most rows.
/// That a reset page equals a new one is a test of its own.
inline const PageFixture& resetPage(const QString& word)
{
    // Never destroyed: behind the application, widgets cannot be.
    static auto& pages = *new QHash<QString, PageFixture*>;
    PageFixture*& page = pages[word];
    if (!page)
        page = new PageFixture(word);
    page->page->InitAllControl();
    page->page->ZoomReset();
    page->comeForward();
    return *page;
}

/// How many of the rounds of a random test are run. All of them found nothing that a part of them did not;
/// they are there for changes of what is tested.
inline int roundsToRun(int rounds)
{
    return qEnvironmentVariableIsEmpty("CLOCKWRIGHT_ALL_ROUNDS") ? (rounds + 4) / 5 : rounds;
}

/// The words of all series that have a page, as a column.
inline void pageRows()
{
    QTest::addColumn<QString>("word");
    for (const SeriesTraits& traits : seriesList())
        QTest::newRow(traits.word) << QString::fromLatin1(traits.word);
}

/// The same for those whose templates the program carries.
inline void templateRows()
{
    QTest::addColumn<QString>("word");
    for (const SeriesTraits& traits : seriesList()) {
        const QScopedPointer<ClockTreePage> page(createSeriesPage(traits.series, nullptr));
        if (QFile::exists(QStringLiteral(":/image/%1_main.c").arg(page->description().stem())))
            QTest::newRow(traits.word) << QString::fromLatin1(traits.word);
    }
}

/// The series without one of their family before them.
inline QSet<int> firstsOfFamilies()
{
    QSet<int> firsts;
    QSet<QStringList> orders;
    for (const SeriesTraits& traits : seriesList()) {
        const QScopedPointer<ClockTreePage> page(createSeriesPage(traits.series, nullptr));
        if (!orders.contains(page->fileOrder())) {
            orders += page->fileOrder();
            firsts += traits.series;
        }
    }
    return firsts;
}

/// Whether no series before this one has tables of the same family: the random work on siblings is less.
inline bool isFirstOfFamily(const PageFixture& page)
{
    static const QSet<int> firsts = firstsOfFamilies();
    return firsts.contains(page.model().series());
}

/// How often random work is worth its time on a page. A sanitized page is slow.
inline int randomRounds(const PageFixture& page)
{
#ifdef __SANITIZE_ADDRESS__
    return isFirstOfFamily(page) ? 8 : 2;
#else
    return isFirstOfFamily(page) ? 20 : 4;
#endif
}

/// The next number that breaks a limit.
inline double above(double limit)
{
    return std::nextafter(limit, 1e9);
}

/// A row per line, its fields between bars. The first field is one series or several, which get a row each;
/// "*" stands for all. A word that is no series ends the test program.
inline void rows(std::initializer_list<const char*> lines)
{
    QTest::addColumn<QStringList>("fields");
    for (const char* line : lines) {
        QStringList fields;
        for (const QString& field : QString::fromUtf8(line).split(QLatin1Char('|')))
            fields += field.trimmed();
        QStringList words = fields.takeFirst().split(QLatin1Char(' '));
        if (words.first() == QLatin1String("*")) {
            words.clear();
            for (const SeriesTraits& traits : seriesList())
                words += QLatin1String(traits.word);
        }
        for (const QString& word : words) {
            if (!seriesByName(QLatin1String("ZN64") + word))
                qFatal("no series is named %s", qPrintable(word));
            QTest::addRow("%s: %s", qPrintable(word), qPrintable(fields.join(QLatin1String(" | "))))
                << (QStringList(word) + fields);
        }
    }
}

inline QString errorBox(const QString& text)
{
    return QStringLiteral("critical | Error | %1 | Ok").arg(text);
}
