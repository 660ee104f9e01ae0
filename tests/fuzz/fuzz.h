#pragma once

#include <QByteArray>
#include <QList>
#include <QRandomGenerator>
#include <QString>

/// What a case found wrong; empty if nothing.
using Fault = QString;

/// A kind of input, with what the program does to it and what must hold then.
class Subject
{
public:
    virtual ~Subject() = default;
    /// The ending of the corpus' files for it.
    virtual const char* suffix() const = 0;
    /// The input of a case, made from one of the corpus or from a source of its own.
    virtual QByteArray input(const QByteArray& corpusFile, QRandomGenerator& random) = 0;
    virtual Fault run(const QByteArray& input, QRandomGenerator& random) = 0;
};

Subject* newDesignSubject();
Subject* newListSubject();
Subject* newSectionSubject();
