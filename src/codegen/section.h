#pragma once

#include <QString>

#include <functional>

/// Edits the body of a kept section before it is put back into the text. False fails the section.
using BodyEdit = std::function<bool(QString& body)>;

/// What stands behind the body of a kept section.
enum class SectionEnd
{
    /// One line feed more, so that exactly one empty line follows the body.
    EmptyLine,
    /// Nothing more: for alternatives that stand back to back.
    Bare
};

/// Resolves the section from [#name] to [/#name], with all line breaks behind it, in the whole text. A kept
/// section loses its marker lines; a removed one leaves no trace. The match is greedy: it runs from the first
/// opening marker to the last closing one. The edit sees the body in a copy, with its line feed already
/// added. False, with the text as it was, if the section is missing, its body is empty, or the edit fails. A
/// backslash with a digit in a body is read as a back reference, so templates hold no backslash.
bool resolveSection(QString& text, const char* name, bool keep, const BodyEdit& edit = {},
                    SectionEnd end = SectionEnd::EmptyLine);

/// A firmware call as it stands in a template: the function's name and the pattern of its arguments.
struct CallPattern
{
    const char* function;
    const char* arguments;
};

/// Whether the text holds such a call.
bool hasCall(const QString& text, const CallPattern& call);

/// Gives every such call in the text the new arguments and a closing semicolon. False if there is none.
bool rewriteCall(QString& text, const CallPattern& call, const QString& arguments);

/// The same, but the call is looked for in one text and rewritten in another: a miss in the searched text is
/// false, a miss in the edited one is not noticed.
bool rewriteCall(const QString& searched, QString& edited, const CallPattern& call, const QString& arguments);

/// Rewrites only the last such call of the text.
bool rewriteLastCall(QString& text, const CallPattern& call, const QString& arguments);

/// Whether the pattern matches anywhere in the text.
bool hasPattern(const QString& text, const QString& pattern);

/// Replaces every match of the pattern; an empty replacement deletes them. False if there is none.
bool replacePattern(QString& text, const QString& pattern, const QString& replacement);
