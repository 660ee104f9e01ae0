#include "fuzz/mutation.h"

#include "testdata.h"

#include <QRegularExpression>
#include <QTextCodec>

#include <iterator>

namespace {

template <class List>
auto anyOf(const List& list, QRandomGenerator& random)
{
    return *std::next(std::begin(list), random.bounded(int(std::size(list))));
}

// Now and then as long as a file may be, mostly short.
int someLength(QRandomGenerator& random)
{
    return random.bounded(1 << random.bounded(1, random.bounded(20) == 0 ? 20 : 10));
}

// Between bars.
const char Values[] =
    "|0|-1|1|2|3|4|7|10|31|64|500|501|512|2147483647|-2147483648|4294967296|99999999999999999999|"
    "1.5|8.000000|25.0000001|1e308|1e-308|-0.0|nan|inf|-inf|0x10| 4\n|+1|\u0664|"
    "<![CDATA[4]]>|&#x34;|&#0;|&lt;!DOCTYPE a&gt;|&e;|<a>4</a>|<!--4-->4|ZN64G150|\u202e4|"
    "3.0.18|3.0.1A|https://a.example/d/tool_V3.0.20.zip|file:///dev/ptmx|"
    "https://a.example/.bashrc";

const char* const Prologs[] = {"<!DOCTYPE x>\n",
                               "<!DOCTYPE x [<!ENTITY e 'eeeeeeee'><!ATTLIST x n CDATA ''>]>\n",
                               "<!-- <!DOCTYPE x> -->\n",
                               "<?x <!DOCTYPE x> ?>\n",
                               "<![CDATA[ <!DOCTYPE x> ]]>",
                               " \n",
                               "\ufeff",
                               "x"};

const char* const Between[] = {"<!--x-->", "<?x y?>", "<![CDATA[x]]>", "]]>", "<x a='1' b=\"2\"/>",
                               "</x>",     "<x>",     "&amp;",         "<",   "<!DOCTYPE x>"};

} // namespace

Document Document::fromText(const QString& text)
{
    static const QRegularExpression element("^\\s*<([\\w.:-]+)>(.*)</\\1>$"_s);
    static const QRegularExpression root("^<([\\w.:-]+)>$"_s);
    Document document;
    for (const QString& line : text.split(u'\n')) {
        const QRegularExpressionMatch found = element.match(line);
        if (found.hasMatch())
            document.elements += {found.captured(1), found.captured(2)};
        else if (document.root.isEmpty() && root.match(line).hasMatch())
            document.root = root.match(line).captured(1);
        else if (document.root.isEmpty())
            document.prolog += line + u'\n';
        else if (line != "</"_s + document.root + u'>')
            document.elements += {QString(), line};
    }
    return document;
}

QString Document::toText() const
{
    QString text = prolog + u'<' + root + ">\n"_s;
    for (const Element& each : elements)
        text += each.name.isEmpty()
                    ? each.text + u'\n'
                    : "    <%1>%2</%3>\n"_s.arg(each.name, each.text, each.name.section(u' ', 0, 0));
    return text + "</"_s + root + u'>';
}

QString oddValue(QRandomGenerator& random)
{
    if (random.bounded(10) == 0)
        return QString(someLength(random), QChar(anyOf(u"0159.x <&\u65f6\n/", random)));
    if (random.bounded(4) == 0)
        return QString::number(random.bounded(-3, 515));
    static const QStringList values = QString::fromUtf8(Values).split(u'|');
    return anyOf(values, random);
}

void mutate(Document& document, QRandomGenerator& random)
{
    for (int change = random.bounded(1, 6); change > 0 && !document.elements.isEmpty(); --change) {
        const int at = random.bounded(document.elements.size());
        Document::Element& element = document.elements[at];
        switch (random.bounded(12)) {
        case 0:
            document.elements.removeAt(at);
            break;
        case 1:
            document.elements.insert(random.bounded(document.elements.size()), Document::Element(element));
            break;
        case 2:
            std::swap(element.text, document.elements[random.bounded(document.elements.size())].text);
            break;
        case 3:
            element.name += " a%1='%2'"_s.arg(change).arg(oddValue(random)).repeated(random.bounded(1, 12));
            break;
        case 4:
            element.text = "<%1>"_s.arg(element.name).repeated(random.bounded(12)) + element.text;
            break;
        case 5:
            document.elements.insert(at, {QString(), QString::fromUtf8(anyOf(Between, random))});
            break;
        case 6:
            document.prolog += QString::fromUtf8(anyOf(Prologs, random));
            break;
        default:
            element.text = oddValue(random);
        }
    }
}

QByteArray mutatedBytes(const QString& text, QRandomGenerator& random)
{
    const char* const encodings[] = {"UTF-8", "UTF-8",    "UTF-8",  "UTF-8",        "UTF-16",
                                     "GBK",   "UTF-16BE", "UTF-32", "windows-1252", "ISO-2022-JP"};
    const char* encoding = anyOf(encodings, random);
    QString declared = text;
    if (random.bounded(2) == 0)
        declared.replace("UTF-8"_s, QString::fromLatin1(anyOf(encodings, random)));
    QByteArray bytes = QTextCodec::codecForName(encoding)->fromUnicode(declared);
    if (random.bounded(3) != 0 || bytes.isEmpty())
        return bytes;
    const int at = random.bounded(bytes.size());
    switch (random.bounded(4)) {
    case 0:
        return bytes.left(at);
    case 1:
        bytes[at] = char(random.bounded(256));
        return bytes;
    case 2:
        return bytes.insert(at, QByteArray(someLength(random), char(random.bounded(256))));
    default: {
        // A piece over and over.
        const QByteArray piece = bytes.mid(at, random.bounded(1, 100));
        return bytes.insert(at, piece.repeated(someLength(random) / piece.size() + 1));
    }
    }
}
