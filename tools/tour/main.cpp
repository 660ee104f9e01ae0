#include "steps.h"
#include "tour.h"

#include "widgets/look.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true);
    QApplication application(argc, argv);
    look::apply();
    const QString folder =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String("/../tour"));
    Tour tour(folder);
    withoutDesign(tour);
    firstSeries(tour);
    flexibleSeries(tour);
    inChinese(tour);
    everySeries(tour);
    closing(tour);
    std::printf("tour: done; screenshots and generated files are in %s\n", qPrintable(folder));
    return 0;
}
