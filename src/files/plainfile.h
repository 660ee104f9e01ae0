#pragma once

#include <QByteArray>
#include <QString>

/// Reads the file at \a path into \a bytes. False when it cannot be opened, is no regular file or holds more
/// than \a maxBytes, of which no more than one further byte is read.
bool readPlainFile(const QString& path, qint64 maxBytes, QByteArray& bytes);
