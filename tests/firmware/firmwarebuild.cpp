#include "firmware/firmwarebuild.h"

#include "model/ZN64ConfigCLK.h"

#include <QDir>
#include <QProcess>

namespace {
struct Outcome
{
    bool good;
    QString out;
    QString errors;
};

Outcome execute(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    const bool done = process.waitForFinished(60000);
    const bool good = done && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    QString errors = QString::fromLocal8Bit(process.readAllStandardError());
    if (!good && errors.isEmpty())
        errors = program + QStringLiteral(" failed: ") + process.errorString();
    return {good, QString::fromLocal8Bit(process.readAllStandardOutput()), errors};
}

Outcome build(const QString& base, const QString& stem, const QString& program)
{
    // A design that never waits leaves the template's delay function without a caller.
    QStringList arguments =
        QStringLiteral("-std=c11 -Wall -Wextra -Werror -Wno-unused-function").split(QLatin1Char(' '));
    for (const QString& folder :
         {base + QStringLiteral("/inc"), base + QStringLiteral("/src"),
          QStringLiteral(FIRMWARE_DIR "/include"), QStringLiteral(FIRMWARE_MODULES_DIR)})
        arguments << QStringLiteral("-I") + folder;
    arguments << QStringLiteral("-DFIRMWARE_CHIP_HEADER=\"%1.h\"").arg(stem)
              << base + QStringLiteral("/src/%1_clock.c").arg(stem)
              << QStringLiteral(FIRMWARE_DIR "/generatedmain.c") << QStringLiteral(FIRMWARE_DIR "/firmware.c")
              << QStringLiteral("-o") << program;
    return execute(QStringLiteral(FIRMWARE_COMPILER), arguments);
}
} // namespace

namespace firmware {
bool generate(ZN64ConfigCLK& clock, const QString& base, const QString& stem)
{
    const QString inc = base + QStringLiteral("/inc");
    const QString src = base + QStringLiteral("/src");
    clock.Set_GenerateCodeMode(MODE_CODE_VIEW);
    return QDir().mkpath(inc) && QDir().mkpath(src) && clock.GenerateCode(inc, src, stem);
}

Run run(const QString& base, const QString& stem)
{
    const QString program = base + QStringLiteral("/program");
    const Outcome built = build(base, stem, program);
    if (!built.good)
        return {built.errors, {}, {}};
    const Outcome ended = execute(program, {});
    Run result;
    for (const QString& line : ended.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QStringList words = line.split(QLatin1Char(' '));
        if (line.startsWith(QLatin1String("fault:")))
            result.errors += line + QLatin1Char('\n');
        else if (words.first() == QLatin1String("="))
            result.clocks.insert(words.value(1), words.value(2).toLongLong());
        else
            result.calls << line;
    }
    if (!ended.good && result.errors.isEmpty())
        result.errors = ended.errors;
    return result;
}
} // namespace firmware
