#include "codegen/section.h"
#include "testdata.h"

#include <QtTest>

/// The rules of templates on small texts: which blank lines stay, how far a match reaches, what is a miss.
class SectionTest : public QObject
{
    Q_OBJECT

private slots:
    void resolves_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("keep");
        QTest::addColumn<bool>("bare");
        QTest::addColumn<QString>("expected"); // null for a miss

        const auto row = [](const char* name, const char* text, bool keep, const char* expected,
                            bool bare = false) {
            QTest::newRow(name) << QString::fromLatin1(text) << keep << bare << QString::fromLatin1(expected);
        };
        const char* const three = "a\n\n[#x >= 1]\nb\nc\n[/#x >= 1]\n\n\n\nd\n";
        row("kept with three empty lines", three, true, "a\n\nb\nc\n\nd\n");
        row("removed with three empty lines", three, false, "a\n\nd\n");
        row("kept with no empty line", "a\n[#x >= 1]\nb\n[/#x >= 1]\nd\n", true, "a\nb\n\nd\n");
        row("kept bare", three, true, "a\n\nb\nc\nd\n", true);
        const char* const twice = "[#x >= 1]\nb\n[/#x >= 1]\n\nplain\n[#x >= 1]\nc\n[/#x >= 1]\n";
        row("two of one name are one when kept", twice, true, "b\n[/#x >= 1]\n\nplain\n[#x >= 1]\nc\n\n");
        const char* const indented = "a\n  [#x >= 1]\n  b;\n  [/#x >= 1]\nd\n";
        row("indented and kept", indented, true, "a\n    b;\n  \nd\n");
        row("indented and removed", indented, false, "a\n  d\n");
        row("back reference", "[#x >= 1]\n<\\1>\n[/#x >= 1]\n", true, "<<\\1>\n>\n\n");
        row("other name", "[#x > 1]\nb\n[/#x > 1]\n", true, nullptr);
        row("empty body", "[#x >= 1]\n[/#x >= 1]\n", true, nullptr);
        row("not closed", "[#x >= 1]\nb\n", false, nullptr);
        row("nothing behind the closing marker", "[#x >= 1]\nb\n[/#x >= 1]", false, nullptr);
    }

    void resolves()
    {
        QFETCH(QString, text);
        QFETCH(bool, keep);
        QFETCH(bool, bare);
        QFETCH(QString, expected);
        QString edited = text;
        const bool found =
            resolveSection(edited, "x >= 1", keep, {}, bare ? SectionEnd::Bare : SectionEnd::EmptyLine);
        QCOMPARE(found, !expected.isNull());
        QCOMPARE(edited, found ? expected : text);
    }

    void nestedSectionsFollowTheCallingOrder()
    {
        const QString text = "[#out]\na\n[#in]\nb\n[/#in]\n\nc\n[/#out]\n\nend\n"_s;
        QString kept = text;
        QVERIFY(resolveSection(kept, "out", true,
                               [](QString& body) { return resolveSection(body, "in", true); }));
        QCOMPARE(kept, "a\nb\n\nc\n\nend\n"_s);
        QString removed = text;
        QVERIFY(resolveSection(removed, "out", false, [](QString&) { return false; }));
        QCOMPARE(removed, "end\n"_s);
        QString failed = text;
        QVERIFY(!resolveSection(failed, "out", true, [](QString&) { return false; }));
        QCOMPARE(failed, text);
    }

    void rewritesCalls_data()
    {
        QTest::addColumn<bool>("lastOnly");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected"); // null for a miss

        QTest::newRow("every occurrence, blanks and semicolon made good") << false << "  f( A); f(B)\nf(C);"_s
                                                                          << "  f(Z); f(Z);\nf(Z);"_s;
        QTest::newRow("last occurrence only") << true << "  f(A); f( B)\n f(C);\n g"_s
                                              << "  f(A); f( B)\n f(Z);\n g"_s;
        QTest::newRow("other function") << true << "g(A);"_s << QString();
        QTest::newRow("other arguments") << false << "f(A, B);"_s << QString();
    }

    void rewritesCalls()
    {
        QFETCH(bool, lastOnly);
        QFETCH(QString, text);
        QFETCH(QString, expected);
        const CallPattern call{"f", R"(\s*\w+)"};
        QString edited = text;
        const bool found = lastOnly ? rewriteLastCall(edited, call, "Z"_s) : rewriteCall(edited, call, "Z"_s);
        QCOMPARE(found, !expected.isNull());
        QCOMPARE(edited, found ? expected : text);
    }
};

QTEST_GUILESS_MAIN(SectionTest)
#include "tst_section.moc"
