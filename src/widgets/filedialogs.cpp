#include "widgets/filedialogs.h"

#include "widgets/look.h"
#include "widgets/messages.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

namespace {

/// The toolkit remembers where the user went, but not a path that was typed, nor whether it was accepted.
QString lastFolder;

QString text(const char* source)
{
    return QCoreApplication::translate("FileDialogs", source);
}

class FolderDialog : public QFileDialog
{
public:
    FolderDialog(QWidget* parent, const QString& title) : QFileDialog(parent, title)
    {
        // The toolkit greys the button for a folder that does not exist; a desktop's own dialog has neither.
        const auto* edit = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        const auto* buttons = findChild<QDialogButtonBox*>();
        if (edit && buttons)
            connect(edit, &QLineEdit::textChanged, buttons, [buttons](const QString& typed) {
                if (!typed.isEmpty())
                    buttons->button(QDialogButtonBox::Open)->setEnabled(true);
            });
    }

protected:
    void accept() override
    {
        const QString path = selectedFiles().value(0);
        if (!path.isEmpty() && !QFileInfo::exists(path)) {
            if (!mayMake(path))
                return;
            // Who writes into it tells if it still is not there.
            QDir().mkpath(path);
        }
        QFileDialog::accept();
    }

private:
    bool mayMake(const QString& path)
    {
        const QString question =
            text(QT_TRANSLATE_NOOP("FileDialogs", "The folder does not exist. Make it?"));
        const int answer =
            showMessage(QMessageBox::Question, windowTitle(), question + QLatin1Char('\n') + path,
                        {
                            {QMessageBox::Yes,    text(QT_TRANSLATE_NOOP("FileDialogs", "Yes"))   },
                            {QMessageBox::Cancel, text(QT_TRANSLATE_NOOP("FileDialogs", "Cancel"))}
        },
                        this);
        return answer != QMessageBox::Cancel;
    }
};

/// The suffix of "PNG picture (*.png)", with its dot.
QString suffixOf(const QString& filter)
{
    return filter.section(QLatin1Char('*'), 1).section(QLatin1Char(')'), 0, 0);
}

/// Completes the name of the file and asks about the file of the completed name.
class FormatDialog : public QFileDialog
{
public:
    FormatDialog(QWidget* parent, const QString& title, const QStringList& filters)
        : QFileDialog(parent, title), m_filters(filters)
    {
        setAcceptMode(AcceptSave);
        setNameFilters(filters);
        setOption(DontConfirmOverwrite);
    }

    QString path() const
    {
        const QString chosen = selectedFiles().value(0);
        const bool whole = std::any_of(m_filters.begin(), m_filters.end(), [&chosen](const QString& filter) {
            return chosen.endsWith(suffixOf(filter), Qt::CaseInsensitive);
        });
        return whole || chosen.isEmpty() ? chosen : chosen + suffixOf(selectedNameFilter());
    }

protected:
    void accept() override
    {
        const bool isFolder = QFileInfo(selectedFiles().value(0)).isDir();
        if (!isFolder && QFileInfo::exists(path()) && !mayReplace())
            return;
        QFileDialog::accept();
    }

private:
    bool mayReplace()
    {
        // The toolkit's words, which it would use for the name as it was typed; they are no texts of ours.
        static const char question[] = "%1 already exists.\nDo you want to replace it?";
        const QString name = QFileInfo(path()).fileName();
        const int answer =
            showMessage(QMessageBox::Warning, windowTitle(), QFileDialog::tr(question).arg(name),
                        {
                            {QMessageBox::Cancel, text("Cancel")},
                            {QMessageBox::Yes,    text("Yes")   }
        },
                        this);
        return answer != QMessageBox::Cancel;
    }

    const QStringList m_filters;
};

QString pathOf(const QFileDialog& dialog)
{
    return dialog.selectedFiles().value(0);
}

QString pathOf(const FormatDialog& dialog)
{
    return dialog.path();
}

template <class Dialog>
QString ask(Dialog* made, const QString& name = QString())
{
    // On the heap and guarded: the parent may be deleted while the nested event loop of the dialog runs.
    const QPointer<Dialog> dialog = made;
    // The main form's sheet gives every part of the dialog a white ground: the grip would hide the corner of
    // a button, and scroll bars would lose their handles.
    dialog->setSizeGripEnabled(false);
    dialog->setStyleSheet(look::scrollBarSheet(QStringLiteral("width: 12px; height: 12px;")));
    dialog->setSupportedSchemes({QStringLiteral("file")}); // nothing from the net
    if (QFileInfo(lastFolder).isDir())
        dialog->setDirectory(lastFolder);
    if (!name.isEmpty())
        dialog->selectFile(name);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (dialog.isNull())
        return {};
    const QString path = accepted ? pathOf(*dialog) : QString();
    delete dialog;
    if (!path.isNull())
        lastFolder = QFileInfo(path).isDir() ? path : QFileInfo(path).absolutePath();
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

QString filedialogs::fileToSave(QWidget* parent, const QString& title, const QStringList& filters,
                                const QString& name)
{
    return ask(new FormatDialog(parent, title, filters), name);
}

QString filedialogs::folder(QWidget* parent, const QString& title)
{
    auto* dialog = new FolderDialog(parent, title);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    return ask(dialog);
}
