#include "codegen/section.h"
#include "fuzz/fuzz.h"
#include "fuzz/mutation.h"
#include "testdata.h"
#include "update/boxtext.h"
#include "update/onlineupdate.h"
#include "update/targetpath.h"

#include <QTemporaryDir>
#include <QUrl>
#include <QVector>

namespace {

/// A resource list: what is read out of it, and the file name and the texts that come of that.
class ListSubject : public Subject
{
public:
    const char* suffix() const override { return "xml"; }

    QByteArray input(const QByteArray& corpusFile, QRandomGenerator& random) override
    {
        Document list = Document::fromText(QString::fromUtf8(corpusFile));
        mutate(list, random);
        return mutatedBytes(list.toText(), random);
    }

    Fault run(const QByteArray& input, QRandomGenerator& random) override
    {
        const QString path = m_folder.filePath("list.xml"_s);
        if (!writeFile(path, input))
            return "no place for the file"_s;
        const auto text = [&](const char* tag) {
            const QString read = OnlineUpdate::GetURLDownloadXMLElement(
                path, "VelmoraTool"_s, "ZN64 Clockwright Linux"_s, QString::fromLatin1(tag));
            return random.bounded(3) == 0 ? oddValue(random) : read;
        };
        const QString version = text("Version");
        const QString address = text("URLEN");
        OnlineUpdate::VersionString2Int(version);
        const Fault fault = boxFault(address);
        return fault.isEmpty() ? nameFault(downloadFileName(QUrl::fromUserInput(address), version)) : fault;
    }

private:
    static Fault nameFault(const QString& name)
    {
        for (const uint character : name.toUcs4())
            if (!isVisible(character) || character == '/')
                return "a name that is none: "_s + name;
        return name.startsWith(u'.') ? "a hidden name: "_s + name : Fault();
    }

    static Fault boxFault(const QString& text)
    {
        const QString shown = boxText(text);
        for (const uint character : shown.toUcs4())
            if (!isVisible(character) && character != 0x200b && character != '\t')
                return "a box would obey U+%1"_s.arg(character, 0, 16);
        return shown.size() > 12000 ? "a text too long for a box"_s : Fault();
    }

    QTemporaryDir m_folder{scratchFolder()};
};

/// A template text with sections and calls in any order.
class SectionSubject : public Subject
{
public:
    const char* suffix() const override { return "txt"; }

    QByteArray input(const QByteArray& corpusFile, QRandomGenerator& random) override
    {
        QStringList lines = QString::fromUtf8(corpusFile).split(u'\n');
        for (int change = random.bounded(8); change > 0; --change) {
            const int at = random.bounded(lines.size());
            switch (random.bounded(4)) {
            case 0:
                lines.insert(random.bounded(lines.size()), lines[at]);
                break;
            case 1:
                lines.swapItemsAt(at, random.bounded(lines.size()));
                break;
            case 2:
                lines[at] = lines[at].left(random.bounded(lines[at].size() + 1));
                break;
            default:
                lines[at] += oddValue(random).left(2000);
            }
        }
        return lines.join(u'\n').toUtf8();
    }

    Fault run(const QByteArray& input, QRandomGenerator& random) override
    {
        const QString before = QString::fromUtf8(input);
        for (const bool keep : {true, false}) {
            QString text = before;
            const bool found = resolveSection(text, "one", keep);
            if (!found && text != before)
                return "a section that is missing changed the text"_s;
            if (found && !keep && text.size() >= before.size())
                return "a removed section left its length"_s;
        }
        const CallPattern call{random.bounded(2) == 0 ? "crm_ahb_div_set" : "crm_pll_config", ".+"};
        QString text = before;
        const bool had = hasCall(text, call);
        if (rewriteLastCall(text, call, "X"_s) != had || (!had && text != before))
            return "a call was taken for another"_s;
        return rewriteCall(text, call, "Y"_s) == had ? Fault() : "a rewritten call is none"_s;
    }
};

} // namespace

Subject* newListSubject()
{
    return new ListSubject;
}

Subject* newSectionSubject()
{
    return new SectionSubject;
}
