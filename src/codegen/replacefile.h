#pragma once

#include <QByteArray>
#include <QString>

/// Puts \a content in the place of the file at \a path. False if the file cannot be opened for writing.
///
/// A disk that fills up is not told of, as ever, but what was there stays then: the content goes to a new
/// file beside it, which takes its place when it is complete. Where that cannot be, the content is written in
/// place: in a folder that takes no new file, in a device or a pipe.
bool replaceFile(const QString& path, const QByteArray& content);
