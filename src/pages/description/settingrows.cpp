#include "pages/description/settingrows.h"

#include "pages/description/pagedescription.h"

#include <algorithm>

namespace {

constexpr int inNoFile = 0;
/// A start value that every series with the setting says itself; no control offers this one.
constexpr double saidBySeries = -1.0;

struct SharedRow
{
    const char* name;
    double start;
    int inFile;
    int inReading;
    /// Where the PLL takes hick directly, files have always been read with hick's way to the system clock
    /// before USB's source and switch. The order decides which divider a file leaves behind.
    int inDirectReading = inReading;
};

// clang-format off
const SharedRow sharedRows[] = {
    // name             start  file  reading
    {"rtcsel",           0.0,   20,   20},
    {"rtcswitch",        0.0,   30,   30},
    {"lextbypass",       0.0,   10,   10},
    {"rtcdiv",           2.0,   40,   40},
    {"hextbypass",       0.0,   60,   60},
    {"hext",             8.0,   50,   50},
    {"hextdiv",          1.0,   70,   70},
    {"hickdiv",          1.0,   80,   80},
    {"pllhextdiv",       0.0,   90,   90},
    {"pllrcs",           0.0,  100,  100},
    {"pllmode",          0.0,  110,  110},
    {"pllmult", saidBySeries,  120,  120},
    {"pllms",            1.0,  130,  130},
    {"pllns", saidBySeries,  140,  140},
    {"pllfr", saidBySeries,  150,  150},
    {"pllfp", saidBySeries,  160,  160},
    {"sclkselect",       1.0,  170,  170},
    {"ahbdiv",           1.0,  180,  180},
    {"apb1div",          1.0,  190,  190},
    {"apb2div",          1.0,  200,  200},
    {"apb3div",          4.0,  210,  210},
    // The timers' multipliers follow from the dividers.
    {"tmrmultiply",      1.0,  inNoFile, inNoFile},
    {"adcswitch",        0.0,  360,  270},
    {"adcdiv",           2.0,  370,  280},
    {"usbdiv", saidBySeries,  220,  230},
    {"pllfu", saidBySeries,  220,  230},
    // USB goes off before its source goes back to the PLL, or its slot would tune the PLL for it on the way.
    {"tousbswitch",      1.0,  240,  240, 262},
    {"hicktousb",        0.0,  230,  220, 261},
    {"hicktosclk",       0.0,  250,  250, 260},
    {"clkout",           0.0,  260,  310},
    {"clkoutdiv",        1.0,  270,  300},
    {"clkoutdiv1",       1.0,  270,  320},
    {"clkoutdiv2",       1.0,  280,  330},
    {"clkoutpinselect",  0.0,  290,  290},
    {"clkout1",          0.0,  260,  310},
    {"clkout1div1",      1.0,  270,  320},
    {"clkout1div2",      1.0,  280,  330},
    {"clkout1pinselect", 0.0,  290,  290},
    {"clkout2",          0.0,  300,  350},
    {"clkout2div1",      1.0,  310,  360},
    {"clkout2div2",      1.0,  320,  370},
    {"clkout2pinselect", 0.0,  330,  340},
};
// clang-format on

/// Behind all others, in all three orders.
constexpr int firstOfPeripherals = 1000;

void addPeripherals(const PageDescription& page, std::vector<SettingRow>& rows)
{
    int rank = firstOfPeripherals;
    const auto add = [&rows, &rank](const QString& name, double start) {
        // One peripheral's switch has the name of a shared row: the page has that one in its place.
        rows.erase(std::remove_if(rows.begin(), rows.end(),
                                  [&name](const SettingRow& row) { return row.name == name; }),
                   rows.end());
        rows.push_back({name, start, rank, rank});
        ++rank;
    };
    for (const PeripheralClock& clock : page.peripherals) {
        add(clock.sourceSetting(), clock.start);
        if (!page.switchesBehindSources)
            add(clock.switchSetting(), 0.0);
    }
    if (page.switchesBehindSources)
        for (const PeripheralClock& clock : page.peripherals)
            add(clock.switchSetting(), 0.0);
}

} // namespace

std::vector<SettingRow> settingRows(const PageDescription& page)
{
    const bool direct = seriesTraits(page.series).pll_in_direct;
    std::vector<SettingRow> rows;
    for (const SharedRow& row : sharedRows)
        rows.push_back(
            {QLatin1String(row.name), row.start, row.inFile, direct ? row.inDirectReading : row.inReading});
    addPeripherals(page, rows);
    // A clock output starts with its first source.
    for (const ClockOutput& output : page.clockOutputs)
        for (SettingRow& row : rows)
            if (row.name == QLatin1String(output.setting))
                row.start = output.rows.front().value;
    for (const StartValue& own : page.start) {
        const auto row = std::find_if(rows.begin(), rows.end(), [&own](const SettingRow& each) {
            return each.name == QLatin1String(own.setting);
        });
        if (row == rows.end())
            qFatal("no setting is named %s", own.setting);
        row->start = own.value;
    }
    return rows;
}
