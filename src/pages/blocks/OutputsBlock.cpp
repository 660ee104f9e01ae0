#include "OutputsBlock.h"

#include "canvas/appearance.h"
#include "pages/ClockTreePage.h"

namespace {
// From the corner of an output edit to that of its list button.
constexpr int buttonRight = 85;
constexpr int buttonDown = 25;
constexpr int listSpacing = 4;
} // namespace

OutputsBlock::OutputsBlock(ClockTreePage& page) : ClockBlock(page)
{
    addControls("New_toperipheral", [this] { New_toperipheral(); });
}

void OutputsBlock::New_toperipheral()
{
    for (const OutputRow& row : page().description().outputs)
        m_outputs.push_back({outputEdit(QLatin1String(row.edit)), row.clock, row.divisor});
    for (const ListGroup& group : page().description().listGroups)
        makeList(group);
}

void OutputsBlock::makeList(const ListGroup& description)
{
    QStringList peripherals;
    for (const char* peripheral : description.peripherals)
        peripherals << QLatin1String(peripheral);
    const Places& places = page().description().places;
    const ControlPlace& output = places.at(QLatin1String(description.output));
    const ControlPlace& group = places.at(QLatin1String(description.group));
    List list;
    list.button = page().New_toperipheralListButton(output.x + buttonRight, output.y + buttonDown, 0);
    list.button->setObjectName(QLatin1String(description.button));
    list.group = page().New_toperipheralListGroup(peripherals, group.x, group.y, 0, listSpacing);
    list.group->setObjectName(QLatin1String(description.group));
    list.group->setVisible(false);
    m_lists.push_back(list);
}

void OutputsBlock::ControlsConnectSlots()
{
    for (const List& list : m_lists) {
        // The slot of m_toapb1tmr_List_Button is toapb1tmr_List_Button_checkSlot(); the digit is how SLOT()
        // marks a slot.
        const QByteArray slot = "1" + list.button->objectName().mid(2).toLatin1() + "_checkSlot()";
        connect(list.button, SIGNAL(clicked()), this, slot.constData());
    }
}

double OutputsBlock::limit(Clock clock) const
{
    const PageLimits& limits = page().description().limits;
    switch (clock) {
    case Clock::Apb1:
        return limits.apb1;
    case Clock::Apb2:
        return limits.apb2;
    default:
        return limits.sysclk;
    }
}

void OutputsBlock::UpdateResultControls()
{
    for (const Output& output : m_outputs) {
        const double value = clockValue(model(), output.clock);
        ZN64MCUPLL::SetLineEditColor(output.edit, value > limit(output.clock) ? Qt::red : Qt::darkGreen);
        appearance::setText(output.edit, frequencyText(value / output.divisor));
    }
}

void OutputsBlock::showList(const List& list, bool open)
{
    list.group->setVisible(open);
    list.button->setIcon(QIcon(open ? QStringLiteral(":/image/btn_down_slider_hover.png")
                                    : QStringLiteral(":/image/btn_right_slider_hover.png")));
}

void OutputsBlock::toggleList(const char* button)
{
    for (const List& list : m_lists) {
        if (list.button->objectName() == QLatin1String(button))
            showList(list, !list.group->isVisible());
        else if (list.group->isVisible())
            showList(list, false);
    }
}

void OutputsBlock::closeLists()
{
    for (const List& list : m_lists) {
        if (!list.group->isVisible())
            continue;
        showList(list, false);
        list.button->setFocus(Qt::MouseFocusReason);
    }
}
