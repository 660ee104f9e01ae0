#include "canvas/accessibletree.h"
#include "shell/formconfiguration.h"
#include "widgets/look.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QTranslator>

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    // The names under which desktops look for the entry of a window: the first on X11, where a link to the
    // program would otherwise change it, the second on Wayland.
    QCoreApplication::setApplicationName(QStringLiteral("zn64-clockwright"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.clockwright.ZN64Clockwright"));

    QTranslator translator;
    const LANGUAGE language = QLocale().language() == QLocale::Chinese ? UI_ZH : UI_EN;
    const bool loaded = translator.load(translationTable(language));

    QApplication application(argc, argv);
    look::apply();
    look::fixResolution();
    accessibletree::install();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/image/ZN64_tool_CRM.ico.ico")));
    installFurtherTables(language);
    if (loaded)
        QCoreApplication::installTranslator(&translator);

    FormConfiguration form;
    form.SetLanguage(language);
    form.SetQTranslator(&translator);
    form.show();
    return QApplication::exec();
}
