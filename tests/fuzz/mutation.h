#pragma once

#include <QByteArray>
#include <QRandomGenerator>
#include <QString>
#include <QVector>

/// An XML document that is about to go wrong: its root's children as names and raw texts.
struct Document
{
    struct Element
    {
        QString name;
        /// With its markup.
        QString text;
    };

    QString prolog;
    QString root;
    QVector<Element> elements;

    /// From any text with one element a line; other lines stay as they are, in elements without a name.
    static Document fromText(const QString& text);
    QString toText() const;
};

/// Changes some elements, their order, their nesting, what stands between them and in front.
void mutate(Document& document, QRandomGenerator& random);
/// A value that a number, a name or a text should not be, or only just.
QString oddValue(QRandomGenerator& random);
/// The text in some encoding, which its declaration may or may not name, and then cut, hurt or stretched.
QByteArray mutatedBytes(const QString& text, QRandomGenerator& random);
