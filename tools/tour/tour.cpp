#include "tour.h"

#include <QAbstractItemView>
#include <QAction>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTest>

#include <cstdio>
#include <cstdlib>

Tour::Tour(const QString& folder) : m_folder(folder)
{
    m_folder.removeRecursively();
    QDir().mkpath(folder);
    expect(m_translator.load(translationTable(UI_EN)), QStringLiteral("the English table loads"));
    QCoreApplication::installTranslator(&m_translator);
    m_form.SetLanguage(UI_EN);
    m_form.SetQTranslator(&m_translator);
    m_form.show();
    expect(QTest::qWaitForWindowExposed(&m_form), QStringLiteral("the window comes up"));
}

void Tour::step(const char* title)
{
    std::printf("tour: %s\n", title);
    std::fflush(stdout);
}

void Tour::expect(bool holds, const QString& what)
{
    if (holds)
        return;
    std::fprintf(stderr, "tour: failed: %s\n", qPrintable(what));
    shoot("failed");
    std::fprintf(stderr, "tour: see %s\n", qPrintable(m_folder.path()));
    // The windows are in the middle of something: no orderly end is left to try.
    std::_Exit(EXIT_FAILURE);
}

void Tour::expectText(const char* name, const QString& text)
{
    QWidget* found = control<QWidget>(name);
    const QString shown = found->property("text").toString();
    expect(shown == text,
           QStringLiteral("%1 shows \"%2\", not \"%3\"").arg(QLatin1String(name), text, shown));
}

void Tour::shoot(const char* name)
{
    // Labels grow to their new texts with the next events, and the screen shows it a frame later.
    QTest::qWait(50);
    const QString file =
        QStringLiteral("%1-%2.png").arg(++m_pictures, 2, 10, QLatin1Char('0')).arg(QLatin1String(name));
    QGuiApplication::primaryScreen()->grabWindow(0).save(path(file));
}

DialogAnswers::Answer Tour::answer(const QString& shown, const char* button, const char* picture)
{
    return [=](QDialog* dialog) {
        const QString found = DialogAnswers::describe(dialog);
        expect(found == shown, QStringLiteral("the box is\n  %1\nand not\n  %2").arg(shown, found));
        if (picture) {
            expect(QTest::qWaitForWindowExposed(dialog), QStringLiteral("the box comes up"));
            shoot(picture);
        }
        DialogAnswers::press(button)(dialog);
    };
}

DialogAnswers::Answer Tour::chooseFile(const QString& title, const QString& path, const char* picture)
{
    return [=](QDialog* dialog) {
        expect(dialog->windowTitle() == title, QStringLiteral("the file dialog is \"%1\"").arg(title));
        auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        auto* buttons = dialog->findChild<QDialogButtonBox*>();
        expect(name && buttons, QStringLiteral("the file dialog takes a name"));
        // Pasted and not typed: the completer's popup would take the click.
        name->setText(path);
        if (picture)
            shoot(picture);
        for (QAbstractButton* button : buttons->buttons())
            if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
                QTest::mouseClick(button, Qt::LeftButton);
    };
}

void Tour::withDialogs(std::initializer_list<DialogAnswers::Answer> answers,
                       const std::function<void()>& action)
{
    DialogAnswers watcher(answers);
    action();
    expect(watcher.shown().size() == static_cast<int>(answers.size()),
           QStringLiteral("%1 dialogs come up, not %2:\n  %3")
               .arg(answers.size())
               .arg(watcher.shown().size())
               .arg(watcher.shown().join(QStringLiteral("\n  "))));
}

void Tour::clickMenu(const char* menuName, const char* actionName)
{
    auto* menu = control<QMenu>(menuName);
    auto* bar = control<QMenuBar>("m_MenuBar");
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    expect(QTest::qWaitFor([menu] { return menu->isVisible(); }), QStringLiteral("the menu opens"));
    auto* action = control<QAction>(actionName);
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    // A change of language reaches the widgets with the next events, as long before a person's next click.
    QApplication::processEvents();
}

void Tour::clickButton(const char* name)
{
    QTest::mouseClick(control<QWidget>(name), Qt::LeftButton);
}

PinGraphicsView* Tour::view()
{
    auto* found = m_form.findChild<PinGraphicsView*>();
    expect(found != nullptr, QStringLiteral("there is a page"));
    return found;
}

QPoint Tour::viewportPoint(QWidget* widget, QPoint at)
{
    QGraphicsProxyWidget* proxy = ZN64MCUPLL::proxyOf(widget);
    expect(proxy != nullptr, QStringLiteral("%1 stands on the canvas").arg(widget->objectName()));
    const QPointF scenePoint = proxy->mapToScene(widget->mapTo(widget->window(), at));
    view()->ensureVisible(QRectF(scenePoint, QSizeF(1, 1)));
    return view()->mapFromScene(scenePoint);
}

void Tour::clickOnCanvas(const char* name)
{
    auto* widget = control<QWidget>(name);
    // A real click activates the window that it hits; these events do not pass the window manager.
    m_form.activateWindow();
    expect(QTest::qWaitForWindowActive(&m_form), QStringLiteral("the window has the focus"));
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, viewportPoint(widget, widget->rect().center()));
}

void Tour::clickOnPicture(QPoint at)
{
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, view()->mapFromScene(at));
}

void Tour::choose(const char* name, const QString& item)
{
    auto* combo = control<QComboBox>(name);
    const int row = combo->findText(item);
    expect(row >= 0, QStringLiteral("%1 offers \"%2\"").arg(QLatin1String(name), item));
    clickOnCanvas(name);
    QAbstractItemView* list = combo->view();
    expect(QTest::qWaitFor([list] { return list->isVisible(); }), QStringLiteral("the list opens"));
    list->scrollTo(combo->model()->index(row, 0));
    // The first moments of a popup swallow a click: it could belong to the press that opened it.
    const QPoint at =
        viewportPoint(list->viewport(), list->visualRect(combo->model()->index(row, 0)).center());
    QTest::mouseMove(view()->viewport(), at);
    expect(QTest::qWaitFor([&] {
               if (list->isVisible())
                   QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, at);
               return combo->currentIndex() == row && !list->isVisible();
           }),
           QStringLiteral("%1 takes \"%2\"").arg(QLatin1String(name), item));
}

void Tour::type(const char* name, const QString& text, bool commit)
{
    auto* edit = control<QLineEdit>(name);
    clickOnCanvas(name);
    expect(QTest::qWaitFor([edit] { return edit->hasFocus(); }),
           QStringLiteral("%1 takes the caret").arg(QLatin1String(name)));
    QTest::keyClick(view()->viewport(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(view()->viewport(), text);
    if (commit)
        QTest::keyClick(view()->viewport(), Qt::Key_Return);
}
