#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QProgressDialog>
#include <QTimer>

#include <functional>

/// Answers the modal dialogs that open during its life, one after the other in the order given, and keeps
/// what each of them showed. A dialog without an answer is kept too and closed, so that a test fails and does
/// not hang. Progress dialogs are left alone: they come and go with what they tell of.
class DialogAnswers : public QObject
{
public:
    using Answer = std::function<void(QDialog*)>;

    explicit DialogAnswers(std::initializer_list<Answer> answers = {}) : m_answers(answers)
    {
        m_timer.callOnTimeout(this, [this] { look(); });
        m_timer.start(2);
    }
    /// Presses a button of each dialog in turn.
    explicit DialogAnswers(const QStringList& buttons) : DialogAnswers()
    {
        for (const QString& each : buttons)
            add(press(each));
    }

    void add(const Answer& answer) { m_answers.append(answer); }

    /// One line per dialog: "icon | title | text | buttons" of a message box, the title of any other.
    const QStringList& shown() const { return m_shown; }

    /// Called now and then while a progress dialog is in front.
    std::function<void(QProgressDialog*)> onProgress = [](QProgressDialog*) {};

    /// Presses the button of this text; closes the dialog if the text is empty.
    static Answer press(const QString& text)
    {
        return [text](QDialog* dialog) {
            const auto buttons = dialog->findChildren<QAbstractButton*>();
            for (QAbstractButton* each : buttons)
                if (!text.isEmpty() && each->text() == text)
                    return each->click();
            if (text.isEmpty())
                dialog->close();
        };
    }
    static Answer press(const char* text) { return press(QString::fromUtf8(text)); }
    static Answer close() { return press(QString()); }

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
        if (auto* progress = qobject_cast<QProgressDialog*>(dialog))
            return onProgress(progress);
        if (m_seen.contains(dialog)) {
            // An answered dialog closes at once. One that does not lacks the button: a test must not hang on
            // it, and must not pass either.
            if (++m_patience > 1000) {
                m_patience = 0;
                m_shown.append(QStringLiteral("not answered"));
                dialog->reject();
            }
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
