#include "ClockTreePage.h"

#include "widgets/named.h"

// Every control stands where its description says and is named after its member.

QLabel* ClockTreePage::placeLabel(const QString& name)
{
    const ControlPlace& place = m_description.places.at(name);
    QString text = QString::fromLatin1(place.text);
    text.replace(QLatin1String("%1"), QString::number(m_description.limits.sysclk));
    return named(name, NewQLabelInScenePos(text, place.x, place.y, place.pointSize, place.weight));
}

QLineEdit* ClockTreePage::placeEdit(const QString& name)
{
    const ControlPlace& place = m_description.places.at(name);
    QGraphicsProxyWidget* proxy = nullptr;
    return named(name, NewCustomLineEditInScenePos(QLatin1String(place.text), place.x, place.y, &proxy));
}

QLineEdit* ClockTreePage::placeOutput(const QString& name)
{
    const ControlPlace& place = m_description.places.at(name);
    QLineEdit* edit =
        *place.text ? New_toperipheralControl(QLatin1String(place.text), place.x, place.y, place.pointSize)
                    : New_toperipheralControl(place.x, place.y, place.pointSize);
    return named(name, edit);
}

CustomComboBox1* ClockTreePage::placeCombo(const QString& name)
{
    const ControlPlace& place = m_description.places.at(name);
    return named(name, NewComboBoxInScenePos(place.x, place.y, place.width, place.z));
}

QRadioButton* ClockTreePage::placeRadio(const QString& name)
{
    const ControlPlace& place = m_description.places.at(name);
    return named(name, NewRadioButtonInScenePos(place.x, place.y));
}
