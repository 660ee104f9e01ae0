#include "formfixture.h"
#include "testdata.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QUrl>

/// The language of the interface, switched while the program runs.
class TestLanguage : public QObject
{
    Q_OBJECT

public slots:
    void keepUrl(const QUrl& url) { m_opened = url; }

private slots:
    void switchTranslatesEveryState_data()
    {
        QTest::addColumn<QString>("state");
        for (const char* state : {"clock", "clock ZN64G150", "code ZN64G150"})
            QTest::newRow(state) << QString::fromLatin1(state);
    }

    void switchTranslatesEveryState()
    {
        QFETCH(QString, state);
        FormFixture program;
        program.enter(state);
        const QPointer<QWidget> page = program.design();
        const QString suffix = page ? "---ZN64G150"_s : QString();
        const auto* list = program.find<QPushButton>("m_toapb1peripheral_List_Button");
        const QString pageText = list ? list->text() : QString();

        switchTo(program, "m_Chinese_Action");
        QCOMPARE(marked(program), "Chinese"_s);
        QCOMPARE(program.clockButton()->text(), "时钟配置"_s + suffix);
        QCOMPARE(program.codeButton()->text(), "代码预览"_s);
        QCOMPARE(program.find<QMenu>("m_FileMenu")->title(), "项目"_s);
        // The form and the tool bar of the clock page have an entry of this name each.
        for (const QAction* each : program.form.findChildren<QAction*>("m_ZoomIn_Action"_s))
            QCOMPARE(each->text(), "放大"_s);
        const auto* start = program.find<QLabel>("m_start_Label");
        QVERIFY(!start || start->text().contains("新建"_s));
        QCOMPARE(toolkitTexts(program), "查找范围：, 取消"_s);
        QCOMPARE(program.state(), state);
        QCOMPARE(program.design(), page.data());
        // A page keeps the texts that it was built with.
        QCOMPARE(list ? list->text() : QString(), pageText);
        // What is said of its controls follows the language.
        QCOMPARE(list ? list->accessibleName() : QString(), page ? "列表：apb1 外设, MHz"_s : QString());

        switchTo(program, "m_English_Action");
        QCOMPARE(marked(program), "English"_s);
        QCOMPARE(program.clockButton()->text(), "Clock Configuration"_s + suffix);
        QCOMPARE(toolkitTexts(program), "Look in:, Cancel"_s);
    }

    void activeLanguageKeepsItsMark()
    {
        FormFixture program(UI_ZH);
        switchTo(program, "m_Chinese_Action");
        QCOMPARE(marked(program), "Chinese"_s);
        QCOMPARE(program.clockButton()->text(), "时钟配置"_s);
    }

    void withoutATranslatorBothEntriesStayChecked()
    {
        FormFixture program;
        QVERIFY(QCoreApplication::removeTranslator(&program.translator));
        switchTo(program, "m_Chinese_Action");
        QCOMPARE(marked(program), "English, Chinese"_s);
        QCOMPARE(program.clockButton()->text(), "Clock Configuration"_s);
    }

    void manualFollowsTheLanguageOrIsMissed()
    {
        FormFixture program(UI_ZH);
        const QDir folder(QCoreApplication::applicationDirPath() + "/../Documents"_s);
        const auto open = [&] {
            program.run("m_OpenManual_Action"_s);
            return folder.relativeFilePath(m_opened.toLocalFile());
        };
        QDesktopServices::setUrlHandler("file"_s, this, "keepUrl");
        QCOMPARE(open(), "UM_ZN64_Clockwright.pdf"_s);
        switchTo(program, "m_English_Action");
        QCOMPARE(open(), "UM_ZN64_Clockwright_EN.pdf"_s);

        // A handler without that slot stands for a desktop that opens nothing.
        QDesktopServices::setUrlHandler("file"_s, this, "noSuchSlot");
        DialogAnswers answers({"Ok"_s});
        open();
        QDesktopServices::unsetUrlHandler("file"_s);
        QCOMPARE(answers.shown(), QStringList{"critical | Error | Can't open user manual! | Ok"_s});
    }

private:
    QUrl m_opened;

    static void switchTo(FormFixture& program, const char* action)
    {
        program.run(QLatin1String(action));
        QCoreApplication::processEvents();
    }
    /// What the toolkit says of its own in the dialog of Open, with its button of a text of the program's
    /// too.
    static QString toolkitTexts(const FormFixture& program)
    {
        QString texts;
        DialogAnswers answers;
        if (program.design())
            answers.add(
                [](QDialog* box) { static_cast<QMessageBox*>(box)->button(QMessageBox::Yes)->click(); });
        answers.add([&](QDialog* dialog) {
            texts = dialog->findChild<QLabel*>("lookInLabel"_s)->text() + ", "_s +
                    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->text();
            dialog->reject();
        });
        program.form.findChild<QAction*>("m_Open_Action"_s)->trigger();
        return texts;
    }
    /// The entries of the menu that carry a mark, "English" or "Chinese".
    static QString marked(const FormFixture& program)
    {
        QStringList names;
        for (const char* each : {"English", "Chinese"})
            if (program.form.findChild<QAction*>("m_%1_Action"_s.arg(QLatin1String(each)))->isChecked())
                names += QLatin1String(each);
        return names.join(", "_s);
    }
};

QTEST_MAIN(TestLanguage)
#include "tst_language.moc"
