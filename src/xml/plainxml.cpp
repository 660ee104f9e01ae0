#include "xml/plainxml.h"

#include <QRegularExpression>
#include <QStringView>

namespace {

struct Enclosed
{
    QStringView start;
    QStringView end;
};

// What may hold any text, that of a DOCTYPE included.
const Enclosed EnclosedTexts[] = {
    {u"<!--",      u"-->"},
    {u"<![CDATA[", u"]]>"},
    {u"<?",        u"?>" }
};

// A parser goes by the quotes of an XML declaration: in them, "?>" ends nothing.
bool hasOpenQuote(QStringView declaration)
{
    QChar quote;
    for (const QChar c : declaration) {
        if (c == quote)
            quote = QChar();
        else if (quote.isNull() && (c == u'"' || c == u'\''))
            quote = c;
    }
    return !quote.isNull();
}

// The place behind a DOCTYPE of a name alone, -1 of any other. That one is parsed whole before the parser
// tells of it, in a time that grows with the square of its declarations.
int endOfBareDoctype(QStringView text, int start)
{
    static const QRegularExpression bare(
        QStringLiteral("\\G<!DOCTYPE\\s{1,9}[^\\s<>\\[\\]\"'&%]{1,200}\\s{0,9}>"));
    const QRegularExpressionMatch match =
        bare.match(text.mid(start, 300).toString(), 0, QRegularExpression::NormalMatch);
    return match.hasMatch() ? start + match.capturedLength() : -1;
}

// The place behind the tag's '>', -1 if it has none or too many attributes.
int endOfTag(QStringView text, int start)
{
    QChar quote;
    int attributes = 0;
    for (int at = start + 1; at < text.size(); ++at) {
        const QChar c = text[at];
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
        } else if (c == u'>') {
            return at + 1;
        } else if (c == u'"' || c == u'\'') {
            if (++attributes > PlainXml::MaxAttributes)
                return -1;
            quote = c;
        }
    }
    return -1;
}

// The place behind what begins with the '<' at start, -1 if it must not be parsed.
int endOfMarkup(QStringView text, int start)
{
    const QStringView rest = text.mid(start);
    for (const Enclosed& each : EnclosedTexts) {
        if (!rest.startsWith(each.start))
            continue;
        const qsizetype end = text.indexOf(each.end, start + each.start.size());
        const bool cutShort = rest.startsWith(u"<?xml") && rest.mid(5, 1).trimmed().isEmpty() &&
                              hasOpenQuote(text.mid(start, end - start));
        return end < 0 || cutShort ? -1 : int(end + each.end.size());
    }
    return rest.startsWith(u"<!") ? endOfBareDoctype(text, start) : endOfTag(text, start);
}

// How many more elements are open behind the markup from '<' to '>'.
int opened(QStringView markup)
{
    if (markup.startsWith(u"</"))
        return -1;
    return markup.startsWith(u"<!") || markup.startsWith(u"<?") || markup.endsWith(u"/>") ? 0 : 1;
}

} // namespace

bool isPlainXml(const QString& text)
{
    int tags = 0;
    int depth = 0;
    for (int start = text.indexOf(u'<'), end = 0; start >= 0; start = text.indexOf(u'<', end)) {
        end = endOfMarkup(text, start);
        if (end < 0 || ++tags > PlainXml::MaxTags)
            return false;
        depth += opened(QStringView(text).mid(start, end - start));
        if (depth > PlainXml::MaxDepth)
            return false;
    }
    return true;
}
