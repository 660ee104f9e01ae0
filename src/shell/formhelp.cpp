#include "shell/formconfiguration.h"

#include "shell/VersionAbout.h"
#include "update/onlineupdate.h"
#include "widgets/messages.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

void FormConfiguration::OpenManual_Slot()
{
    const QString name = m_language == UI_ZH ? QStringLiteral("../Documents/UM_ZN64_Clockwright.pdf")
                                             : QStringLiteral("../Documents/UM_ZN64_Clockwright_EN.pdf");
    const QString path = QCoreApplication::applicationDirPath() + QLatin1Char('/') + name;
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        showMessage(QMessageBox::Critical, tr("Error"), tr("Can't open manual!"),
                    {
                        {QMessageBox::Ok, tr("Ok")}
        },
                    this);
}

void FormConfiguration::OpenAbout_Slot()
{
    VersionAbout(this).exec();
}

void FormConfiguration::NewVersionDownload_Slot()
{
    OnlineDownload();
}

void FormConfiguration::OnlineDownload()
{
    OnlineUpdate(this, downloadSite(m_language == UI_ZH)).OnlineDownload();
}

QString FormConfiguration::GetURLDownloadXMLElement(const QString& file, const QString& top,
                                                    const QString& toolName, const QString& tag)
{
    return OnlineUpdate::GetURLDownloadXMLElement(file, top, toolName, tag);
}

int FormConfiguration::VersionString2Int(const QString& version)
{
    return OnlineUpdate::VersionString2Int(version);
}
