#include "pages/ClockTreePage.h"

#include "widgets/named.h"

#include <algorithm>

// Every control stands where its description says and is named after its member.

namespace {
// From the corner of an output edit to that of its list button, pixels.
constexpr int buttonRight = 85;
constexpr int buttonDown = 25;
constexpr int listSpacing = 4;
} // namespace

const Control& ClockTreePage::take(const QString& name, ControlType kind)
{
    const Control& control = m_description.places.at(name);
    if (control.kind != kind)
        qFatal("%s is a control of another kind", qPrintable(name));
    m_takenPlaces.insert(name);
    return control;
}

template <class Widget>
Widget* ClockTreePage::identified(const QString& name, const QString& spoken, Widget* control)
{
    m_spoken.insert(control, spoken);
    m_made += control;
    return named(name, control);
}

QStringList ClockTreePage::unusedPlaces() const
{
    QStringList names = m_description.places.names();
    names.erase(std::remove_if(names.begin(), names.end(),
                               [this](const QString& name) { return m_takenPlaces.contains(name); }),
                names.end());
    names.sort();
    return names;
}

QLabel* ClockTreePage::placeLabel(const QString& name)
{
    const Control& place = take(name, ControlType::Label);
    QLabel* label = NewQLabelInScenePos(place.text, place.x, place.y, place.pointSize, place.weight);
    // Its name is what it shows.
    label->setAccessibleDescription(place.spoken);
    return named(name, label);
}

QLineEdit* ClockTreePage::placeEdit(const QString& name)
{
    const Control& place = take(name, ControlType::Edit);
    QGraphicsProxyWidget* proxy = nullptr;
    return identified(name, place.spoken, NewCustomLineEditInScenePos(place.text, place.x, place.y, &proxy));
}

QLineEdit* ClockTreePage::placeOutput(const QString& name)
{
    const Control& place = take(name, ControlType::Output);
    QLineEdit* edit = place.text.isEmpty()
                          ? New_toperipheralControl(place.x, place.y, place.pointSize)
                          : New_toperipheralControl(place.text, place.x, place.y, place.pointSize);
    return identified(name, place.spoken, edit);
}

CustomComboBox1* ClockTreePage::placeCombo(const QString& name)
{
    const Control& place = take(name, ControlType::Combo);
    return identified(name, place.spoken, NewComboBoxInScenePos(place.x, place.y, place.width, place.z));
}

QRadioButton* ClockTreePage::placeRadio(const QString& name)
{
    const Control& place = take(name, ControlType::Radio);
    return identified(name, place.spoken, NewRadioButtonInScenePos(place.x, place.y));
}

QPushButton* ClockTreePage::placeListButton(const QString& name, const QString& output)
{
    const Control& place = m_description.places.at(output);
    return identified(name, QStringLiteral("list of ") + place.spoken,
                      New_toperipheralListButton(place.x + buttonRight, place.y + buttonDown, 0));
}

QDialog* ClockTreePage::placeList(const QString& name, const QStringList& peripherals)
{
    const Control& place = take(name, ControlType::List);
    return named(name, New_toperipheralListGroup(peripherals, place.x, place.y, 0, listSpacing));
}
