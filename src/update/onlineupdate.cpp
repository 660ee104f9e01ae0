#include "update/onlineupdate.h"

#include "update/boxtext.h"
#include "update/httpsdownload.h"
#include "widgets/filedialogs.h"
#include "widgets/messages.h"
#include "xml/guardedxml.h"

#include <QDebug>
#include <QDesktopServices>
#include <QDir>
#include <QPushButton>
#include <QRegExp>
#include <QScopedValueRollback>

#include <optional>
#include <utility>

namespace {

const QLatin1String ListName("VelmoraDownloadResource.xml");
const QLatin1String ListTop("VelmoraTool");
const QLatin1String ToolName("ZN64 Clockwright Linux");

// The transfer of a list that is on its way, and who has been chosen since to begin anew.
HttpsDownload* listTransfer = nullptr;
std::optional<OnlineUpdate> chosenAnew;

bool holdsVersion(const QString& address)
{
    // As any number of digits in the places of a few: where more match, so do the first of them, because the
    // dots stand for digits too. The address comes from the net, and an unbounded match could take for ever.
    return QRegExp(QStringLiteral("_V\\d{1,4}.\\d{1,2}.\\d")).indexIn(address) != -1;
}

} // namespace

DownloadSite downloadSite(bool chinese)
{
    if (chinese)
        return {QStringLiteral("https://www.clockwright.example/cn/download/"), QStringLiteral("URL")};
    return {QStringLiteral("https://www.clockwright.example/en/download/"), QStringLiteral("URLEN")};
}

OnlineUpdate::OnlineUpdate(QWidget* parent, const DownloadSite& site) : m_parent(parent), m_site(site) {}

void OnlineUpdate::OnlineDownload()
{
    static bool isRunning = false;
    if (isRunning) {
        if (listTransfer == nullptr)
            return;
        chosenAnew = *this;
        listTransfer->cancelDownload();
        return;
    }
    const QScopedValueRollback<bool> running(isRunning, true);
    // From here and not from the call in between, or the event loops would pile up with each choice.
    run();
    while (chosenAnew)
        std::exchange(chosenAnew, std::nullopt)->run();
}

void OnlineUpdate::run() const
{
    HttpsDownload download(nullptr);
    Offer offer;
    if (!fetchOffer(download, offer) || !isWanted(offer))
        return;
    const QString folder = filedialogs::folder(m_parent, tr("Select directory"));
    if (folder.isNull())
        return;
    QString target = folder;
    if (fetchPackage(download, offer, target))
        showStored(folder, target);
}

// Silent: without a connection nothing is shown at all, and an older list is replaced without a question. The
// list does not outlive this step.
bool OnlineUpdate::fetchOffer(HttpsDownload& download, Offer& offer) const
{
    const QString address = m_site.baseAddress + ListName;
    qDebug().noquote() << address;
    QString path = QDir::currentPath();
    // A longer list could not be read, and the user has no button to end its transfer.
    download.SetSizeLimit(GuardedXml::MaxBytes);
    const QScopedValueRollback<HttpsDownload*> waiting(listTransfer, &download);
    if (!download.downloadFile(address, path, QString(), 0) || chosenAnew)
        return false;
    download.SetSizeLimit(0);
    const auto text = [&path](const QString& tag) {
        return GetURLDownloadXMLElement(path, ListTop, ToolName, tag);
    };
    offer.version = text(QStringLiteral("Version"));
    offer.bytes = qint64(text(QStringLiteral("Size")).toULong(nullptr, 10));
    offer.address = text(m_site.packageElement);
    QFile::remove(path);
    return true;
}

bool OnlineUpdate::isWanted(const Offer& offer) const
{
    // A version that cannot be read counts as 0, and so as no newer one.
    if (VersionString2Int(offer.version) <= ProgramVersion) {
        showMessage(QMessageBox::Information, tr("Information"),
                    tr("The current tool is the latest version."),
                    {
                        {QMessageBox::Ok, tr("Ok")}
        },
                    m_parent);
        return false;
    }
    return showMessage(
               QMessageBox::Question, tr("Infomation"),
               tr("A new version of \"ZN64 Clockwright\" has been detected, do you want to download it?"),
               {
                   {QMessageBox::Ok,     tr("Ok")    },
                   {QMessageBox::Cancel, tr("Cancel")}
    },
               m_parent) != QMessageBox::Cancel;
}

// Loud: the engine asks and tells what there is to say.
bool OnlineUpdate::fetchPackage(HttpsDownload& download, const Offer& offer, QString& target) const
{
    download.SetErrorInfoFlag(true);
    const QString version = holdsVersion(offer.address) ? QString() : offer.version;
    return download.downloadFile(offer.address, target, version, offer.bytes);
}

void OnlineUpdate::showStored(const QString& folder, const QString& path) const
{
    // On the heap and guarded: the form may be deleted while the nested event loop of the box runs.
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Information, tr("Information"),
                        tr("Download succeeded, storage location: ") + QLatin1Char('\n') + boxText(path),
                        QMessageBox::NoButton, m_parent);
    box->setTextFormat(Qt::PlainText);
    const QPushButton* open = box->addButton(tr(" Open Folder  "), QMessageBox::ActionRole);
    box->setEscapeButton(box->addButton(tr("OK"), QMessageBox::ActionRole));
    box->exec();
    if (box.isNull())
        return;
    const bool wantsFolder = box->clickedButton() == open;
    delete box;
    if (wantsFolder)
        QDesktopServices::openUrl(QUrl::fromLocalFile(folder + QLatin1Char('/')));
}
