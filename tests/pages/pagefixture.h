#pragma once

#include "model/seriestraits.h"
#include "pages/seriespages.h"
#include "widgets/dialoganswers.h"

#include <QGraphicsScene>
#include <QRandomGenerator>
#include <QTest>

/// A shown page of one series with the hands and the eyes of a user. Controls go by their member names; a
/// name that the page lacks ends the test program.
class PageFixture
{
public:
    explicit PageFixture(ZN64MCUSERIALS series) : page(createSeriesPage(series, nullptr))
    {
        page->resize(1430, 860);
        page->show();
        if (!QTest::qWaitForWindowActive(page.data()))
            qFatal("the page did not show");
        // A box that nobody expects would stay for good.
        m_watch.callOnTimeout([] {
            if (const QWidget* box = QApplication::activeModalWidget())
                qFatal("left open: %s", qPrintable(box->property("text").toString()));
        });
        m_watch.start(10000);
    }
    explicit PageFixture(const QString& word)
        : PageFixture(seriesByName(QLatin1String("ZN64") + word)->series)
    {
    }

    ZN64ConfigCLK& model() const { return page->model(); }
    QString series() const { return seriesName(page->model().series()); }
    QWidget* viewport() const { return page->view()->viewport(); }

    template <class Control = QWidget>
    Control* find(const QString& name) const
    {
        auto* control = page->findChild<Control*>(name);
        if (!control)
            qFatal("no control %s", qPrintable(name));
        return control;
    }
    bool has(const char* name) const { return page->findChild<QWidget*>(QLatin1String(name)) != nullptr; }

    QString text(const char* name) const
    {
        const auto* control = find<QWidget>(QLatin1String(name));
        if (const auto* combo = qobject_cast<const QComboBox*>(control))
            return combo->currentText().trimmed();
        return control->property("text").toString();
    }
    bool enabled(const char* name) const { return find<QWidget>(QLatin1String(name))->isEnabled(); }
    bool checked(const char* name) const { return find<QRadioButton>(QLatin1String(name))->isChecked(); }
    /// "red", "darkGreen", "gray", "black": the colour of an edit's or a label's text.
    QString color(const char* name) const
    {
        const auto* control = find<QWidget>(QLatin1String(name));
        const bool label = qobject_cast<const QLabel*>(control);
        const QColor color = control->palette().color(label ? QPalette::WindowText : QPalette::Text);
        return color == Qt::red         ? QStringLiteral("red")
               : color == Qt::darkGreen ? QStringLiteral("darkGreen")
               : color == Qt::gray      ? QStringLiteral("gray")
               : color == Qt::black     ? QStringLiteral("black")
                                        : color.name();
    }
    /// "green" for committed, "pale" for pending, "white" for disabled: the ground of an edit.
    QString ground(const char* name) const
    {
        const QString sheet = find<QWidget>(QLatin1String(name))->styleSheet();
        return sheet.contains(QLatin1String("rgb(152, 251, 152)"))   ? QStringLiteral("green")
               : sheet.contains(QLatin1String("rgb(255, 255, 225)")) ? QStringLiteral("pale")
               : sheet.contains(QLatin1String("rgb(255, 255, 255)")) ? QStringLiteral("white")
                                                                     : sheet;
    }

    /// Chooses the item of the text, blanks aside. Only an enabled combo takes it.
    void choose(const char* name, const char* item) const
    {
        auto* combo = find<QComboBox>(QLatin1String(name));
        for (int i = 0; i < combo->count(); ++i)
            if (combo->isEnabled() && combo->itemText(i).trimmed() == QLatin1String(item))
                return combo->setCurrentIndex(i);
        qFatal("%s does not offer %s", name, item);
    }
    void click(const char* name) const
    {
        const auto* control = find<QWidget>(QLatin1String(name));
        const auto* radio = qobject_cast<const QRadioButton*>(control);
        QTest::mouseClick(viewport(), Qt::LeftButton, Qt::NoModifier, onViewport(control));
        if (radio && !radio->isChecked() && radio->isEnabled())
            qFatal("%s took no click", name);
    }
    /// Types the text in place of the present one, and commits it with Return.
    void type(const char* name, const QByteArray& text, bool commit = true) const
    {
        click(name);
        auto* edit = find<QLineEdit>(QLatin1String(name));
        edit->selectAll();
        QTest::keyClick(viewport(), Qt::Key_Delete);
        QTest::keyClicks(viewport(), QLatin1String(text));
        if (commit)
            QTest::keyClick(viewport(), Qt::Key_Return);
    }
    QPoint onViewport(const QWidget* control) const
    {
        const QPoint middle = control->mapTo(control->window(), control->rect().center());
        return page->view()->mapFromScene(ZN64MCUPLL::proxyOf(control)->mapToScene(middle));
    }

    QStringList state() const;
    void takeRandomStep(QRandomGenerator& random) const;

    QScopedPointer<ClockTreePage> page;

private:
    QStringList modelState() const;

    QTimer m_watch;
};

inline bool isResult(const QString& name)
{
    return name.startsWith(QLatin1String("m_to")) || name == QLatin1String("m_sclk_lineEdit");
}

/// Everything that a user can see or set, one line per control, and every field of the model. Left out is
/// what may tell of earlier states: the texts of hidden or grey labels, that of a grey RTC output, the
/// frequencies of a PLL and a USB that are not in use.
inline QStringList PageFixture::state() const
{
    QStringList lines;
    for (const QWidget* control : page->findChildren<QWidget*>()) {
        const QString name = control->objectName();
        const auto line = [&](const QString& value) {
            lines += name + (control->isEnabled() ? QLatin1String(": ") : QLatin1String(" (off): ")) + value;
        };
        const auto* edit = qobject_cast<const QLineEdit*>(control);
        if (!name.startsWith(QLatin1String("m_")))
            continue;
        if (edit && name == QLatin1String("m_hext_lineEdit"))
            line(QString::number(edit->text().toDouble()));
        else if (edit && (edit->isEnabled() || name != QLatin1String("m_tortc_lineEdit")))
            line(edit->text() + QLatin1Char(' ') +
                 (isResult(name) ? edit->palette().color(QPalette::Text).name() : QString()));
        else if (const auto* combo = qobject_cast<const QComboBox*>(control))
            line(QString::number(combo->currentIndex()) + combo->currentText());
        else if (const auto* radio = qobject_cast<const QRadioButton*>(control))
            line(radio->isChecked() ? QStringLiteral("checked") : QString());
        else if (const auto* label = qobject_cast<const QLabel*>(control))
            line(label->isHidden() || !label->isEnabled() ? QString() : label->text());
        else
            line(control->isHidden() ? QStringLiteral("hidden") : QString());
    }
    lines.sort();
    return lines + modelState();
}

inline QStringList PageFixture::modelState() const
{
    const ZN64ConfigCLK& model = page->model();
#define FIELD(name) QStringLiteral(#name " %1").arg(static_cast<double>(model.Get_##name()), 0, 'g', 17)
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
    if (model.usbpll_isEnable())
        lines += FIELD(USBCLKValue);
#undef FIELD
    return lines;
}

/// One random choice of those that the page offers at present. Questions are agreed to.
inline void PageFixture::takeRandomStep(QRandomGenerator& random) const
{
    const DialogAnswers::Answer agree = [](QDialog* box) {
        static_cast<QMessageBox*>(box)->defaultButton()->click();
    };
    DialogAnswers answers{agree, agree, agree, agree, agree, agree};
    QList<QWidget*> choices;
    for (QWidget* control : page->findChildren<QWidget*>(QRegularExpression(QStringLiteral("^m_"))))
        if (control->isEnabled() && control->isVisible() && !control->property("readOnly").toBool())
            choices += control;
    for (;;) {
        QWidget* choice = choices.at(random.bounded(choices.size()));
        if (auto* combo = qobject_cast<QComboBox*>(choice))
            return combo->setCurrentIndex(random.bounded(combo->count()));
        if (auto* radio = qobject_cast<QRadioButton*>(choice))
            return radio->click();
        auto* edit = qobject_cast<QLineEdit*>(choice);
        if (!edit)
            continue;
        const QString name = edit->objectName();
        const int tenths = random.bounded(40, 251);
        edit->setText(name == QLatin1String("m_pllms_lineEdit")   ? QString::number(random.bounded(1, 16))
                      : name == QLatin1String("m_pllns_lineEdit") ? QString::number(random.bounded(31, 501))
                      : name == QLatin1String("m_hext_lineEdit")
                          ? QString::number(tenths / 10.0)
                          : QString::number(tenths / 250.0 * page->model().GetSYSCLKValidMaxValue(), 'f', 3));
        QTest::keyClick(edit, Qt::Key_Return);
        return;
    }
}

/// A row for every series that has a page.
inline void seriesRows()
{
    QTest::addColumn<QString>("word");
    for (const SeriesTraits& traits : seriesList())
        if (hasSeriesPage(traits.series))
            QTest::newRow(traits.word) << QString::fromLatin1(traits.word);
}

/// Whether the row's series, the first word of its name, has a page yet.
inline bool hasPage(const QString& word)
{
    const SeriesTraits* traits = seriesByName(QLatin1String("ZN64") + word);
    return traits && hasSeriesPage(traits->series);
}

inline QString errorBox(const QString& text)
{
    return QStringLiteral("critical | Error | %1 | Ok").arg(text);
}
inline QString errorBox(const char* text)
{
    return errorBox(QString::fromLatin1(text));
}
inline QString warningBox(const char* text)
{
    return QStringLiteral("warning | Warning | %1 | Cancel, Yes").arg(QLatin1String(text));
}
