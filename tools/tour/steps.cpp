#include "steps.h"

#include "tour.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QCompleter>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <Qsci/qsciscintilla.h>

namespace {

const QString noDesign = QStringLiteral("warning | Warning | Currently no configuration. | Ok");
const QString replaceQuestion = QStringLiteral(
    "warning | Warning | The current configuration will be closed before creating a new project. "
    "Please confirm whether to continue? | Cancel, Yes");
const QString closeQuestion = QStringLiteral(
    "Warning | The current configuration will be closed. Please confirm whether to continue? | "
    "Cancel, Yes");
const QString saved = QStringLiteral("information | Information | Save file succeed! | Ok");

QString generated(const QString& stem)
{
    return QStringLiteral("information | Information | Generate code finished!  Files:\n\nsrc/main.c\n"
                          "src/%1_clock.c\ninc/%1_clock.h\ninc/%1_conf.h\n |  Open Folder  , OK")
        .arg(stem);
}

QString textOf(Tour& tour, const QString& name)
{
    QFile file(tour.path(name));
    tour.expect(file.open(QIODevice::ReadOnly), QStringLiteral("%1 was written").arg(name));
    return QString::fromUtf8(file.readAll());
}

/// The four files are there, hold what the design says, and no marker of a template.
void checkFiles(Tour& tour, const QString& folder, const QString& stem, const QStringList& calls)
{
    QString all;
    for (const QString& name :
         {QStringLiteral("src/main.c"), QStringLiteral("src/%1_clock.c").arg(stem),
          QStringLiteral("inc/%1_clock.h").arg(stem), QStringLiteral("inc/%1_conf.h").arg(stem)})
        all += textOf(tour, folder + QLatin1Char('/') + name);
    tour.expect(!all.contains(QLatin1String("[#")) && !all.contains(QLatin1String("[/#")),
                QStringLiteral("no marker is left"));
    for (const QString& call : calls)
        tour.expect(all.contains(call), QStringLiteral("the code says %1").arg(call));
}

void generate(Tour& tour, const QString& folder, const QString& stem, const char* picture = nullptr)
{
    tour.withDialogs({tour.chooseFile(QStringLiteral("Select directory"), tour.path(folder)),
                      tour.answer(generated(stem), "OK", picture)},
                     [&] { tour.clickMenu("m_GeneralCodeMenu", "m_GeneralCode_Action"); });
}

/// A conflict box with its tick set, and Yes.
DialogAnswers::Answer replaceAll(Tour& tour)
{
    return [&tour](QDialog* dialog) {
        auto* tick = dialog->findChild<QCheckBox*>();
        tour.expect(tick && !tick->isChecked(), QStringLiteral("the conflict box has a tick to set"));
        QTest::mouseClick(tick, Qt::LeftButton, {}, QPoint(8, tick->height() / 2));
        tour.expect(tick->isChecked(), QStringLiteral("the tick is set"));
        tour.shoot("conflict");
        DialogAnswers::press("Yes")(dialog);
    };
}

void showPreview(Tour& tour, const QString& line, const char* picture)
{
    tour.clickButton("m_CodeView_PushButton");
    auto* editor = tour.control<QsciScintilla>("m_clock_c_CodeEditor");
    tour.expect(editor->text().contains(line), QStringLiteral("the preview says %1").arg(line));
    tour.shoot(picture);
    tour.clickButton("m_ClockConfig_PushButton");
}

} // namespace

void pickInSearch(Tour& tour, QDialog* dialog, const QString& text)
{
    QLineEdit* search = dialog->findChild<QComboBox*>(QStringLiteral("m_QueryDevice_ComboBox"))->lineEdit();
    search->setFocus();
    QTest::keyClicks(search, text);
    QAbstractItemView* proposals = search->completer()->popup();
    tour.expect(QTest::qWaitFor([&] { return proposals->isVisible(); }),
                QStringLiteral("devices are proposed"));
    const QModelIndex first = proposals->model()->index(0, 0);
    QTest::mouseClick(proposals->viewport(), Qt::LeftButton, {}, proposals->visualRect(first).center());
}

void withoutDesign(Tour& tour)
{
    tour.step("start: no design yet");
    tour.expectText("m_ClockConfig_PushButton", QStringLiteral("Clock Configuration"));
    tour.shoot("start");
    tour.withDialogs({tour.answer(noDesign, "Ok")}, [&] { tour.clickButton("m_CodeView_PushButton"); });
    tour.withDialogs({tour.answer(noDesign, "Ok")}, [&] { tour.clickMenu("m_FileMenu", "m_Save_Action"); });

    tour.step("New: the dialog closed again leaves no design");
    tour.withDialogs({[&](QDialog* dialog) {
                         tour.shoot("series-dialog");
                         dialog->close();
                     }},
                     [&] { tour.clickMenu("m_FileMenu", "m_New_Action"); });
    tour.expectText("m_ClockConfig_PushButton", QStringLiteral("Clock Configuration"));
}

namespace {

void openFirstSeries(Tour& tour)
{
    tour.step("Open: a design of ZN64G110");
    QFile file(tour.path(QStringLiteral("start.ZNCK")));
    tour.expect(file.open(QIODevice::WriteOnly), QStringLiteral("the tour can write its design"));
    file.write("<Configuration><MCU>ZN64G110</MCU><hext>8.000000</hext><pllmult>24</pllmult>"
               "<sclkselect>1</sclkselect><usbdiv>4.0</usbdiv><tousbswitch>1</tousbswitch></Configuration>");
    file.close();
    tour.withDialogs({tour.chooseFile(QStringLiteral("Open"), file.fileName())},
                     [&] { tour.clickMenu("m_FileMenu", "m_Open_Action"); });
    tour.expectText("m_ClockConfig_PushButton", QStringLiteral("Clock Configuration---ZN64G110"));
    tour.expectText("m_sclk_lineEdit", QStringLiteral("192.000"));
    tour.shoot("g110");
}

void editFirstSeries(Tour& tour)
{
    tour.step("edit: system clock, buses, USB, ADC, RTC, clock output");
    tour.type("m_sclk_lineEdit", QStringLiteral("144"));
    tour.expectText("m_sclk_lineEdit", QStringLiteral("144.000"));
    tour.expectText("m_pllclk_Label", QStringLiteral("144.000MHz"));
    tour.choose("m_apb2div_ComboBox", QStringLiteral("  /4"));
    tour.expectText("m_toapb2peripheral_lineEdit", QStringLiteral("36.000"));
    tour.choose("m_tousbswitch_ComboBox", QStringLiteral("enable"));
    tour.expectText("m_usbclock_Label", QStringLiteral("36.000 MHz"));
    tour.choose("m_usbdiv_ComboBox", QStringLiteral("  /3"));
    tour.expectText("m_usbclock_Label", QStringLiteral("48.000 MHz"));
    tour.choose("m_toadcswitch_ComboBox", QStringLiteral("enable"));
    tour.expectText("m_toadc_lineEdit", QStringLiteral("18.000"));
    tour.choose("m_tortc_ComboBox", QStringLiteral("enable"));
    tour.clickOnCanvas("m_rtcsel_hext_RadioButton");
    tour.expectText("m_tortc_lineEdit", QStringLiteral("62.500"));
    tour.choose("m_clockoutpin_ComboBox", QStringLiteral("PA8"));
    tour.clickOnCanvas("m_clockout_plldiv4_RadioButton");
    tour.expectText("m_clockout_Value_QLabel", QStringLiteral("(36.000 MHz)"));
    tour.shoot("g110-edited");
}

void enterBadInput(Tour& tour)
{
    tour.step("bad input: told, and the design keeps its last good value");
    tour.withDialogs(
        {tour.answer(QStringLiteral("critical | Error | hext input error! | Ok"), "Ok", "hext-error")},
        [&] { tour.type("m_hext_lineEdit", QStringLiteral("3")); });
    tour.expectText("m_sclk_lineEdit", QStringLiteral("144.000"));
    tour.type("m_hext_lineEdit", QStringLiteral("8"));
}

void openLists(Tour& tour)
{
    tour.step("lists: one opens, a click on the picture closes it");
    tour.clickOnCanvas("m_toapb1peripheral_List_Button");
    tour.expect(tour.control<QWidget>("m_toapb1periphera_list_group")->isVisible(),
                QStringLiteral("the list opens"));
    tour.shoot("g110-list");
    tour.clickOnPicture(QPoint(700, 40));
    tour.expect(!tour.control<QWidget>("m_toapb1periphera_list_group")->isVisible(),
                QStringLiteral("the list closes"));
}

void saveAndGenerate(Tour& tour)
{
    tour.step("save, preview, generate twice");
    tour.withDialogs(
        {tour.chooseFile(QStringLiteral("Save"), tour.path(QStringLiteral("g110.ZNCK")), "save-dialog"),
         tour.answer(saved, "Ok")},
        [&] { tour.clickMenu("m_FileMenu", "m_Save_Action"); });
    tour.expect(textOf(tour, QStringLiteral("g110.ZNCK")).contains(QLatin1String("<pllmult>18</pllmult>")),
                QStringLiteral("the design file holds the multiplier"));
    const QString pllCall =
        QStringLiteral("crm_pll_config(CRM_PLL_SOURCE_HEXT, CRM_PLL_MULT_18, CRM_PLL_OUTPUT_RANGE_GT72MHZ);");
    showPreview(tour, pllCall, "preview");
    QDir().mkpath(tour.path(QStringLiteral("g110")));
    generate(tour, QStringLiteral("g110"), QStringLiteral("zn64g110"), "generated");
    checkFiles(tour, QStringLiteral("g110"), QStringLiteral("zn64g110"),
               {pllCall, QStringLiteral("crm_clock_out_set(CRM_CLKOUT_PLL_DIV_4);"),
                QStringLiteral("crm_usb_clock_div_set(CRM_USB_DIV_3);"),
                QStringLiteral("crm_rtc_clock_select(CRM_RTC_CLOCK_HEXT_DIV);"),
                QStringLiteral("((uint32_t)8000000)")});
    tour.withDialogs({tour.chooseFile(QStringLiteral("Select directory"), tour.path(QStringLiteral("g110"))),
                      replaceAll(tour), tour.answer(generated(QStringLiteral("zn64g110")), "OK")},
                     [&] { tour.clickMenu("m_GeneralCodeMenu", "m_GeneralCode_Action"); });
}

} // namespace

void firstSeries(Tour& tour)
{
    openFirstSeries(tour);
    editFirstSeries(tour);
    enterBadInput(tour);
    openLists(tour);
    saveAndGenerate(tour);
}

namespace {

void newFlexibleSeries(Tour& tour)
{
    tour.step("New: ZN64G150 in place of the design");
    tour.withDialogs({tour.answer(replaceQuestion, "Yes"),
                      [&](QDialog* dialog) {
                          pickInSearch(tour, dialog, QStringLiteral("zn64g150"));
                          tour.shoot("series-search");
                          QTest::mouseClick(dialog->findChild<QWidget*>(QStringLiteral("m_ok_PushButton")),
                                            Qt::LeftButton);
                      }},
                     [&] { tour.clickMenu("m_FileMenu", "m_New_Action"); });
    tour.expectText("m_ClockConfig_PushButton", QStringLiteral("Clock Configuration---ZN64G150"));
    tour.expectText("m_sclk_lineEdit", QStringLiteral("288.000"));
    tour.shoot("g150");
}

void editFlexibleSeries(Tour& tour)
{
    tour.step("edit: flexible PLL, USB, two clock outputs");
    tour.type("m_pllns_lineEdit", QStringLiteral("500"), false);
    tour.withDialogs(
        {tour.answer(QStringLiteral("question | Warning | pll_ns input error, is it adjusted "
                                    "automatically?\n\nThe following condition must be met: \n500MHz "
                                    "<= pll_input * pll_ns / pll_ms <= 1200MHz | Cancel, Yes"),
                     "Yes", "pll-question")},
        [&] { tour.type("m_pllns_lineEdit", QStringLiteral("500")); });
    tour.expectText("m_pllns_lineEdit", QStringLiteral("*150"));
    tour.type("m_sclk_lineEdit", QStringLiteral("240"));
    tour.expectText("m_sclk_lineEdit", QStringLiteral("240.000"));
    tour.expect(!tour.control<QWidget>("m_sclkWarning1_QLabel")->isVisible(),
                QStringLiteral("240 MHz shows no warning"));
    tour.choose("m_tousbswitch_ComboBox", QStringLiteral("enable"));
    tour.clickOnCanvas("m_tousb_hick_RadioButton");
    tour.expectText("m_usbclock_Label", QStringLiteral("48.000 MHz"));
    tour.choose("m_clockout1pin_ComboBox", QStringLiteral("PE4"));
    tour.clickOnCanvas("m_clockout1_hext_RadioButton");
    tour.choose("m_clockout1div1_ComboBox", QStringLiteral("  /2"));
    tour.choose("m_clockout1div2_ComboBox", QStringLiteral("  /4"));
    tour.expectText("m_clockout1_Value_QLabel", QStringLiteral("(1.000 MHz)"));
    tour.choose("m_clockout2pin_ComboBox", QStringLiteral("PC9"));
    tour.clickOnCanvas("m_clockout2_pll_RadioButton");
    tour.shoot("g150-edited");
}

void reopenAndGenerate(Tour& tour)
{
    tour.step("save, open again, preview, generate");
    const QString design = tour.path(QStringLiteral("g150.ZNCK"));
    tour.withDialogs({tour.chooseFile(QStringLiteral("Save"), design), tour.answer(saved, "Ok")},
                     [&] { tour.clickMenu("m_FileMenu", "m_Save_Action"); });
    tour.withDialogs({tour.answer(QStringLiteral("warning | ") + closeQuestion, "Yes"),
                      tour.chooseFile(QStringLiteral("Open"), design)},
                     [&] { tour.clickMenu("m_FileMenu", "m_Open_Action"); });
    tour.expectText("m_sclk_lineEdit", QStringLiteral("240.000"));
    tour.expectText("m_clockout1_Value_QLabel", QStringLiteral("(1.000 MHz)"));
    showPreview(tour, QStringLiteral("crm_usb_clock_source_select(CRM_USB_CLOCK_SOURCE_HICK);"),
                "g150-preview");
    QDir().mkpath(tour.path(QStringLiteral("g150")));
    generate(tour, QStringLiteral("g150"), QStringLiteral("zn64g150_152"));
    checkFiles(
        tour, QStringLiteral("g150"), QStringLiteral("zn64g150_152"),
        {QStringLiteral("crm_clock_out1_set(CRM_CLKOUT1_HEXT);"),
         QStringLiteral("crm_clkout_div_set(CRM_CLKOUT_INDEX_1, CRM_CLKOUT_DIV1_2, CRM_CLKOUT_DIV2_4);"),
         QStringLiteral("crm_clock_out2_set(CRM_CLKOUT2_PLL);"),
         QStringLiteral("crm_auto_step_mode_enable(TRUE);")});
}

void goAboveTheWarning(Tour& tour)
{
    tour.step("above 240 MHz the page warns");
    tour.type("m_sclk_lineEdit", QStringLiteral("288"));
    tour.expect(tour.control<QWidget>("m_sclkWarning1_QLabel")->isVisible(), QStringLiteral("288 MHz warns"));
    tour.shoot("g150-warning");
}

} // namespace

void flexibleSeries(Tour& tour)
{
    newFlexibleSeries(tour);
    editFlexibleSeries(tour);
    reopenAndGenerate(tour);
    goAboveTheWarning(tour);
}

void inChinese(Tour& tour)
{
    tour.step("language: Chinese at run time");
    tour.clickMenu("m_LanguageMenu", "m_Chinese_Action");
    tour.expectText("m_ClockConfig_PushButton", QStringLiteral("时钟配置---ZN64G150"));
    tour.shoot("chinese");
    tour.withDialogs(
        {tour.answer(QStringLiteral("warning | 警告 | 新建项目之前将关闭当前配置，是否继续？ | 取消, 确定"),
                     "确定", "chinese-question"),
         [&](QDialog* dialog) {
             tour.expect(dialog->windowTitle() == QStringLiteral("选择MCU"),
                         QStringLiteral("the series dialog is Chinese"));
             tour.shoot("chinese-series");
             dialog->close();
         }},
        [&] { tour.clickMenu("m_FileMenu", "m_New_Action"); });
    tour.withDialogs(
        {tour.answer(QStringLiteral("critical | 错误 | sclk 输入错误！ | 确定"), "确定", "chinese-error")},
        [&] { tour.type("m_sclk_lineEdit", QStringLiteral("300")); });
    tour.type("m_sclk_lineEdit", QStringLiteral("288"));
    tour.clickMenu("m_LanguageMenu", "m_English_Action");
    tour.expectText("m_ClockConfig_PushButton", QStringLiteral("Clock Configuration---ZN64G150"));
}

void closing(Tour& tour)
{
    tour.step("close: asked, then gone");
    const QString question = QStringLiteral("question | ") + closeQuestion;
    tour.withDialogs({tour.answer(question, "Cancel")}, [&] { tour.form().close(); });
    tour.expect(tour.form().isVisible(), QStringLiteral("Cancel keeps the window"));
    tour.withDialogs({tour.answer(question, "Yes")}, [&] { tour.form().close(); });
    tour.expect(!tour.form().isVisible(), QStringLiteral("Yes closes the window"));
}
