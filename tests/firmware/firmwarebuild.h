#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class ZN64ConfigCLK;

/// Generated code against the stand-in firmware library: generate, compile, run. A base folder holds the
/// four generated files below src/ and inc/, as the generate command leaves them.
namespace firmware {
/// What the run of a generated program did.
struct Run
{
    /// What the compiler complained of, or the faults that the stand-in chip found; empty if all went well.
    QString errors;
    /// One entry a call, in order, with the arguments' values: "crm_ahb_div_set 8".
    QStringList calls;
    /// The clocks in Hz at the end: sclk, ahb, apb1, apb2, usb; and 1 or 0 for what runs: hext, pll, lext.
    QMap<QString, qint64> clocks;
};

/// Generates the four files of the stem below the base folder, as the preview does: without questions.
bool generate(ZN64ConfigCLK& clock, const QString& base, const QString& stem);

/// Compiles the program below the base folder with warnings as errors, but for an unused delay function, and
/// runs it up to its endless loop.
Run run(const QString& base, const QString& stem);
} // namespace firmware
