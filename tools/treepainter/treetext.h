#pragma once

#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

#include <stdexcept>
#include <vector>

/// A line of a tree's text, for messages.
struct SourceLine
{
    QString file; ///< without its folder
    int number = 0;
};

/// What is wrong with a tree, and where.
struct Problem
{
    SourceLine source;
    QString message;
    /// "hext.tree:12: message", the form in which compilers tell.
    QString text() const;
};
using Problems = std::vector<Problem>;

/// Thrown on a word that means nothing; whoever reads the statement adds the line.
struct TreeError : std::runtime_error
{
    explicit TreeError(const QString& message) : std::runtime_error(message.toStdString()) {}
    QString message() const { return QString::fromUtf8(what()); }
};

struct Word
{
    QString text;
    bool quoted = false;
};

/// One line of a tree: a keyword, a name if the line gives one ("wire hext: ..."), and words.
struct Statement
{
    SourceLine source;
    QString keyword;
    QString name;
    QVector<Word> words;
    /// The line counts on pages with these controls; "!" before a name means pages without it.
    QStringList conditions = {};
    /// Where the part stands whose text it is, picture pixels: "left" and "top" in its words.
    QPointF corner = {};
};

/// The statements of a tree's text; blank lines and comments give none.
std::vector<Statement> parseTree(const QString& text, const QString& file, Problems& problems);

/// The statements of a file.
std::vector<Statement> readTree(const QString& path, Problems& problems);
