#include "ClockTreePage.h"

#include "blocks/PllOutputBlock.h"
#include "widgets/messages.h"
#include "xml/guardedxml.h"

#include <QDomDocument>
#include <QFile>
#include <QFileDialog>
#include <QScopedValueRollback>
#include <QXmlStreamWriter>

// Design files: one flat XML document per design, an element per setting.

bool ClockTreePage::passesHardLimits() const
{
    for (const HardLimit& limit : m_description.hardLimits) {
        if (limit.clock == Clock::Pll && !m_pllOutput->shown())
            continue;
        if (clockValue(model(), limit.clock) > limit.compared) {
            showError(translated(limit.words) + QStringLiteral(" %1MHz").arg(limit.shown));
            return false;
        }
    }
    return true;
}

bool ClockTreePage::breaksSoftLimit(const SoftLimit& limit) const
{
    switch (limit.kind) {
    // Not a number is unequal to 48 too.
    case SoftLimitKind::Usb48:
        return model().Get_TO_USB_Switch() == TO_USB_SWITCH_ENABLE &&
               model().Get_USBCLKValue() != limit.limit;
    case SoftLimitKind::AdcAbove:
        return model().Get_ToADC_Switch() && model().Get_ADCCLK_Value() > limit.limit;
    }
    return false;
}

bool ClockTreePage::passesSoftLimits() const
{
    for (const SoftLimit& limit : m_description.softLimits)
        if (breaksSoftLimit(limit) && !askToContinue(QMessageBox::Warning, limit.text))
            return false;
    return true;
}

void ClockTreePage::SaveToFile(const QString& seriesName)
{
    if (!passesHardLimits() || !passesSoftLimits() || seriesName.isEmpty())
        return;
    const QString path =
        QFileDialog::getSaveFileName(this, translated("Save"), QString(), translated("Config file (*.ZNCK)"));
    if (path.isNull())
        return;
    if (!writeDesign(path, seriesName)) {
        showMessage(QMessageBox::Critical, translated("Error"), translated("Save file failed!"),
                    {
                        {QMessageBox::Ok, translated("Ok")}
        });
        return;
    }
    showMessage(QMessageBox::Information, translated("Information"), translated("Save file succeed!"),
                {
                    {QMessageBox::Ok, translated("Ok")}
    });
}

bool ClockTreePage::writeDesign(const QString& path, const QString& seriesName) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    QXmlStreamWriter writer(&file);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("Configuration"));
    writer.writeTextElement(QStringLiteral("MCU"), seriesName);
    for (const char* name : m_description.fileOrder)
        writer.writeTextElement(QLatin1String(name), m_settings.value(QLatin1String(name)).text());
    writer.writeEndElement();
    return true;
}

void ClockTreePage::OpenFromFile(const QString& path)
{
    // What is out of range is told at the next edit or on generating.
    const QScopedValueRollback<bool> reading(m_readingDesign, true);
    InitAllControl();
    QDomDocument document;
    loadGuardedXml(path, document);
    const QDomElement root = document.documentElement();
    for (const char* name : m_description.readingOrder)
        m_settings.value(QLatin1String(name)).read(root.firstChildElement(QLatin1String(name)).text());
    UI_Display();
    UpdateRTCParam();
    UpdateCalculateResult();
}
