#pragma once

#include <QMessageBox>
#include <QString>

#include <initializer_list>

/// One button of a message box: the standard button it stands for and the text shown on it, already
/// translated.
struct MessageButton
{
    QMessageBox::StandardButton button;
    QString text;
};

/// Shows a modal message box and waits for the answer. The first button is the default one.
/// Flags other than none replace the window flags of the box.
/// Returns the standard button that ended the box; QMessageBox::Cancel if the parent died while the box was
/// open.
int showMessage(QMessageBox::Icon icon, const QString& title, const QString& text,
                std::initializer_list<MessageButton> buttons, QWidget* parent = nullptr,
                Qt::WindowFlags flags = {});
