#include "shell/formconfiguration.h"
#include "testdata.h"

#include <QApplication>
#include <QFileDialog>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

/// The program's own main(), under another name.
int clockwrightMain(int argc, char* argv[]);

namespace {

QString menus;
QString lookIn;
QStringList faintColors;

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

/// The light texts and the dark grounds of the palette.
QStringList faintColorsOf(const QPalette& palette)
{
    using P = QPalette;
    QStringList faint;
    for (P::ColorGroup group : {P::Active, P::Inactive, P::Disabled}) {
        const auto light = [&](P::ColorRole role) { return qGray(palette.color(group, role).rgb()) > 180; };
        for (P::ColorRole text :
             {P::WindowText, P::Text, P::ButtonText, P::PlaceholderText, P::Link, P::ToolTipText})
            faint += light(text) ? QStringList("text %1"_s.arg(text)) : QStringList();
        for (P::ColorRole ground : {P::Window, P::Base, P::Button, P::AlternateBase, P::ToolTipBase})
            faint += light(ground) ? QStringList() : QStringList("ground %1"_s.arg(ground));
    }
    return faint;
}

void lookAndLeave()
{
    // The desktop is dark, and has colours of its own for menus.
    QApplication::setPalette(QColor(40, 40, 40));
    QApplication::setPalette(QColor(40, 40, 40), "QMenu");
    QTimer::singleShot(0, QCoreApplication::instance(), [] {
        for (const QWidget* each : QApplication::topLevelWidgets())
            if (qobject_cast<const FormConfiguration*>(each) && each->isVisible()) {
                lookIn = QFileDialog::tr("Look in:");
                menus = describe(each->findChild<QMenuBar*>());
                faintColors =
                    faintColorsOf(QApplication::palette()) + faintColorsOf(QApplication::palette("QMenu"));
            }
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
    QCOMPARE(lookIn, chinese ? "查找范围："_s : "Look in:"_s);
    QCOMPARE(faintColors, QStringList());
    QCOMPARE(
        menus,
        chinese
            ? "项目: 新建, 打开, 保存 | 语言: 英文, 简体中文* | 生成代码: 生成代码 | 帮助: 打开手册, 新版本下载, 版本"_s
            : "Project: New, Open, Save | Language: English*, Chinese | Generate code: Generate code | "
              "Help: Open Manual, New version download, Version"_s);
}

QTEST_APPLESS_MAIN(TestStart)
#include "tst_start.moc"
