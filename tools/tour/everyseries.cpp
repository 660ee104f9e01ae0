#include "steps.h"

#include "tour.h"

#include "model/seriestraits.h"
#include "pages/series/seriespages.h"

#include <QRegularExpression>

namespace {

/// Opens the start design of the series, from a file as a fresh page writes it.
void openStart(Tour& tour, const SeriesTraits& traits)
{
    const QString file = tour.path(traits.name() + QLatin1String(".ZNCK"));
    const std::unique_ptr<ClockTreePage> page(createSeriesPage(traits.series, nullptr));
    tour.expect(page->writeDesign(file, traits.name()), QStringLiteral("the tour can write its design"));
    tour.withDialogs({tour.answer(QStringLiteral("warning | Warning | The current configuration will be "
                                                 "closed. Please confirm whether to continue? | Cancel, Yes"),
                                  "Yes"),
                      tour.chooseFile(QStringLiteral("Open"), file)},
                     [&] { tour.clickMenu("m_FileMenu", "m_Open_Action"); });
    tour.expectText("m_ClockConfig_PushButton", QLatin1String("Clock Configuration---") + traits.name());
    tour.expectText("m_sclk_lineEdit", QString::number(page->model().Get_SYSCLKValue(), 'f', 3));
}

/// Sets every switch and pin of the page, so that nothing of the tree is grey that can be on.
void switchEverythingOn(Tour& tour)
{
    static const QRegularExpression switches(QStringLiteral("^m_(.*switch|tortc|clockout\\d?pin)_ComboBox$"));
    for (const auto* combo : tour.form().findChildren<QComboBox*>(switches)) {
        const int on = qMax(combo->findText(QStringLiteral("enable")), 0);
        const bool pin = combo->objectName().contains(QLatin1String("pin"));
        tour.choose(combo->objectName().toLatin1().constData(), combo->itemText(pin ? 1 : on));
    }
}

} // namespace

void everySeries(Tour& tour)
{
    for (const SeriesTraits& traits : seriesList()) {
        const QByteArray word = QByteArray(traits.word).toLower();
        tour.step((word + ": opened, everything on").constData());
        openStart(tour, traits);
        tour.shoot((word + "-start").constData());
        if (tour.form().findChild<QComboBox*>(QStringLiteral("m_pllmode_ComboBox"))) {
            tour.choose("m_pllmode_ComboBox", QStringLiteral("flexible"));
            tour.expect(!tour.control<QWidget>("m_pllmult_ComboBox")->isVisible() &&
                            tour.control<QWidget>("m_pllms_lineEdit")->isVisible(),
                        QStringLiteral("the flexible mode shows its own fields"));
        }
        switchEverythingOn(tour);
        tour.shoot((word + "-on").constData());
    }
}
