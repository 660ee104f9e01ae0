#include "pages/blocks/ClockBlock.h"

#include "canvas/ZN64MCUPLL.h"
#include "canvas/appearance.h"
#include "pages/blocks/styles.h"

namespace {
constexpr int comboHeight = 25;
constexpr int boxWidth = 80;
constexpr int boxHeight = 30;
constexpr int multiplierSide = 30;
} // namespace

bool ClockBlock::outOfRange(ClockSource clock) const
{
    return limits::breaksAny(description().painted, clock, clockValue(clock, model()), tree().normalMode());
}

Remarks ClockBlock::remarksOn(ClockSource clock) const
{
    Remarks remarks{clockValue(clock, model())};
    for (const Limit& limit : description().painted)
        if (limit.clock == clock)
            remarks.limits.push_back(limit);
    return remarks;
}

QLabel* ClockBlock::label(const QString& name) const
{
    return m_tree.placeLabel(name);
}

QLabel* ClockBlock::labelIfPlaced(const QString& name) const
{
    return description().places.has(name) ? label(name) : nullptr;
}

QLineEdit* ClockBlock::boxEdit(const QString& name) const
{
    QLineEdit* edit = m_tree.placeEdit(name);
    edit->setMaximumWidth(boxWidth);
    edit->setFixedHeight(boxHeight);
    return edit;
}

QLineEdit* ClockBlock::outputEdit(const QString& name) const
{
    return m_tree.placeOutput(name);
}

QLineEdit* ClockBlock::multiplierEdit(const QString& name) const
{
    QLineEdit* edit = m_tree.placeEdit(name);
    edit->setReadOnly(true);
    edit->setFixedSize(multiplierSide, multiplierSide);
    edit->setStyleSheet(styles::multiplierBox());
    return edit;
}

CustomComboBox1* ClockBlock::combo(const QString& name, const QStringList& items) const
{
    CustomComboBox1* box = m_tree.placeCombo(name);
    box->addItems(items);
    box->setFixedHeight(comboHeight);
    return box;
}

QRadioButton* ClockBlock::radio(const QString& name, QButtonGroup* group) const
{
    QRadioButton* button = m_tree.placeRadio(name);
    group->addButton(button);
    return button;
}

QButtonGroup* ClockBlock::buttonGroup(const QString& name)
{
    auto* group = new QButtonGroup(this);
    group->setObjectName(name);
    return group;
}

void ClockBlock::addControls(const char* routine, std::function<void()> make)
{
    m_tree.addControls(routine, std::move(make));
}

void ClockBlock::addSetting(const QString& name, Setting setting)
{
    m_tree.addSetting(name, std::move(setting));
}

void ClockBlock::setHiddenAt(QWidget* control, bool hidden, int down) const
{
    control->setHidden(hidden);
    QGraphicsProxyWidget* proxy = ZN64MCUPLL::proxyOf(control);
    const Control& place = description().places.at(control->objectName());
    proxy->setPos(place.x, place.y + (hidden ? down : 0));
    proxy->setZValue(hidden ? 0 : 1);
}

void ClockBlock::showRadios(const std::vector<QRadioButton*>& radios, bool on)
{
    for (QRadioButton* button : radios) {
        appearance::setSheet(button, on ? styles::radioOn() : styles::radioOff());
        button->setEnabled(on);
    }
}

void ClockBlock::showPin(QLabel* pin, bool on)
{
    appearance::setSheet(pin, on ? styles::blueText() : styles::grayText());
    pin->setEnabled(on);
}

QStringList divisorItems(const std::vector<double>& divisors, const QString& prefix)
{
    QStringList items;
    for (double divisor : divisors)
        items << prefix + QString::number(divisor);
    return items;
}

int indexIn(const std::vector<double>& list, double value)
{
    for (std::size_t i = 0; i < list.size(); ++i)
        if (list[i] == value)
            return static_cast<int>(i);
    return 0;
}

double valueAt(const std::vector<double>& list, int index)
{
    return index >= 0 && static_cast<std::size_t>(index) < list.size() ? list[static_cast<std::size_t>(index)]
                                                                       : list.front();
}

QString frequencyText(double value)
{
    return QString::number(value, 'f', 3);
}

const QStringList& switchItems()
{
    static const QStringList items{QStringLiteral("disable"), QStringLiteral("enable")};
    return items;
}
