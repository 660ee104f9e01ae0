#include "files/previewfolder.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

constexpr int LongestWaitInMs = 1000;
constexpr int StepInMs = 2;

// Of the folder, while it is taken; -1 else. The lock goes with it, also when the program ends by a crash.
int descriptor = -1;

} // namespace

QString previewfolder::path()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/Code_Sample");
}

QString previewfolder::pathWithoutLinks()
{
    for (const char* part : {"/inc", "/src"}) {
        const QString folder = path() + QLatin1String(part);
        if (QFileInfo(folder).isSymLink())
            QFile::remove(folder);
    }
    return path();
}

bool previewfolder::take()
{
    if (descriptor >= 0)
        return true;
    descriptor = ::open(QFile::encodeName(path()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // Not by QLockFile, which waits for the disk with every lock.
    const QDeadlineTimer deadline(LongestWaitInMs);
    while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        if (deadline.hasExpired()) {
            release();
            return false;
        }
        QThread::msleep(StepInMs);
    }
    // Where a folder cannot be locked, on some file systems, it is shared as if there were one program.
    return true;
}

void previewfolder::release()
{
    if (descriptor >= 0)
        ::close(descriptor);
    descriptor = -1;
}
