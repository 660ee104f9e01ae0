#pragma once

#include <QString>

/// The folder through which the generator and the view of its code talk to each other.
///
/// It lies beside the program, so all running programs of one installation share it. Each has it to itself
/// from before it writes its files until it has read them.
namespace previewfolder {

QString path();

/// The path, with no link in the place of a folder below it: the files would be taken away and written
/// wherever it leads.
QString pathWithoutLinks();

/// Waits for the folder, which must exist, a second at most: a program that was stopped in the middle keeps
/// it. Returns whether it is this program's, which it stays until release().
bool take();
void release();

} // namespace previewfolder
