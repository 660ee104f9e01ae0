#include "pagefixture.h"

#include <QScrollBar>

// The page as a whole: what is grey, which list is open, the reset, and a pass that has nothing to do.

class TestPage : public QObject
{
    Q_OBJECT

private slots:
    void enabledBlocks_data();
    void enabledBlocks();
    void oneListIsOpen_data() { pageRows(); }
    void oneListIsOpen();
    void everyControlCanBeReached_data() { pageRows(); }
    void everyControlCanBeReached();
    void resetEqualsAFreshPage_data() { pageRows(); }
    void resetEqualsAFreshPage();
    void passThatChangesNothingSetsNothing_data() { pageRows(); }
    void passThatChangesNothingSetsNothing();
};

namespace {

/// What goes grey together; the first word names the block. A page lacks some blocks and some of the
/// controls.
const char* const blocks[] = {
    "hext hext_lineEdit hext_Label1 hextbypass_ComboBox hext_In",
    "pll pllrcs_hext_RadioButton pllrcs_hick_RadioButton pllrc_Label pllmult_ComboBox pllms_lineEdit "
    "pllns_lineEdit "
    "pllns_Label2 pllfr_ComboBox pllfp_ComboBox pllCFG_Value_lineEdit pllclk_Label pllmode_ComboBox",
    "pllhextdiv pllhext_nodiv_RadioButton pllhext_div_RadioButton pllhextdiv_Label",
    "usb usbclock_Label tousb_pll_RadioButton tousb_hick_RadioButton hicktousb_Label",
    "usbdiv usbdiv_ComboBox usbdiv_Label",
    "hicktosclk hicktosclk_RadioButton hicktosclk_div6_RadioButton hicktosclk_Label",
    "adc toadcdiv_ComboBox toadcdiv_Label",
    "lext lext_lineEdit lext_Label1 lextbypass_ComboBox lext_In",
    "rtc rtcsel_lick_RadioButton rtcsel_hext_RadioButton rtcsel_Label tortc_lineEdit tortc_Label",
    "sclk sclk_lineEdit",
    "out clockout_noclk_RadioButton clockout_hick_RadioButton clockout_plldiv4_RadioButton "
    "clockout_hext_QLabel1 "
    "clockout_hext_QLabel clockout_Value_QLabel clockout_QLabel",
    "outusb clockout_usb_RadioButton clockout_usb_QLabel1 clockout_usb_QLabel",
    "outadc clockout_adcclk_RadioButton clockout_adcclk_QLabel1 clockout_adcclk_QLabel",
    "out1 clockout1_hick_RadioButton clockout1_pll_QLabel1 clockout1div1_ComboBox clockout1div2_Label "
    "clockout1_Value_QLabel clockout1_QLabel",
    "out2 clockout2_sclk_RadioButton clockout2_lext_QLabel1 clockout2div1_ComboBox clockout2div2_Label "
    "clockout2_Value_QLabel clockout2_QLabel",
    "out2usb clockout2_usb_RadioButton clockout2_usb_QLabel1",
    "hextdiv hextdiv_ComboBox hextdiv_Label",
    "hickdiv hickdiv_ComboBox hickdiv_Label",
    "rtcdiv rtcdiv_ComboBox rtcdiv_Label",
    "fu pllfu_ComboBox pllfu_Label",
    "can canclocksel_hext_RadioButton canclocksel_pclk_QLabel canclocksel_Label tocan_lineEdit",
    "can2 can2clocksel_hext_RadioButton can2clocksel_pllu_QLabel tocan2_lineEdit tocan2_Label",
    "usart1 usart1clocksel_pclk_RadioButton usart1clocksel_Label tousart1_lineEdit",
};

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

void TestPage::enabledBlocks_data()
{
    // Steps, and the blocks that are then enabled.
    rows({
        "G110 | | hext pll pllhextdiv sclk",
        "G110 | sclkselect_hext | hext",
        "G110 | sclkselect_hick |",
        "G110 | pllrcs_hick | pll sclk",
        "G110 | sclkselect_hick tousbswitch=enable | hext pll pllhextdiv usb usbdiv",
        "G110 | sclkselect_hick tousbswitch=enable pllrcs_hick | pll usb usbdiv",
        "G110 | sclkselect_hick clockoutpin=PA8 | out",
        "G110 | sclkselect_hick clockoutpin=PA8 clockout_hext | hext out",
        "G110 | sclkselect_hick clockoutpin=PA8 clockout_hext clockoutpin=none |",
        "G110 | sclkselect_hick clockoutpin=PA8 clockout_plldiv2 | hext pll pllhextdiv out",
        "G110 | pllrcs_hick sclkselect_hick clockoutpin=PA8 clockout_plldiv4 | pll out",
        "G110 | pllrcs_hick clockoutpin=PA8 tousbswitch=enable | pll sclk usb usbdiv out outusb",
        "G110 | sclkselect_hick toadcswitch=enable | adc",
        "G110 | sclkselect_hick toadcswitch=enable clockoutpin=PA8 | adc out outadc",
        "G110 | sclkselect_hick clockoutpin=PA8 toadcswitch=enable | adc out outadc",
        "G110 | sclkselect_hick tortc=enable | rtc",
        "G110 | sclkselect_hick tortc=enable rtcsel_lext | lext rtc",
        "G110 | sclkselect_hick tortc=enable rtcsel_hext | hext rtc",
        "G110 | sclkselect_hick tortc=enable rtcsel_hext tortc=disable |",
        "G110 | sclkselect_hick tortc=enable rtcsel_lext tortc=disable |",
        // The divider of hext is live while hext passes it on the way to the PLL.
        "G110R | | hext pll pllhextdiv sclk",
        "G110R | pllhext_div | hext pll pllhextdiv hextdiv sclk",
        "G110R | pllhext_div pllrcs_hick | pll sclk",
        "G110R | pllhext_div sclkselect_hick | hicktosclk",
        "G110R | sclkselect_hick tousbswitch=enable tousb_hick | usb hicktosclk",
        "G110R | sclkselect_hick tousbswitch=enable | hext pll pllhextdiv usb usbdiv hicktosclk",
        "G130 | sclkselect_hick clockoutpin=PA8 clockout_plldiv2 | hext pll pllhextdiv hicktosclk out",
        "G125 | pllmode=flexible | hext pll pllhextdiv sclk",
        "G125 | pllmode=flexible sclkselect_hick | hicktosclk",
        "G133 | sclkselect_hext | hext hextdiv",
        "G133 | sclkselect_hick | hicktosclk hickdiv",
        "G133 | sclkselect_hick tortc=enable rtcsel_hext | hext hicktosclk hickdiv rtc rtcdiv",
        "G165 | | hext pll sclk",
        "G165 | tousbswitch=enable | hext pll fu sclk usb",
        "G165 | tousbswitch=enable tousb_hick | hext pll sclk usb",
        "G165 | can2switch=enable | can2 hext pll sclk",
        "G165 | can2switch=enable can2clocksel_pllu | can2 fu hext pll sclk",
        // A peripheral makes neither the PLL nor hext count as used.
        "G165 | sclkselect_hick can2switch=enable can2clocksel_pllu | can2 fu hicktosclk hickdiv",
        "P212 | sclkselect_hick canswitch=enable canclocksel_hext | can hicktosclk hickdiv",
        "G142 | canswitch=enable canswitch=disable | hext pll pllhextdiv sclk",
        "D042 | sclkselect_hick usart1switch=enable | hicktosclk usart1",
        "G150 G152 | | hext pll sclk",
        "G150 | sclkselect_hick | hicktosclk",
        "G150 | sclkselect_hick tousbswitch=enable | hext pll usb usbdiv hicktosclk",
        "G150 | sclkselect_hick tousbswitch=enable tousb_hick | usb hicktosclk",
        "G150 | sclkselect_hick tousbswitch=enable tousb_hick tousb_pll | hext pll usb usbdiv hicktosclk",
        "G150 | sclkselect_hick clockout1pin=PE4 | hicktosclk out1",
        "G150 | sclkselect_hick clockout1pin=PA8 clockout1_pll | hext pll hicktosclk out1",
        "G150 | sclkselect_hick clockout1pin=PA8 clockout1_pll clockout1pin=none | hicktosclk",
        "G150 | sclkselect_hick clockout2pin=PC9 clockout2_hext | hext hicktosclk out2",
        "G150 | sclkselect_hick clockout2pin=PC9 clockout2_pll | hext pll hicktosclk out2",
        "G150 | sclkselect_hick tousbswitch=enable tousb_hick clockout2pin=PC9 | usb hicktosclk out2 out2usb",
        "G150 | sclkselect_hick tortc=enable rtcsel_hext | hext hicktosclk rtc rtcdiv",
    });
}

void TestPage::enabledBlocks()
{
    QFETCH(QStringList, fields);
    const PageFixture page(fields.at(0));
    page.take(fields.at(1));
    QStringList enabled;
    for (const char* block : blocks) {
        QStringList controls = QString::fromLatin1(block).split(QLatin1Char(' '));
        const QString name = controls.takeFirst();
        QSet<bool> states;
        for (const QString& control : controls)
            if (const auto* found = page.page->findChild<QWidget*>(QLatin1String("m_") + control))
                states +=
                    found->isEnabled() && (control != QLatin1String("usbclock_Label") || !found->isHidden());
        QVERIFY2(states.size() < 2, block);
        if (states.contains(true))
            enabled += name;
    }
    QStringList expected = fields.at(2).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    expected.sort();
    enabled.sort();
    QCOMPARE(enabled, expected);
    // The flag that generating goes by follows hext.
    QCOMPARE(page.page->Get_Hext_Enable_Falg(), enabled.contains(QStringLiteral("hext")));

    // Of an output that has a pin, the checked source alone shows its frequency.
    for (const QRadioButton* radio : page.page->findChildren<QRadioButton*>()) {
        const QString stem = radio->objectName().section(QLatin1Char('_'), 0, -2);
        const auto* value = page.page->findChild<QLabel*>(stem + QLatin1String("_QLabel"));
        const auto* title =
            page.page->findChild<QLabel*>(stem.section(QLatin1Char('_'), 0, -2) + QLatin1String("_QLabel"));
        if (value && title && title->isEnabled())
            QVERIFY2(value->isHidden() != radio->isChecked(), qPrintable(stem));
    }
}

void TestPage::oneListIsOpen()
{
    QFETCH(QString, word);
    const PageFixture page(word);
    const auto open = [&page] {
        QStringList names;
        for (const QWidget* control : page.controls())
            if (control->objectName().endsWith(QLatin1String("_list_group")) && control->isVisible())
                names += control->objectName();
        return names.join(QLatin1Char(' '));
    };
    QPoint bare;
    while (page.page->view()->itemAt(bare) && page.page->view()->itemAt(bare)->isWidget())
        bare += QPoint(1, 1);
    QCOMPARE(open(), QString());
    const PinGraphicsView* view = page.page->view();
    const QRectF picture = view->scene()->items(Qt::AscendingOrder).first()->sceneBoundingRect();
    // Both ends of what the bar can bring into view.
    const auto reach = [view] {
        const QScrollBar* bar = view->verticalScrollBar();
        return bar->maximum() - bar->minimum() + view->viewport()->height();
    };
    for (const ListNames& list : listNames()) {
        const QString group = QString::fromLatin1(list.group);
        const QString button = QString::fromLatin1(list.button).mid(2);
        // The list of the round before is open still and makes room.
        const QPoint place = page.middleOf(page.find(button));
        page.click(button);
        QCOMPARE(open(), group);
        // What is open can be scrolled to, and the picture does not jump, but for the width of a scroll bar.
        QVERIFY(
            view->sceneRect().contains(ZN64MCUPLL::proxyOf(page.find(group.mid(2)))->sceneBoundingRect()));
        QVERIFY(reach() >= view->sceneRect().height());
        QVERIFY(qAbs(page.middleOf(page.find(button)).y() - place.y()) <= 1);
        page.click(button);
        QCOMPARE(open(), QString());
        QCOMPARE(view->sceneRect(), picture);
        page.click(button);
        page.find(QStringLiteral("sclk_lineEdit"))->setFocus();
        QTest::mouseClick(page.viewport(), Qt::LeftButton, Qt::NoModifier, bare);
        QCOMPARE(open(), QString());
        QVERIFY(page.find(button)->hasFocus());
        page.click(button);
    }
}

void TestPage::everyControlCanBeReached()
{
    QFETCH(QString, word);
    const PageFixture page(word);
    for (float zoom : {0.25f, 1.0f, 4.0f}) {
        page.page->ZoomReset();
        PinGraphicsView* view = page.page->view();
        view->zoom(zoom);
        int tried = 0;
        for (const QWidget* control : page.controls()) {
            if (control->isHidden() || qobject_cast<const QLabel*>(control) || control->isWindow())
                continue;
            const QGraphicsProxyWidget* item = ZN64MCUPLL::proxyOf(control);
            view->centerOn(item->sceneBoundingRect().center());
            QVERIFY2(view->itemAt(page.middleOf(control)) == item, qPrintable(control->objectName()));
            ++tried;
        }
        QVERIFY(tried > 50);
    }
}

void TestPage::resetEqualsAFreshPage()
{
    QFETCH(QString, word);
    QRandomGenerator random(20);
    const PageFixture fresh(word);
    const PageFixture page(word);
    const int rounds = randomRounds(page);
    for (int round = 0; round < rounds; ++round) {
        page.takeRandomSteps(20, random);
        QVERIFY(page.state() != fresh.state());
        DialogAnswers answers;
        page.page->InitAllControl();
        QCOMPARE(page.state(), fresh.state());
        QCOMPARE(answers.shown(), QStringList());
    }
}

void TestPage::passThatChangesNothingSetsNothing()
{
    QFETCH(QString, word);
    QRandomGenerator random(7);
    const PageFixture page(word);
    const auto pass = [&page] {
        page.tree().UI_Display();
        page.tree().UpdateCalculateResult();
        page.tree().UpdateRTCParam();
    };
    const int rounds = randomRounds(page);
    for (int round = 0; round < rounds; ++round) {
        pass();
        const QStringList before = page.state();
        LookChanges look;
        pass();
        QCOMPARE(look.changed, QStringList());
        QCOMPARE(page.state(), before);
        page.takeRandomSteps(10, random);
    }
}

QTEST_MAIN(TestPage)
#include "tst_page.moc"
