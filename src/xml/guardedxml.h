#pragma once

#include <QDomDocument>
#include <QString>

namespace GuardedXml {
/// Of a file that counts as well formed. Design files and update lists hold a few kilobytes.
constexpr qint64 MaxBytes = 1024 * 1024;
} // namespace GuardedXml

/// Reads the XML file at \a path, which anybody may have written, into \a document.
///
/// Reads what QDomDocument reads by itself, but for what could crash or stall it: a file over MaxBytes or one
/// that is no regular file, and what isPlainXml() turns away. That is found out before a QDomDocument sees
/// the text, because deep nesting makes it overflow the stack and entities make it grow without limit.
/// Returns false, and leaves \a document empty, for that and for what is not well formed. Characters that the
/// file's encoding cannot tell are read as U+FFFD. A call costs less than 200 ms of processor time, whatever
/// the file holds, and never reads more than MaxBytes + 1 bytes.
bool loadGuardedXml(const QString& path, QDomDocument& document);
