#include "formfixture.h"

#include "model/seriestraits.h"
#include "pages/seriespages.h"
#include "preview/MyQsciScintilla.h"
#include "shell/MCUSelect_Form.h"

#include <QDir>
#include <QPointer>

namespace {

const QString noConfiguration = QStringLiteral("warning | Warning | Currently no configuration. | Ok");
const QString closingForNew = QStringLiteral(
    "warning | Warning | The current configuration will be closed before creating a new project. "
    "Please confirm whether to continue? | Cancel, Yes");
const QString closingForOpen =
    QStringLiteral("warning | Warning | The current configuration will be closed. Please confirm whether to "
                   "continue? | Cancel, Yes");
const QString closing =
    QStringLiteral("question | Warning | The current configuration will be closed. Please "
                   "confirm whether to continue? | Cancel, Yes");
const QString notSupported = QStringLiteral("warning | Warning | MCU in file not supported. | Ok");
const QString selectDialog = QStringLiteral("MCU Select");
const QString openDialog = QStringLiteral("Open");

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
    void startsOnTheClockPageWithoutADesign();
    void commandsWithoutADesignOnlyTell_data();
    void commandsWithoutADesignOnlyTell();
    void newReplacesTheDesign();
    void newKeepsTheDesignUntilASeriesIsChosen_data();
    void newKeepsTheDesignUntilASeriesIsChosen();
    void newRefusesASeriesWithoutAPage();
    void designIsReplacedInTheMiddleOfAnything_data();
    void designIsReplacedInTheMiddleOfAnything();
    void openReplacesTheDesign();
    void openOfAnUnknownFileLosesOnlyTheName_data();
    void openOfAnUnknownFileLosesOnlyTheName();
    void codeButtonGeneratesOnlyOnTheWayToTheCodePage();
    void failedPreviewStaysOnTheClockPage();
    void newLeavesTheCodePageAndOpenDoesNot();
    void configResetAsks_data();
    void configResetAsks();
    void closeAsksWhileADesignIsActive_data();
    void closeAsksWhileADesignIsActive();
    void commandsAreIgnoredWhileADialogIsOpen();

private:
    void open(const char* series);

    QScopedPointer<FormFixture> m_program;
};

void TestForm::init()
{
    m_program.reset();
    m_program.reset(new FormFixture);
    QDir(sampleFolder()).removeRecursively();
}

void TestForm::open(const char* series)
{
    DialogAnswers answers;
    if (m_program->design())
        answers.add(DialogAnswers::press("Yes"));
    answers.add(DialogAnswers::choose(m_program->designFile(series)));
    m_program->trigger("m_Open_Action");
    QCOMPARE(m_program->clockButton()->text(),
             QStringLiteral("Clock Configuration---") + QLatin1String(series));
}

void TestForm::startsOnTheClockPageWithoutADesign()
{
    QVERIFY(m_program->showsClockPage());
    QVERIFY(!m_program->form.findChild<QWidget*>(QStringLiteral("m_toolBarGroupBox"))->isVisible());
    QCOMPARE(m_program->clockButton()->text(), QStringLiteral("Clock Configuration"));
    m_program->clockButton()->click();
    m_program->trigger("m_ZoomIn_Action");
    QVERIFY(m_program->showsClockPage());
    for (const QAction* each : m_program->form.findChildren<QAction*>())
        QVERIFY2(each->isEnabled(), qPrintable(each->text()));
}

void TestForm::commandsWithoutADesignOnlyTell_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("save") << QStringLiteral("m_Save_Action");
    QTest::newRow("generate") << QStringLiteral("m_GeneralCode_Action");
    QTest::newRow("code view") << QString();
}

void TestForm::commandsWithoutADesignOnlyTell()
{
    QFETCH(QString, action);
    DialogAnswers answers{DialogAnswers::press("Ok")};
    if (action.isEmpty())
        m_program->codeButton()->click();
    else
        m_program->trigger(action.toLatin1().constData());
    QCOMPARE(answers.shown(), QStringList{noConfiguration});
    QVERIFY(m_program->showsClockPage());
    QVERIFY(!QDir(sampleFolder()).exists());
}

void TestForm::newReplacesTheDesign()
{
    {
        DialogAnswers answers{FormFixture::pick(QStringLiteral("ZN64G152"))};
        m_program->trigger("m_New_Action");
        QCOMPARE(answers.shown(), QStringList{selectDialog});
    }
    QCOMPARE(m_program->clockButton()->text(), QStringLiteral("Clock Configuration---ZN64G152"));
    QVERIFY(m_program->form.findChild<QWidget*>(QStringLiteral("m_toolBarGroupBox"))->isVisible());
    QPointer<QWidget> old = m_program->design();
    QTRY_VERIFY(old->isVisible());

    DialogAnswers answers{DialogAnswers::press("Yes"), FormFixture::pick(QStringLiteral("ZN64G150"))};
    m_program->trigger("m_New_Action");
    const QStringList expected{closingForNew, selectDialog};
    QCOMPARE(answers.shown(), expected);
    QVERIFY(old.isNull());
    QCOMPARE(QByteArray(m_program->design()->metaObject()->className()), QByteArray("ZN64G150PLL"));
    QCOMPARE(m_program->clockButton()->text(), QStringLiteral("Clock Configuration---ZN64G150"));
}

void TestForm::newKeepsTheDesignUntilASeriesIsChosen_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("question cancelled") << QStringLiteral("Cancel") << QStringList{closingForNew};
    QTest::newRow("dialog cancelled") << QStringLiteral("Yes") << QStringList{closingForNew, selectDialog};
}

void TestForm::newKeepsTheDesignUntilASeriesIsChosen()
{
    QFETCH(QString, answer);
    open("ZN64G110");
    const QPointer<QWidget> design = m_program->design();
    DialogAnswers answers{DialogAnswers::press(answer.toLatin1().constData()), DialogAnswers::close()};
    m_program->trigger("m_New_Action");
    QTEST(answers.shown(), "shown");
    QVERIFY(design && design == m_program->design());
    QCOMPARE(m_program->clockButton()->text(), QStringLiteral("Clock Configuration---ZN64G110"));
}

void TestForm::newRefusesASeriesWithoutAPage()
{
    QString missing;
    for (const QString& each : MCUSelect_Form(nullptr).GetAllDevicesName())
        if (!hasSeriesPage(seriesByName(each)->series))
            missing = each;
    if (missing.isEmpty())
        QSKIP("every series has a page");
    open("ZN64G110");
    const QPointer<QWidget> design = m_program->design();
    DialogAnswers answers{DialogAnswers::press("Yes"), FormFixture::pick(missing),
                          DialogAnswers::press("Ok")};
    m_program->trigger("m_New_Action");
    QCOMPARE(answers.shown().last(), notSupported);
    QVERIFY(design && design == m_program->design());
    m_program->form.TranslatorUI();
    QCOMPARE(m_program->clockButton()->text(), QStringLiteral("Clock Configuration---ZN64G110"));
}

void TestForm::designIsReplacedInTheMiddleOfAnything_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("new") << QStringLiteral("m_New_Action");
    QTest::newRow("open") << QStringLiteral("m_Open_Action");
}

void TestForm::designIsReplacedInTheMiddleOfAnything()
{
    QFETCH(QString, action);
    const QString file = m_program->designFile("ZN64G150");
    const auto replacement = action == QLatin1String("m_New_Action")
                                 ? FormFixture::pick(QStringLiteral("ZN64G150"))
                                 : DialogAnswers::choose(file);
    for (const char* control : {"m_hext_lineEdit", "m_toapb1peripheral_List_Button", "m_ahbdiv_ComboBox"}) {
        open("ZN64G110");
        auto* widget = m_program->design()->findChild<QWidget*>(QLatin1String(control));
        QVERIFY2(widget, control);
        widget->setFocus();
        if (auto* button = qobject_cast<QPushButton*>(widget))
            button->click();
        else if (auto* list = qobject_cast<QComboBox*>(widget))
            list->showPopup();
        else
            QTest::keyClicks(widget, QStringLiteral("99"));
        DialogAnswers answers{DialogAnswers::press("Yes"), replacement};
        m_program->trigger(action.toLatin1().constData());
        QCOMPARE(m_program->clockButton()->text(), QStringLiteral("Clock Configuration---ZN64G150"));
        QCoreApplication::processEvents();
    }
}

void TestForm::openReplacesTheDesign()
{
    open("ZN64G110");
    const QPointer<QWidget> old = m_program->design();
    {
        DialogAnswers answers{DialogAnswers::press("Yes"), DialogAnswers::close()};
        m_program->trigger("m_Open_Action");
        const QStringList expected{closingForOpen, openDialog};
        QCOMPARE(answers.shown(), expected);
        QVERIFY(old && old == m_program->design());
    }
    open("ZN64G152");
    QVERIFY(old.isNull());
    QCOMPARE(QByteArray(m_program->design()->metaObject()->className()), QByteArray("ZN64G152PLL"));
}

void TestForm::openOfAnUnknownFileLosesOnlyTheName_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no xml") << QByteArray("clock");
    QTest::newRow("wrong case") << QByteArray("<Root><MCU>zn64g110</MCU></Root>");
}

void TestForm::openOfAnUnknownFileLosesOnlyTheName()
{
    QFETCH(QByteArray, content);
    open("ZN64G110");
    const QPointer<QWidget> design = m_program->design();
    const QString path = m_program->folder.filePath(QStringLiteral("unknown"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();

    DialogAnswers answers{DialogAnswers::press("Yes"), DialogAnswers::choose(path),
                          DialogAnswers::press("Ok")};
    m_program->trigger("m_Open_Action");
    const QStringList expected{closingForOpen, openDialog, notSupported};
    QCOMPARE(answers.shown(), expected);
    QVERIFY(design && design == m_program->design());
    QCOMPARE(m_program->clockButton()->text(), QStringLiteral("Clock Configuration---ZN64G110"));
    m_program->form.TranslatorUI();
    QCOMPARE(m_program->clockButton()->text(), QStringLiteral("Clock Configuration---"));
}

void TestForm::codeButtonGeneratesOnlyOnTheWayToTheCodePage()
{
    open("ZN64G110");
    const DialogAnswers none;
    m_program->codeButton()->click();
    QCOMPARE(none.shown().join(QLatin1Char(10)), QString());
    QVERIFY(m_program->showsCodePage());
    QVERIFY(QFile::exists(sampleFolder() + QStringLiteral("/src/zn64g110_clock.c")));
    const auto* editor = m_program->form.findChild<MyQsciScintilla*>(QStringLiteral("m_clock_c_CodeEditor"));
    QVERIFY(editor->text().contains(QStringLiteral("system_clock_config")));

    QVERIFY(QDir(sampleFolder()).removeRecursively());
    m_program->codeButton()->click();
    QVERIFY(!QDir(sampleFolder()).exists());
    m_program->clockButton()->click();
    QVERIFY(m_program->showsClockPage());
    m_program->codeButton()->click();
    QVERIFY(QFile::exists(sampleFolder() + QStringLiteral("/src/main.c")));
}

void TestForm::failedPreviewStaysOnTheClockPage()
{
    open("ZN64G110");
    // A file in the place of the folder: nothing can be written below it.
    QFile blocker(sampleFolder());
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    DialogAnswers answers{DialogAnswers::press("Ok")};
    m_program->codeButton()->click();
    QVERIFY(blocker.remove());
    QCOMPARE(answers.shown(),
             QStringList{QStringLiteral("critical | Error | Creating \"inc\" folder error! | Ok")});
    QVERIFY(m_program->showsClockPage());
}

void TestForm::newLeavesTheCodePageAndOpenDoesNot()
{
    open("ZN64G110");
    m_program->codeButton()->click();
    const auto* editor = m_program->form.findChild<MyQsciScintilla*>(QStringLiteral("m_main_c_CodeEditor"));
    const QString before = editor->text();
    QVERIFY(before.contains(QStringLiteral("zn64g110")));
    open("ZN64G150");
    QVERIFY(m_program->showsCodePage());
    QCOMPARE(editor->text(), before);

    DialogAnswers answers{DialogAnswers::press("Yes"), FormFixture::pick(QStringLiteral("ZN64G152"))};
    m_program->trigger("m_New_Action");
    QVERIFY(m_program->showsClockPage());
}

void TestForm::configResetAsks_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("index");
    QTest::newRow("cancel") << QStringLiteral("Cancel") << 3;
    QTest::newRow("yes") << QStringLiteral("Yes") << 0;
}

void TestForm::configResetAsks()
{
    QFETCH(QString, answer);
    open("ZN64G110");
    auto* divider = m_program->design()->findChild<QComboBox*>(QStringLiteral("m_ahbdiv_ComboBox"));
    QCOMPARE(divider->currentIndex(), 0);
    divider->setCurrentIndex(3);
    const QPointer<QWidget> design = m_program->design();
    DialogAnswers answers{DialogAnswers::press(answer.toLatin1().constData())};
    m_program->trigger("m_ConfigReset_Action");
    QCOMPARE(answers.shown(),
             QStringList{QStringLiteral("warning | Warning | The current configuration will be reset. "
                                        "Please confirm whether to continue? | Cancel, Yes")});
    QVERIFY(design && design == m_program->design());
    QTEST(divider->currentIndex(), "index");
}

void TestForm::closeAsksWhileADesignIsActive_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("closed");
    QTest::newRow("no design") << QString() << true;
    QTest::newRow("yes") << QStringLiteral("Yes") << true;
    QTest::newRow("cancel") << QStringLiteral("Cancel") << false;
}

void TestForm::closeAsksWhileADesignIsActive()
{
    QFETCH(QString, answer);
    if (!answer.isEmpty())
        open("ZN64G110");
    DialogAnswers answers{DialogAnswers::press(answer.toLatin1().constData())};
    QTEST(m_program->form.close(), "closed");
    QCOMPARE(answers.shown(), answer.isEmpty() ? QStringList() : QStringList{closing});
}

void TestForm::commandsAreIgnoredWhileADialogIsOpen()
{
    open("ZN64G110");
    const QPointer<QWidget> design = m_program->design();
    bool closed = true;
    DialogAnswers answers{[&](QDialog* dialog) {
        m_program->trigger("m_New_Action");
        m_program->trigger("m_Open_Action");
        closed = m_program->form.close();
        DialogAnswers::press("Cancel")(dialog);
    }};
    m_program->trigger("m_ConfigReset_Action");
    QCOMPARE(answers.shown().size(), 1);
    QVERIFY(!closed);
    QVERIFY(design && design == m_program->design());
}

QTEST_MAIN(TestForm)
#include "tst_form.moc"
