#include "formfixture.h"
#include "processdata.h"

#include "preview/MyQsciScintilla.h"
#include "update/onlineupdate.h"
#include "widgets/look.h"

#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPointer>
#include <QScopeGuard>
#include <QScreen>
#include <QSignalSpy>
#include <QSizeGrip>
#include <QTemporaryDir>
#include <QThread>
#include <QToolButton>

#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

namespace {

const QString newCommand = "m_New_Action"_s;
const QString openCommand = "m_Open_Action"_s;

// What the boxes say, by the words of the rows below.
const QMap<QString, QString> boxTexts{
    {"nothing"_s, "warning | Warning | Currently no configuration. | Ok"_s                                                                            },
    {"new?"_s,
     "warning | Warning | The current configuration will be closed before creating a new project. Please confirm whether to continue? | Cancel, Yes"_s},
    {"open?"_s,
     "warning | Warning | The current configuration will be closed. Please confirm whether to continue? | Cancel, Yes"_s                              },
    {"quit?"_s,
     "question | Warning | The current configuration will be closed. Please confirm whether to continue? | Cancel, Yes"_s                             },
    {"unknown"_s, "warning | Warning | MCU in file not supported. | Ok"_s                                                                             },
    {"select"_s,  "MCU Select"_s                                                                                                                      },
    {"file"_s,    "Open"_s                                                                                                                            }
};

QString sampleFolder()
{
    return QCoreApplication::applicationDirPath() + "/Code_Sample"_s;
}

} // namespace

class TestForm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { look::apply(); }

    void init()
    {
        m_program.reset();
        m_program.reset(new FormFixture);
        QDir(sampleFolder()).removeRecursively();
    }

    void titleNamesTheVersionOfTheUpdateCheck()
    {
        const QString version = m_program->form.windowTitle().section(u' ', -1);
        QVERIFY(version.startsWith(u'V'));
        QCOMPARE(FormConfiguration::VersionString2Int(version.mid(1)), ProgramVersion);
    }

    void smallestWindowFitsASmallScreen()
    {
        // The screen without a display has 800 by 600 pixels.
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        const QSize smallest = m_program->form.minimumSize();
        QVERIFY(smallest.width() < screen.width() && smallest.height() < screen.height());
    }

    void commands_data()
    {
        // The state before, the command, the answers, the boxes, the state after.
        fieldRows({"clock | m_ClockConfig_PushButton | | | clock",
                   "clock | m_ZoomIn_Action | | | clock",
                   "clock | m_Save_Action | Ok | nothing | clock",
                   "clock | m_GeneralCode_Action | Ok | nothing | clock",
                   "clock | m_CodeView_PushButton | Ok | nothing | clock",
                   "clock | m_New_Action | pick ZN64G152 | select | clock ZN64G152",
                   "clock | m_New_Action | Cancel | select | clock",
                   "clock | m_Open_Action | open ZN64G152 | file | clock ZN64G152",
                   "clock | m_Open_Action | open other, Ok | file, unknown | clock",
                   "clock | close | | | closed",
                   "clock ZN64G110 | m_New_Action | Cancel | new? | clock ZN64G110",
                   "clock ZN64G110 | m_New_Action | Yes, close | new?, select | clock ZN64G110",
                   "clock ZN64G110 | m_New_Action | Yes, pick ZN64G150 | new?, select | clock ZN64G150",
                   "clock ZN64G110 | m_Open_Action | Cancel | open? | clock ZN64G110",
                   "clock ZN64G110 | m_Open_Action | Yes, close | open?, file | clock ZN64G110",
                   "clock ZN64G110 | m_Open_Action | Yes, open ZN64G152 | open?, file | clock ZN64G152",
                   "clock ZN64G110 | m_Open_Action | Yes, open zn64g152, Ok | open?, file, unknown | clock "
                   "ZN64G110",
                   "clock ZN64G110 | m_CodeView_PushButton | | | code ZN64G110",
                   "clock ZN64G110 | close | Cancel | quit? | clock ZN64G110",
                   "clock ZN64G110 | close | Yes | quit? | closed",
                   "clock | drop ZN64G152 | | | clock ZN64G152",
                   "clock | drop other | Ok | unknown | clock",
                   "clock ZN64G110 | drop ZN64G150 | Cancel | open? | clock ZN64G110",
                   "clock ZN64G110 | drop ZN64G150 | Yes | open? | clock ZN64G150",
                   "code ZN64G110 | drop ZN64G150 | Yes | open? | code ZN64G150",
                   "code ZN64G110 | m_ClockConfig_PushButton | | | clock ZN64G110",
                   "code ZN64G110 | m_New_Action | Yes, pick ZN64G150 | new?, select | clock ZN64G150",
                   "code ZN64G110 | m_Open_Action | Yes, open ZN64G150 | open?, file | code ZN64G150"});
    }

    void commands()
    {
        QFETCH(QStringList, fields);
        const QString before = fields[0];
        const QString after = fields[4];
        m_program->enter(before);
        const QPointer<QWidget> old = m_program->design();
        DialogAnswers answers;
        for (const QString& each : fields[2].split(", "_s, Qt::SkipEmptyParts))
            answers.add(answer(each));
        if (fields[1].startsWith("drop"_s))
            drop({QUrl::fromLocalFile(m_program->designFile(fields[1].section(u' ', 1)))});
        else
            m_program->run(fields[1]);

        QStringList boxes;
        for (const QString& each : fields[3].split(", "_s, Qt::SkipEmptyParts))
            boxes += boxTexts.value(each);
        QCOMPARE(answers.shown(), boxes);
        QCOMPARE(m_program->state(), after);
        if (after == "closed"_s)
            return;
        const QString series = after.section(u' ', 1);
        QVERIFY(series != before.section(u' ', 1) ? old.isNull() : old == m_program->design());
        QCOMPARE(m_program->clockButton()->text(),
                 series.isEmpty() ? "Clock Configuration"_s : "Clock Configuration---"_s + series);
        const auto* toolBar = m_program->find<QWidget>("m_toolBarGroupBox");
        QCOMPARE(toolBar->isVisibleTo(toolBar->parentWidget()), !series.isEmpty());
        // The empty page says how to begin; a new tree has the keys.
        const auto* start = m_program->find<QLabel>("m_start_Label");
        QVERIFY(series.isEmpty() ? start && !start->text().isEmpty() : !start);
        if (!old && m_program->design())
            QVERIFY(m_program->design()->isAncestorOf(m_program->form.focusWidget()));
    }

    void onlyADesignFileCanBeDropped_data()
    {
        fieldRows({"file:///a.ZNCK | taken", "file:///a.znck | taken", "file:///a.txt | refused",
                   "https://a.example/a.ZNCK | refused", "file:///a.ZNCK file:///b.ZNCK | refused"});
    }

    void onlyADesignFileCanBeDropped()
    {
        QFETCH(QStringList, fields);
        m_program->enter("clock ZN64G110"_s);
        DialogAnswers answers({"Cancel"_s});
        const bool taken = drop(QUrl::fromStringList(fields[0].split(u' ')));
        QCOMPARE(taken, fields[1] == "taken"_s);
        QCOMPARE(answers.shown().size(), int(taken));
    }

    void returnKeepsTheDesign_data()
    {
        fieldRows({"m_New_Action", "m_Open_Action", "close", "m_ConfigReset_Action"});
    }

    void returnKeepsTheDesign()
    {
        m_program->enter("clock ZN64G110"_s);
        auto* divider = m_program->find<QComboBox>("m_ahbdiv_ComboBox");
        divider->setCurrentIndex(3);
        DialogAnswers answers{[](QDialog* box) { QTest::keyClick(box, Qt::Key_Return); }};
        m_program->run(QLatin1String(QTest::currentDataTag()));
        QCOMPARE(answers.shown().size(), 1);
        QCOMPARE(m_program->state(), "clock ZN64G110"_s);
        QCOMPARE(divider->currentIndex(), 3);
    }

    void heldZoomButtonsRepeat()
    {
        m_program->enter("clock ZN64G110"_s);
        const auto held = [this](const char* name) {
            auto* action =
                m_program->find<QWidget>("m_clockConfigForm")->findChild<QAction*>(QLatin1String(name));
            auto* button = qobject_cast<QToolButton*>(action->associatedWidgets().last());
            QSignalSpy triggered(action, &QAction::triggered);
            QTest::mousePress(button, Qt::LeftButton);
            QTest::qWait(button->autoRepeatDelay() + 3 * button->autoRepeatInterval());
            const bool repeats = triggered.count() > 1;
            if (repeats)
                QTest::mouseRelease(button, Qt::LeftButton);
            else
                QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(-5, -5));
            return repeats;
        };
        QVERIFY(held("m_ZoomIn_Action") && held("m_ZoomOut_Action"));
        QVERIFY(!held("m_ZoomReset_Action") && !held("m_ConfigReset_Action"));
    }

    void failedOpenLosesTheName()
    {
        m_program->enter("clock ZN64G110"_s);
        DialogAnswers answers{DialogAnswers::press("Yes"), answer("open other"_s),
                              DialogAnswers::press("Ok")};
        m_program->run(openCommand);
        QCOMPARE(m_program->clockButton()->text(), "Clock Configuration---ZN64G110"_s);
        m_program->form.TranslatorUI();
        QCOMPARE(m_program->clockButton()->text(), "Clock Configuration---"_s);
    }

    void designIsReplacedInTheMiddleOfAnything()
    {
        for (const char* control :
             {"m_hext_lineEdit", "m_toapb1peripheral_List_Button", "m_ahbdiv_ComboBox"}) {
            for (const QString& command : {newCommand, openCommand}) {
                m_program->enter("clock ZN64G110"_s);
                auto* widget = m_program->find<QWidget>(control);
                QVERIFY2(widget, control);
                widget->setFocus();
                if (auto* list = qobject_cast<QComboBox*>(widget))
                    list->showPopup();
                else if (auto* button = qobject_cast<QPushButton*>(widget))
                    button->click();
                else
                    QTest::keyClicks(widget, "99"_s);
                const char* replacement = command == newCommand ? "pick ZN64G150" : "open ZN64G150";
                DialogAnswers answers{DialogAnswers::press("Yes"), answer(QLatin1String(replacement))};
                m_program->run(command);
                QCoreApplication::processEvents();
                QCOMPARE(m_program->state(), "clock ZN64G150"_s);
            }
        }
    }

    void codeButtonGeneratesOnlyOnTheWayToTheCodePage()
    {
        m_program->enter("code ZN64G110"_s);
        QVERIFY(QFile::exists(sampleFolder() + "/src/zn64g110_clock.c"_s));
        const auto* editor = m_program->find<MyQsciScintilla>("m_main_c_CodeEditor");
        const QString before = editor->text();
        QVERIFY(before.contains("zn64g110"_s));

        QVERIFY(QDir(sampleFolder()).removeRecursively());
        m_program->codeButton()->click();
        m_program->enter("code ZN64G150"_s);
        QVERIFY(!QDir(sampleFolder()).exists());
        QCOMPARE(editor->text(), before);
        m_program->clockButton()->click();
        m_program->codeButton()->click();
        QVERIFY(QFile::exists(sampleFolder() + "/src/main.c"_s));
        QVERIFY(editor->text() != before);
    }

    void failedPreviewStaysOnTheClockPage()
    {
        m_program->enter("clock ZN64G110"_s);
        // A file in the place of the folder: nothing can be written below it.
        QFile blocker(sampleFolder());
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        DialogAnswers answers({"Ok"_s});
        m_program->codeButton()->click();
        QVERIFY(blocker.remove());
        QCOMPARE(answers.shown(), QStringList{"critical | Error | Creating \"inc\" folder error! | Ok"_s});
        QCOMPARE(m_program->state(), "clock ZN64G110"_s);
    }

    // What cannot be written whole is told, and no older text comes up in its place.
    void previewOnAFullDisk()
    {
        m_program->enter("code ZN64G150"_s);
        m_program->clockButton()->click();
        m_program->enter("clock ZN64G110"_s);
        limitFiles(100);
        const auto unlimited = qScopeGuard([] { limitFiles(RLIM_INFINITY); });
        DialogAnswers answers({"Ok"_s});
        answers.add(DialogAnswers::press("OK"));
        m_program->codeButton()->click();
        QVERIFY(answers.shown().contains("critical | Error | Generate code failed! | OK"_s));
        QCOMPARE(m_program->state(), "clock ZN64G110"_s);
    }

    // Programs take turns, from writing the files to having read them.
    void previewTakesTurns()
    {
        const auto folder = [] {
            return ::open(QFile::encodeName(sampleFolder()).constData(), O_RDONLY | O_DIRECTORY);
        };
        m_program->enter("code ZN64G110"_s);
        const int other = folder();
        QCOMPARE(flock(other, LOCK_EX | LOCK_NB), 0);
        m_program->clockButton()->click();
        QVERIFY(QFile::remove(sampleFolder() + "/src/main.c"_s));
        {
            DialogAnswers answers({"OK"_s});
            m_program->codeButton()->click();
            QCOMPARE(answers.shown(), QStringList{"critical | Error | Generate code failed! | OK"_s});
        }
        QVERIFY(!QFile::exists(sampleFolder() + "/src/main.c"_s));
        std::thread later([other] {
            QThread::msleep(50);
            ::close(other);
        });
        m_program->codeButton()->click();
        later.join();
        QCOMPARE(m_program->state(), "code ZN64G110"_s);
        const int again = folder();
        QCOMPARE(flock(again, LOCK_EX | LOCK_NB), 0);
        ::close(again);
    }

    // Nothing is written through a link in the place of a folder.
    void previewFollowsNoLink()
    {
        const QTemporaryDir elsewhere;
        QVERIFY(writeFile(elsewhere.filePath("main.c"_s), "older"));
        QVERIFY(QDir().mkpath(sampleFolder()) && QFile::link(elsewhere.path(), sampleFolder() + "/src"_s));
        m_program->enter("code ZN64G110"_s);
        QCOMPARE(contentOf(elsewhere.filePath("main.c"_s)), QByteArray("older"));
        QVERIFY(QFile::exists(sampleFolder() + "/src/main.c"_s));
    }

    void configResetAsks()
    {
        m_program->enter("clock ZN64G110"_s);
        auto* divider = m_program->find<QComboBox>("m_ahbdiv_ComboBox");
        divider->setCurrentIndex(3);
        for (const char* button : {"Cancel", "Yes"}) {
            DialogAnswers answers({QLatin1String(button)});
            m_program->run("m_ConfigReset_Action"_s);
            QCOMPARE(answers.shown(),
                     QStringList{"warning | Warning | The current configuration will be reset. "
                                 "Please confirm whether to continue? | Cancel, Yes"_s});
            QCOMPARE(divider->currentIndex(), *button == 'C' ? 3 : 0);
        }
    }

    void dialogsHaveOneLook()
    {
        QStringList looks;
        const DialogAnswers::Answer see = [&](QDialog* dialog) {
            looks += dialog->grab(QRect(2, 2, 1, 1)).toImage().pixelColor(0, 0).name();
            // Would lie over a corner of a button.
            for (const QSizeGrip* each : dialog->findChildren<QSizeGrip*>())
                looks += each->isVisible() ? "grip"_s : QString();
            dialog->reject();
        };
        DialogAnswers answers{see, see, see};
        for (const QString& command : {newCommand, openCommand, "m_Save_Action"_s})
            m_program->run(command);
        looks.removeAll(QString());
        QCOMPARE(looks, QStringList({"#ffffff"_s, "#ffffff"_s, "#ffffff"_s}));
    }

    void commandsAreIgnoredWhileADialogIsOpen()
    {
        m_program->enter("clock ZN64G110"_s);
        const QPointer<QWidget> design = m_program->design();
        DialogAnswers answers{[&](QDialog* dialog) {
            for (const QString& command : {newCommand, openCommand, "close"_s})
                m_program->run(command);
            DialogAnswers::press("Cancel")(dialog);
        }};
        m_program->run("m_ConfigReset_Action"_s);
        QCOMPARE(answers.shown().size(), 1);
        QVERIFY(m_program->form.isVisible());
        QVERIFY(design && design == m_program->design());
    }

private:
    /// Drags the files over the page in view and drops them there. Whether they were taken.
    bool drop(const QList<QUrl>& urls)
    {
        QMimeData data;
        data.setUrls(urls);
        QWidget* target = m_program->form.childAt(m_program->form.rect().center());
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(target, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent event(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
        QTest::qWait(20);
        return event.isAccepted();
    }

    /// "pick" or "open" and a series, "close", or the text of the button to press.
    DialogAnswers::Answer answer(const QString& words) const
    {
        const QString series = words.section(u' ', 1);
        if (words.startsWith("pick"_s))
            return FormFixture::pick(series);
        if (words.startsWith("open"_s))
            return DialogAnswers::choose(m_program->designFile(series));
        if (words == "close"_s)
            return DialogAnswers::close();
        return DialogAnswers::press(words.toUtf8().constData());
    }

    QScopedPointer<FormFixture> m_program;
};

QTEST_MAIN(TestForm)
#include "tst_form.moc"
