#pragma once

#include <QString>
#include <QStringList>

class QWidget;

/// The ways to ask for a file or a folder, by a modal dialog with the title. The result is null when the user
/// cancels, or when the parent died while the dialog was open. Each begins in the folder of the path that was
/// accepted last, by whichever of them.
namespace filedialogs {

/// filter is as QFileDialog takes it, "Config file (*.ZNCK)".
QString fileToOpen(QWidget* parent, const QString& title, const QString& filter);
/// The user may name a file that does not exist; no suffix is added.
QString fileToSave(QWidget* parent, const QString& title, const QString& filter);
/// The same for a file in one of several formats, a filter for each. A name that ends in none of their
/// suffixes gets that of the chosen filter. name is what the user may accept or change, without a suffix.
QString fileToSave(QWidget* parent, const QString& title, const QStringList& filters, const QString& name);
/// An existing folder; the dialog shows folders only, and offers to make the one that the user typed.
QString folder(QWidget* parent, const QString& title);

} // namespace filedialogs
