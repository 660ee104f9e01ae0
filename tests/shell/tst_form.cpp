#include "formfixture.h"

#include "preview/MyQsciScintilla.h"
#include "update/onlineupdate.h"

#include <QDir>
#include <QPointer>

namespace {

const QString noConfiguration = QStringLiteral("warning | Warning | Currently no configuration. | Ok");
const QString closingForNew = QStringLiteral(
    "warning | Warning | The current configuration will be closed before creating a new project. "
    "Please confirm whether to continue? | Cancel, Yes");
const QString closing = QStringLiteral("Warning | The current configuration will be closed. Please confirm "
                                       "whether to continue? | Cancel, Yes");
const QString closingForOpen = QStringLiteral("warning | ") + closing;
const QString closingForGood = QStringLiteral("question | ") + closing;
const QString notSupported = QStringLiteral("warning | Warning | MCU in file not supported. | Ok");
const QString selectDialog = QStringLiteral("MCU Select");
const QString openDialog = QStringLiteral("Open");

const QString newCommand = QStringLiteral("m_New_Action");
const QString openCommand = QStringLiteral("m_Open_Action");

QString sampleFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/Code_Sample");
}

} // namespace

class TestForm : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void titleNamesTheVersionOfTheUpdateCheck();
    void commands_data();
    void commands();
    void failedOpenLosesTheName();
    void designIsReplacedInTheMiddleOfAnything();
    void codeButtonGeneratesOnlyOnTheWayToTheCodePage();
    void failedPreviewStaysOnTheClockPage();
    void configResetAsks();
    void commandsAreIgnoredWhileADialogIsOpen();

private:
    DialogAnswers::Answer answer(const QString& words) const;

    QScopedPointer<FormFixture> m_program;
};

void TestForm::init()
{
    m_program.reset();
    m_program.reset(new FormFixture);
    QDir(sampleFolder()).removeRecursively();
}

void TestForm::titleNamesTheVersionOfTheUpdateCheck()
{
    const QString version = m_program->form.windowTitle().section(QLatin1Char(' '), -1);
    QVERIFY(version.startsWith(QLatin1Char('V')));
    QCOMPARE(FormConfiguration::VersionString2Int(version.mid(1)), ProgramVersion);
}

/// "pick" or "open" and a series, "close", or the text of the button to press.
DialogAnswers::Answer TestForm::answer(const QString& words) const
{
    const QString series = words.section(QLatin1Char(' '), 1);
    if (words.startsWith(QLatin1String("pick")))
        return FormFixture::pick(series);
    if (words.startsWith(QLatin1String("open")))
        return DialogAnswers::choose(m_program->designFile(series));
    if (words == QLatin1String("close"))
        return DialogAnswers::close();
    return DialogAnswers::press(words.toUtf8().constData());
}

void TestForm::commands_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("answers");
    QTest::addColumn<QStringList>("boxes");
    QTest::addColumn<QString>("after");
    const auto row = [](const char* before, const char* command, const char* answers, const char* after,
                        const QStringList& boxes = {}) {
        QTest::addRow("%s: %s: %s", before, command, answers)
            << QString::fromLatin1(before) << QString::fromLatin1(command) << QString::fromLatin1(answers)
            << boxes << QString::fromLatin1(after);
    };
    row("clock", "m_ClockConfig_PushButton", "", "clock");
    row("clock", "m_ZoomIn_Action", "", "clock");
    row("clock", "m_Save_Action", "Ok", "clock", {noConfiguration});
    row("clock", "m_GeneralCode_Action", "Ok", "clock", {noConfiguration});
    row("clock", "m_CodeView_PushButton", "Ok", "clock", {noConfiguration});
    row("clock", "m_New_Action", "pick ZN64G152", "clock ZN64G152", {selectDialog});
    row("clock", "m_New_Action", "Cancel", "clock", {selectDialog});
    row("clock", "m_Open_Action", "open ZN64G152", "clock ZN64G152", {openDialog});
    row("clock", "m_Open_Action", "open other, Ok", "clock", {openDialog, notSupported});
    row("clock", "close", "", "closed");

    row("clock ZN64G110", "m_New_Action", "Cancel", "clock ZN64G110", {closingForNew});
    row("clock ZN64G110", "m_New_Action", "Yes, close", "clock ZN64G110", {closingForNew, selectDialog});
    row("clock ZN64G110", "m_New_Action", "Yes, pick ZN64G150", "clock ZN64G150",
        {closingForNew, selectDialog});
    row("clock ZN64G110", "m_Open_Action", "Cancel", "clock ZN64G110", {closingForOpen});
    row("clock ZN64G110", "m_Open_Action", "Yes, close", "clock ZN64G110", {closingForOpen, openDialog});
    row("clock ZN64G110", "m_Open_Action", "Yes, open ZN64G152", "clock ZN64G152",
        {closingForOpen, openDialog});
    row("clock ZN64G110", "m_Open_Action", "Yes, open zn64g152, Ok", "clock ZN64G110",
        {closingForOpen, openDialog, notSupported});
    row("clock ZN64G110", "m_CodeView_PushButton", "", "code ZN64G110");
    row("clock ZN64G110", "close", "Cancel", "clock ZN64G110", {closingForGood});
    row("clock ZN64G110", "close", "Yes", "closed", {closingForGood});

    row("code ZN64G110", "m_ClockConfig_PushButton", "", "clock ZN64G110");
    row("code ZN64G110", "m_New_Action", "Yes, pick ZN64G150", "clock ZN64G150",
        {closingForNew, selectDialog});
    row("code ZN64G110", "m_Open_Action", "Yes, open ZN64G150", "code ZN64G150",
        {closingForOpen, openDialog});
}

void TestForm::commands()
{
    QFETCH(QString, before);
    QFETCH(QString, answers);
    QFETCH(QString, after);
    m_program->enter(before);
    const QPointer<QWidget> old = m_program->design();
    DialogAnswers boxes;
    for (const QString& each : answers.split(QStringLiteral(", "), Qt::SkipEmptyParts))
        boxes.add(answer(each));
    QFETCH(QString, command);
    m_program->run(command);

    QTEST(boxes.shown(), "boxes");
    QCOMPARE(m_program->state(), after);
    if (after == QLatin1String("closed"))
        return;
    const QString series = after.section(QLatin1Char(' '), 1);
    const bool replaced = series != before.section(QLatin1Char(' '), 1);
    QVERIFY(replaced ? old.isNull() : old == m_program->design());
    QCOMPARE(m_program->clockButton()->text(), series.isEmpty()
                                                   ? QStringLiteral("Clock Configuration")
                                                   : QStringLiteral("Clock Configuration---") + series);
    const auto* toolBar = m_program->find<QWidget>("m_toolBarGroupBox");
    QCOMPARE(toolBar->isVisibleTo(toolBar->parentWidget()), !series.isEmpty());
}

void TestForm::failedOpenLosesTheName()
{
    m_program->enter(QStringLiteral("clock ZN64G110"));
    DialogAnswers answers{DialogAnswers::press("Yes"), answer(QStringLiteral("open other")),
                          DialogAnswers::press("Ok")};
    m_program->run(openCommand);
    QCOMPARE(m_program->clockButton()->text(), QStringLiteral("Clock Configuration---ZN64G110"));
    m_program->form.TranslatorUI();
    QCOMPARE(m_program->clockButton()->text(), QStringLiteral("Clock Configuration---"));
}

void TestForm::designIsReplacedInTheMiddleOfAnything()
{
    for (const char* control : {"m_hext_lineEdit", "m_toapb1peripheral_List_Button", "m_ahbdiv_ComboBox"}) {
        for (const QString& command : {newCommand, openCommand}) {
            m_program->enter(QStringLiteral("clock ZN64G110"));
            auto* widget = m_program->find<QWidget>(control);
            QVERIFY2(widget, control);
            widget->setFocus();
            if (auto* list = qobject_cast<QComboBox*>(widget))
                list->showPopup();
            else if (auto* button = qobject_cast<QPushButton*>(widget))
                button->click();
            else
                QTest::keyClicks(widget, QStringLiteral("99"));
            const char* replacement = command == newCommand ? "pick ZN64G150" : "open ZN64G150";
            DialogAnswers answers{DialogAnswers::press("Yes"), answer(QLatin1String(replacement))};
            m_program->run(command);
            QCoreApplication::processEvents();
            QCOMPARE(m_program->state(), QStringLiteral("clock ZN64G150"));
        }
    }
}

void TestForm::codeButtonGeneratesOnlyOnTheWayToTheCodePage()
{
    m_program->enter(QStringLiteral("code ZN64G110"));
    QVERIFY(QFile::exists(sampleFolder() + QStringLiteral("/src/zn64g110_clock.c")));
    const auto* editor = m_program->find<MyQsciScintilla>("m_main_c_CodeEditor");
    const QString before = editor->text();
    QVERIFY(before.contains(QStringLiteral("zn64g110")));

    QVERIFY(QDir(sampleFolder()).removeRecursively());
    m_program->codeButton()->click();
    m_program->enter(QStringLiteral("code ZN64G150"));
    QVERIFY(!QDir(sampleFolder()).exists());
    QCOMPARE(editor->text(), before);
    m_program->clockButton()->click();
    m_program->codeButton()->click();
    QVERIFY(QFile::exists(sampleFolder() + QStringLiteral("/src/main.c")));
    QVERIFY(editor->text() != before);
}

void TestForm::failedPreviewStaysOnTheClockPage()
{
    m_program->enter(QStringLiteral("clock ZN64G110"));
    // A file in the place of the folder: nothing can be written below it.
    QFile blocker(sampleFolder());
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    DialogAnswers answers{DialogAnswers::press("Ok")};
    m_program->codeButton()->click();
    QVERIFY(blocker.remove());
    QCOMPARE(answers.shown(),
             QStringList{QStringLiteral("critical | Error | Creating \"inc\" folder error! | Ok")});
    QCOMPARE(m_program->state(), QStringLiteral("clock ZN64G110"));
}

void TestForm::configResetAsks()
{
    m_program->enter(QStringLiteral("clock ZN64G110"));
    auto* divider = m_program->find<QComboBox>("m_ahbdiv_ComboBox");
    divider->setCurrentIndex(3);
    for (const char* button : {"Cancel", "Yes"}) {
        DialogAnswers answers{DialogAnswers::press(button)};
        m_program->run(QStringLiteral("m_ConfigReset_Action"));
        QCOMPARE(answers.shown(),
                 QStringList{QStringLiteral("warning | Warning | The current configuration will be reset. "
                                            "Please confirm whether to continue? | Cancel, Yes")});
        QCOMPARE(divider->currentIndex(), *button == 'C' ? 3 : 0);
    }
}

void TestForm::commandsAreIgnoredWhileADialogIsOpen()
{
    m_program->enter(QStringLiteral("clock ZN64G110"));
    const QPointer<QWidget> design = m_program->design();
    DialogAnswers answers{[&](QDialog* dialog) {
        for (const QString& command : {newCommand, openCommand, QStringLiteral("close")})
            m_program->run(command);
        DialogAnswers::press("Cancel")(dialog);
    }};
    m_program->run(QStringLiteral("m_ConfigReset_Action"));
    QCOMPARE(answers.shown().size(), 1);
    QVERIFY(m_program->form.isVisible());
    QVERIFY(design && design == m_program->design());
}

QTEST_MAIN(TestForm)
#include "tst_form.moc"
