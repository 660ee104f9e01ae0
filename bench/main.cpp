#include "barepage.h"
#include "figures.h"
#include "treebench.h"

#include "model/seriestraits.h"
#include "pages/series/seriespages.h"
#include "preview/FormCodeView.h"
#include "shell/formconfiguration.h"
#include "tools/offscreen.h"
#include "widgets/look.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>

namespace {

constexpr int constructions = 15;
constexpr int quickRuns = 51;

/// Return in the system clock field, with the highest clock or one well below it.
void commitSysclk(ClockTreePage& page, bool high)
{
    auto* edit = page.findChild<QLineEdit*>(QStringLiteral("m_sclk_lineEdit"));
    const double top = page.model().GetSYSCLKValidMaxValue();
    edit->setText(QString::number(high ? top : top * 2.0 / 3.0, 'f', 3));
    emit edit->returnPressed();
}

/// Another wanted clock each time.
void commitSysclk(ClockTreePage& page)
{
    static bool high = false;
    high = !high;
    commitSysclk(page, high);
}

/// The edit's counterpart in plain Qt: as many texts changed.
void changeTexts(const QList<QLineEdit*>& edits)
{
    static int number = 0;
    ++number;
    for (QLineEdit* edit : edits)
        edit->setText(QString::number(number));
}

void writeFiles(const QString& folder)
{
    for (int i = 0; i < 4; ++i) {
        QFile file(folder + QStringLiteral("/bare%1").arg(i));
        if (file.open(QIODevice::WriteOnly | QIODevice::Text))
            file.write(QByteArray(6000, 'x'));
    }
}

void benchEdits(ClockTreePage& page, const BarePage& bare)
{
    const auto plain = bare.build();
    page.resize(1420, 840);
    plain->resize(1420, 840);
    page.show();
    plain->show();
    QApplication::processEvents();
    QList<QLineEdit*> edits;
    for (QGraphicsItem* item : plain->scene()->items())
        if (const auto* proxy = qgraphicsitem_cast<QGraphicsProxyWidget*>(item))
            edits << proxy->widget()->findChildren<QLineEdit*>();

    const double texts = figures::median(quickRuns, [&] { changeTexts(edits); });
    const double frame = figures::median(quickRuns, [&] {
        changeTexts(edits);
        plain->viewport()->repaint();
    });
    figures::print("edit, controls updated", figures::median(quickRuns, [&] { commitSysclk(page); }),
                   "setText on every edit", texts);
    figures::print("edit, painted",
                   figures::median(quickRuns,
                                   [&] {
                                       commitSysclk(page);
                                       page.view()->viewport()->repaint();
                                   }),
                   "the same and a repaint", frame);
    figures::print("pass that changes nothing",
                   figures::median(quickRuns, [&] { static_cast<ClockTree&>(page).UpdateResultControls(); }),
                   "setText on every edit", texts);
}

/// A step of the wheel and a step of a drag, painted on a full screen.
void benchView(ClockTreePage& page)
{
    page.resize(1920, 1080);
    page.show();
    QApplication::processEvents();
    PinGraphicsView* view = page.view();
    const double repaint = figures::median(quickRuns, [&] { view->viewport()->repaint(); });
    bool in = false;
    figures::print("zoom step, painted",
                   figures::median(quickRuns,
                                   [&] {
                                       in = !in;
                                       in ? page.ZoomIn() : page.ZoomOut();
                                       view->viewport()->repaint();
                                   }),
                   "a repaint", repaint);
    view->zoom(2.0F);
    double way = 5.0;
    figures::print("pan step, painted",
                   figures::median(quickRuns,
                                   [&] {
                                       way = -way;
                                       view->translate(QPointF(way, way));
                                       view->viewport()->repaint();
                                   }),
                   "a repaint", repaint);
    page.ZoomReset();
}

/// On a page with both modes of the PLL: an edit that runs the flexible solver.
void benchFlexibleEdit(ClockTreePage& page)
{
    auto* mode = page.findChild<QComboBox*>(QStringLiteral("m_pllmode_ComboBox"));
    if (!mode)
        return;
    const double normal = figures::median(quickRuns, [&] { commitSysclk(page); });
    // The multiplier may have missed the highest clock upward, which a change of mode would refuse.
    commitSysclk(page, false);
    mode->setCurrentIndex(PLLMODE_FLEXIBLE);
    figures::print("edit, flexible mode", figures::median(quickRuns, [&] { commitSysclk(page); }),
                   "in normal mode", normal);
    commitSysclk(page, false);
    mode->setCurrentIndex(PLLMODE_NORMAL);
}

void benchGeneration(ClockTreePage& page, const QString& folder)
{
    QDir(folder).mkpath(QStringLiteral("inc"));
    QDir(folder).mkpath(QStringLiteral("src"));
    page.Set_GenerateCodeMode(MODE_CODE_VIEW);
    const QString stem = page.description().stem();
    figures::print("generating four files",
                   figures::median(constructions,
                                   [&] {
                                       page.model().GenerateCode(folder + QLatin1String("/inc"),
                                                                 folder + QLatin1String("/src"), stem);
                                   }),
                   "writing four files", figures::median(constructions, [&] { writeFiles(folder); }));
    FormCodeView preview(nullptr);
    figures::print("moving to the code page",
                   figures::median(
                       constructions,
                       [&] {
                           page.model().GenerateCode(folder + QLatin1String("/inc"),
                                                     folder + QLatin1String("/src"), stem);
                           preview.LoadCode(seriesName(page.description().series), folder);
                           preview.show();
                           preview.repaint();
                       },
                       [&] { preview.hide(); }),
                   "writing four files", figures::median(constructions, [&] { writeFiles(folder); }));
}

void benchSeries(ZN64MCUSERIALS series, const QString& folder)
{
    std::printf("%s\n", qPrintable(seriesName(series)));
    std::unique_ptr<ClockTreePage> page(createSeriesPage(series, nullptr));
    const BarePage bare(*page, QLatin1String(":/image/") + page->description().pictureName());
    const QString path = folder + QLatin1String("/design.ZNCK");
    page->writeDesign(path, seriesName(series));
    std::unique_ptr<QGraphicsView> plain;
    std::unique_ptr<ClockTreePage> other;
    const std::vector<double> times = figures::medians(
        constructions,
        {[&] { plain = bare.build(); }, [&] { other.reset(createSeriesPage(series, nullptr)); },
         [&] {
             other.reset(createSeriesPage(series, nullptr));
             other->OpenFromFile(path);
         }},
        [&] {
            plain.reset();
            other.reset();
        });
    figures::print("construction", times[1], "bare widgets", times[0]);
    figures::print("opening a design", times[2], "construction", times[1]);
    other.reset();
    benchEdits(*page, bare);
    benchFlexibleEdit(*page);
    benchView(*page);
    benchTree(*page, bare);
    benchGeneration(*page, folder);
}

/// The slowest search over all series and PLL inputs. The baseline is a QString::number() as the results need
/// it.
void benchSolver()
{
    double worst = 0.0;
    for (const SeriesTraits& traits : seriesList()) {
        ZN64ConfigCLK model(traits.series);
        for (double input : {0.5, 1.0, 2.0, 4.0, 8.0, 16.0, 24.0, 25.0}) {
            const double time = figures::median(5, [&] {
                model.Set_SYSCLKValue(traits.sysclkMax - 0.123);
                model.CalculateParam_From_ResultCLK_Flexible_SYSCLK(input);
            });
            worst = std::max(worst, time);
        }
    }
    const double number = figures::median(quickRuns, [] {
        for (int i = 0; i < 1000; ++i)
            QString::number(i / 7.0, 'f', 3);
    });
    figures::print("worst flexible solve", worst, "1000 x QString::number", number);
}

void benchWindow()
{
    std::unique_ptr<QWidget> window;
    const auto firstPaint = [&](const std::function<QWidget*()>& make) {
        return figures::median(
            5,
            [&] {
                window.reset(make());
                window->show();
                QApplication::processEvents();
                window->repaint();
            },
            [&] { window.reset(); });
    };
    const double empty = firstPaint([] {
        auto* widget = new QWidget;
        widget->setWindowState(Qt::WindowMaximized);
        return widget;
    });
    figures::print("first paint of the window", firstPaint([] { return new FormConfiguration; }),
                   "an empty QWidget", empty);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    dropSizeHintMessages();
    QApplication application(argc, argv);
    look::apply();
    QTemporaryDir folder;
    const QStringList wanted = application.arguments().mid(1);
    for (const SeriesTraits& traits : seriesList())
        if (wanted.isEmpty() || wanted.contains(QLatin1String(traits.word)))
            benchSeries(traits.series, folder.path());
    std::printf("All series\n");
    benchSolver();
    benchWindow();
    return 0;
}
