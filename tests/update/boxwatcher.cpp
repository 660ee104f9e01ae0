#include "boxwatcher.h"

#include "update/progressdialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QMetaEnum>

namespace {

QString describe(const QMessageBox& box)
{
    QStringList buttons;
    for (const QAbstractButton* button : box.buttons())
        buttons += button->text();
    const auto icons = QMetaEnum::fromType<QMessageBox::Icon>();
    return QStringList{QLatin1String(icons.valueToKey(box.icon())), box.windowTitle(), box.text(),
                       buttons.join(QLatin1String(", "))}
        .join(QLatin1String(" | "));
}

} // namespace

BoxWatcher::BoxWatcher(const QStringList& answers) : m_answers(answers)
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
    m_timer.start(1);
}

void BoxWatcher::look()
{
    QWidget* front = QApplication::activeModalWidget();
    if (front == nullptr || !front->isVisible())
        return;
    if (auto* box = qobject_cast<QMessageBox*>(front))
        answer(*box);
    else if (auto* progress = qobject_cast<ProgressDialog*>(front)) {
        if (onProgress)
            onProgress(*progress);
    } else if (onOther) {
        onOther(*front);
    } else {
        front->close();
    }
}

void BoxWatcher::answer(QMessageBox& box)
{
    m_seen += describe(box);
    const QString wanted = m_answers.isEmpty() ? QString() : m_answers.takeFirst();
    for (QAbstractButton* button : box.buttons()) {
        if (button->text() == wanted) {
            button->click();
            return;
        }
    }
    box.close();
}
