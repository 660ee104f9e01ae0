#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Answers the modal dialogs that open during its life, one after the other in the order given, and keeps
/// what each of them showed. A dialog without an answer is kept too and closed, so that a test fails and does
/// not hang.
class DialogAnswers : public QObject
{
public:
    using Answer = std::function<void(QDialog*)>;

    explicit DialogAnswers(std::initializer_list<Answer> answers = {}) : m_answers(answers)
    {
        m_timer.callOnTimeout(this, [this] { look(); });
        m_timer.start(2);
    }

    void add(const Answer& answer) { m_answers.append(answer); }

    /// One line per dialog: "icon | title | text | buttons" of a message box, the title of any other.
    const QStringList& shown() const { return m_shown; }

    /// Presses the message box button of this text.
    static Answer press(const char* text)
    {
        const QString wanted = QString::fromUtf8(text);
        return [wanted](QDialog* dialog) {
            const auto buttons = dialog->findChildren<QAbstractButton*>();
            for (QAbstractButton* each : buttons)
                if (each->text() == wanted)
                    return each->click();
        };
    }

    static Answer close()
    {
        return [](QDialog* dialog) { dialog->close(); };
    }

    /// Types the path into a file dialog and confirms it.
    static Answer choose(const QString& path)
    {
        return [path](QDialog* dialog) {
            qobject_cast<QFileDialog*>(dialog)->selectFile(path);
            QMetaObject::invokeMethod(dialog, "accept");
        };
    }

    /// The line that shown() keeps of a dialog.
    static QString describe(const QDialog* dialog)
    {
        const auto* box = qobject_cast<const QMessageBox*>(dialog);
        if (!box)
            return dialog->windowTitle();
        const char* icons[] = {"none", "information", "warning", "critical", "question"};
        QStringList buttons;
        for (const QAbstractButton* each : box->buttons())
            buttons += each->text();
        buttons.sort();
        return QStringList{QLatin1String(icons[box->icon()]), box->windowTitle(), box->text(),
                           buttons.join(QStringLiteral(", "))}
            .join(QStringLiteral(" | "));
    }

private:
    void look()
    {
        QPointer<QDialog> dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        if (m_seen.contains(dialog)) {
            // An answered dialog closes at once; one that does not would block the test for good.
            if (++m_patience > 1000)
                dialog->reject();
            return;
        }
        m_patience = 0;
        m_seen.append(dialog);
        m_shown.append(describe(dialog));
        if (m_answers.isEmpty())
            dialog->reject();
        else
            m_answers.takeFirst()(dialog);
    }

    QTimer m_timer;
    QList<Answer> m_answers;
    QList<QPointer<QDialog>> m_seen;
    QStringList m_shown;
    int m_patience = 0;
};
