#include "builder.h"
#include "checks.h"
#include "inventory.h"
#include "names.h"
#include "picture.h"
#include "review.h"
#include "seriestree.h"

#include "model/seriestraits.h"
#include "pages/series/seriespages.h"
#include "tools/offscreen.h"
#include "widgets/look.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QFontInfo>

#include <cstdio>
#include <optional>

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

/// "G110PLL.bmp" -> "G110PLL@2x.bmp", the name that tells image readers of the pixel ratio, or
/// "G110PLL.figures".
QString besides(const QString& output, const char* ending)
{
    const QFileInfo file(output);
    return file.path() + QLatin1Char('/') + file.completeBaseName() + QLatin1String(ending);
}

bool save(const tree::Picture& figures, const QString& path)
{
    QFile file(path);
    QDataStream stream(&file);
    if (file.open(QIODevice::WriteOnly))
        stream << figures;
    if (file.isOpen() && stream.status() == QDataStream::Ok && file.flush())
        return true;
    say(QStringLiteral("%1 cannot be written").arg(path));
    return false;
}

bool save(const QImage& picture, const QString& path)
{
    if (picture.save(path, "BMP"))
        return true;
    say(QStringLiteral("%1 cannot be written").arg(path));
    return false;
}

/// A line for every control: what trees can name, and where it stands.
void list(const std::vector<PageLayout>& states)
{
    for (const PageLayout& state : states) {
        if (!state.state.isEmpty())
            std::printf("%s\n", qPrintable(state.state));
        for (const PlacedControl& control : state.controls) {
            const QRectF& rect = control.rect;
            std::printf("%-36s x %g to %g, y %g to %g, middle %g, %g %s\n", qPrintable(control.name),
                        rect.left(), rect.right(), rect.top(), rect.bottom(), rect.center().x(),
                        rect.center().y(), qPrintable(control.bus));
        }
    }
}

struct Task
{
    QString pages; ///< the folder with the texts of the parts
    QString output;
    QString review; ///< base of the pictures of the page; empty for none
    bool places = false;
};

int paint(ClockTreePage& page, const Task& task)
{
    const std::vector<PageLayout> states = layoutsOf(page);
    if (task.places)
        list(states);
    PageLayout all = together(states);
    Problems problems;
    const PageDescription& series = page.description();
    Drawing drawing = buildDrawing(treeOf(series, task.pages, problems), all, problems);
    nameSignals(drawing, states, series, problems);
    checkDrawing(drawing, states, series.word(), problems);
    for (const QString& name : page.unusedPlaces())
        problems.push_back({
            {series.word(), 0},
            QStringLiteral("%1 has a place, and no routine makes it").arg(name)
        });
    for (const Problem& problem : problems)
        say(problem.text());
    const tree::Picture figures = pictureOf(drawing, all.size);
    const QImage picture = paintPicture(figures);
    const QImage doubled = paintPicture(figures, 2);
    if (!task.review.isEmpty() && !writeReview(page, picture, doubled, task.review)) {
        say(QStringLiteral("%1 cannot be written").arg(task.review));
        return 1;
    }
    if (!problems.empty()) {
        tellFont();
        return 1;
    }
    return save(picture, task.output) && save(doubled, besides(task.output, "@2x.bmp")) &&
                   save(figures, besides(task.output, ".figures"))
               ? 0
               : 1;
}

/// Paints the series' tree; without a task it lists what the page holds.
int workOn(const QString& series, const std::optional<Task>& task)
{
    const SeriesTraits* traits = seriesByName(QLatin1String("ZN64") + series);
    // The program's windows lend this sheet to their pages, and sheets change the sizes of controls.
    QWidget window;
    window.setStyleSheet(QStringLiteral("background-color: rgb(255, 255, 255);"));
    ClockTreePage* page = traits ? createSeriesPage(traits->series, &window) : nullptr;
    if (!page) {
        say(QStringLiteral("there is no page for the series %1").arg(series));
        return 1;
    }
    window.show();
    if (task)
        return paint(*page, *task);
    layoutsOf(*page); // lets the sizes settle
    std::fputs(qPrintable(inventoryOf(*page)), stdout);
    return 0;
}

/// Lists what the page of the series holds, or those of all.
int listSeries(QStringList words)
{
    if (words.isEmpty())
        for (const SeriesTraits& traits : seriesList())
            words << QLatin1String(traits.word);
    for (const QString& word : words)
        if (workOn(word, {}) != 0)
            return 1;
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    dropSizeHintMessages();
    QApplication application(argc, argv);
    look::apply();
    QCommandLineParser arguments;
    arguments.setApplicationDescription(QStringLiteral("Paints the picture of a series' clock tree."));
    arguments.addHelpOption();
    arguments.addPositionalArgument(QStringLiteral("series"),
                                    QStringLiteral("The series word, such as G110."));
    arguments.addPositionalArgument(
        QStringLiteral("pages"),
        QStringLiteral("The folder of the pages, with the texts of the trees' parts."));
    arguments.addPositionalArgument(
        QStringLiteral("output"),
        QStringLiteral("The bitmap to write, and beside it its @2x and its figures."));
    const QCommandLineOption review(
        QStringLiteral("review"),
        QStringLiteral("Also write the page with its picture to <base>-100.png and "
                       "<base>-200.png, even of a tree with faults."),
        QStringLiteral("base"));
    const QCommandLineOption places(QStringLiteral("places"),
                                    QStringLiteral("Also list the page's controls with their places."));
    const QCommandLineOption inventory(
        QStringLiteral("list"),
        QStringLiteral(
            "Only print what the page of the series holds, or all pages; takes neither pages nor output."));
    arguments.addOptions({review, places, inventory});
    arguments.process(application);
    const QStringList files = arguments.positionalArguments();
    if (arguments.isSet(inventory) && files.size() <= 1)
        return listSeries(files);
    if (files.size() != 3)
        arguments.showHelp(1);
    return workOn(files[0], Task{files[1], files[2], arguments.value(review), arguments.isSet(places)});
}
