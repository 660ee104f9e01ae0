#include "pages/description/signalnames.h"

#include "model/ZN64ConfigCLK.h"
#include "pages/description/outputs.h"

#include <algorithm>
#include <iterator>

namespace {

struct Entry
{
    const char* source;
    const char* name;
    ClockSource clock = ClockSource::None;
};

// clang-format off
const Entry entries[] = {
    {"m_lick_lineEdit",         "lick",         ClockSource::Lick},
    {"m_lext_lineEdit",         "lext",         ClockSource::Lext},
    {"m_hick_lineEdit",         "hick"},
    {"m_hextdiv_ComboBox",      "hext divided"},
    {"pllhextdiv",              "hext to the PLL"},
    {"m_hickdiv_ComboBox",      "hick to sclk"},
    {"hicktosclk",              "hick to sclk"},
    {"pllrcs",                  "pll input"},
    {"m_pllmode_ComboBox",      "pll input"},
    {"m_pllms_lineEdit",        "vco input"},
    {"m_pllns_lineEdit",        "vco"},
    {"m_pllmult_ComboBox",      "pll",          ClockSource::Pll},
    {"m_pllfr_ComboBox",        "pll",          ClockSource::Pll},
    {"m_pllfp_ComboBox",        "pllp",         ClockSource::Pll},
    {"m_pllfu_ComboBox",        "pllu",         ClockSource::PllU},
    {"sclkselect",              "sclk"},
    {"m_sclk_lineEdit",         "sclk",         ClockSource::Sclk},
    {"m_ahbdiv_ComboBox",       "hclk",         ClockSource::Ahb},
    {"m_apb1div_ComboBox",      "pclk1",        ClockSource::Apb1},
    {"m_apb2div_ComboBox",      "pclk2",        ClockSource::Apb2},
    {"m_apb3div_ComboBox",      "pclk3",        ClockSource::Apb3},
    {"m_toapb1tmr_mul",         "apb1 timers",  ClockSource::Apb1Timer},
    {"m_toapb1tmr_div",         "apb1 timers",  ClockSource::Apb1Timer},
    {"m_toapb2tmr_mul",         "apb2 timers",  ClockSource::Apb2Timer},
    {"m_toapb2tmr_div",         "apb2 timers",  ClockSource::Apb2Timer},
    {"m_tosystick_div",         "systick"},
    {"m_usbdiv_ComboBox",       "pll to usb"},
    {"tousb",                   "usb"},
    {"m_tousbswitch_ComboBox",  "usb",          ClockSource::Usb},
    {"m_toadcswitch_ComboBox",  "pclk2"},
    {"m_toadcdiv_ComboBox",     "adcclk",       ClockSource::Adc},
};

const Entry rtcEntries[] = {
    {"m_rtcdiv_ComboBox", "hext to {rtc}"},
    {"hextrtc",           "hext to {rtc}"},
    {"rtcsel",            "{rtc}"},
    {"m_tortc_ComboBox",  "{rtc}"},
};
// clang-format on

template <std::size_t Count>
const Entry* find(const Entry (&table)[Count], const QString& source)
{
    const auto entry = std::find_if(std::begin(table), std::end(table), [&source](const Entry& each) {
        return source == QLatin1String(each.source);
    });
    return entry != std::end(table) ? entry : nullptr;
}

bool belongsTo(const ClockOutput& output, const QString& source)
{
    return source == QLatin1String(output.stem) || source == output.member("pin_ComboBox") ||
           std::any_of(output.dividers.begin(), output.dividers.end(),
                       [&source](const Divider& divider) { return divider.box() == source; });
}

const Divider* dividerOf(const PageDescription& page, const QString& box)
{
    const auto isIt = [&box](const Divider& divider) { return divider.box() == box; };
    const auto among = [&isIt](const std::vector<Divider>& all) {
        const auto found = std::find_if(all.begin(), all.end(), isIt);
        return found != all.end() ? &*found : nullptr;
    };
    if (page.usb && isIt(page.usb->divider))
        return &page.usb->divider;
    for (const ClockOutput& output : page.clockOutputs)
        if (const Divider* found = among(output.dividers))
            return found;
    return among(page.dividers);
}

} // namespace

std::optional<SignalName> signalName(const PageDescription& page, const QString& source)
{
    if (source == QLatin1String(page.hextEdit))
        return SignalName{QStringLiteral("hext"), ClockSource::Hext};
    if (const Entry* entry = find(entries, source))
        return SignalName{QLatin1String(entry->name), entry->clock};
    if (const Entry* entry = find(rtcEntries, source)) {
        QString name = QLatin1String(entry->name);
        return SignalName{name.replace(QLatin1String("{rtc}"), QLatin1String(page.rtcName)),
                          ClockSource::None, true};
    }
    for (const ClockOutput& output : page.clockOutputs)
        if (belongsTo(output, source))
            return SignalName{QLatin1String(output.stem)};
    for (const PeripheralClock& clock : page.peripherals)
        if (source == QLatin1String(clock.stem) || source == clock.switchBox())
            return SignalName{QLatin1String(clock.stem)};
    if (source == QLatin1String("hext2") || source == QLatin1String("hick2") ||
        source == QLatin1String("hick6") || source == QLatin1String("half"))
        return SignalName{};
    return {};
}

QString signalName(ClockSource clock)
{
    const auto entry = std::find_if(std::begin(entries), std::end(entries),
                                    [clock](const Entry& each) { return each.clock == clock; });
    return entry != std::end(entries) ? QLatin1String(entry->name) : QString();
}

ClockSource drawnAs(ClockSource clock)
{
    return clock == ClockSource::PllDiv2 || clock == ClockSource::PllDiv4 ? ClockSource::Pll : clock;
}

QHash<QString, ClockSource> flaggedClocks(const PageDescription& page)
{
    QHash<QString, ClockSource> clocks{
        {QStringLiteral("phy"), ClockSource::Hext}
    };
    for (const ClockOutput& output : page.clockOutputs)
        for (const ClockOutputRow& row : output.rows)
            clocks.insert(output.member(row, "QLabel1"), row.source);
    for (const PeripheralClock& clock : page.peripherals)
        for (const PeripheralSource& source : clock.sources)
            clocks.insert(clock.sourceLabel(source), source.taken.value_or(source.shown));
    return clocks;
}

QHash<QString, QStringList> takenUp(const PageDescription& page)
{
    QHash<QString, QStringList> sources;
    const QHash<QString, ClockSource> flags = flaggedClocks(page);
    for (auto flag = flags.begin(); flag != flags.end(); ++flag) {
        QStringList& found = sources[flag.key()];
        if (*flag == ClockSource::Hext)
            found << QLatin1String(page.hextEdit);
        else if (*flag == ClockSource::Hick)
            found << QStringLiteral("m_hick_lineEdit");
        for (const Entry& entry : entries)
            if (entry.clock != ClockSource::None && entry.clock == drawnAs(*flag))
                found << QLatin1String(entry.source);
    }
    return sources;
}

std::optional<Factor> factorOf(const PageDescription& page, const ZN64ConfigCLK& model,
                               const QString& control)
{
    if (const Divider* divider = dividerOf(page, control))
        return Factor{'/', divider->field.get(model)};
    if (control == QLatin1String("m_pllmult_ComboBox"))
        return Factor{'*', static_cast<double>(model.Get_PLL_MUL())};
    if (control == QLatin1String("m_pllms_lineEdit"))
        return Factor{'/', static_cast<double>(model.Get_PLL_MS())};
    if (control == QLatin1String("m_pllns_lineEdit"))
        return Factor{'*', static_cast<double>(model.Get_PLL_NS())};
    if (control == QLatin1String("m_toapb1tmr_mul"))
        return Factor{'*', static_cast<double>(model.Get_APB1TMR_MUL())};
    if (control == QLatin1String("m_toapb2tmr_mul"))
        return Factor{'*', static_cast<double>(model.Get_APB2TMR_MUL())};
    if (control == QLatin1String("m_tosystick_div"))
        return Factor{'/', outputEntry(QStringLiteral("m_tosystick_lineEdit")).divisor};
    // The fixed steps of the timers' ways are drawn as they are told; the multiplier holds all that happens.
    return {};
}
