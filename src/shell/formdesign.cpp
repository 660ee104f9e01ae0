#include "shell/formconfiguration.h"

#include "model/seriestraits.h"
#include "preview/FormCodeView.h"
#include "shell/MCUSelect_Form.h"
#include "shell/ZN64PLLConfig.h"
#include "widgets/filedialogs.h"
#include "widgets/messages.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

namespace {

/// A dialog may belong to the page whose slot still waits for the answer: such a page must not be taken away.
bool dialogIsOpen()
{
    return QApplication::activeModalWidget() != nullptr;
}

/// The path of the one design file that is dropped; empty if it is something else.
QString droppedDesign(const QMimeData* data)
{
    const QList<QUrl> urls = data->urls();
    const QString path = urls.size() == 1 ? urls.first().toLocalFile() : QString();
    return path.endsWith(QLatin1String(".ZNCK"), Qt::CaseInsensitive) ? path : QString();
}

} // namespace

bool FormConfiguration::mayCloseDesign(QMessageBox::Icon icon, const QString& question)
{
    if (!m_clockConfigForm->HaveActivedConfig())
        return true;
    const int answer = showMessage(icon, tr("Warning"), question,
                                   {
                                       {QMessageBox::Cancel, tr("Cancel")},
                                       {QMessageBox::Yes,    tr("Yes")   }
    },
                                   this);
    return answer != QMessageBox::Cancel;
}

void FormConfiguration::showNoConfiguration()
{
    showMessage(QMessageBox::Warning, tr("Warning"), tr("Currently no configuration."),
                {
                    {QMessageBox::Ok, tr("Ok")}
    },
                this);
}

void FormConfiguration::NewDesign_Slot()
{
    if (dialogIsOpen())
        return;
    if (!mayCloseDesign(QMessageBox::Warning,
                        tr("The current configuration will be closed before creating a new "
                           "project. . Please confirm whether to continue?")))
        return;
    MCUSelect_Form dialog(this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const SeriesTraits* traits = seriesByName(dialog.m_MCUName);
    if (!traits)
        return;
    m_clockConfigForm->newConfig(traits->series);
    m_MCUSerials = dialog.m_MCUName;
    showSeriesOnButton();
    if (!m_codeViewForm->isHidden())
        showClockPage();
}

bool FormConfiguration::mayOpenDesign()
{
    return !dialogIsOpen() &&
           mayCloseDesign(
               QMessageBox::Warning,
               tr("The current configuration will be closed. Please confirm whether to continue?"));
}

void FormConfiguration::OpenDesign_Slot()
{
    if (!mayOpenDesign())
        return;
    const QString path = filedialogs::fileToOpen(this, tr("Open"), tr("Config file (*.ZNCK)"));
    if (!path.isNull())
        openDesign(path);
}

void FormConfiguration::openDesign(const QString& path)
{
    // Empty, not null: after a refused file the name is lost while the old design and the button's text stay,
    // and a switch of the language then shows the button without a series, as users know it.
    QString seriesName = QStringLiteral("");
    m_clockConfigForm->OpenFromFile(path, seriesName);
    m_MCUSerials = seriesName;
    if (!m_MCUSerials.isEmpty())
        showSeriesOnButton();
}

void FormConfiguration::dragEnterEvent(QDragEnterEvent* event)
{
    if (!droppedDesign(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void FormConfiguration::dropEvent(QDropEvent* event)
{
    const QString path = droppedDesign(event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    // Behind the drop: the program that the file comes from waits until this returns, and there are
    // questions.
    QTimer::singleShot(0, this, [this, path] {
        if (mayOpenDesign())
            openDesign(path);
    });
}

void FormConfiguration::SaveDesign_Slot()
{
    if (m_clockConfigForm->HaveActivedConfig())
        m_clockConfigForm->SaveToFile();
    else
        showNoConfiguration();
}

void FormConfiguration::GenerateCode_Slot()
{
    if (m_clockConfigForm->HaveActivedConfig())
        m_clockConfigForm->GenerateCode(MODE_USER_BUTTON);
    else
        showNoConfiguration();
}

int FormConfiguration::GeneralCode_For_CodeView(QString&)
{
    if (!m_clockConfigForm->HaveActivedConfig()) {
        showNoConfiguration();
        return 1;
    }
    return m_clockConfigForm->GenerateCode(MODE_CODE_VIEW) ? 0 : 2;
}

void FormConfiguration::closeEvent(QCloseEvent* event)
{
    const bool agreed =
        !dialogIsOpen() &&
        mayCloseDesign(QMessageBox::Question,
                       tr("The current configuration will be closed. Please confirm whether to continue?"));
    event->setAccepted(agreed);
}
