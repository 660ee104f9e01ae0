#include "ClockTreePage.h"

// Every control stands where its description says and is named after its member.

namespace {

template <class Control>
Control* named(Control* control, const QString& name)
{
    control->setObjectName(name);
    return control;
}

} // namespace

QLabel* ClockTreePage::placeLabel(const QString& name)
{
    const ControlPlace& place = m_description.places.at(name);
    QString text = QString::fromLatin1(place.text);
    text.replace(QLatin1String("%1"), QString::number(m_description.limits.sysclk));
    return named(NewQLabelInScenePos(text, place.x, place.y, place.pointSize, place.weight), name);
}

QLineEdit* ClockTreePage::placeEdit(const QString& name)
{
    const ControlPlace& place = m_description.places.at(name);
    QGraphicsProxyWidget* proxy = nullptr;
    return named(NewCustomLineEditInScenePos(QLatin1String(place.text), place.x, place.y, &proxy), name);
}

QLineEdit* ClockTreePage::placeOutput(const QString& name)
{
    const ControlPlace& place = m_description.places.at(name);
    QLineEdit* edit =
        *place.text ? New_toperipheralControl(QLatin1String(place.text), place.x, place.y, place.pointSize)
                    : New_toperipheralControl(place.x, place.y, place.pointSize);
    return named(edit, name);
}

CustomComboBox1* ClockTreePage::placeCombo(const QString& name)
{
    const ControlPlace& place = m_description.places.at(name);
    return named(NewComboBoxInScenePos(place.x, place.y, place.width, place.z), name);
}

QRadioButton* ClockTreePage::placeRadio(const QString& name)
{
    const ControlPlace& place = m_description.places.at(name);
    return named(NewRadioButtonInScenePos(place.x, place.y), name);
}
