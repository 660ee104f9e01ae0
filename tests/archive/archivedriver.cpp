// Preloaded into the program as it is shipped: does what a new user does first, and tells what the windows
// show.
#include "widgets/dialoganswers.h"

#include <QAction>
#include <QDesktopServices>
#include <QFileInfo>
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
                drive(*form);
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
        const auto* preview = form.findChild<QWidget*>(QStringLiteral("m_codeViewForm"));
        std::printf("preview %s\n", preview->isVisible() ? "shown" : "not shown");
        for (const QString& box : answers.shown().mid(1))
            std::printf("box %s\n", qPrintable(box));
    }
};

static void startDriver()
{
    static ArchiveDriver driver;
    QMetaObject::invokeMethod(&driver, "drive", Qt::QueuedConnection);
}
Q_COREAPP_STARTUP_FUNCTION(startDriver)

#include "archivedriver.moc"
