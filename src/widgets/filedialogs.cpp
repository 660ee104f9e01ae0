#include "widgets/filedialogs.h"

#include "widgets/look.h"

#include <QFileDialog>
#include <QPointer>

namespace {

QString ask(QFileDialog* made)
{
    // On the heap and guarded: the parent may be deleted while the nested event loop of the dialog runs.
    const QPointer<QFileDialog> dialog = made;
    // The main form's sheet gives every part of the dialog a white ground: the grip would hide the corner of
    // a button, and scroll bars would lose their handles.
    dialog->setSizeGripEnabled(false);
    dialog->setStyleSheet(look::scrollBarSheet(QStringLiteral("width: 12px; height: 12px;")));
    dialog->setSupportedSchemes({QStringLiteral("file")}); // nothing from the net
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (dialog.isNull())
        return {};
    const QString path = accepted ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return path;
}

} // namespace

QString filedialogs::fileToOpen(QWidget* parent, const QString& title, const QString& filter)
{
    auto* dialog = new QFileDialog(parent, title, QString(), filter);
    dialog->setFileMode(QFileDialog::ExistingFile);
    return ask(dialog);
}

QString filedialogs::fileToSave(QWidget* parent, const QString& title, const QString& filter)
{
    auto* dialog = new QFileDialog(parent, title, QString(), filter);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    return ask(dialog);
}

QString filedialogs::folder(QWidget* parent, const QString& title)
{
    auto* dialog = new QFileDialog(parent, title);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    return ask(dialog);
}
