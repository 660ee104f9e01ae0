#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

class ZN64ConfigCLK;

/// Generated code against the stand-in firmware library: generate, compile, run.
namespace firmware {
/// What the run of one generated program did.
struct Run
{
    /// What a real chip would choke on.
    QStringList faults;
    /// The limits that were broken on the way: "sclk", "vco".
    QSet<QString> limits;
    /// The flag that the program waits for for good; empty if it came to its last loop.
    QString stuck;
    /// The clocks in MHz at the end, by output: "sclk", "clockout", "can1".
    QMap<QString, double> clocks;
    /// The outputs whose clock is off, with its source: "lext".
    QMap<QString, QString> dead;
    /// The pin of each clock output.
    QMap<QString, QString> pins;
    /// How often the chip was held against a limit or a rule on the way.
    int checks = 0;
};

/// Generates the four files of the stem below the base folder, as the preview does: without questions.
bool generate(ZN64ConfigCLK& clock, const QString& base, const QString& stem);

/// The folder below the base in which the four files of a design stand side by side.
QString folderOf(const QString& base, int design);

/// Generates a design of a batch.
bool generateDesign(ZN64ConfigCLK& clock, const QString& base, int design, const QString& stem);

/// Compiles the designs 0 to count - 1 below the base in one program, with warnings as errors, and runs them
/// on the chip of the series word. No runs, with what the compiler complained of, if that fails.
QVector<Run> run(const QString& base, int count, const QString& stem, const QString& word, QString& errors);
} // namespace firmware
