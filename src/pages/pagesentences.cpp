#include "pages/ClockTreePage.h"

#include "canvas/appearance.h"
#include "model/seriestraits.h"
#include "pages/blocks/ClockBlock.h"
#include "pages/description/clocksignals.h"
#include "pages/layout/spokennames.h"

#include <QCoreApplication>

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

QString ClockTreePage::spokenName(const QWidget* control) const
{
    const QString name = control->objectName();
    if (!qobject_cast<const QLabel*>(control))
        return control->accessibleName();
    return m_description.places.has(name) ? spokenInLanguage(m_description.places.at(name).spoken)
                                          : QString();
}

QStringList ClockTreePage::sentencesOn(const QWidget* control, const ClockSignals& known) const
{
    std::optional<Remarks> remarks;
    for (const auto& block : m_blocks)
        if (!remarks)
            remarks = block->remarksOn(control);
    if (qobject_cast<const QLabel*>(control) && !remarks)
        return {};
    QStringList sentences(spokenName(control));
    if (!control->isEnabled() && !(remarks && remarks->shown))
        return sentences << remarks::notInUse();
    if (remarks)
        sentences += remarks::sentences(*remarks, normalMode());
    if (const int net = netOf(control); net >= 0)
        sentences << sentence(known.at(net));
    sentences.removeAll(QString());
    return sentences;
}

QStringList ClockTreePage::tellControl(const QWidget* control) const
{
    return sentencesOn(control, State(treeItem(), *this).known);
}

void ClockTreePage::speak()
{
    view()->setAccessibleName(QCoreApplication::translate("ClockTree", "clock tree"));
    view()->setAccessibleDescription(
        QCoreApplication::translate("ClockTree",
                                    "The clock tree of the %1: oscillators on the left, then the "
                                    "PLL, the system clock, dividers, and the outputs on the right")
            .arg(seriesName(model().series())));
    for (auto each = m_spoken.cbegin(); each != m_spoken.cend(); ++each)
        appearance::setSpoken(each.key(), spokenInLanguage(each.value()));
    tellLater();
}

void ClockTreePage::speakOf(QWidget* control, const QString& name)
{
    QString& known = m_spoken[control];
    if (known == name)
        return;
    known = name;
    appearance::setSpoken(control, spokenInLanguage(name));
    tellLater();
}

void ClockTreePage::listenForListeners()
{
    m_telling.setSingleShot(true);
    connect(&m_telling, &QTimer::timeout, this, &ClockTreePage::tell);
    for (auto each = m_spoken.cbegin(); each != m_spoken.cend(); ++each)
        if (const auto* edit = qobject_cast<QLineEdit*>(each.key()); edit && !edit->isReadOnly())
            connect(edit, &QLineEdit::textChanged, this, &ClockTreePage::tellLater);
    QAccessible::installActivationObserver(this);
    accessibilityActiveChanged(QAccessible::isActive());
}

void ClockTreePage::accessibilityActiveChanged(bool active)
{
    m_heard = active;
    tellLater();
}

void ClockTreePage::tellLater()
{
    if (m_heard)
        m_telling.start();
}

void ClockTreePage::tell()
{
    const State state(treeItem(), *this);
    const auto describe = [&](QWidget* control) {
        const QString text = sentencesOn(control, state.known).join(QLatin1String("; "));
        if (control->accessibleDescription() != text)
            control->setAccessibleDescription(text);
    };
    for (auto each = m_spoken.cbegin(); each != m_spoken.cend(); ++each)
        describe(each.key());
    for (const char* label : {"m_pllclk_Label", "m_usbclock_Label"})
        if (auto* shown = findChild<QLabel*>(QLatin1String(label)))
            describe(shown);
}
