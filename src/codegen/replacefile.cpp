#include "codegen/replacefile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace {

bool writeInPlace(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(content);
    return true;
}

} // namespace

bool replaceFile(const QString& path, const QByteArray& content)
{
    const QFileInfo present(path);
    if (present.exists() && !present.isFile() && !present.isDir())
        return writeInPlace(path, content);
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    // Qt does not look at a flush that fails while it closes the file.
    if (file.write(content) != content.size() || !file.flush())
        file.cancelWriting();
    // A file of somebody else in a shared folder, or one mounted by itself, cannot be exchanged.
    if (!file.commit() && file.error() == QFileDevice::RenameError)
        return writeInPlace(path, content);
    return true;
}
