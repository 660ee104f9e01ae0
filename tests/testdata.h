#pragma once

#include <QDir>
#include <QFile>
#include <QTest>

#include <initializer_list>

/// Short for what tests are full of.
inline QString operator""_s(const char* text, std::size_t length)
{
    return QString::fromUtf8(text, int(length));
}

/// A row per line, with its fields, which stand between bars, in the column "fields". The line is its name.
inline void fieldRows(std::initializer_list<const char*> lines)
{
    QTest::addColumn<QStringList>("fields");
    for (const char* line : lines) {
        QStringList fields;
        for (const QString& field : QString::fromUtf8(line).split(QLatin1Char('|')))
            fields += field.trimmed();
        QTest::newRow(line) << fields;
    }
}

/// The template of a temporary folder in memory, where there is one: on a disk, each saved design waits for
/// it.
inline QString scratchFolder()
{
    const bool memory = QFileInfo(QStringLiteral("/dev/shm")).isWritable();
    return (memory ? QStringLiteral("/dev/shm") : QDir::tempPath()) + QStringLiteral("/clockwright-XXXXXX");
}

inline bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// "(no file)" for a file that cannot be read.
inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}
