#include "preview/FormCodeView.h"

#include "files/plainfile.h"
#include "preview/MyQsciScintilla.h"
#include "preview/stems.h"
#include "widgets/focusframe.h"
#include "widgets/look.h"
#include "widgets/named.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>

#include <Qsci/qscilexercpp.h>

namespace {

// The longest generated file has some 20 kB.
constexpr qint64 MaxBytes = 1024 * 1024;

QFont codeFont(int pointSize, int weight)
{
    return QFont(QStringLiteral("Consolas"), pointSize, weight, false);
}

} // namespace

FormCodeView::FormCodeView(QWidget* parent) : QWidget(parent)
{
    m_CodeViewTabWidget = named("m_CodeViewTabWidget", new QTabWidget(this));
    m_CodeViewTabWidget->setFont(codeFont(10, 0));
    connect(m_CodeViewTabWidget, SIGNAL(tabBarClicked(int)), this, SLOT(TabWidgetTabBarClicked(int)));
    createLayout();
    createEditors();
    keywordDeal();
    createTabs();
}

void FormCodeView::createLayout()
{
    m_CodeViewGridLayout = named("m_CodeViewGridLayout", new QGridLayout(this));
    m_CodeViewGridLayout->setContentsMargins(0, 0, 0, 0);
    const auto edge = [] { return new QSpacerItem(20, 20, QSizePolicy::Expanding, QSizePolicy::Fixed); };
    const auto side = [] { return new QSpacerItem(20, 20, QSizePolicy::Expanding, QSizePolicy::Expanding); };
    m_CodeViewGridLayout->addItem(edge(), 0, 0, 1, 3);
    m_CodeViewGridLayout->addItem(side(), 1, 0);
    m_CodeViewGridLayout->addWidget(m_CodeViewTabWidget, 1, 1);
    m_CodeViewGridLayout->addItem(side(), 1, 2);
    m_CodeViewGridLayout->addItem(edge(), 2, 0, 1, 3);
    m_CodeViewGridLayout->setColumnStretch(0, 1);
    m_CodeViewGridLayout->setColumnStretch(1, 8);
    m_CodeViewGridLayout->setColumnStretch(2, 1);
}

void FormCodeView::createEditors()
{
    m_main_c_CodeEditor = named("m_main_c_CodeEditor", new MyQsciScintilla);
    m_clock_c_CodeEditor = named("m_clock_c_CodeEditor", new MyQsciScintilla);
    m_conf_h_CodeEditor = named("m_conf_h_CodeEditor", new MyQsciScintilla);
    m_clock_h_CodeEditor = named("m_clock_h_CodeEditor", new MyQsciScintilla);
    for (MyQsciScintilla* editor : editors()) {
        editor->horizontalScrollBar()->setStyleSheet(look::scrollBarSheet(QStringLiteral("height:12px;")));
        editor->verticalScrollBar()->setStyleSheet(look::scrollBarSheet(QStringLiteral("width: 12px;")));
    }
}

QList<MyQsciScintilla*> FormCodeView::editors() const
{
    return {m_main_c_CodeEditor, m_clock_c_CodeEditor, m_conf_h_CodeEditor, m_clock_h_CodeEditor};
}

void FormCodeView::keywordDeal()
{
    m_textLexer = named("m_textLexer", new QsciLexerCPP(this));
    m_textLexer->setFont(codeFont(11, 50), -1);
    m_textLexer->setColor(Qt::blue, QsciLexerCPP::Keyword);
    for (MyQsciScintilla* editor : editors())
        SetCodeEditorAttribute(m_textLexer, editor);
}

void FormCodeView::SetCodeEditorAttribute(QsciLexerCPP* lexer, QsciScintilla* editor)
{
    editor->setFont(codeFont(11, 50));
    editor->setMarginType(0, QsciScintilla::NumberMargin);
    editor->setMarginLineNumbers(0, true);
    editor->setMarginWidth(0, 30);
    editor->setTabWidth(4);
    editor->setAutoIndent(true);
    editor->setCaretLineVisible(true);
    editor->setCaretLineBackgroundColor(QColor(QStringLiteral("#E8E8FF")));
    editor->setReadOnly(true);
    editor->setFolding(QsciScintilla::BoxedTreeFoldStyle, 2);
    editor->setFoldMarginColors(Qt::lightGray, Qt::lightGray);
    editor->setLexer(lexer);
    // Grows with the lines that come into view; see loadFile() for what it grows from.
    editor->setScrollWidthTracking(true);
}

void FormCodeView::createTabs()
{
    // The file name stands in a label on the tab, which stays horizontal on a bar that runs down the side.
    const QList<MyQsciScintilla*> tabs = editors();
    for (int index = 0; index < m_TabNumber; ++index) {
        m_CodeViewTabWidget->insertTab(index, tabs[index], QString());
        m_CodeViewTabWidget->tabBar()->setTabButton(index, QTabBar::RightSide, newTabLabel(index));
    }
    m_CodeViewTabWidget->setStyleSheet(QStringLiteral(
        "QTabBar::tab {background: rgb(57, 169, 220); color:white;  width:202px; height: 80px; "
        "border: 1px solid white;}QTabBar::tab:selected {background:rgb(123, 199, 233); }"));
    m_CodeViewTabWidget->setTabPosition(QTabWidget::West);
    // The keyboard changes the tab without a click.
    connect(m_CodeViewTabWidget, SIGNAL(currentChanged(int)), this, SLOT(TabWidgetTabBarClicked(int)));
    m_CodeViewTabWidget->tabBar()->installEventFilter(this);
    m_focusFrame = new FocusFrame(this);
    m_focusFrame->watch(m_CodeViewTabWidget->tabBar(), [this] { return m_tabLable_List[m_TabWidgetIndex]; });
}

bool FormCodeView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            const int next = m_CodeViewTabWidget->currentIndex() + (key == Qt::Key_Up ? -1 : 1);
            m_CodeViewTabWidget->setCurrentIndex(qBound(0, next, m_TabNumber - 1));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

QLabel* FormCodeView::newTabLabel(int index)
{
    QLabel* label = new QLabel;
    label->setObjectName(QStringLiteral("m_tabLable_List_%1").arg(index));
    label->setFont(codeFont(11, 0));
    label->setAlignment(Qt::AlignCenter);
    label->setFixedSize(200, 78);
    m_tabLable_List.append(label);
    return label;
}

void FormCodeView::TranslatorUI()
{
    for (MyQsciScintilla* editor : editors())
        editor->TranslatorUI();
}

void FormCodeView::LoadCode(const QString& series, const QString& directory)
{
    const QString stem = fileStemOfSeries(series);
    const QString names[] = {QStringLiteral("main.c"), stem + QStringLiteral("_clock.c"),
                             stem + QStringLiteral("_conf.h"), stem + QStringLiteral("_clock.h")};
    const QList<MyQsciScintilla*> tabs = editors();
    // Counts the files read, not the tabs: behind a missing file the names move up, and the last tab
    // keeps its old one. The number of names shown tells how many files were read.
    int label = 0;
    for (int index = 0; index < m_TabNumber; ++index) {
        const QString& name = names[index];
        const QString folder =
            name.endsWith(QLatin1String(".c")) ? QStringLiteral("/src/") : QStringLiteral("/inc/");
        if (!loadFile(directory + folder + name, tabs[index]))
            continue;
        tabs[index]->setAccessibleName(name);
        m_CodeViewTabWidget->tabBar()->setAccessibleTabName(label, name);
        m_tabLable_List[label++]->setText(name);
    }
    TabWidgetTabBarClicked(m_TabWidgetIndex);
}

bool FormCodeView::loadFile(const QString& path, MyQsciScintilla* editor)
{
    QByteArray text;
    // The folder lies open to others. A link is not the generator's, wherever it leads.
    if (QFileInfo(path).isSymLink() || !readPlainFile(path, MaxBytes, text))
        return false;
    const int scrolled = editor->verticalScrollBar()->value();
    editor->setText(QString::fromUtf8(text.replace("\r\n", "\n")));
    // In pixels. Else a bar would stay for the wide lines of an earlier text, or for the 2000 pixels that an
    // editor starts with.
    editor->setScrollWidth(1);
    editor->verticalScrollBar()->setValue(scrolled);
    return true;
}

void FormCodeView::TabWidgetTabBarClicked(int index)
{
    if (index < 0)
        return;
    m_TabWidgetIndex = index;
    for (int tab = 0; tab < m_TabNumber; ++tab) {
        const QString ground =
            tab == index ? QStringLiteral("rgb(123, 199, 233)") : QStringLiteral("rgb(57, 169, 220)");
        m_tabLable_List[tab]->setStyleSheet(
            QStringLiteral("background:%1; color:white; border: 0px;").arg(ground));
    }
    m_focusFrame->update();
}
