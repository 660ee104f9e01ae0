#pragma once

#include <QDomDocument>
#include <QString>

/// Bounds of a file that counts as well formed. Design files and update lists are flat and hold a few
/// kilobytes.
namespace GuardedXml {
constexpr qint64 MaxBytes = 1024 * 1024;
/// Elements open at once, the root among them.
constexpr int MaxDepth = 8;
} // namespace GuardedXml

/// Reads the XML file at \a path, which anybody may have written, into \a document.
///
/// Returns false, and leaves \a document empty, when the file cannot be opened, is no regular file, is not
/// well formed, carries a DOCTYPE or exceeds one of the bounds above or of plainxml.h. All of that is found
/// out before a QDomDocument sees the text, because deep nesting makes it overflow the stack and entities
/// make it grow without limit. A call costs less than 200 ms of processor time, whatever the file holds, and
/// never reads more than MaxBytes + 1 bytes.
bool loadGuardedXml(const QString& path, QDomDocument& document);
