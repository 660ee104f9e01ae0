#include "shell/picturemenu.h"

#include "export/treeexport.h"
#include "files/replacefile.h"
#include "model/seriestraits.h"
#include "pages/ClockTreePage.h"
#include "widgets/filedialogs.h"
#include "widgets/look.h"
#include "widgets/named.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>

PictureMenu::PictureMenu(ClockTreePage* page)
    : QMenu(page), m_page(page), m_copy_Action(named("m_CopyPicture_Action", addAction(QString()))),
      m_save_Action(named("m_SavePicture_Action", addAction(QString())))
{
    setStyleSheet(look::menuSheet());
    setFont(QFont(QStringLiteral("Arial"), 11));
    connect(m_copy_Action, &QAction::triggered, this, &PictureMenu::copy);
    connect(m_save_Action, &QAction::triggered, this, &PictureMenu::save);
    connect(page->view(), &PinGraphicsView::pictureMenuWanted, this, &PictureMenu::open);
}

void PictureMenu::open(const QPoint& globalPos)
{
    // The language may have changed since the last time.
    m_copy_Action->setText(tr("Copy picture"));
    m_save_Action->setText(tr("Save picture..."));
    popup(globalPos);
}

QString PictureMenu::series() const
{
    return seriesName(m_page->model().series());
}

void PictureMenu::copy() const
{
    QGuiApplication::clipboard()->setImage(treeexport::image(*m_page));
}

void PictureMenu::save()
{
    const QStringList filters{tr("PNG picture (*.png)"), tr("SVG picture (*.svg)"),
                              tr("PDF document (*.pdf)")};
    const QString path = filedialogs::fileToSave(m_page, tr("Save picture"), filters, series());
    // The page may be gone by now.
    if (path.isNull())
        return;
    const QByteArray content = treeexport::file(*m_page, QFileInfo(path).suffix().toLower(), series());
    if (content.isEmpty() || !replaceFile(path, content))
        m_page->tellSaveFailed();
}
