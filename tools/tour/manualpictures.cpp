#include "manualpictures.h"

#include "steps.h"
#include "tour.h"

#include "export/treeexport.h"
#include "files/replacefile.h"

#include <QApplication>
#include <QGraphicsScene>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QTest>

namespace {

/// Large enough for a whole tree without scroll bars.
constexpr QSize formSize(1440, 1030);

/// An image without an alpha channel, which a PDF would hold as a second image. The title that a window
/// manager would show goes with it.
void keep(Tour& tour, const QPixmap& picture, const char* name, const QString& title = QString())
{
    QImage image = picture.toImage().convertToFormat(QImage::Format_RGB32);
    if (!title.isEmpty())
        image.setText(QStringLiteral("Title"), title);
    tour.expect(image.save(tour.path(QLatin1String(name) + QLatin1String(".png"))),
                QStringLiteral("the picture %1 is written").arg(QLatin1String(name)));
}

void keepForm(Tour& tour, const char* name)
{
    QTest::qWait(50);
    keep(tour, tour.form().grab(), name, tour.form().windowTitle());
}

/// Makes the area so large that its edges cut no control and no caption.
void growToWhole(QRectF& area, const QGraphicsScene& scene)
{
    constexpr int margin = 3; // picture pixels
    for (bool grown = true; grown;) {
        grown = false;
        for (const QGraphicsItem* item : scene.items(area)) {
            const QRectF place = item->sceneBoundingRect().adjusted(-margin, -margin, margin, margin);
            if (!item->isWidget() || area.contains(place))
                continue;
            area |= place;
            grown = true;
        }
    }
}

/// The part of the tree around these controls, and as many picture pixels more to the right, where outputs
/// have their names.
QRectF areaAround(Tour& tour, std::initializer_list<const char*> controls, int right)
{
    constexpr int margin = 24; // picture pixels
    QTest::qWait(50);
    QRectF area;
    for (const char* each : controls)
        area |= ZN64MCUPLL::proxyOf(tour.control<QWidget>(each))->sceneBoundingRect();
    area.adjust(-margin, -margin, margin + right, margin);
    growToWhole(area, *tour.form().findChild<PinGraphicsView*>()->scene());
    return area;
}

/// As on the screen, with lists that are open.
void photographAround(Tour& tour, std::initializer_list<const char*> controls, const char* name, int right)
{
    auto* view = tour.form().findChild<PinGraphicsView*>();
    const QRectF area = areaAround(tour, controls, right);
    const QRect inView = view->mapFromScene(area).boundingRect() & view->viewport()->rect();
    keep(tour, view->viewport()->grab(inView), name);
}

void drawAround(Tour& tour, std::initializer_list<const char*> controls, const char* name, int right = 0)
{
    const auto* page = tour.form().findChild<ControlFactory*>();
    const QRectF whole = treeexport::wholeOf(*page);
    const QRect area = (areaAround(tour, controls, right) & whole).toAlignedRect();
    const QString file = QLatin1String(name) + QLatin1String(".svg");
    tour.expect(replaceFile(tour.path(file), treeexport::svg(*page, area, file)),
                QStringLiteral("the picture %1 is written").arg(file));
}

/// The whole dialog, also where a small screen would fold or cut its text.
void keepDialog(Tour& tour, QDialog* dialog, const char* name)
{
    constexpr int textWidth = 420; // where a box on a large screen begins to fold
    QTest::qWait(50);
    if (auto* text = dialog->findChild<QLabel*>(QStringLiteral("qt_msgbox_label")))
        text->setMinimumWidth(qMin(text->fontMetrics().size(0, text->text()).width() + 10, textWidth));
    dialog->layout()->activate();
    dialog->setFixedSize(dialog->layout()->totalSizeHint());
    keep(tour, dialog->grab(), name, dialog->windowTitle());
}

/// Photographs the dialog and agrees to it.
DialogAnswers::Answer agree(Tour& tour, const char* picture = nullptr)
{
    return [&tour, picture](QDialog* dialog) {
        if (picture)
            keepDialog(tour, dialog, picture);
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        QAbstractButton* yes = box ? box->button(QMessageBox::Yes) : nullptr;
        yes ? yes->click() : dialog->reject();
    };
}

DialogAnswers::Answer pickSeries(Tour& tour, const char* series, const char* picture = nullptr)
{
    return [&tour, series, picture](QDialog* dialog) {
        pickInSearch(tour, dialog, QString::fromLatin1(series));
        if (picture)
            keepDialog(tour, dialog, picture);
        QTest::mouseClick(dialog->findChild<QWidget*>(QStringLiteral("m_ok_PushButton")), Qt::LeftButton);
    };
}

void setFrequencies(Tour& tour)
{
    tour.step("first design: crystal, USB and system clock");
    tour.type("m_hext_lineEdit", QStringLiteral("12"), false);
    drawAround(tour, {"m_hext_lineEdit", "m_hext_In", "m_hextbypass_ComboBox", "m_hext_Label1"}, "typed");
    tour.type("m_hext_lineEdit", QStringLiteral("12"));
    tour.expectText("m_sclk_lineEdit", QStringLiteral("300.000"));
    drawAround(tour, {"m_sclkselect_Label", "m_toapb1tmr_lineEdit", "m_togpio_lineEdit"}, "red", 110);
    tour.choose("m_tousbswitch_ComboBox", QStringLiteral("enable"));
    tour.expectText("m_usbclock_Label", QStringLiteral("48.000 MHz"));
    tour.expectText("m_sclk_lineEdit", QStringLiteral("192.000"));
    tour.type("m_sclk_lineEdit", QStringLiteral("160"));
    tour.expectText("m_sclk_lineEdit", QStringLiteral("156.000"));
    tour.expectText("m_usbclock_Label", QStringLiteral("39.000 MHz"));
    drawAround(tour, {"m_usbdiv_ComboBox", "m_hicktousb_Label", "m_usbclock_Label"}, "usb-red");
    tour.type("m_sclk_lineEdit", QStringLiteral("144"));
    tour.expectText("m_sclk_lineEdit", QStringLiteral("144.000"));
    tour.expectText("m_usbclock_Label", QStringLiteral("48.000 MHz"));
    tour.expectText("m_toapb1peripheral_lineEdit", QStringLiteral("72.000"));
    drawAround(tour, {"m_usbdiv_ComboBox", "m_hicktousb_Label", "m_usbclock_Label"}, "usb-good");
}

void setOutputs(Tour& tour)
{
    tour.step("first design: RTC, clock output");
    tour.choose("m_tortc_ComboBox", QStringLiteral("enable"));
    tour.clickOnCanvas("m_rtcsel_lext_RadioButton");
    tour.expectText("m_tortc_lineEdit", QStringLiteral("32.768"));
    tour.choose("m_clockoutpin_ComboBox", QStringLiteral("PA8"));
    tour.clickOnCanvas("m_clockout_plldiv4_RadioButton");
    tour.expectText("m_clockout_Value_QLabel", QStringLiteral("(36.000 MHz)"));
    keepForm(tour, "design");
    tour.clickOnCanvas("m_toapb1peripheral_List_Button");
    photographAround(tour, {"m_apb1div_Label", "m_toapb1tmr_lineEdit", "m_toapb1periphera_list_group"},
                     "list", 40);
    tour.clickOnCanvas("m_toapb1peripheral_List_Button");
}

void meetBadInput(Tour& tour)
{
    tour.step("a typed value out of range");
    tour.withDialogs({agree(tour, "hext-error")},
                     [&] { tour.type("m_hext_lineEdit", QStringLiteral("32")); });
    tour.type("m_hext_lineEdit", QStringLiteral("12"));
}

void saveAndGenerate(Tour& tour)
{
    tour.step("first design: save, preview, generate");
    tour.withDialogs({DialogAnswers::choose(tour.path(QStringLiteral("first.ZNCK"))), agree(tour)},
                     [&] { tour.clickMenu("m_FileMenu", "m_Save_Action"); });
    tour.clickButton("m_CodeView_PushButton");
    keepForm(tour, "preview");
    tour.clickButton("m_ClockConfig_PushButton");
    QDir().mkpath(tour.path(QStringLiteral("first")));
    const auto chooseFolder = DialogAnswers::choose(tour.path(QStringLiteral("first")));
    const auto generate = [&] { tour.clickMenu("m_GeneralCodeMenu", "m_GeneralCode_Action"); };
    tour.withDialogs({chooseFolder, agree(tour, "generated")}, generate);
    const auto refuse = [&tour](QDialog* dialog) {
        keepDialog(tour, dialog, "conflict");
        dialog->reject();
    };
    tour.withDialogs({chooseFolder, refuse, agree(tour)}, generate);
}

void flexiblePll(Tour& tour)
{
    tour.step("the flexible PLL");
    tour.withDialogs({agree(tour), pickSeries(tour, "zn64g150")},
                     [&] { tour.clickMenu("m_FileMenu", "m_New_Action"); });
    tour.type("m_sclk_lineEdit", QStringLiteral("170"));
    tour.expectText("m_sclk_lineEdit", QStringLiteral("170.000"));
    drawAround(tour, {"m_hext_Label1", "m_hext_In", "m_hick_lineEdit", "m_pllrc_Label", "m_sclk_lineEdit"},
               "flexible");
    tour.withDialogs({agree(tour, "pll-question")},
                     [&] { tour.type("m_pllns_lineEdit", QStringLiteral("500")); });
    tour.type("m_sclk_lineEdit", QStringLiteral("288"));
    drawAround(tour, {"m_sclk_Label", "m_sclkWarning1_QLabel", "m_sclkWarning3_QLabel"}, "warning", 150);
}

} // namespace

void manualPictures(Tour& tour, LANGUAGE language)
{
    tour.form().resize(formSize);
    QApplication::setCursorFlashTime(0);
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9)); // of the boxes, as on many desktops
    if (language == UI_ZH)
        tour.clickMenu("m_LanguageMenu", "m_Chinese_Action");
    tour.step("first design: New");
    tour.withDialogs({pickSeries(tour, "zn64g120", "new")},
                     [&] { tour.clickMenu("m_FileMenu", "m_New_Action"); });
    keepForm(tour, "start");
    setFrequencies(tour);
    setOutputs(tour);
    meetBadInput(tour);
    saveAndGenerate(tour);
    tour.withDialogs({agree(tour, "about")}, [&] { tour.clickMenu("m_HelpMenu", "m_Version_Action"); });
    flexiblePll(tour);
}
