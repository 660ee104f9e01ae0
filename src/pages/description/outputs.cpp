#include "pages/description/outputs.h"

#include <algorithm>
#include <iterator>

namespace {

// clang-format off
const OutputEntry entries[] = {
    {"m_toi2s_lineEdit",            ClockSource::Sclk},
    {"m_tosystick_lineEdit",        ClockSource::Ahb, 8.0},
    {"m_tosido_lineEdit",           ClockSource::Ahb},
    {"m_todma_lineEdit",            ClockSource::Ahb},
    {"m_toxmc_lineEdit",            ClockSource::Ahb},
    {"m_togpio_lineEdit",           ClockSource::Ahb},
    {"m_todvp_lineEdit",            ClockSource::Ahb},
    {"m_toqspi_lineEdit",           ClockSource::Ahb},
    {"m_toaes_lineEdit",            ClockSource::Ahb},
    {"m_totrng_lineEdit",           ClockSource::Ahb},
    {"m_toemac_lineEdit",           ClockSource::Ahb},
    {"m_toadc_lineEdit",            ClockSource::Ahb},
    {"m_toapb1peripheral_lineEdit", ClockSource::Apb1},
    {"m_toapb1tmr_lineEdit",        ClockSource::Apb1Timer},
    {"m_toapb2peripheral_lineEdit", ClockSource::Apb2},
    {"m_toapb2tmr_lineEdit",        ClockSource::Apb2Timer},
    {"m_toapb3peripheral_lineEdit", ClockSource::Apb3},
};
// clang-format on

} // namespace

const OutputEntry& outputEntry(const QString& name)
{
    const auto entry = std::find_if(std::begin(entries), std::end(entries), [&name](const OutputEntry& each) {
        return name == QLatin1String(each.name);
    });
    if (entry == std::end(entries))
        qFatal("%s is no output", qPrintable(name));
    return *entry;
}
