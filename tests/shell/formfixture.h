#pragma once

#include "shell/ZN64PLLConfig.h"
#include "shell/formconfiguration.h"
#include "testdata.h"
#include "widgets/dialoganswers.h"

#include <QAction>
#include <QComboBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTranslator>

/// The main form as the program starts it, its commands, and what it shows.
struct FormFixture
{
    explicit FormFixture(LANGUAGE language = UI_EN)
        : translated(translator.load(translationTable(language)) &&
                     QCoreApplication::installTranslator(&translator))
    {
        form.SetLanguage(language);
        form.SetQTranslator(&translator);
        form.show();
        // Delivers the change of language, which would give the buttons of a box opened now their own texts
        // back.
        QCoreApplication::processEvents();
    }
    ~FormFixture() { QCoreApplication::removeTranslator(&translator); }

    template <class Object>
    Object* find(const char* name) const
    {
        return form.findChild<Object*>(QLatin1String(name));
    }
    QPushButton* clockButton() const { return find<QPushButton>("m_ClockConfig_PushButton"); }
    QPushButton* codeButton() const { return find<QPushButton>("m_CodeView_PushButton"); }
    QWidget* design() const { return find<QWidget>("m_pllConfigWidget"); }

    /// Triggers the action, clicks the button, or closes the form.
    void run(const QString& command)
    {
        if (auto* action = form.findChild<QAction*>(command))
            action->trigger();
        else if (auto* button = form.findChild<QPushButton*>(command))
            button->click();
        else
            form.close();
    }

    /// "clock" or "code", the page in view, and the series of the active design; "closed" for the form.
    QString state() const
    {
        if (!form.isVisible())
            return "closed"_s;
        const bool code = find<QWidget>("m_codeViewForm")->isVisible();
        // Exactly one page is in view, and the colours of the buttons tell which.
        if (code == find<QWidget>("m_clockConfigForm")->isVisible() || isLit(codeButton()) != code ||
            isLit(clockButton()) == code)
            return "page and buttons disagree"_s;
        const QString page = code ? "code"_s : "clock"_s;
        if (!design())
            return page;
        return page + u' ' + QLatin1String(design()->metaObject()->className()).chopped(3);
    }

    /// Leads the form to a state that state() tells.
    void enter(const QString& wanted)
    {
        const QString series = wanted.section(u' ', 1);
        if (!series.isEmpty()) {
            DialogAnswers answers;
            if (design())
                answers.add(DialogAnswers::press("Yes"));
            answers.add(DialogAnswers::choose(designFile(series)));
            run("m_Open_Action"_s);
        }
        if (wanted.startsWith("code"_s))
            run("m_CodeView_PushButton"_s);
        QCOMPARE(state(), wanted);
    }

    /// Picks the series in the series dialog and confirms it.
    static DialogAnswers::Answer pick(const QString& series)
    {
        return [series](QDialog* dialog) {
            auto* lines = dialog->findChild<QComboBox*>("m_ProductLine_ComboBox"_s);
            auto* devices = dialog->findChild<QComboBox*>("m_MCUSerial_ComboBox"_s);
            for (int line = 0; line < lines->count() && devices->currentText() != series; ++line) {
                lines->setCurrentIndex(line);
                devices->setCurrentText(series);
            }
            DialogAnswers::press("OK")(dialog);
        };
    }

    /// A design that can be generated without questions. What the file lacks takes its default.
    QString designFile(const QString& series) const
    {
        const QString path = folder.filePath(series + ".ZNCK"_s);
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write("<Configuration><MCU>" + series.toUtf8() +
                       "</MCU><hext>8</hext><tousbswitch>1</tousbswitch></Configuration>");
        return path;
    }

    QTemporaryDir folder;
    QTranslator translator;
    /// The texts are there before the form is built.
    bool translated;
    FormConfiguration form;

private:
    static bool isLit(QPushButton* button)
    {
        return button->grab(QRect(10, 8, 1, 1)).toImage().pixelColor(0, 0) == QColor(57, 169, 220);
    }
};
