#pragma once

#include "testdata.h"

#include <csignal>
#include <sys/resource.h>

/// From now on the disk takes that many bytes of a file only; RLIM_INFINITY ends that.
inline void limitFiles(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN); // what would end the program at the end of a small disk
    const rlimit limit{bytes, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &limit);
}

/// What the whole process has read so far; -1 if the system does not tell.
inline qint64 bytesRead()
{
    const QByteArray counts = contentOf("/proc/self/io"_s);
    return counts.startsWith("rchar: ") ? counts.mid(7, counts.indexOf('\n') - 7).toLongLong() : -1;
}
