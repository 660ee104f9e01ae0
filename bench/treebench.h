#pragma once

class BarePage;
class ClockTreePage;

/// What the living picture costs: painted at several zooms and at twice the pixels, with a path turned over,
/// and with the pointer moving over it, each against the same with a plain pixmap.
void benchTree(ClockTreePage& page, const BarePage& bare);
