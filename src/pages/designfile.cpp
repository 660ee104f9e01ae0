#include "pages/ClockTreePage.h"

#include "files/replacefile.h"
#include "widgets/filedialogs.h"
#include "widgets/messages.h"
#include "xml/guardedxml.h"

#include <QDomDocument>
#include <QScopedValueRollback>
#include <QXmlStreamWriter>

// Design files: one flat XML document per design, an element per setting.

void ClockTreePage::SaveToFile(const QString& seriesName)
{
    if (!passesAll(m_description.onSaving) || seriesName.isEmpty())
        return;
    const QString path =
        filedialogs::fileToSave(this, translated("Save"), translated("Config file (*.ZNCK)"));
    if (path.isNull())
        return;
    if (!writeDesign(path, seriesName)) {
        tellSaveFailed();
        return;
    }
    showMessage(QMessageBox::Information, translated("Information"), translated("Save file succeed!"),
                {
                    {QMessageBox::Ok, translated("Ok")}
    });
}

void ClockTreePage::tellSaveFailed() const
{
    showMessage(QMessageBox::Critical, translated("Error"), translated("Save file failed!"),
                {
                    {QMessageBox::Ok, translated("Ok")}
    });
}

bool ClockTreePage::writeDesign(const QString& path, const QString& seriesName) const
{
    QByteArray text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("Configuration"));
    writer.writeTextElement(QStringLiteral("MCU"), seriesName);
    for (const QString& name : m_fileOrder)
        writer.writeTextElement(name, m_settings[name].text());
    writer.writeEndElement();
    return replaceFile(path, text);
}

void ClockTreePage::OpenFromFile(const QString& path)
{
    QDomDocument design;
    loadGuardedXml(path, design);
    OpenFromDocument(design);
}

void ClockTreePage::OpenFromDocument(const QDomDocument& design)
{
    // What is out of range is told at the next edit or on generating.
    const QScopedValueRollback<bool> reading(m_takingDesign, true);
    InitAllControl();
    for (const QString& name : qAsConst(m_readingOrder))
        m_settings[name].read(GetXMLElementString(design, name));
    UI_Display();
    UpdateRTCParam();
    UpdateCalculateResult();
}
