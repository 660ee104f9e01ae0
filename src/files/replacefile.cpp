#include "files/replacefile.h"

#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

// Does not wait: a pipe that nobody reads would keep the program for good.
bool writeInPlace(const QString& path, const QByteArray& content)
{
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_WRONLY | O_TRUNC | O_NONBLOCK | O_CLOEXEC);
    QFile file;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle))
        return false;
    file.write(content);
    return true;
}

// Links that lead to each other. Qt would take the first of them for the file to be replaced.
bool isCircleOfLinks(const QString& path)
{
    struct stat status;
    return ::stat(QFile::encodeName(path).constData(), &status) != 0 && errno == ELOOP;
}

} // namespace

bool replaceFile(const QString& path, const QByteArray& content)
{
    const QFileInfo present(path);
    if (present.exists() && !present.isFile() && !present.isDir())
        return writeInPlace(path, content);
    if (isCircleOfLinks(path))
        return false;
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

bool writeAnew(const QString& path, const QByteArray& content)
{
    QFile::remove(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return false;
    if (file.write(content) == content.size())
        return true;
    file.remove();
    return false;
}
