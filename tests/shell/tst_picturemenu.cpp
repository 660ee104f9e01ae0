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

    /// Answers the dialog by typing the name under a filter.
    static DialogAnswers::Answer type(const QString& path, const QString& filter, QString* proposed = nullptr)
    {
        return [=](QDialog* dialog) {
            auto* files = qobject_cast<QFileDialog*>(dialog);
            if (proposed)
                *proposed = QFileInfo(files->selectedFiles().value(0)).fileName();
            files->selectNameFilter(files->nameFilters().filter(filter).value(0));
            files->selectFile(path);
            // When this answer is done: there may be a question to come.
            QTimer::singleShot(0, files, [files] { QMetaObject::invokeMethod(files, "accept"); });
        };
    }
};

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

    void savesUnderTheWholeName_data()
    {
        fieldRows({"tree     | SVG | tree.svg    | <?xml", "tree    | PDF | tree.pdf    | %PDF",
                   "tree     | PNG | tree.png    | PNG", "tree.v2 | SVG | tree.v2.svg | <?xml",
                   "tree.PDF | PNG | tree.PDF    | %PDF"});
    }
    void savesUnderTheWholeName()
    {
        QFETCH(QStringList, fields);
        Picture picture;
        QString proposed;
        DialogAnswers answers{Picture::type(picture.folder.filePath(fields[0]), fields[1], &proposed)};
        picture.run("m_SavePicture_Action"_s);
        QCOMPARE(answers.shown(), QStringList("Save picture"_s));
        QCOMPARE(proposed, "ZN64G120"_s);
        const QByteArray content = contentOf(picture.folder.filePath(fields[2]));
        QVERIFY2(content.left(5).contains(fields[3].toLatin1()), content.left(5).constData());
    }

    void losesNothing()
    {
        Picture picture;
        const QString old = picture.folder.filePath("tree.svg"_s);
        QVERIFY(writeFile(old, "old"));
        const QString question =
            "warning | Save picture | tree.svg already exists.\nDo you want to replace it? | Cancel, Yes"_s;
        const auto typed = Picture::type(picture.folder.filePath("tree"_s), "SVG"_s);
        {
            DialogAnswers answers{typed, DialogAnswers::press("Cancel")};
            // Cancel goes back to the dialog.
            QTimer::singleShot(500, [] {
                if (QWidget* left = QApplication::activeModalWidget())
                    left->close();
            });
            picture.run("m_SavePicture_Action"_s);
            QCOMPARE(answers.shown(), QStringList({"Save picture"_s, question}));
            QCOMPARE(contentOf(old), QByteArray("old"));
        }
        {
            DialogAnswers answers{typed, DialogAnswers::press("Yes")};
            picture.run("m_SavePicture_Action"_s);
            QCOMPARE(answers.shown(), QStringList({"Save picture"_s, question}));
            QVERIFY(contentOf(old).startsWith("<?xml"));
        }
        DialogAnswers answers{Picture::type(picture.folder.filePath("none/tree"_s), "PNG"_s),
                              DialogAnswers::press("Ok")};
        picture.run("m_SavePicture_Action"_s);
        QCOMPARE(answers.shown(),
                 QStringList({"Save picture"_s, "critical | Error | Save file failed! | Ok"_s}));
    }
};

QTEST_MAIN(TestPictureMenu)
#include "tst_picturemenu.moc"
