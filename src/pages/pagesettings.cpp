#include "pages/ClockTreePage.h"

#include "model/seriestraits.h"

#include <algorithm>

// The settings of a page: those that its blocks have made, in three orders.

namespace {

/// The names in the order of the ranks; a row of rank 0 is left out.
QStringList namesBy(int SettingRow::*rank, std::vector<SettingRow> rows)
{
    std::stable_sort(rows.begin(), rows.end(), [rank](const SettingRow& one, const SettingRow& other) {
        return one.*rank < other.*rank;
    });
    QStringList names;
    for (const SettingRow& row : rows)
        if (row.*rank != 0)
            names << row.name;
    return names;
}

} // namespace

void ClockTreePage::addSetting(const QString& name, Setting setting)
{
    if (m_settings.contains(name))
        qFatal("two blocks have a setting %s", qPrintable(name));
    m_settings.insert(name, std::move(setting));
}

void ClockTreePage::orderSettings()
{
    for (const SettingRow& row : settingRows(m_description))
        if (m_settings.contains(row.name))
            m_startOrder.push_back(row);
    for (const QString& name : m_settings.keys())
        if (std::none_of(m_startOrder.begin(), m_startOrder.end(),
                         [&name](const SettingRow& row) { return row.name == name; }))
            qFatal("the setting %s has no row", qPrintable(name));
    for (const StartValue& own : m_description.start)
        if (!m_settings.contains(QLatin1String(own.setting)))
            qFatal("%s starts %s, which it does not have", qPrintable(m_description.word()), own.setting);
    for (const SettingRow& row : m_startOrder) {
        const Setting& setting = m_settings[row.name];
        if (setting.offers && !setting.offers(row.start))
            qFatal("%s starts %s with %g, which it does not offer", qPrintable(m_description.word()),
                   qPrintable(row.name), row.start);
    }
    m_fileOrder = namesBy(&SettingRow::inFile, m_startOrder);
    m_readingOrder = namesBy(&SettingRow::inReading, m_startOrder);
}

void ClockTreePage::setFieldsWithoutControl()
{
    if (!m_description.pllModes())
        model().Set_ConfigMode(m_description.pllMultiplier() ? PLLMODE_NORMAL : PLLMODE_FLEXIBLE);
    if (m_description.pllHextDivider() && !m_settings.contains(QStringLiteral("hextdiv")))
        model().Set_HEXT_DIV(fixedHextDivisor);
    if (m_description.usb && !m_description.usb->hickRoute)
        model().Set_HICK_TO_USB(HICK_TO_USB_DISABLE);
    if (!m_description.hickToSclk())
        model().Set_HICK_TO_SCLK(HICK_TO_SCLK_NODIV);
}
