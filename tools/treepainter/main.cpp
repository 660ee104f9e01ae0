#include "builder.h"
#include "checks.h"
#include "inventory.h"
#include "picture.h"
#include "review.h"

#include "model/seriestraits.h"
#include "pages/series/seriespages.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QFontInfo>
#include <QLoggingCategory>

#include <cstdio>

namespace {

void say(const QString& message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
}

/// The places on the pages are made for the widths of Arial; a wider font pushes labels across wires.
void tellFont()
{
    const QString family = QFontInfo(QFont(QStringLiteral("Arial"))).family();
    if (family != QLatin1String("Arial") && family != QLatin1String("Liberation Sans"))
        say(QStringLiteral("Arial is drawn as %1: install the Liberation fonts").arg(family));
}

/// The page of the series, shown in the window; null, after telling, for a series without a page.
ClockTreePage* showPage(const QString& series, QWidget& window)
{
    const SeriesTraits* traits = seriesByName(QLatin1String("ZN64") + series);
    // The program's windows lend this sheet to their pages, and sheets change the sizes of controls.
    window.setStyleSheet(QStringLiteral("background-color: rgb(255, 255, 255);"));
    ClockTreePage* page = traits ? createSeriesPage(traits->series, &window) : nullptr;
    if (page)
        window.show();
    else
        say(QStringLiteral("there is no page for the series %1").arg(series));
    return page;
}

int list(const QString& series)
{
    QWidget window;
    ClockTreePage* page = showPage(series, window);
    if (!page)
        return 1;
    layoutOf(*page); // lets the sizes settle
    std::fputs(qPrintable(inventoryOf(*page)), stdout);
    return 0;
}

int paint(const QString& series, const QString& tree, const QString& output, const QString& review)
{
    QWidget window;
    ClockTreePage* page = showPage(series, window);
    if (!page)
        return 1;
    PageLayout layout = layoutOf(*page);
    Problems problems;
    const Drawing drawing = buildDrawing(readTree(tree, problems), layout, problems);
    checkDrawing(drawing, layout, QFileInfo(tree).fileName(), problems);
    for (const Problem& problem : problems)
        say(problem.text());
    const QImage picture = paintPicture(drawing, layout.size);
    if (!review.isEmpty() && !writeReview(*page, picture, review)) {
        say(QStringLiteral("%1 cannot be written").arg(review));
        return 1;
    }
    if (!problems.empty()) {
        tellFont();
        return 1;
    }
    if (!picture.save(output, "BMP")) {
        say(QStringLiteral("%1 cannot be written").arg(output));
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    // The offscreen platform warns of every control on the scene.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    QApplication application(argc, argv);
    QCommandLineParser arguments;
    arguments.setApplicationDescription(QStringLiteral("Paints the picture of a series' clock tree."));
    arguments.addHelpOption();
    arguments.addPositionalArgument(QStringLiteral("series"),
                                    QStringLiteral("The series word, such as G110."));
    arguments.addPositionalArgument(QStringLiteral("tree"), QStringLiteral("The text of the tree."));
    arguments.addPositionalArgument(QStringLiteral("output"), QStringLiteral("The bitmap to write."));
    const QCommandLineOption review(
        QStringLiteral("review"),
        QStringLiteral("Also write the page with its picture to <base>-100.png and "
                       "<base>-200.png, even of a tree with faults."),
        QStringLiteral("base"));
    arguments.addOption(review);
    const QCommandLineOption inventory(
        QStringLiteral("list"),
        QStringLiteral("Only print what the page of the series holds; takes neither tree nor output."));
    arguments.addOption(inventory);
    arguments.process(application);
    const QStringList files = arguments.positionalArguments();
    if (arguments.isSet(inventory) && files.size() == 1)
        return list(files[0]);
    if (files.size() != 3)
        arguments.showHelp(1);
    return paint(files[0], files[1], files[2], arguments.value(review));
}
