#include "xml/guardedxml.h"

#include "files/plainfile.h"
#include "xml/plainxml.h"

#include <QRegularExpression>
#include <QTextCodec>

namespace {

// The encoding that the bytes show by themselves or declare; UTF-8 if it is unknown. Looked up without a
// parser, which would go on into a DOCTYPE to find the declaration's end.
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
    QTextCodec* codec = QTextCodec::codecForName(declared);
    return QTextCodec::codecForUtfText(bytes, codec != nullptr ? codec : QTextCodec::codecForName("UTF-8"));
}

// Once, so that every later step sees the same characters, whatever encoding the file declares. What an
// encoding cannot tell becomes a mark in the text: names and numbers around it are read all the same.
QString decoded(const QByteArray& bytes)
{
    QTextCodec::ConverterState state;
    return codecOf(bytes)->toUnicode(bytes.constData(), bytes.size(), &state);
}

} // namespace

bool loadGuardedXml(const QString& path, QDomDocument& document)
{
    document.clear();
    QByteArray bytes;
    if (!readPlainFile(path, GuardedXml::MaxBytes, bytes))
        return false;
    const QString text = decoded(bytes);
    if (isPlainXml(text) && document.setContent(text, false))
        return true;
    // What was read up to the fault.
    document.clear();
    return false;
}
