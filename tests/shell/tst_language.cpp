#include "formfixture.h"

#include <QDesktopServices>
#include <QDir>
#include <QMenu>
#include <QUrl>

namespace {

QString zh(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

/// The language of the interface, switched while the program runs.
class TestLanguage : public QObject
{
    Q_OBJECT

public slots:
    void keepUrl(const QUrl& url) { m_opened = url; }

private slots:
    void switchTranslatesEveryState_data();
    void switchTranslatesEveryState();
    void activeLanguageKeepsItsMark();
    void withoutATranslatorBothEntriesStayChecked();
    void manualFollowsTheLanguageOrIsMissed();

private:
    QUrl m_opened;

    static void switchTo(FormFixture& program, const char* action)
    {
        program.run(QLatin1String(action));
        QCoreApplication::processEvents();
    }
    /// The entries of the menu that carry a mark, "English" or "Chinese".
    static QString marked(const FormFixture& program)
    {
        QStringList names;
        for (const char* each : {"English", "Chinese"})
            if (program.form.findChild<QAction*>(QStringLiteral("m_%1_Action").arg(QLatin1String(each)))
                    ->isChecked())
                names += QLatin1String(each);
        return names.join(QStringLiteral(", "));
    }
};

void TestLanguage::switchTranslatesEveryState_data()
{
    QTest::addColumn<QString>("state");
    for (const char* state : {"clock", "clock ZN64G150", "code ZN64G150"})
        QTest::newRow(state) << QString::fromLatin1(state);
}

void TestLanguage::switchTranslatesEveryState()
{
    QFETCH(QString, state);
    FormFixture program;
    program.enter(state);
    const QPointer<QWidget> page = program.design();
    const QString suffix = page ? QStringLiteral("---ZN64G150") : QString();
    const auto* list = program.find<QPushButton>("m_toapb1peripheral_List_Button");
    const QString pageText = list ? list->text() : QString();

    switchTo(program, "m_Chinese_Action");
    QCOMPARE(marked(program), QStringLiteral("Chinese"));
    QCOMPARE(program.clockButton()->text(), zh("时钟配置") + suffix);
    QCOMPARE(program.codeButton()->text(), zh("代码预览"));
    QCOMPARE(program.find<QMenu>("m_FileMenu")->title(), zh("项目"));
    // The form and the tool bar of the clock page have an entry of this name each.
    for (const QAction* each : program.form.findChildren<QAction*>(QStringLiteral("m_ZoomIn_Action")))
        QCOMPARE(each->text(), zh("放大"));
    QCOMPARE(program.state(), state);
    QCOMPARE(program.design(), page.data());
    // A page keeps the texts that it was built with.
    QCOMPARE(list ? list->text() : QString(), pageText);

    switchTo(program, "m_English_Action");
    QCOMPARE(marked(program), QStringLiteral("English"));
    QCOMPARE(program.clockButton()->text(), QStringLiteral("Clock Configuration") + suffix);
}

void TestLanguage::activeLanguageKeepsItsMark()
{
    FormFixture program(UI_ZH);
    switchTo(program, "m_Chinese_Action");
    QCOMPARE(marked(program), QStringLiteral("Chinese"));
    QCOMPARE(program.clockButton()->text(), zh("时钟配置"));
}

void TestLanguage::withoutATranslatorBothEntriesStayChecked()
{
    FormFixture program;
    QVERIFY(QCoreApplication::removeTranslator(&program.translator));
    switchTo(program, "m_Chinese_Action");
    QCOMPARE(marked(program), QStringLiteral("English, Chinese"));
    QCOMPARE(program.clockButton()->text(), QStringLiteral("Clock Configuration"));
}

void TestLanguage::manualFollowsTheLanguageOrIsMissed()
{
    FormFixture program(UI_ZH);
    const QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/../Documents"));
    const auto open = [&] {
        program.run(QStringLiteral("m_OpenManual_Action"));
        return folder.relativeFilePath(m_opened.toLocalFile());
    };
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "keepUrl");
    QCOMPARE(open(), QStringLiteral("UM_ZN64_Clockwright.pdf"));
    switchTo(program, "m_English_Action");
    QCOMPARE(open(), QStringLiteral("UM_ZN64_Clockwright_EN.pdf"));

    // A handler without that slot stands for a desktop that opens nothing.
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "noSuchSlot");
    DialogAnswers answers{DialogAnswers::press("Ok")};
    open();
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QCOMPARE(answers.shown(), QStringList{QStringLiteral("critical | Error | Can't open user manual! | Ok")});
}

QTEST_MAIN(TestLanguage)
#include "tst_language.moc"
