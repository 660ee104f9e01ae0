#pragma once

#include <QString>
#include <QUrl>

/// Name for the file that \a url addresses: the decoded last part of its path, with "_V" and \a version put
/// before the last suffix unless \a version is empty. tool.tar.gz in version 3.0.20 is tool.tar_V3.0.20.gz.
///
/// Returns an empty string when the address holds no file name. A name that would lead out of the folder it
/// is put into, be hidden there (with a dot in front) or not show as it is (with control or format
/// characters) counts as none: addresses and versions come from the net.
QString downloadFileName(const QUrl& url, const QString& version);
