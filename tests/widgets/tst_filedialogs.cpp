#include "dialoganswers.h"
#include "testdata.h"
#include "widgets/filedialogs.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

/// The dialogs for files and folders, answered by typing.
class TestFileDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        for (const char* name : {"designs", "project"})
            QVERIFY(QDir(path()).mkdir(QLatin1String(name)));
        QVERIFY(writeFile(path("designs/a.ZNCK"), "design"));
    }

    void beginWhereAPathWasAcceptedLast()
    {
        QCOMPARE(choose(save, path("designs/b.ZNCK")), path("designs/b.ZNCK"));
        QCOMPARE(beginOf(open), path("designs"));
        QCOMPARE(choose(folder, path("project")), path("project"));
        QCOMPARE(beginOf(save), path("project"));
        QCOMPARE(choose(open, path("designs/a.ZNCK")), path("designs/a.ZNCK"));
        // A dialog that was cancelled elsewhere leaves no trace.
        {
            DialogAnswers answers{[this](QDialog* dialog) {
                qobject_cast<QFileDialog*>(dialog)->setDirectory(path("project"));
                dialog->reject();
            }};
            QVERIFY(save().isNull());
        }
        QCOMPARE(beginOf(folder), path("designs"));
        QVERIFY(QDir(path("designs")).removeRecursively());
        QVERIFY(QDir(beginOf(open)).exists());
    }

    void missingFolderIsMadeIfWanted()
    {
        const QString box =
            "question | Select directory | The folder does not exist. Make it?\n%1 | Cancel, Yes"_s;
        const QString deep = path("new/firmware");
        {
            // Cancel goes back to the dialog.
            DialogAnswers answers{typeMissing(path("new")), DialogAnswers::press("Cancel")};
            QTimer::singleShot(400, this, &TestFileDialogs::closeWhatIsLeft);
            QVERIFY(folder().isNull());
            QCOMPARE(answers.shown(), QStringList({"Select directory"_s, box.arg(path("new"))}));
            QVERIFY(!QFile::exists(path("new")));
        }
        DialogAnswers answers{typeMissing(deep), DialogAnswers::press("Yes")};
        QCOMPARE(folder(), deep);
        QVERIFY(QDir(deep).exists());
    }

private:
    using Ask = QString (*)();
    static QString open() { return filedialogs::fileToOpen(nullptr, "Open"_s, "Config file (*.ZNCK)"_s); }
    static QString save() { return filedialogs::fileToSave(nullptr, "Save"_s, "Config file (*.ZNCK)"_s); }
    static QString folder() { return filedialogs::folder(nullptr, "Select directory"_s); }

    QString path(const char* name = "") const
    {
        return QDir::cleanPath(m_folder->path() + u'/' + QLatin1String(name));
    }
    static QString choose(Ask ask, const QString& path)
    {
        DialogAnswers answers{DialogAnswers::choose(path)};
        return ask();
    }
    /// Types the path and clicks the button when the answer is done: there is a question to come.
    static DialogAnswers::Answer typeMissing(const QString& path)
    {
        return [path](QDialog* dialog) {
            dialog->findChild<QLineEdit*>("fileNameEdit"_s)->setText(path);
            auto* button = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
            QTimer::singleShot(0, button, &QAbstractButton::click);
        };
    }
    static void closeWhatIsLeft()
    {
        if (QWidget* left = QApplication::activeModalWidget())
            left->close();
    }
    /// The folder that the dialog shows when it comes up.
    static QString beginOf(Ask ask)
    {
        QString begin;
        DialogAnswers answers{[&](QDialog* dialog) {
            begin = qobject_cast<QFileDialog*>(dialog)->directory().absolutePath();
            dialog->reject();
        }};
        ask();
        return begin;
    }

    QScopedPointer<QTemporaryDir> m_folder;
};

QTEST_MAIN(TestFileDialogs)
#include "tst_filedialogs.moc"
