#include "pages/blocks/OutputsBlock.h"

#include "canvas/ZN64MCUPLL.h"
#include "canvas/accessibletree.h"
#include "canvas/appearance.h"
#include "pages/description/arithmetic.h"

OutputsBlock::OutputsBlock(ClockTree& tree) : ClockBlock(tree)
{
    addControls("New_toperipheral", [this] { New_toperipheral(); });
}

void OutputsBlock::New_toperipheral()
{
    for (const OutputRow& row : description().outputRows)
        m_outputs.push_back({outputEdit(row.edit), outputEntry(row.edit)});
    for (const ListNames& names : listNames())
        makeList(names);
}

void OutputsBlock::makeList(const ListNames& names)
{
    const PeripheralList& list = description().lists.*names.list;
    const QStringList peripherals = QString::fromLatin1(list.peripherals).split(QLatin1Char(' '));
    QPushButton* button = tree().placeListButton(QLatin1String(names.button), QLatin1String(names.output));
    QDialog* group = tree().placeList(QLatin1String(names.group), peripherals);
    group->setVisible(false);
    m_lists.push_back({button, group});
}

void OutputsBlock::ControlsConnectSlots()
{
    for (const List& list : m_lists)
        connect(list.button, SIGNAL(clicked()), this, SLOT(List_Button_checkSlot()));
}

void OutputsBlock::UpdateResultControls()
{
    for (const Output& output : m_outputs) {
        const ClockSource clock = output.entry.source;
        ZN64MCUPLL::SetLineEditColor(output.edit, outOfRange(clock) ? Qt::red : Qt::darkGreen);
        appearance::setText(output.edit, frequencyText(arithmetic::outputClock(output.entry, model())));
    }
}

std::optional<Remarks> OutputsBlock::remarksOn(const QWidget* control) const
{
    for (const Output& output : m_outputs)
        if (output.edit == control)
            return ClockBlock::remarksOn(output.entry.source);
    return {};
}

void OutputsBlock::showList(const List& list, bool open)
{
    list.group->setVisible(open);
    accessibletree::tellListOpen(list.button, open);
    list.button->setIcon(QIcon(open ? QStringLiteral(":/image/btn_down_slider_hover.png")
                                    : QStringLiteral(":/image/btn_right_slider_hover.png")));
}

void OutputsBlock::List_Button_checkSlot()
{
    for (const List& list : m_lists) {
        if (list.button == sender())
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
