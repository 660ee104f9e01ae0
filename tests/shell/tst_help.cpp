#include "formfixture.h"

#include "update/onlineupdate.h"

#include <QDesktopServices>
#include <QDir>
#include <QLabel>
#include <QUrl>

/// The Help menu: the about box and the manual.
class TestHelp : public QObject
{
    Q_OBJECT

public slots:
    void keepUrl(const QUrl& url) { m_opened = url; }

private slots:
    void aboutNamesTheVersionOfTheUpdateCheck();
    void manualFollowsTheCurrentLanguage();
    void manualThatCannotBeOpenedIsTold();

private:
    QUrl m_opened;
};

void TestHelp::aboutNamesTheVersionOfTheUpdateCheck()
{
    FormFixture program;
    QStringList lines;
    DialogAnswers answers{[&](QDialog* dialog) {
        for (const QLabel* each : dialog->findChildren<QLabel*>())
            lines += each->text();
        dialog->close();
    }};
    program.trigger("m_Version_Action");
    QCOMPARE(answers.shown(), QStringList{QStringLiteral("About")});
    QVERIFY(lines.contains(QStringLiteral("ZN64 Clockwright")));

    const QString version = lines.filter(QRegularExpression(QStringLiteral("^V\\d"))).value(0);
    QCOMPARE(FormConfiguration::VersionString2Int(version.mid(1)), ProgramVersion);
    QCOMPARE(program.form.windowTitle(), QStringLiteral("Velmora Clockwright ") + version);
}

void TestHelp::manualFollowsTheCurrentLanguage()
{
    FormFixture program(UI_ZH);
    const QString folder =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../Documents/"));
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "keepUrl");
    program.trigger("m_OpenManual_Action");
    QCOMPARE(QDir::cleanPath(m_opened.toLocalFile()), folder + QStringLiteral("/UM_ZN64_Clockwright.pdf"));
    program.trigger("m_English_Action");
    program.trigger("m_OpenManual_Action");
    QCOMPARE(QDir::cleanPath(m_opened.toLocalFile()), folder + QStringLiteral("/UM_ZN64_Clockwright_EN.pdf"));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

void TestHelp::manualThatCannotBeOpenedIsTold()
{
    FormFixture program;
    // A handler without that slot stands for a desktop that opens nothing.
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "noSuchSlot");
    DialogAnswers answers{DialogAnswers::press("Ok")};
    program.trigger("m_OpenManual_Action");
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QCOMPARE(answers.shown(), QStringList{QStringLiteral("critical | Error | Can't open user manual! | Ok")});
}

QTEST_MAIN(TestHelp)
#include "tst_help.moc"
