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

QStringList compilerOptions(const QString& base)
{
    const QString folder = QStringLiteral(FIRMWARE_DIR);
    // A design that never waits leaves the template's delay function without a caller.
    return {QStringLiteral("-std=c11"),
            QStringLiteral("-Wall"),
            QStringLiteral("-Wextra"),
            QStringLiteral("-Werror"),
            QStringLiteral("-Wno-unused-function"),
            QStringLiteral("-I") + base + QStringLiteral("/inc"),
            QStringLiteral("-I") + folder + QStringLiteral("/include"),
            QStringLiteral("-I" FIRMWARE_MODULES_DIR)};
}

QString clockSource(const QString& base, const QString& stem)
{
    return base + QStringLiteral("/src/") + stem + QStringLiteral("_clock.c");
}

QString mainSource(const QString& base)
{
    return base + QStringLiteral("/src/main.c");
}

/// main.c becomes an object of its own, for only there the run's macros apply.
Outcome buildProgram(const QString& base, const QString& stem, const QString& program)
{
    const QString object = program + QStringLiteral("_main.o");
    QStringList arguments = compilerOptions(base);
    arguments << QStringLiteral("-include") << QStringLiteral("firmware_run.h") << QStringLiteral("-c")
              << mainSource(base) << QStringLiteral("-o") << object;
    const Outcome main = execute(QStringLiteral(FIRMWARE_COMPILER), arguments);
    if (!main.good)
        return main;
    arguments = compilerOptions(base);
    arguments << QStringLiteral("-DFIRMWARE_CHIP_HEADER=\"%1.h\"").arg(stem) << object
              << clockSource(base, stem) << QStringLiteral(FIRMWARE_DIR "/firmware.c") << QStringLiteral("-o")
              << program;
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

QString compile(const QString& base, const QString& stem)
{
    const QStringList arguments = compilerOptions(base) << QStringLiteral("-fsyntax-only")
                                                        << clockSource(base, stem) << mainSource(base);
    return execute(QStringLiteral(FIRMWARE_COMPILER), arguments).errors;
}

Run run(const QString& base, const QString& stem)
{
    const QString program = base + QStringLiteral("/program");
    const Outcome built = buildProgram(base, stem, program);
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
