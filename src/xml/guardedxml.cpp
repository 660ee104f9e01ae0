#include "xml/guardedxml.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>
#include <QXmlStreamReader>

namespace {

// Pipes and devices are turned away by their kind: opening a pipe would block, and a device need not end.
bool readBytes(const QString& path, QByteArray& bytes)
{
    if (!QFileInfo(path).isFile())
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > GuardedXml::MaxBytes)
        return false;
    // The size is only what the file said: it may grow, and files of /proc say 0.
    bytes = file.read(GuardedXml::MaxBytes + 1);
    return bytes.size() <= GuardedXml::MaxBytes;
}

// Decodes once, so that every later step sees the same characters, whatever encoding the file declares.
bool decode(const QByteArray& bytes, QString& text)
{
    QXmlStreamReader start(bytes);
    start.readNext();
    const QByteArray declared = start.documentEncoding().toString().toLatin1();
    QTextCodec* codec = QTextCodec::codecForName(declared.isEmpty() ? QByteArrayLiteral("UTF-8") : declared);
    if (start.hasError() || codec == nullptr)
        return false;
    QTextCodec::ConverterState state;
    text = QTextCodec::codecForUtfText(bytes, codec)->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

// No '<' can stand inside a tag, so this bounds the attributes without knowing where a tag ends.
bool hasOverlongTag(const QString& text)
{
    int equalsSigns = 0;
    for (const QChar c : text) {
        if (c == QLatin1Char('<'))
            equalsSigns = 0;
        else if (c == QLatin1Char('=') && ++equalsSigns > GuardedXml::MaxEqualsSigns)
            return true;
    }
    return false;
}

bool isWellFormedAndFlat(const QString& text)
{
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement && ++depth > GuardedXml::MaxDepth)
            return false;
        if (token == QXmlStreamReader::EndElement)
            --depth;
        if (token == QXmlStreamReader::DTD)
            return false;
    }
    return !reader.hasError();
}

} // namespace

bool loadGuardedXml(const QString& path, QDomDocument& document)
{
    document.clear();
    QByteArray bytes;
    QString text;
    if (!readBytes(path, bytes) || !decode(bytes, text) || hasOverlongTag(text) || !isWellFormedAndFlat(text))
        return false;
    // The same tokenizer as in the scan: what it let pass cannot be read differently here.
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false);
    return document.setContent(&reader, false);
}
