#pragma once

#include "firmware/firmwarebuild.h"
#include "pages/pagefixture.h"

/// A number as a page shows it, with three decimals of its unit.
struct Reading
{
    double value = 0.0;
    double inMegahertz = 1.0;
};

/// What a page shows of a design, and what its limits say of it.
struct Shown
{
    /// By output; what the page cannot say or says of another clock is not in it.
    QMap<QString, Reading> clocks;
    /// All that is switched on.
    QSet<QString> on;
    QMap<QString, QString> pins;
    QSet<QString> brokenLimits;
    /// hick passes 48 MHz before its divider is set: the wait cycles are those of the slower clock already.
    bool passes48 = false;
    /// The outputs for which alone the PLL is started, on a hext that nothing starts: the program waits for
    /// it for good, as it should.
    QStringList waitsFor;
};

/// Reads a page as a user does.
Shown readPage(const PageFixture& page);

/// What differs between the page and the chip; empty if nothing does.
QStringList differences(const Shown& shown, const firmware::Run& run);
