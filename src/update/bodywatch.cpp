#include "update/bodywatch.h"

#include <QDir>

#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>

namespace {

// Far above any header, and above what waits in memory of a body that the disk does not take yet.
constexpr qint64 MaxBytesBesideBody = 16 * 1024 * 1024;
constexpr int IntervalInMs = 50;

// 0 for what is no connection of the net.
qint64 bytesReceived(int descriptor)
{
    tcp_info info = {};
    socklen_t size = sizeof info;
    return ::getsockopt(descriptor, IPPROTO_TCP, TCP_INFO, &info, &size) == 0
               ? qint64(info.tcpi_bytes_received)
               : 0;
}

} // namespace

BodyWatch::BodyWatch(const std::function<void()>& giveUp) : m_giveUp(giveUp)
{
    const QList<quint64> present = receivedByAll().keys();
    m_foreign = QSet<quint64>(present.begin(), present.end());
    m_timer.callOnTimeout([this] { look(); });
}

// From the system, since the network layer does not tell what it has read of a header. Empty if the system
// does not tell either.
BodyWatch::Received BodyWatch::receivedByAll()
{
    Received received;
    for (const QString& name : QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System)) {
        const int descriptor = name.toInt();
        struct stat status;
        if (::fstat(descriptor, &status) == 0 && S_ISSOCK(status.st_mode))
            received[status.st_ino] = bytesReceived(descriptor);
    }
    return received;
}

void BodyWatch::start()
{
    m_grew = false;
    m_besideBody = 0;
    m_before = receivedByAll();
    m_timer.start(IntervalInMs);
}

void BodyWatch::look()
{
    const Received now = receivedByAll();
    for (auto each = now.begin(); each != now.end(); ++each)
        if (!m_foreign.contains(each.key()))
            m_besideBody += each.value() - m_before.value(each.key());
    m_before = now;
    if (m_grew)
        m_besideBody = 0;
    m_grew = false;
    if (m_besideBody <= MaxBytesBesideBody)
        return;
    stop();
    m_giveUp();
}
