#include "formfixture.h"

#include "pages/ClockTreePage.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>

namespace {

/// The main form with a design, and the menu of its picture.
struct Picture : FormFixture
{
    explicit Picture(LANGUAGE language = UI_EN) : FormFixture(language) { enter("clock ZN64G120"_s); }

    PinGraphicsView* view() const { return find<ClockTreePage>("m_pllConfigWidget")->view(); }
    QAction* action(const char* name) const { return find<QAction>(name); }

    /// Presses the right button at a place of the picture, or the menu key; the texts of the menu that opens.
    QStringList askForMenu(const QPoint& place, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse)
    {
        const QPoint inView = view()->mapFromScene(place);
        QWidget* target = reason == QContextMenuEvent::Mouse ? view()->viewport() : view();
        QContextMenuEvent event(reason, inView, view()->viewport()->mapToGlobal(inView));
        QApplication::sendEvent(target, &event);
        QStringList texts;
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu && menu->actions().contains(action("m_CopyPicture_Action")))
            for (const QAction* each : menu->actions())
                texts += each->text();
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        return texts;
    }
};

/// Answers the dialog for a file that should propose the name of the series.
DialogAnswers::Answer type(const QString& path, const QString& filter)
{
    return [=](QDialog* dialog) {
        auto* files = qobject_cast<QFileDialog*>(dialog);
        QCOMPARE(QFileInfo(files->selectedFiles().value(0)).fileName(), "ZN64G120"_s);
        files->selectNameFilter(files->nameFilters().filter(filter).value(0));
        files->selectFile(path);
        // When this answer is done: there may be a question to come.
        QTimer::singleShot(0, files, [files] { QMetaObject::invokeMethod(files, "accept"); });
    };
}

/// Presses the button of a box, and ends the dialog below it if that goes on.
DialogAnswers::Answer pressAndEnd(const QString& button)
{
    return [=](QDialog* box) {
        if (auto* files = qobject_cast<QFileDialog*>(box->parentWidget()); files && button == u"Cancel")
            QTimer::singleShot(0, files, &QDialog::reject);
        DialogAnswers::press(button)(box);
    };
}

} // namespace

/// The picture of a tree is taken along.
class TestPictureMenu : public QObject
{
    Q_OBJECT

private slots:
    void opensOnThePictureOnly()
    {
        Picture picture;
        const QStringList entries{"Copy picture"_s, "Save picture..."_s};
        const auto middleOf = [&picture](const char* name) {
            const auto* control = picture.find<QWidget>(name);
            return ZN64MCUPLL::proxyOf(control)->sceneBoundingRect().center().toPoint();
        };
        const QPoint bare(600, 700);
        picture.form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&picture.form));
        picture.view()->setFocus();
        QTest::keyClick(picture.view(), Qt::Key_Tab);
        QVERIFY(picture.askForMenu(bare, QContextMenuEvent::Keyboard).isEmpty());
        picture.view()->scene()->clearFocus();
        QCOMPARE(picture.askForMenu(bare, QContextMenuEvent::Keyboard), entries);
        QCOMPARE(picture.askForMenu(bare), entries);
        QCOMPARE(picture.askForMenu(middleOf("m_lick_Label")), entries);
        for (const char* name : {"m_hext_lineEdit", "m_togpio_lineEdit", "m_pllmult_ComboBox",
                                 "m_sclkselect_pll_RadioButton", "m_toapb1peripheral_List_Button"})
            QVERIFY2(picture.askForMenu(middleOf(name)).isEmpty(), name);
        QVERIFY(picture.askForMenu(QPoint(600, 5000)).isEmpty());
        picture.run("m_Chinese_Action"_s);
        QCOMPARE(picture.askForMenu(bare), QStringList({"复制图片"_s, "保存图片..."_s}));
        picture.run("m_English_Action"_s);
    }

    void copies()
    {
        const Picture picture;
        picture.action("m_CopyPicture_Action")->trigger();
        const QImage copied = QGuiApplication::clipboard()->image();
        const auto* page = picture.find<ClockTreePage>("m_pllConfigWidget");
        QCOMPARE(copied.size(), page->description().pictureSize * 2);
        QCOMPARE(copied.pixelColor(600, 80), QColor(Qt::white));
        QVERIFY(copied != QImage(copied.size(), copied.format()));
    }

    void saves_data()
    {
        // What is typed, the kind that is chosen, the button of the box behind; the file and how it begins.
        fieldRows(
            {"tree      | SVG |        | tree.svg      | <?xml", "tree     | PDF |     | tree.pdf    | %PDF",
             "tree      | PNG |        | tree.png      | PNG", "tree.v2  | SVG |     | tree.v2.svg | <?xml",
             "tree.PDF  | PNG |        | tree.PDF      | %PDF", "old      | SVG | Yes | old.svg     | <?xml",
             "old       | SVG | Cancel | old.svg       | old", "old.svg  | PNG | Yes | old.svg     | <?xml",
             "none/tree | PNG | Ok     | none/tree.png | (no"});
    }
    void saves()
    {
        QFETCH(QStringList, fields);
        Picture picture;
        QVERIFY(writeFile(picture.folder.filePath("old.svg"_s), "old"));
        DialogAnswers answers{type(picture.folder.filePath(fields[0]), fields[1]), pressAndEnd(fields[2])};
        picture.run("m_SavePicture_Action"_s);
        QStringList shown{"Save picture"_s};
        if (fields[2] == u"Ok")
            shown += "critical | Error | Save file failed! | Ok"_s;
        else if (!fields[2].isEmpty())
            shown +=
                "warning | Save picture | old.svg already exists.\nDo you want to replace it? | Cancel, Yes"_s;
        QCOMPARE(answers.shown(), shown);
        const QByteArray begin = contentOf(picture.folder.filePath(fields[3])).left(5);
        QVERIFY2(begin.contains(fields[4].toLatin1()), begin.constData());
    }
};

QTEST_MAIN(TestPictureMenu)
#include "tst_picturemenu.moc"
