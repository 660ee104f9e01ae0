#include "firmware/firmwarebuild.h"

#include "model/ZN64ConfigCLK.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>

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

QString guardOf(const QString& path)
{
    QFile file(path);
    static const QRegularExpression guard(QStringLiteral(R"(#ifndef (\w+))"));
    return file.open(QIODevice::ReadOnly) ? guard.match(QString::fromUtf8(file.readAll())).captured(1)
                                          : QString();
}

/// All designs in one source, each with names of its own and its own crystal.
QString batchSource(const QString& base, int count, const QString& stem)
{
    QString text = QStringLiteral("#include \"batch.h\"\n#include \"%1.h\"\n").arg(stem);
    QString table;
    for (int design = 0; design < count; ++design) {
        QString rename;
        QString forget;
        const QStringList names =
            QStringLiteral(
                "main system_clock_config wait_stbl mx_clkout_init mx_clkout1_init mx_clkout2_init "
                "mx_rtc_clock_init mx_adc_clock_init mx_i2c_clock_init mx_usart_clock_init "
                "mx_i2sf5_clock_init mx_can_clock_init")
                .split(QLatin1Char(' '));
        for (const QString& name : names) {
            rename += QStringLiteral("#define %1 %1_%2\n").arg(name).arg(design);
            forget += QStringLiteral("#undef %1\n").arg(name);
        }
        const QString start = firmware::folderOf(base, design) + QLatin1Char('/') + stem;
        text += QStringLiteral("#undef HEXT_VALUE\n#undef %1\n#undef %2\n#include \"%3_conf.h\"\n"
                               "static const double hext_%4 = HEXT_VALUE;\n")
                    .arg(guardOf(start + QStringLiteral("_conf.h")),
                         guardOf(start + QStringLiteral("_clock.h")), start, QString::number(design));
        // The last loop is the end of the run.
        text += rename + QStringLiteral("#include \"%1_clock.c\"\n").arg(start) +
                QStringLiteral("#define while(condition) for (; firmware_loop(#condition), (condition);)\n"
                               "#include \"%1/main.c\"\n#undef while\n")
                    .arg(firmware::folderOf(base, design)) +
                forget;
        table += QStringLiteral("{hext_%1, main_%1}, ").arg(design);
    }
    return text + QStringLiteral("const struct design batch[] = {%1};\n"
                                 "const int batch_size = %2;\n")
                      .arg(table)
                      .arg(count);
}

Outcome build(const QString& base, int count, const QString& stem, const QString& word)
{
    const QString source = base + QStringLiteral("/batch.c");
    QFile file(source);
    if (!file.open(QIODevice::WriteOnly) || file.write(batchSource(base, count, stem).toUtf8()) <= 0)
        return {false, {}, source + QStringLiteral(" cannot be written")};
    file.close();
    QStringList arguments =
        QStringLiteral("-std=c11 -Wall -Wextra -Wpedantic -Werror").split(QLatin1Char(' '));
    // A design that never waits leaves the only delay function of any template without a caller.
    if (stem == QLatin1String("zn64g110"))
        arguments << QStringLiteral("-Wno-unused-function");
    arguments << QStringLiteral("-DZN64%1xx").arg(word);
    for (const QString& folder :
         {firmware::folderOf(base, 0), QStringLiteral(FIRMWARE_DIR), QStringLiteral(FIRMWARE_DIR "/include"),
          QStringLiteral(FIRMWARE_HEADERS_DIR)})
        arguments << QStringLiteral("-I") + folder;
    arguments << source << QStringLiteral(FIRMWARE_CHIP) << QStringLiteral("-o")
              << base + QStringLiteral("/program") << QStringLiteral("-lm");
    return execute(QStringLiteral(FIRMWARE_COMPILER), arguments);
}

void take(const QString& line, firmware::Run& run)
{
    const QString kind = line.section(QLatin1Char(' '), 0, 0);
    const QString rest = line.section(QLatin1Char(' '), 1);
    const QString name = rest.section(QLatin1Char(' '), 0, 0);
    const QString last = rest.section(QLatin1Char(' '), -1);
    if (kind == QLatin1String("="))
        run.clocks.insert(name, last.toDouble());
    else if (kind == QLatin1String("limit:"))
        run.limits += rest;
    else if (kind == QLatin1String("stuck:"))
        run.stuck = rest;
    else if (kind == QLatin1String("dead:"))
        run.dead.insert(name, last);
    else if (kind == QLatin1String("checks:"))
        run.checks = rest.toInt();
    else if (kind == QLatin1String("pin:"))
        run.pins.insert(QLatin1String("clockout") + (name == QLatin1String("0") ? QString() : name), last);
    else
        run.faults += line;
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

QString folderOf(const QString& base, int design)
{
    return QStringLiteral("%1/d%2").arg(base).arg(design);
}

bool generateDesign(ZN64ConfigCLK& clock, const QString& base, int design, const QString& stem)
{
    const QString folder = folderOf(base, design);
    clock.Set_GenerateCodeMode(MODE_CODE_VIEW);
    return QDir().mkpath(folder) && clock.GenerateCode(folder, folder, stem);
}

QVector<Run> run(const QString& base, int count, const QString& stem, const QString& word, QString& errors)
{
    const Outcome built = build(base, count, stem, word);
    errors = built.errors;
    if (!built.good)
        return {};
    const Outcome ended = execute(base + QStringLiteral("/program"), {word});
    QVector<Run> runs;
    for (const QString& line : ended.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (line.startsWith(QLatin1String("design ")))
            runs.append(Run());
        else if (!runs.isEmpty())
            take(line, runs.last());
    }
    if (!ended.good || runs.size() != count)
        errors += QStringLiteral("the program ended early: ") + ended.errors;
    return runs;
}
} // namespace firmware
