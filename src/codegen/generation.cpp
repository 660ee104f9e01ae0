#include "codegen/codetraits.h"
#include "files/replacefile.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

namespace {
/// One file of a run.
struct Output
{
    const char* templateEnding;
    QString path;
    /// Null for a plain copy.
    CodeFragment edit;
    /// The question about an existing file is put even if an earlier answer holds for all.
    bool alwaysAsk;
};

bool readTemplate(const QString& name, QString& text)
{
    QFile file(QStringLiteral(":/image/") + name);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    text = stream.readAll();
    return true;
}

} // namespace

bool ZN64ConfigCLK::GenerateCode(const QString& incPath, const QString& srcPath, const QString& stem)
{
    const QString src = srcPath + QLatin1Char('/');
    const QString inc = incPath + QLatin1Char('/') + stem;
    const Output outputs[] = {
        {"_clock.c", src + stem + QStringLiteral("_clock.c"), &ZN64ConfigCLK::GenerateClockSource,     true },
        {"_clock.h", inc + QStringLiteral("_clock.h"),        nullptr,                                 false},
        {"_main.c",  src + QStringLiteral("main.c"),          &ZN64ConfigCLK::GenerateMainSource,      false},
        {"_conf.h",  inc + QStringLiteral("_conf.h"),         &ZN64ConfigCLK::GenerateCode_hextdefine, false}
    };

    const bool forPreview = m_GenerateCodeMode == MODE_CODE_VIEW;
    // The preview shows what it finds, and must not find the files of an earlier design.
    if (forPreview)
        for (const Output& output : outputs)
            QFile::remove(output.path);

    // One file after the other: a run that ends early leaves the files before it written.
    for (const Output& output : outputs) {
        QString text;
        if (!readTemplate(stem + QLatin1String(output.templateEnding), text))
            return false;
        if (output.edit && !(this->*output.edit)(text))
            return false;
        if (!forPreview && (output.alwaysAsk || !m_replaceflag) && QFile::exists(output.path)) {
            bool proceed = false;
            ShowConflictMessage(QFileInfo(output.path).fileName(), proceed, m_replaceflag);
            if (!proceed)
                return false;
        }
        const auto write = forPreview ? writeAnew : replaceFile;
        if (!write(output.path, text.toUtf8()))
            return false;
    }
    return true;
}
