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

QString limitsOf(const PageDescription& page)
{
    const PageLimits& limits = page.limits;
    QString lines =
        QStringLiteral("typed sclk: %1 to %2\n")
            .arg(limits.lowestSysclk ? QString::number(*limits.lowestSysclk) : QStringLiteral("any"))
            .arg(limits.sysclk);
    lines += QStringLiteral("painted: apb1 %1 apb2 %2 pll %3 adc %4\n")
                 .arg(limits.apb1)
                 .arg(limits.apb2)
                 .arg(limits.pll)
                 .arg(limits.adc);
    for (const HardLimit& limit : page.hardLimits)
        lines += QStringLiteral("refused on saving and generating: \"%1 %2MHz\" above %3\n")
                     .arg(QLatin1String(limit.words))
                     .arg(limit.shown)
                     .arg(limit.compared);
    for (const SoftLimit& limit : page.softLimits)
        lines += QStringLiteral("asked: %1 \"%2\"\n").arg(limit.limit).arg(QLatin1String(limit.text));
    return lines;
}

QString readingOrderOf(const PageDescription& page)
{
    QStringList names;
    for (const char* name : page.readingOrder)
        names << QLatin1String(name);
    return names.join(QLatin1Char(' '));
}

} // namespace

QString inventoryOf(ClockTreePage& page)
{
    const PageDescription& description = page.description();
    return QStringLiteral("series %1\npicture %2, %3 by %4\nstem %5\n\n")
               .arg(seriesName(description.series), QLatin1String(description.picture))
               .arg(description.pictureSize.width())
               .arg(description.pictureSize.height())
               .arg(QLatin1String(description.stem)) +
           controlsOf(page) + QLatin1Char('\n') + limitsOf(description) + QLatin1Char('\n') +
           startDesign(page) + QLatin1String("\n\nread in the order: ") + readingOrderOf(description) +
           QLatin1Char('\n');
}
