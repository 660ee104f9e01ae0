#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QString>
#include <QWidget>

class HttpsDownload;

/// Version of this program, 3.0.17, as VersionString2Int counts.
constexpr int ProgramVersion = 0x30017;

/// Where the program looks for newer versions of itself, for one language of the interface.
struct DownloadSite
{
    /// Address of the folder that holds the resource list, with the slash at its end.
    QString baseAddress;
    /// Element of the resource list that holds the address of the package.
    QString packageElement;
};

/// The maker's site for the Chinese interface, or for the English one.
DownloadSite downloadSite(bool chinese);

/// Asks the download site for a newer version of the program and fetches it if the user agrees.
/// Its texts are those of the main form, whose menu entry it serves.
class OnlineUpdate
{
    Q_DECLARE_TR_FUNCTIONS(FormConfiguration)

public:
    /// \a parent is the form on which the boxes stand.
    OnlineUpdate(QWidget* parent, const DownloadSite& site);

    /// The whole flow, from the resource list to the stored package; returns when the user is done with it.
    /// The form stays usable while the list is fetched. A call at that time ends that transfer, which a
    /// silent server would keep for good, and begins the flow anew; any other call within the flow does
    /// nothing.
    void OnlineDownload();

    /// Text of the element \a tag of the tool \a toolName in the resource list \a file.
    ///
    /// Below the root, the first element named \a top holds one element per tool. A tool is the wanted one
    /// from that child on whose whole text is \a toolName, whatever the child is called: an earlier \a tag is
    /// not seen. Empty when the file is no usable XML or holds no such element.
    static QString GetURLDownloadXMLElement(const QString& file, const QString& top, const QString& toolName,
                                            const QString& tag);

    /// Number of a version of three fields, which are read as hexadecimal: "3.0.17" is 0x30017.
    /// 0 when a field is no number. A field of more than two digits spills over into the one before it.
    static int VersionString2Int(const QString& version);

private:
    struct Offer
    {
        QString version;
        QString address;
        qint64 bytes = 0;
    };

    void run() const;
    bool fetchOffer(HttpsDownload& download, Offer& offer) const;
    bool isWanted(const Offer& offer) const;
    bool fetchPackage(HttpsDownload& download, const Offer& offer, QString& target) const;
    void showStored(const QString& folder, const QString& path) const;

    QPointer<QWidget> m_parent;
    DownloadSite m_site;
};
