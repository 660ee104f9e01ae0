#pragma once

#include <QList>
#include <QSize>
#include <QString>
#include <QWidget>

class FocusFrame;
class MyQsciScintilla;
class QGridLayout;
class QLabel;
class QsciLexerCPP;
class QsciScintilla;
class QTabWidget;

/// The generated files of a design, read-only, one tab a file. The view has no generator: it reads what the
/// generation left in a folder.
class FormCodeView : public QWidget
{
    Q_OBJECT

public:
    explicit FormCodeView(QWidget* parent = nullptr);

    /// Loads the four files of the series from directory/src and directory/inc. A file that cannot be opened
    /// is passed over in silence, and so is a link, a pipe and the like: its tab keeps the old text, and the
    /// names of the files behind it move one tab up.
    void LoadCode(const QString& series, const QString& directory);

    /// Sets the texts of the editors' context menus again in the current language.
    void TranslatorUI();

    QSize sizeHint() const override { return size; }
    /// Up and Down walk the bar of the tabs, which runs down the side.
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    /// Makes the tab's label the highlighted one. A negative index does nothing.
    void TabWidgetTabBarClicked(int index);

private:
    void createEditors();
    void createTabs();
    void createLayout();
    void keywordDeal();
    void SetCodeEditorAttribute(QsciLexerCPP* lexer, QsciScintilla* editor);
    QLabel* newTabLabel(int index);
    bool loadFile(const QString& path, MyQsciScintilla* editor);
    /// In the order of the tabs.
    QList<MyQsciScintilla*> editors() const;

    QSize size;
    QGridLayout* m_CodeViewGridLayout;
    QTabWidget* m_CodeViewTabWidget;
    int m_TabWidgetIndex = 0;
    MyQsciScintilla* m_main_c_CodeEditor;
    MyQsciScintilla* m_clock_c_CodeEditor;
    MyQsciScintilla* m_conf_h_CodeEditor;
    MyQsciScintilla* m_clock_h_CodeEditor;
    QsciLexerCPP* m_textLexer;
    QList<QLabel*> m_tabLable_List;
    int m_TabNumber = 4;
    FocusFrame* m_focusFrame;
};
