#pragma once

#include "update/progressdialog.h"
#include "widgets/dialoganswers.h"

/// Answers the message boxes that come up while it lives, and writes down what they showed. Unlike
/// DialogAnswers it leaves out the progress dialogs, which come and go with the speed of the transfer.
class BoxWatcher
{
public:
    /// Each box gets the next answer, which is the text of the button to click. When the answers are used up,
    /// or name no button of the box, the box is closed, so that no test hangs on it.
    explicit BoxWatcher(const QStringList& answers = {}) : m_answers(answers)
    {
        m_timer.callOnTimeout([this] { look(); });
        m_timer.start(1);
    }

    /// One line for each box, as DialogAnswers describes it.
    const QStringList& seen() const { return m_seen; }

    /// Called now and then while a progress dialog is the window in front.
    std::function<void(ProgressDialog&)> onProgress = [](ProgressDialog&) {};
    /// Called now and then while a file dialog is the window in front.
    std::function<void(QFileDialog&)> onFiles = [](QFileDialog& dialog) { dialog.close(); };

private:
    void look()
    {
        QWidget* front = QApplication::activeModalWidget();
        if (auto* box = qobject_cast<QMessageBox*>(front)) {
            m_seen += DialogAnswers::describe(box);
            DialogAnswers::press(qPrintable(m_answers.isEmpty() ? QString() : m_answers.takeFirst()))(box);
            if (box->isVisible())
                box->close();
        } else if (auto* progress = qobject_cast<ProgressDialog*>(front)) {
            onProgress(*progress);
        } else if (auto* files = qobject_cast<QFileDialog*>(front)) {
            onFiles(*files);
        }
    }

    QStringList m_answers;
    QStringList m_seen;
    QTimer m_timer;
};
