#include "inventory.h"

#include "model/seriestraits.h"
#include "pages/ClockTreePage.h"

#include <QFile>
#include <QGraphicsProxyWidget>
#include <QGroupBox>
#include <QLayout>
#include <QTemporaryDir>

namespace {

QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString fontOf(const QWidget& control)
{
    const QFont font = control.font();
    return QStringLiteral("%1 %2 w%3").arg(font.family()).arg(font.pointSize()).arg(font.weight());
}

QString describeCombo(const QComboBox& combo)
{
    QStringList items;
    for (int i = 0; i < combo.count(); ++i)
        items << quoted(combo.itemText(i));
    return QStringLiteral("index %1 of %2").arg(combo.currentIndex()).arg(items.join(QLatin1String(", ")));
}

QString describeEdit(const QLineEdit& edit)
{
    return quoted(edit.text()) + QLatin1String(edit.isReadOnly() ? " read-only" : "") +
           QStringLiteral(" max %1").arg(edit.maxLength()) + QLatin1Char(' ') + fontOf(edit);
}

QString describeList(const QWidget& box)
{
    QStringList texts;
    for (const QLabel* label : box.findChildren<QLabel*>())
        texts << quoted(label->text());
    return texts.join(QLatin1String(", ")) + QStringLiteral(" spacing %1").arg(box.layout()->spacing());
}

QString describe(const QWidget& control)
{
    if (const auto* combo = qobject_cast<const QComboBox*>(&control))
        return QLatin1String("combo ") + describeCombo(*combo);
    if (const auto* edit = qobject_cast<const QLineEdit*>(&control))
        return QLatin1String("edit ") + describeEdit(*edit);
    if (const auto* radio = qobject_cast<const QRadioButton*>(&control))
        return QLatin1String(radio->isChecked() ? "radio checked" : "radio");
    if (const auto* label = qobject_cast<const QLabel*>(&control))
        return QLatin1String("label ") + quoted(label->text()) + QLatin1Char(' ') + fontOf(*label);
    if (const auto* button = qobject_cast<const QPushButton*>(&control))
        return QLatin1String("button ") + quoted(button->text());
    return QLatin1String("list ") + describeList(control);
}

/// The name of the control; a list of peripherals is named at its wrapper.
QString nameOf(const QWidget& control)
{
    const QString name =
        qobject_cast<const QGroupBox*>(&control) ? control.window()->objectName() : control.objectName();
    return name.isEmpty() ? QStringLiteral("(no name)") : name;
}

QString controlsOf(const ClockTreePage& page)
{
    QString lines;
    for (const QGraphicsItem* item : page.view()->scene()->items(Qt::AscendingOrder)) {
        const auto* proxy = qgraphicsitem_cast<const QGraphicsProxyWidget*>(item);
        const QLayout* layout = proxy && proxy->widget() ? proxy->widget()->layout() : nullptr;
        const QWidget* control = layout && layout->count() > 0 ? layout->itemAt(0)->widget() : nullptr;
        if (!control)
            continue;
        const bool shown = !control->isHidden() && !control->window()->isHidden();
        lines += QStringLiteral("%1 at (%2, %3) %4 by %5 z %6%7%8: %9\n")
                     .arg(nameOf(*control))
                     .arg(proxy->x())
                     .arg(proxy->y())
                     .arg(control->width())
                     .arg(control->height())
                     .arg(proxy->zValue())
                     .arg(QLatin1String(shown ? "" : " hidden"),
                          QLatin1String(control->isEnabled() ? "" : " grey"), describe(*control));
    }
    return lines;
}

QString startDesign(const ClockTreePage& page)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("start.ZNCK")));
    page.writeDesign(file.fileName(), seriesName(page.description().series));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QStringLiteral("unwritten");
}

QString describe(const Limit& limit, const char* list)
{
    const QString words =
        limit.question
            ? QLatin1String("asks ") + quoted(QLatin1String(limit.question))
            : QStringLiteral("%1 %2MHz").arg(QLatin1String(limits::refusal(limit))).arg(limit.shown);
    const char* const bounds[] = {"above", "in normal mode below", "unless exactly"};
    return QStringLiteral("%1: %2 %3 %4 (%5)\n")
        .arg(QLatin1String(list), clockName(limit.clock),
             QLatin1String(bounds[static_cast<int>(limit.bound)]))
        .arg(limit.compared)
        .arg(words);
}

QString limitsOf(const PageDescription& page)
{
    const TypedSclk& typed = page.typedSclk;
    QString lines = QStringLiteral("typed sclk: %1 to %2\n")
                        .arg(typed.lowest ? QString::number(*typed.lowest) : QStringLiteral("any"))
                        .arg(typed.highest);
    for (const Limit& limit : page.painted)
        lines += describe(limit, "painted");
    for (const Limit& limit : page.onSaving)
        lines += describe(limit, "saving");
    for (const Limit& limit : page.onGenerating)
        lines += describe(limit, "generating");
    if (page.generatedApb3)
        lines += QStringLiteral("generating refuses AHB by apb3div above %1\n").arg(*page.generatedApb3);
    return lines;
}

QString peripheralsOf(const PageDescription& page)
{
    QString lines;
    for (const PeripheralClock& clock : page.peripherals) {
        QStringList sources;
        for (const PeripheralSource& source : clock.sources)
            sources << QStringLiteral("%1=%2 shows %3, red by %4")
                           .arg(QLatin1String(source.name))
                           .arg(source.number)
                           .arg(clockName(source.shown), clockName(source.limited));
        lines += QStringLiteral("%1: red above %2; %3\n")
                     .arg(QLatin1String(clock.stem))
                     .arg(*clock.limit)
                     .arg(sources.join(QLatin1String("; ")));
    }
    return lines;
}

QString startValuesOf(const ClockTreePage& page)
{
    QStringList values;
    for (const SettingRow& row : page.startOrder())
        values << QStringLiteral("%1=%2").arg(row.name).arg(row.start);
    return QLatin1String("started in the order: ") + values.join(QLatin1Char(' ')) + QLatin1Char('\n');
}

} // namespace

QString clockName(ClockSource clock)
{
    const char* const names[] = {"none", "untold", "outside", "lick",       "lext",  "hick",       "hext",
                                 "sclk", "ahb",    "apb1",    "apb1 timer", "apb2",  "apb2 timer", "apb3",
                                 "adc",  "usb",    "pll",     "pll/2",      "pll/4", "pllu",       "usb phy"};
    return QLatin1String(names[static_cast<int>(clock)]);
}

QString inventoryOf(ClockTreePage& page)
{
    const PageDescription& description = page.description();
    return QStringLiteral("series %1\npicture %2, %3 by %4\nstem %5\n\n")
               .arg(seriesName(description.series), description.pictureName())
               .arg(description.pictureSize.width())
               .arg(description.pictureSize.height())
               .arg(description.stem()) +
           controlsOf(page) + QLatin1Char('\n') + limitsOf(description) + peripheralsOf(description) +
           QLatin1Char('\n') + startValuesOf(page) + startDesign(page) +
           QLatin1String("\n\nread in the order: ") + page.readingOrder().join(QLatin1Char(' ')) +
           QLatin1Char('\n');
}
