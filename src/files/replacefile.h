#pragma once

#include <QByteArray>
#include <QString>

/// Puts \a content in the place of a user's file at \a path. False if the file cannot be opened for writing.
///
/// A disk that fills up is not told of, as ever, but what was there stays then: the content goes to a new
/// file beside it, which takes its place when it is complete and on the disk. Where that cannot be, the
/// content is written in place: in a folder that takes no new file, in a device or a pipe.
bool replaceFile(const QString& path, const QByteArray& content);

/// Makes a file that is only read back: whatever file or link lay at \a path is taken away, and nothing waits
/// for the disk. False, with no file left, unless \a content was taken whole.
bool writeAnew(const QString& path, const QByteArray& content);
