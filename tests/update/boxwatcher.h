#pragma once

#include <QStringList>
#include <QTimer>

#include <functional>

class QMessageBox;
class ProgressDialog;

/// Answers the message boxes that come up while it lives, and writes down what they showed.
///
/// Each box gets the next answer, which is the text of the button to click; when the answers are used up, or
/// name no button of the box, the box is rejected, so that no test hangs on a box that should not be there.
class BoxWatcher
{
public:
    explicit BoxWatcher(const QStringList& answers = {});

    /// One line for each box: "icon | title | text | button, button".
    QStringList seen() const { return m_seen; }

    /// Called now and then while a progress dialog is the window in front.
    std::function<void(ProgressDialog&)> onProgress;
    /// Called now and then while any other modal window is in front; without it, such a window is closed.
    std::function<void(QWidget&)> onOther;

private:
    void look();
    void answer(QMessageBox& box);

    QStringList m_answers;
    QStringList m_seen;
    QTimer m_timer;
};
