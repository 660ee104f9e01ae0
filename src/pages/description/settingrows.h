#pragma once

#include <QString>

#include <vector>

struct PageDescription;

/// A setting's start value and its places in design files.
struct SettingRow
{
    QString name;
    double start;
    /// Rank in the file; 0 stands in none. All series have one order.
    int inFile;
    /// Rank in reading, which differs: each setting read may move others.
    int inReading;
};

/// The rows of all settings that a page may have, in the order of the reset: first those that many pages
/// share, then those of its peripherals. The start values are the page's.
std::vector<SettingRow> settingRows(const PageDescription& page);
