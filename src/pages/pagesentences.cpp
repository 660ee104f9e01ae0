#include "pages/ClockTreePage.h"

#include "pages/blocks/ClockBlock.h"
#include "pages/description/clocksignals.h"

// What is told of signals and controls to those who point at them, and of controls to those who hear them.

namespace {

/// The signals of a page in one state of its controls.
struct State
{
    State(TreeItem& tree, const ClockTree& page)
        : states(tree.states()), known(page.description(), page.clocks(), tree.figures(), tree.circuit(),
                                       states, page.hickAtOutputs())
    {
    }

    QVector<tree::ControlState> states;
    ClockSignals known;
};

QString sentence(const ClockSignal& signal)
{
    if (!signal.used)
        return signal.name + QLatin1String(", ") + remarks::notInUse();
    QString text = signal.name;
    if (signal.clock)
        text +=
            QLatin1Char(' ') + frequencyText(*signal.clock) + QLatin1Char(' ') + QLatin1String(signal.unit);
    if (!signal.origin.isEmpty())
        text += QLatin1String(" = ") + signal.origin;
    return text;
}

} // namespace

QVector<int> ClockTreePage::sameSignal(int net) const
{
    return State(treeItem(), *this).known.together(net);
}

QStringList ClockTreePage::tellSignal(int net) const
{
    const ClockSignal signal = State(treeItem(), *this).known.at(net);
    return signal.name.isEmpty() ? QStringList() : QStringList(sentence(signal));
}

int ClockTreePage::netOf(const QWidget* control) const
{
    const tree::Circuit& circuit = treeItem().circuit();
    if (control->objectName() == QLatin1String("m_usbclock_Label"))
        return circuit.netAt(QStringLiteral("usb"));
    if (control->objectName() != QLatin1String("m_pllclk_Label"))
        return circuit.netAt(control->objectName());
    for (const char* last : {"m_pllmult_ComboBox", "m_pllfr_ComboBox", "m_pllfp_ComboBox"})
        if (const int net = circuit.netAt(QLatin1String(last)); net >= 0)
            return net;
    return -1;
}

QStringList ClockTreePage::tellControl(const QWidget* control) const
{
    QStringList sentences;
    std::optional<Remarks> remarks;
    for (const auto& block : m_blocks)
        if (!remarks)
            remarks = block->remarksOn(control);
    const bool label = qobject_cast<const QLabel*>(control);
    if (label && !remarks)
        return {};
    const QString name = label ? control->accessibleDescription() : control->accessibleName();
    if (!name.isEmpty())
        sentences << name;
    if (!control->isEnabled() && !(remarks && remarks->shown))
        return sentences << remarks::notInUse();
    if (remarks)
        sentences += remarks::sentences(*remarks, normalMode());
    if (const int net = netOf(control); net >= 0)
        sentences += tellSignal(net);
    return sentences;
}
