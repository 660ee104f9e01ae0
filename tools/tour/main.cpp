#include "manualpictures.h"
#include "steps.h"
#include "tour.h"

#include "tools/offscreen.h"
#include "widgets/look.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

namespace {

void wholeTour(Tour& tour)
{
    withoutDesign(tour);
    firstSeries(tour);
    flexibleSeries(tour);
    inChinese(tour);
    everySeries(tour);
    closing(tour);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true);
    QApplication application(argc, argv);
    look::apply();
    look::fixResolution();
    QCommandLineParser arguments;
    arguments.addHelpOption();
    const QCommandLineOption manual(
        QStringLiteral("manual"),
        QStringLiteral("Only take the pictures of the manual in this language, \"en\" or \"zh\"."),
        QStringLiteral("language"));
    arguments.addOption(manual);
    arguments.process(application);
    if (arguments.isSet(manual) && arguments.value(manual) != QLatin1String("en") &&
        arguments.value(manual) != QLatin1String("zh"))
        arguments.showHelp(1);

    // Beside bin/, and nowhere else: the tour empties its folder first.
    const QString language = arguments.value(manual);
    const QString folder =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String("/../") +
                        (language.isEmpty() ? QStringLiteral("tour") : QLatin1String("manual/") + language));
    // On the offscreen platform, on which the manual's pictures are taken.
    dropSizeHintMessages();
    Tour tour(folder);
    if (!language.isEmpty())
        manualPictures(tour, language == QLatin1String("zh") ? UI_ZH : UI_EN);
    else
        wholeTour(tour);
    std::printf("tour: done; screenshots and generated files are in %s\n", qPrintable(folder));
    return 0;
}
