#include "shell/formconfiguration.h"
#include "testdata.h"

#include <QApplication>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

/// The program's own main(), under another name.
int clockwrightMain(int argc, char* argv[]);

namespace {

QString menus;

/// "Menu: entry, entry | Menu: entry", with a star at the entries that carry a mark.
QString describe(const QMenuBar* bar)
{
    QStringList lines;
    for (const QAction* menu : bar->actions()) {
        QStringList entries;
        for (const QAction* each : menu->menu()->actions())
            entries += each->text() + (each->isChecked() ? "*"_s : QString());
        lines += menu->text() + ": "_s + entries.join(", "_s);
    }
    return lines.join(" | "_s);
}

void lookAndLeave()
{
    QTimer::singleShot(0, QCoreApplication::instance(), [] {
        for (const QWidget* each : QApplication::topLevelWidgets())
            if (qobject_cast<const FormConfiguration*>(each) && each->isVisible())
                menus = describe(each->findChild<QMenuBar*>());
        QCoreApplication::quit();
    });
}
Q_COREAPP_STARTUP_FUNCTION(lookAndLeave)

} // namespace

/// What the user meets when the program has started, by the locale of the machine.
class TestStart : public QObject
{
    Q_OBJECT

private slots:
    void languageAndMenus_data();
    void languageAndMenus();
};

void TestStart::languageAndMenus_data()
{
    QTest::addColumn<bool>("chinese");
    for (const char* locale : {"zh_CN", "zh_TW", "zh_HK", "en_US", "de_DE", "ja_JP", "en_CN", "C"})
        QTest::newRow(locale) << QByteArray(locale).startsWith("zh");
}

void TestStart::languageAndMenus()
{
    QFETCH(bool, chinese);
    menus.clear();
    QLocale::setDefault(QLocale(QLatin1String(QTest::currentDataTag())));
    char name[] = "clockwright";
    char* arguments[] = {name, nullptr};
    QCOMPARE(clockwrightMain(1, arguments), 0);
    QCOMPARE(
        menus,
        chinese
            ? "项目: 新建, 打开, 保存 | 语言: 英文, 简体中文* | 生成代码: 生成代码 | 帮助: 打开手册, 新版本下载, 版本"_s
            : "Project: New, Open, Save | Language: English*, Chinese | Generate code: Generate code | "
              "Help: Open Manual, New version download, Version"_s);
}

QTEST_APPLESS_MAIN(TestStart)
#include "tst_start.moc"
