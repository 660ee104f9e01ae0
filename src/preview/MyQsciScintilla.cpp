#include "preview/MyQsciScintilla.h"

#include "widgets/named.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>

MyQsciScintilla::MyQsciScintilla(QWidget* parent)
    : QsciScintilla(parent), m_contextMenu(named("m_contextMenu", new QMenu)),
      m_copyAction(newAction("m_copyAction", SLOT(copy()))),
      m_selectAllAction(newAction("m_selectAllAction", SLOT(selectAll()))),
      m_foldAllAction(newAction("m_foldAllAction", SLOT(FoldAll()))),
      m_clearFoldsAction(newAction("m_clearFoldsAction", SLOT(ExpandAll())))
{
    m_copyAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_C));
    m_selectAllAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_A));
    TranslatorUI();
    // Nothing is taken here; a design file that is dropped is for the window.
    setAcceptDrops(false);
    viewport()->setAcceptDrops(false);
}

MyQsciScintilla::~MyQsciScintilla()
{
    delete m_contextMenu;
}

QAction* MyQsciScintilla::newAction(const char* memberName, const char* slot)
{
    QAction* action = named(memberName, new QAction(this));
    connect(action, SIGNAL(triggered()), this, slot);
    return action;
}

void MyQsciScintilla::TranslatorUI()
{
    m_copyAction->setText(tr("Copy"));
    m_selectAllAction->setText(tr("Select All"));
    m_foldAllAction->setText(tr("Fold All"));
    m_clearFoldsAction->setText(tr("Expand All"));
}

void MyQsciScintilla::contextMenuEvent(QContextMenuEvent* event)
{
    // The menu is kept and filled anew each time. Clearing it drops the separator, which the menu owns, and
    // spares the actions, which the editor owns.
    m_contextMenu->clear();
    m_contextMenu->addAction(m_foldAllAction);
    m_contextMenu->addAction(m_clearFoldsAction);
    m_contextMenu->addSeparator();
    m_contextMenu->addAction(m_copyAction);
    m_selectAllAction->setEnabled(length() != 0);
    m_contextMenu->addAction(m_selectAllAction);
    m_contextMenu->exec(event->globalPos());
}

void MyQsciScintilla::FoldAll()
{
    if (m_FoldAllFlag)
        return;
    foldAll(false);
    m_FoldAllFlag = true;
}

void MyQsciScintilla::ExpandAll()
{
    clearFolds();
    m_FoldAllFlag = false;
}
