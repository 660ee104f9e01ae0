#include "update/onlineupdate.h"

#include "xml/guardedxml.h"

namespace {

// Text of the element named tag that is, or follows, the child whose text is the tool's name.
bool findInTool(const QDomElement& tool, const QString& toolName, const QString& tag, QString& text)
{
    bool isWanted = false;
    for (QDomElement child = tool.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        isWanted = isWanted || child.text() == toolName;
        if (isWanted && child.nodeName() == tag) {
            text = child.text();
            return true;
        }
    }
    return false;
}

// Room for zeros in front: eight digits already exceed an int.
constexpr int MaxDigits = 16;

} // namespace

QString OnlineUpdate::GetURLDownloadXMLElement(const QString& file, const QString& top,
                                               const QString& toolName, const QString& tag)
{
    QDomDocument document;
    QString text;
    if (!loadGuardedXml(file, document))
        return text;
    const QDomElement list = document.documentElement().firstChildElement(top);
    for (QDomElement tool = list.firstChildElement(); !tool.isNull(); tool = tool.nextSiblingElement()) {
        if (findInTool(tool, toolName, tag, text))
            break;
    }
    return text;
}

int OnlineUpdate::VersionString2Int(const QString& version)
{
    // Unsigned: the fields come from the net, and a large one may push its upper bits out.
    uint number = 0;
    for (int field = 0; field < 3; ++field) {
        bool ok = false;
        const QString digits = version.section(QLatin1Char('.'), field, field);
        const int value = digits.toInt(&ok, 16);
        if (!ok || digits.size() > MaxDigits)
            return 0;
        number += uint(value) << (16 - 8 * field);
    }
    return int(number);
}
