#include "xml/plainxml.h"

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
        return end < 0 ? -1 : int(end + each.end.size());
    }
    // Of all else, only a DOCTYPE begins so. It is parsed whole before the parser tells of it, in a time that
    // grows with the square of its declarations.
    return rest.startsWith(u"<!") ? -1 : endOfTag(text, start);
}

} // namespace

bool isPlainXml(const QString& text)
{
    int tags = 0;
    for (int at = text.indexOf(u'<'); at >= 0; at = text.indexOf(u'<', at)) {
        if (++tags > PlainXml::MaxTags)
            return false;
        at = endOfMarkup(text, at);
        if (at < 0)
            return false;
    }
    return true;
}
