#pragma once

#include <QtGlobal>

/// The crystal in Hz for generated text, from MHz with six decimals. Cut, not rounded. A value out of the
/// range of 64 bits gives the nearest end, nan gives 0.
qint64 crystalHertz(double megahertz);

/// A derived clock in Hz for generated text, from MHz with three decimals: always whole kHz.
qint64 clockHertz(double megahertz);
