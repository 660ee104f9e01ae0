#include "update/targetpath.h"

#include "update/boxtext.h"

#include <QFileInfo>
#include <QVector>

#include <algorithm>

namespace {

// A name that stays in its folder and that a user sees there as it is. "." and ".." are hidden names too.
bool isPlainName(const QString& name)
{
    const QVector<uint> characters = name.toUcs4();
    return !name.contains(QLatin1Char('/')) && !name.startsWith(QLatin1Char('.')) &&
           std::all_of(characters.begin(), characters.end(), isVisible);
}

} // namespace

QString downloadFileName(const QUrl& url, const QString& version)
{
    // Decoded after cutting: QUrl's decoded file name would drop what stands before an encoded slash.
    QString name = QUrl::fromPercentEncoding(url.fileName(QUrl::FullyEncoded).toLatin1());
    if (name.isEmpty() || !isPlainName(name))
        return QString();
    if (!version.isEmpty()) {
        const QFileInfo info(name);
        name = info.completeBaseName() + QLatin1String("_V") + version + QLatin1Char('.') + info.suffix();
    }
    return isPlainName(name) ? name : QString();
}
