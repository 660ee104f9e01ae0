#include "pages/description/pagedescription.h"

const std::vector<ListNames>& listNames()
{
    // Two of the groups have lost the last letter of their name.
    static const std::vector<ListNames> names = {
        {"m_toapb1peripheral_List_Button", "m_toapb1periphera_list_group", "m_toapb1peripheral_lineEdit",
         &PeripheralLists::apb1      },
        {"m_toapb1tmr_List_Button",        "m_toapb1tmr_list_group",       "m_toapb1tmr_lineEdit",
         &PeripheralLists::apb1Timers},
        {"m_toapb2peripheral_List_Button", "m_toapb2periphera_list_group", "m_toapb2peripheral_lineEdit",
         &PeripheralLists::apb2      },
        {"m_toapb2tmr_List_Button",        "m_toapb2tmr_list_group",       "m_toapb2tmr_lineEdit",
         &PeripheralLists::apb2Timers},
    };
    return names;
}

QString ClockOutput::member(const char* rest) const
{
    return QLatin1String("m_") + QLatin1String(stem) + QLatin1String(rest);
}

QString ClockOutput::member(const ClockOutputRow& row, const char* kind) const
{
    return member("_") + QLatin1String(row.name) + QLatin1Char('_') + QLatin1String(kind);
}

QString PeripheralClock::sourceLabel(const PeripheralSource& source) const
{
    return selector() + QLatin1Char('_') + QLatin1String(source.name) + QLatin1String("_QLabel");
}

QString PeripheralClock::sourceRadio(const PeripheralSource& source) const
{
    return selector() + QLatin1Char('_') + QLatin1String(source.name) + QLatin1String("_RadioButton");
}

QString PageDescription::pictureName() const
{
    return picture ? QLatin1String(picture) : word() + QLatin1String("PLL.bmp");
}

std::vector<PlacedPart> PageDescription::parts() const
{
    std::vector<PlacedPart> all = tree;
    all.insert(all.end(), buses.begin(), buses.end());
    all.insert(all.end(), column.begin(), column.end());
    return all;
}
