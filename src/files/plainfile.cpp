#include "files/plainfile.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

bool readPlainFile(const QString& path, qint64 maxBytes, QByteArray& bytes)
{
    // Opened without waiting and then looked at: a pipe would block, a device need not end, and what lies at
    // the path may change between a look and the opening.
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    QFile file;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return false;
    struct stat status;
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > maxBytes)
        return false;
    // The size is only what the file said: it may grow, and files of /proc say 0.
    bytes = file.read(maxBytes + 1);
    return bytes.size() <= maxBytes;
}
