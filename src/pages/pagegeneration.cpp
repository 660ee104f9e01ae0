#include "pages/ClockTreePage.h"

#include "files/previewfolder.h"
#include "pages/blocks/HighSpeedBlock.h"
#include "pages/blocks/SystemClockBlock.h"
#include "pages/description/inputlimits.h"
#include "widgets/filedialogs.h"
#include "widgets/messages.h"

#include <QDesktopServices>
#include <QDir>
#include <QPushButton>
#include <QUrl>

bool ClockTreePage::GenerateCodeCheck()
{
    if (Get_Hext_Enable_Falg() && !inputlimits::hextInRange(m_highSpeed->typed())) {
        showError("hext input error!");
        return false;
    }
    if (!m_systemClock->inRange(m_systemClock->typed())) {
        showError("sclk input error!");
        return false;
    }
    if (m_description.generatedApb3 &&
        model().Get_AHBCLKValue() / model().Get_APB3DIV() > *m_description.generatedApb3) {
        showError("apb3div input error!");
        return false;
    }
    return true;
}

bool ClockTreePage::prepareFolders(const QString& incPath, const QString& srcPath) const
{
    QDir dir;
    if (!dir.exists(incPath) && !dir.mkpath(incPath)) {
        showError("Creating \"inc\" folder error!");
        return false;
    }
    if (!dir.exists(srcPath) && !dir.mkpath(srcPath)) {
        showError("Creating \"src\" folder error!");
        return false;
    }
    return true;
}

bool ClockTreePage::GenerateCode()
{
    if (!GenerateCodeCheck() || !passesAll(m_description.onGenerating))
        return false;
    const bool byUser = model().Get_GenerateCodeMode() == MODE_USER_BUTTON;
    const QString folder = byUser ? filedialogs::folder(this, translated("Select directory"))
                                  : previewfolder::pathWithoutLinks();
    if (folder.isNull())
        return false;
    const QString incPath = folder + QLatin1String("/inc");
    const QString srcPath = folder + QLatin1String("/src");
    if (!prepareFolders(incPath, srcPath))
        return false;
    // The preview's folder stays taken until its files are read.
    const bool mayWrite = byUser || previewfolder::take();
    if (!mayWrite || !model().GenerateCode(incPath, srcPath, m_description.stem())) {
        previewfolder::release();
        showMessage(QMessageBox::Critical, translated("Error"), translated("Generate code failed!"),
                    {
                        {QMessageBox::Ok, translated("OK")}
        });
        return false;
    }
    if (byUser)
        showGenerated(folder);
    return true;
}

void ClockTreePage::showGenerated(const QString& folder) const
{
    const QString text = translated("Generate code finished!  Files:") +
                         QStringLiteral("\n\nsrc/main.c\nsrc/%1_clock.c\ninc/%1_clock.h\ninc/%1_conf.h\n")
                             .arg(m_description.stem());
    QMessageBox box(QMessageBox::Information, translated("Information"), text);
    box.setTextFormat(Qt::PlainText);
    QPushButton* open = box.addButton(translated(" Open Folder  "), QMessageBox::ActionRole);
    // With no button of a closing role the box could not be closed by Escape or from its frame.
    box.setEscapeButton(box.addButton(translated("OK"), QMessageBox::ActionRole));
    box.exec();
    if (box.clickedButton() == open)
        QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}
