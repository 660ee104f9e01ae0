// Preloaded into the program as it is shipped: does what a new user does first, and tells what the windows
// show. With a folder in SAVE_EXAMPLES_TO it opens each of the archive's examples and saves it there instead.
#include "widgets/dialoganswers.h"

#include <QAction>
#include <QDesktopServices>
#include <QDir>
#include <QUrl>

#include <cstdio>

class ArchiveDriver : public QObject
{
    Q_OBJECT

public slots:
    void tellManual(const QUrl& url)
    {
        std::printf("manual %s\n", qPrintable(QFileInfo(url.toLocalFile()).canonicalFilePath()));
    }
    void drive()
    {
        for (const QWidget* form : QApplication::topLevelWidgets())
            if (form->inherits("FormConfiguration") && form->isVisible())
                qEnvironmentVariableIsSet("SAVE_EXAMPLES_TO") ? openExamples(*form) : drive(*form);
        QCoreApplication::quit();
    }

private:
    void drive(const QWidget& form)
    {
        std::printf("window %s, entry %s\n", qPrintable(form.windowTitle()),
                    qPrintable(QGuiApplication::desktopFileName()));

        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "tellManual");
        form.findChild<QAction*>(QStringLiteral("m_OpenManual_Action"))->trigger();

        DialogAnswers answers(QStringList{QStringLiteral("OK")});
        form.findChild<QAction*>(QStringLiteral("m_New_Action"))->trigger();
        form.findChild<QAbstractButton*>(QStringLiteral("m_CodeView_PushButton"))->click();
        tellPreview(form);
        for (const QString& box : answers.shown().mid(1))
            std::printf("box %s\n", qPrintable(box));
    }

    static void tellPreview(const QWidget& form)
    {
        const auto* preview = form.findChild<QWidget*>(QStringLiteral("m_codeViewForm"));
        std::printf("preview %s\n", preview->isVisible() ? "shown" : "not shown");
    }

    static void openExamples(const QWidget& form)
    {
        const QDir saved(qEnvironmentVariable("SAVE_EXAMPLES_TO"));
        const QDir examples(QCoreApplication::applicationDirPath() + QStringLiteral("/../examples"));
        for (const QFileInfo& example : examples.entryInfoList({QStringLiteral("*.ZNCK")}, QDir::Files)) {
            DialogAnswers answers;
            if (form.findChild<QWidget*>(QStringLiteral("m_pllConfigWidget")))
                answers.add(DialogAnswers::press("Yes"));
            answers.add(DialogAnswers::choose(example.filePath()));
            form.findChild<QAction*>(QStringLiteral("m_Open_Action"))->trigger();
            const auto* button = form.findChild<QAbstractButton*>(QStringLiteral("m_ClockConfig_PushButton"));
            std::printf("%s, ", qPrintable(button->text()));
            answers.add(DialogAnswers::choose(saved.filePath(example.fileName())));
            answers.add(DialogAnswers::press("Ok"));
            form.findChild<QAction*>(QStringLiteral("m_Save_Action"))->trigger();
            form.findChild<QAbstractButton*>(QStringLiteral("m_CodeView_PushButton"))->click();
            tellPreview(form);
            form.findChild<QAbstractButton*>(QStringLiteral("m_ClockConfig_PushButton"))->click();
        }
    }
};

static void startDriver()
{
    static ArchiveDriver driver;
    QMetaObject::invokeMethod(&driver, "drive", Qt::QueuedConnection);
}
Q_COREAPP_STARTUP_FUNCTION(startDriver)

#include "archivedriver.moc"
