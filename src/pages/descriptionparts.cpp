#include "descriptionparts.h"

std::vector<OutputRow> descriptionparts::outputs(std::initializer_list<const char*> fromAhb)
{
    std::vector<OutputRow> rows = {
        {"m_toi2s_lineEdit", Clock::Sysclk},
        { "m_tosystick_lineEdit",        Clock::Ahb,           8.0}
    };
    for (const char* output : fromAhb)
        rows.push_back({output, Clock::Ahb});
    rows.push_back({"m_toapb1peripheral_lineEdit", Clock::Apb1});
    rows.push_back({"m_toapb1tmr_lineEdit", Clock::Apb1Timer});
    rows.push_back({"m_toapb2peripheral_lineEdit", Clock::Apb2});
    rows.push_back({"m_toapb2tmr_lineEdit", Clock::Apb2Timer});
    return rows;
}

std::vector<ListGroup> descriptionparts::lists(std::vector<const char*> apb1,
                                               std::vector<const char*> apb1Timers,
                                               std::vector<const char*> apb2,
                                               std::vector<const char*> apb2Timers)
{
    // Two of the groups have lost the last letter of their name.
    return {
        {"m_toapb1peripheral_List_Button", "m_toapb1periphera_list_group", "m_toapb1peripheral_lineEdit",
         std::move(apb1)                                                                                                       },
        {"m_toapb1tmr_List_Button",        "m_toapb1tmr_list_group",       "m_toapb1tmr_lineEdit",        std::move(apb1Timers)},
        {"m_toapb2peripheral_List_Button", "m_toapb2periphera_list_group", "m_toapb2peripheral_lineEdit",
         std::move(apb2)                                                                                                       },
        {"m_toapb2tmr_List_Button",        "m_toapb2tmr_list_group",       "m_toapb2tmr_lineEdit",        std::move(apb2Timers)}
    };
}

std::vector<HardLimit> descriptionparts::hardLimits(const PageLimits& limits)
{
    const auto row = [](Clock clock, double limit, const char* words) {
        return HardLimit{clock, limit, static_cast<int>(limit), words};
    };
    return {row(Clock::Sysclk, limits.sysclk, "Can not support sclk greater than"),
            row(Clock::Apb1, limits.apb1, "Can not support apb1clk greater than"),
            row(Clock::Apb2, limits.apb2, "Can not support apb2clk greater than"),
            row(Clock::Pll, limits.pll, "Can not support pll clock greater than")};
}

SoftLimit descriptionparts::usbClock()
{
    return {
        SoftLimitKind::Usb48, 48.0,
        "USB clock must be 48MHz. But the USB clock of current config is wrong.  please confirm whether to "
        "continue?"};
}
