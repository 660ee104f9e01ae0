#include "fuzz/fuzz.h"
#include "fuzz/mutation.h"
#include "model/seriestraits.h"
#include "pages/ClockTreePage.h"
#include "pages/series/seriespages.h"
#include "testdata.h"
#include "widgets/dialoganswers.h"
#include "xml/guardedxml.h"
#include "xml/plainxml.h"

#include <QDir>
#include <QDomDocument>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <memory>
#include <vector>

namespace {

/// A file of any series on the page of any: opened, saved, opened again, generated from.
class DesignSubject : public Subject
{
public:
    DesignSubject()
    {
        for (const SeriesTraits& traits : seriesList())
            m_pages.emplace_back(createSeriesPage(traits.series, nullptr));
    }

    const char* suffix() const override { return "ZNCK"; }
    QByteArray input(const QByteArray& corpusFile, QRandomGenerator& random) override;
    Fault run(const QByteArray& input, QRandomGenerator& random) override;

private:
    ClockTreePage& anyPage(QRandomGenerator& random)
    {
        return *m_pages[random.bounded(quint32(m_pages.size()))];
    }
    QString path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    QByteArray saved(const ClockTreePage& page) const;
    Fault generate(ClockTreePage& page) const;

    std::vector<std::unique_ptr<ClockTreePage>> m_pages;
    QTemporaryDir m_folder{scratchFolder()};
};

// Whatever the guard lets through declares nothing, and is read as the toolkit reads it: all of that, and
// more where the toolkit believes the declared encoding against the bytes.
Fault guardFault(const QString& path, const QByteArray& input)
{
    const QString text = QString::fromUtf8(input);
    if (isPlainXml(text)) {
        QXmlStreamReader reader(text);
        while (!reader.atEnd())
            if (reader.readNext() == QXmlStreamReader::DTD && reader.text().contains(u'['))
                return "declarations passed the guard"_s;
    }
    QDomDocument document;
    if (loadGuardedXml(path, document) == document.documentElement().isNull())
        return "the result belies the document"_s;
    QDomDocument byToolkit;
    const bool utf8 = !input.contains('\0');
    if (utf8 && byToolkit.setContent(input) && isPlainXml(text) && input.size() <= GuardedXml::MaxBytes &&
        byToolkit.toByteArray() != document.toByteArray())
        return "not as the toolkit reads it"_s;
    return document.doctype().internalSubset().isEmpty() ? Fault() : "declarations were loaded"_s;
}

} // namespace

QByteArray DesignSubject::input(const QByteArray& corpusFile, QRandomGenerator& random)
{
    if (random.bounded(10) == 0)
        return mutatedBytes(QString::fromUtf8(corpusFile), random);
    ClockTreePage& page = anyPage(random);
    page.InitAllControl();
    Document document = Document::fromText(QString::fromUtf8(saved(page)));
    mutate(document, random);
    return mutatedBytes(document.toText(), random);
}

QByteArray DesignSubject::saved(const ClockTreePage& page) const
{
    page.writeDesign(path("saved.ZNCK"), seriesName(page.model().series()));
    return contentOf(path("saved.ZNCK"));
}

Fault DesignSubject::run(const QByteArray& input, QRandomGenerator& random)
{
    if (!writeFile(path("opened.ZNCK"), input))
        return "no place for the file"_s;
    const Fault guard = guardFault(path("opened.ZNCK"), input);
    if (!guard.isEmpty())
        return guard;
    ClockTreePage& page = anyPage(random);
    {
        DialogAnswers answers;
        page.OpenFromFile(path("opened.ZNCK"));
        // Some settings are not read as they were written, but what was read once stays.
        saved(page);
        page.OpenFromFile(path("saved.ZNCK"));
        const QByteArray second = saved(page);
        page.OpenFromFile(path("saved.ZNCK"));
        if (saved(page) != second)
            return "a design changes each time it is opened: "_s + QString::fromUtf8(second + saved(page));
        if (!answers.shown().isEmpty())
            return "opening asked: "_s + answers.shown().join(u'\n');
    }
    // The dear part: four files that are on the disk before it goes on.
    return random.bounded(4) == 0 ? generate(page) : Fault();
}

Fault DesignSubject::generate(ClockTreePage& page) const
{
    const auto agree = [](QDialog* box) {
        QAbstractButton* button = static_cast<QMessageBox*>(box)->defaultButton();
        button ? button->click() : box->reject();
    };
    DialogAnswers answers{agree, agree, agree, agree, agree, agree};
    page.Set_GenerateCodeMode(MODE_CODE_VIEW);
    const bool done = page.GenerateCode();
    QDir folder(QCoreApplication::applicationDirPath() + "/Code_Sample"_s);
    Fault fault;
    if (!done && answers.shown().isEmpty())
        fault = "generating failed in silence"_s;
    for (const char* part : {"src", "inc"}) {
        QDir files(folder.filePath(QString::fromLatin1(part)));
        const QStringList names = files.entryList(QDir::Files);
        if (done && names.size() != 2)
            fault = "not four files"_s;
        for (const QString& name : names)
            if (contentOf(files.filePath(name)).contains("[#"))
                fault = "a marker is left in "_s + name;
    }
    folder.removeRecursively();
    return fault;
}

Subject* newDesignSubject()
{
    return new DesignSubject;
}
