#include "xml/guardedxml.h"

#include "xml/plainxml.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
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

// The encoding that the bytes show by themselves or declare. Looked up without a parser, which would go on
// into a DOCTYPE to find the declaration's end.
QTextCodec* codecOf(const QByteArray& bytes)
{
    // UTF-16 without a byte order mark.
    if (bytes.startsWith(QByteArray("<\0", 2)))
        return QTextCodec::codecForName("UTF-16LE");
    if (bytes.startsWith(QByteArray("\0<", 2)))
        return QTextCodec::codecForName("UTF-16BE");
    static const QRegularExpression declaration(
        QStringLiteral("^<\\?xml\\s[^>]*?\\sencoding\\s*=\\s*[\"']([A-Za-z][\\w.:-]{0,40})[\"']"));
    constexpr int LongestDeclaration = 200;
    // The mark of UTF-8 may stand before the declaration.
    const QByteArray start = bytes.mid(bytes.startsWith("\xef\xbb\xbf") ? 3 : 0, LongestDeclaration);
    const QByteArray declared = declaration.match(QString::fromLatin1(start)).captured(1).toLatin1();
    QTextCodec* codec = QTextCodec::codecForName(declared.isEmpty() ? QByteArrayLiteral("UTF-8") : declared);
    return codec == nullptr ? nullptr : QTextCodec::codecForUtfText(bytes, codec);
}

// Decodes once, so that every later step sees the same characters, whatever encoding the file declares.
bool decode(const QByteArray& bytes, QString& text)
{
    const QTextCodec* codec = codecOf(bytes);
    if (codec == nullptr)
        return false;
    QTextCodec::ConverterState state;
    text = codec->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
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
    }
    return !reader.hasError();
}

} // namespace

bool loadGuardedXml(const QString& path, QDomDocument& document)
{
    document.clear();
    QByteArray bytes;
    QString text;
    if (!readBytes(path, bytes) || !decode(bytes, text) || !isPlainXml(text) || !isWellFormedAndFlat(text))
        return false;
    // The same tokenizer as in the scan: what it let pass cannot be read differently here.
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false);
    return document.setContent(&reader, false);
}
