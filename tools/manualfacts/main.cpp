#include "seriesfacts.h"

#include "export/treeexport.h"
#include "files/replacefile.h"
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
        // The controls take the sizes of their texts.
        QCoreApplication::processEvents();
        const QByteArray picture = treeexport::svg(*page, treeexport::wholeOf(*page), traits.name());
        if (!replaceFile(folder.filePath(QLatin1String(traits.word) + QLatin1String(".svg")), picture))
            return false;
    }
    return replaceFile(folder.filePath(QStringLiteral("series.json")), QJsonDocument(all).toJson());
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
