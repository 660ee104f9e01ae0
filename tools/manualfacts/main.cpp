#include "seriesfacts.h"

#include "model/seriestraits.h"
#include "pages/series/seriespages.h"
#include "shell/MCUSelect_Form.h"
#include "tools/offscreen.h"
#include "widgets/look.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

#include <cstdio>

namespace {

/// The product line under which the dialog offers each series; the series that it does not offer are missing.
QHash<QString, QString> linesOfDialog()
{
    QHash<QString, QString> lines;
    MCUSelect_Form dialog(nullptr);
    auto* line = dialog.findChild<QComboBox*>(QStringLiteral("m_ProductLine_ComboBox"));
    const auto* series = dialog.findChild<QComboBox*>(QStringLiteral("m_MCUSerial_ComboBox"));
    for (int i = 0; i < line->count(); ++i) {
        line->setCurrentIndex(i);
        for (int k = 0; k < series->count(); ++k)
            lines.insert(series->itemText(k), line->currentText());
    }
    return lines;
}

/// The page in its start state, as large as its picture, in twice the pixels if the platform has such.
bool savePicture(ClockTreePage& page, const QString& path)
{
    const QSize size = page.description().pictureSize;
    QGraphicsView* view = page.view();
    view->setSceneRect(QRectF(QPointF(), size));
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    page.window()->resize(size);
    page.resize(size);
    QCoreApplication::processEvents();
    // Without an alpha channel, which a PDF would hold as a second image, and packed in haste: the maker of
    // the PDF packs it again.
    constexpr int hastyPng = 90;
    return view->viewport()
        ->grab()
        .toImage()
        .convertToFormat(QImage::Format_RGB32)
        .save(path, "PNG", hastyPng);
}

bool writeJson(const QJsonArray& all, const QString& path)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(all).toJson()) > 0 && file.commit();
}

bool writeFacts(const QDir& folder)
{
    const QHash<QString, QString> lines = linesOfDialog();
    QJsonArray all;
    for (const SeriesTraits& traits : seriesList()) {
        // The program's windows lend this sheet to their pages.
        QWidget window;
        window.setStyleSheet(QStringLiteral("background-color: rgb(255, 255, 255);"));
        ClockTreePage* page = createSeriesPage(traits.series, &window);
        window.show();
        QJsonObject facts = factsOf(*page);
        facts.insert(QStringLiteral("line"), lines.value(traits.name()));
        all.append(facts);
        if (!savePicture(*page, folder.filePath(QLatin1String(traits.word) + QLatin1String(".png"))))
            return false;
    }
    return writeJson(all, folder.filePath(QStringLiteral("series.json")));
}

} // namespace

int main(int argc, char* argv[])
{
    dropSizeHintMessages();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    QApplication application(argc, argv);
    look::apply();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("usage: manualfacts FOLDER\n", stderr);
        return 1;
    }
    const QDir folder(arguments[1]);
    if (folder.mkpath(QStringLiteral(".")) && writeFacts(folder))
        return 0;
    std::fprintf(stderr, "%s cannot be written\n", qPrintable(folder.path()));
    return 1;
}
