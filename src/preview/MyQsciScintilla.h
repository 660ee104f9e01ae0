#pragma once

#include <Qsci/qsciscintilla.h>

class QAction;
class QMenu;

/// An editor with a context menu of its own: copy, select all, fold all, expand all.
class MyQsciScintilla : public QsciScintilla
{
    Q_OBJECT

public:
    explicit MyQsciScintilla(QWidget* parent = nullptr);
    ~MyQsciScintilla() override;

    /// Sets the texts of the context menu again in the current language.
    void TranslatorUI();

public slots:
    /// Folds everything, once: a second call does nothing until ExpandAll(), for the fold command toggles.
    void FoldAll();
    void ExpandAll();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QAction* newAction(const char* memberName, const char* slot);

    QMenu* m_contextMenu;
    QAction* m_copyAction;
    QAction* m_selectAllAction;
    QAction* m_foldAllAction;
    QAction* m_clearFoldsAction;
    bool m_FoldAllFlag = false;
};
