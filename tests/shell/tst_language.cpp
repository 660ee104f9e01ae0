#include "formfixture.h"

#include <QLineEdit>
#include <QMenu>

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

private slots:
    void switchTranslatesEveryState_data();
    void switchTranslatesEveryState();
    void activeLanguageKeepsItsMark();
    void pageKeepsItsTextsAndNextBoxSpeaksTheNewLanguage();
    void withoutATranslatorBothEntriesStayChecked();

private:
    static bool checked(FormFixture& program, const char* action)
    {
        return program.form.findChild<QAction*>(QLatin1String(action))->isChecked();
    }
    static QString title(FormFixture& program, const char* menu)
    {
        return program.form.findChild<QMenu*>(QLatin1String(menu))->title();
    }
    static void switchTo(FormFixture& program, const char* action)
    {
        program.trigger(action);
        QCoreApplication::processEvents();
    }
};

void TestLanguage::switchTranslatesEveryState_data()
{
    QTest::addColumn<bool>("design");
    QTest::addColumn<bool>("codePage");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("no design") << false << false << QString();
    QTest::newRow("clock page") << true << false << QStringLiteral("---ZN64G150");
    QTest::newRow("code page") << true << true << QStringLiteral("---ZN64G150");
}

void TestLanguage::switchTranslatesEveryState()
{
    QFETCH(bool, design);
    QFETCH(bool, codePage);
    QFETCH(QString, suffix);
    FormFixture program;
    if (design) {
        DialogAnswers answers{FormFixture::pick(QStringLiteral("ZN64G150"))};
        program.trigger("m_New_Action");
    }
    if (codePage)
        program.codeButton()->click();
    const QPointer<QWidget> page = program.design();

    switchTo(program, "m_Chinese_Action");
    QCOMPARE(program.clockButton()->text(), zh("时钟配置") + suffix);
    QCOMPARE(program.codeButton()->text(), zh("代码预览"));
    QCOMPARE(title(program, "m_FileMenu"), zh("项目"));
    QCOMPARE(title(program, "m_HelpMenu"), zh("帮助"));
    for (const QAction* each : program.form.findChildren<QAction*>(QStringLiteral("m_ZoomIn_Action")))
        QCOMPARE(each->text(), zh("放大"));
    QVERIFY(!checked(program, "m_English_Action") && checked(program, "m_Chinese_Action"));
    QCOMPARE(program.showsCodePage(), codePage);
    QCOMPARE(program.design(), page.data());

    switchTo(program, "m_English_Action");
    QCOMPARE(program.clockButton()->text(), QStringLiteral("Clock Configuration") + suffix);
    QCOMPARE(title(program, "m_LanguageMenu"), QStringLiteral("Language"));
    QVERIFY(checked(program, "m_English_Action") && !checked(program, "m_Chinese_Action"));
}

void TestLanguage::activeLanguageKeepsItsMark()
{
    FormFixture program(UI_ZH);
    switchTo(program, "m_Chinese_Action");
    QVERIFY(!checked(program, "m_English_Action") && checked(program, "m_Chinese_Action"));
    QCOMPARE(program.clockButton()->text(), zh("时钟配置"));
}

void TestLanguage::pageKeepsItsTextsAndNextBoxSpeaksTheNewLanguage()
{
    FormFixture program;
    DialogAnswers answers{FormFixture::pick(QStringLiteral("ZN64G150"))};
    program.trigger("m_New_Action");
    auto* list = program.design()->findChild<QPushButton*>(QStringLiteral("m_toapb1peripheral_List_Button"));
    const QString before = list->text();
    switchTo(program, "m_Chinese_Action");
    QCOMPARE(list->text(), before);

    answers.add(DialogAnswers::press("取消"));
    program.trigger("m_ConfigReset_Action");
    QCOMPARE(answers.shown().last(), zh("warning | 警告 | 将重置当前项目，是否继续？ | 取消, 确定"));
    auto* edit = program.design()->findChild<QLineEdit*>(QStringLiteral("m_hext_lineEdit"));
    edit->setText(QStringLiteral("3"));
    answers.add(DialogAnswers::press("确定"));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(answers.shown().last(), zh("critical | 错误 | hext 输入错误！ | 确定"));
}

void TestLanguage::withoutATranslatorBothEntriesStayChecked()
{
    FormFixture program;
    QVERIFY(QCoreApplication::removeTranslator(&program.translator));
    switchTo(program, "m_Chinese_Action");
    QVERIFY(checked(program, "m_English_Action") && checked(program, "m_Chinese_Action"));
    QCOMPARE(program.clockButton()->text(), QStringLiteral("Clock Configuration"));
}

QTEST_MAIN(TestLanguage)
#include "tst_language.moc"
