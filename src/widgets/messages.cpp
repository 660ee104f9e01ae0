#include "widgets/messages.h"

#include <QAbstractButton>
#include <QPointer>
#include <QPushButton>

int showMessage(QMessageBox::Icon icon, const QString& title, const QString& text,
                std::initializer_list<MessageButton> buttons, QWidget* parent, Qt::WindowFlags flags)
{
    // On the heap and guarded: the parent may be deleted while the nested event loop of the box runs.
    QPointer<QMessageBox> box = new QMessageBox(parent);
    if (flags)
        box->setWindowFlags(flags);
    box->setIcon(icon);
    box->setWindowTitle(title);
    // Texts may come from files and from the net: markup in them is shown, not obeyed.
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    for (const MessageButton& each : buttons)
        box->addButton(each.button)->setText(each.text);
    if (buttons.size() > 0)
        box->setDefaultButton(buttons.begin()->button);
    const int answer = box->exec();
    if (box.isNull())
        return QMessageBox::Cancel;
    delete box;
    return answer;
}
