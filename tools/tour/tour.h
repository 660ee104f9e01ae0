#pragma once

#include "canvas/ZN64MCUPLL.h"
#include "shell/formconfiguration.h"
#include "widgets/dialoganswers.h"

#include <QComboBox>
#include <QDir>
#include <QTranslator>

/// A person at the program: clicks and types with real events at real places, looks at what the windows show,
/// and takes screenshots. The first thing that is not as it should be ends the tour with status 1.
class Tour
{
public:
    /// Empties the folder and shows the program in English.
    explicit Tour(const QString& folder);

    FormConfiguration& form() { return m_form; }
    QString path(const QString& name) const { return m_folder.filePath(name); }

    void step(const char* title);
    void expect(bool holds, const QString& what);
    void expectText(const char* control, const QString& text);
    /// Numbered PNG of the whole screen.
    void shoot(const char* name);

    /// A box that must show exactly this, "icon | title | text | buttons", and the button that answers it.
    /// With a picture name it is photographed first.
    DialogAnswers::Answer answer(const QString& shown, const char* button, const char* picture = nullptr);
    DialogAnswers::Answer chooseFile(const QString& title, const QString& path,
                                     const char* picture = nullptr);
    /// Does something that brings up exactly these dialogs.
    void withDialogs(std::initializer_list<DialogAnswers::Answer> answers,
                     const std::function<void()>& action);

    void clickMenu(const char* menu, const char* action);
    void clickButton(const char* name);

    // On the canvas of the present page.

    template <class Control>
    Control* control(const char* name)
    {
        auto* found = m_form.findChild<Control*>(QLatin1String(name));
        expect(found != nullptr, QStringLiteral("there is a %1").arg(QLatin1String(name)));
        return found;
    }
    void clickOnCanvas(const char* name);
    void clickOnPicture(QPoint at);
    void choose(const char* combo, const QString& item);
    void type(const char* edit, const QString& text, bool commit = true);

private:
    PinGraphicsView* view();
    QPoint viewportPoint(QWidget* control, QPoint at);

    QDir m_folder;
    QTranslator m_translator;
    FormConfiguration m_form;
    int m_pictures = 0;
};
