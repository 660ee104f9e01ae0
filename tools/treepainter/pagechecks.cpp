#include "checker.h"

namespace {

// Pixels between a label and a field that it does not belong to.
constexpr double labelDistance = 3;

/// What a control is about, without its kind: "pllms" of m_pllms_Label1. Labels without a name are about
/// nothing.
QString subjectOf(const QString& name)
{
    return name.startsWith(QLatin1String("m_")) ? name.section(QLatin1Char('_'), 1, 1) : QString();
}

/// "m_apb1divMax_Label" belongs to m_apb1div_ComboBox, "m_tousb_Label" to m_tousbswitch_ComboBox.
bool belong(const QString& label, const QString& control)
{
    const QString one = subjectOf(label);
    const QString other = subjectOf(control);
    return !one.isEmpty() && (one.startsWith(other) || other.startsWith(one));
}

} // namespace

void Checker::checkPair(const PlacedControl& one, const PlacedControl& other)
{
    if (overlap(one.rect, other.rect)) {
        tell(m_tree, QStringLiteral("%1 and %2 overlap").arg(one.name, other.name), {one.name}, {other.name});
        return;
    }
    const bool oneIsLabel = one.kind == ControlKind::Label;
    if (oneIsLabel == (other.kind == ControlKind::Label))
        return;
    const PlacedControl& label = oneIsLabel ? one : other;
    const PlacedControl& field = oneIsLabel ? other : one;
    if (overlap(grown(label.rect, labelDistance), field.rect) && !belong(label.name, field.name))
        tell(m_tree, QStringLiteral("%1 stands too close to %2").arg(label.name, field.name), {label.name},
             {field.name});
}

void Checker::checkPage()
{
    const QRectF picture(QPointF(), QSizeF(m_page.size));
    for (auto control = m_page.controls.begin(); control != m_page.controls.end(); ++control) {
        if (!picture.contains(control->rect))
            tell(m_tree, QStringLiteral("%1 reaches out of the picture").arg(control->name), {control->name},
                 {QStringLiteral("picture")});
        for (auto other = std::next(control); other != m_page.controls.end(); ++other)
            checkPair(*control, *other);
    }
}
