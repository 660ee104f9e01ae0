#include "update/targetpath.h"

#include <QFileInfo>

namespace {

bool staysInFolder(const QString& name)
{
    return !name.contains(QLatin1Char('/')) && !name.contains(QChar::Null) && name != QLatin1String(".") &&
           name != QLatin1String("..");
}

} // namespace

QString downloadFileName(const QUrl& url, const QString& version)
{
    // Decoded after cutting: QUrl's decoded file name would drop what stands before an encoded slash.
    QString name = QUrl::fromPercentEncoding(url.fileName(QUrl::FullyEncoded).toLatin1());
    if (name.isEmpty() || !staysInFolder(name))
        return QString();
    if (!version.isEmpty()) {
        const QFileInfo info(name);
        name = info.completeBaseName() + QLatin1String("_V") + version + QLatin1Char('.') + info.suffix();
    }
    return staysInFolder(name) ? name : QString();
}
