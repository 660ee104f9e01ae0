#include "export/controldrawing.h"

#include "canvas/CustomQControl.h"
#include "canvas/comboarrow.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>
#include <QtMath>

// The style draws frames and grounds, as it does on the page. It would draw the icons as bitmaps.

namespace {

/// What the toolkit leaves between the frame of an edit and its text, pixels.
constexpr int editMargin = 2;
constexpr int comboMargin = 1;
/// Between the icon of a button and its text, pixels.
constexpr int iconGap = 4;

template <class Option>
Option untouched(const QWidget& control)
{
    Option option;
    option.initFrom(&control);
    option.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver | QStyle::State_KeyboardFocusChange);
    option.state |= QStyle::State_Active;
    option.palette.setCurrentColorGroup(control.isEnabled() ? QPalette::Active : QPalette::Disabled);
    return option;
}

void drawIcon(QPainter& painter, const char* name, const QRectF& place)
{
    QSvgRenderer(QStringLiteral(":/image/") + QLatin1String(name)).render(&painter, place);
}

/// What does not fit is left out: not every device clips.
QString fitting(const QStyleOption& option, const QString& text, int width)
{
    return option.fontMetrics.elidedText(text, Qt::ElideRight, width);
}

void draw(QPainter& painter, const QLabel& label)
{
    const auto option = untouched<QStyleOption>(label);
    // Its size is that of its text, on another device.
    const int flags = int(label.alignment()) | Qt::TextDontClip;
    label.style()->drawItemText(&painter, label.contentsRect(), flags, option.palette, label.isEnabled(),
                                label.text(), label.foregroundRole());
}

void draw(QPainter& painter, const QLineEdit& edit)
{
    auto option = untouched<QStyleOptionFrame>(edit);
    option.lineWidth = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &edit);
    option.state |= QStyle::State_Sunken;
    if (edit.isReadOnly())
        option.state |= QStyle::State_ReadOnly;
    edit.style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, &edit);
    const QRect room = edit.style()
                           ->subElementRect(QStyle::SE_LineEditContents, &option, &edit)
                           .adjusted(editMargin, 0, -editMargin, 0);
    // The toolkit rounds half a pixel upward here and downward elsewhere.
    const int height = option.fontMetrics.height();
    const QRect line(room.x(), room.y() + (room.height() - height + 1) / 2, room.width(), height);
    painter.setPen(option.palette.color(QPalette::Text));
    painter.drawText(line, int(edit.alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignTop,
                     fitting(option, edit.displayText(), room.width()));
}

void draw(QPainter& painter, const QComboBox& combo)
{
    auto option = untouched<QStyleOptionComboBox>(combo);
    option.frame = combo.hasFrame();
    const QStyle* style = combo.style();
    const QRectF button =
        style->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &combo);
    QRect text = style->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
    text.adjust(comboMargin, 0, 0, 0);
    text.setRight(qFloor(button.center().x() - comboarrow::across));
    option.subControls &= ~QStyle::SC_ComboBoxArrow;
    // The sheet's is another one once the combo had the focus.
    if (combo.isEnabled())
        option.palette.setColor(QPalette::ButtonText, Qt::black);
    style->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, &combo);
    style->drawItemText(&painter, text, Qt::AlignLeft | Qt::AlignVCenter, option.palette, combo.isEnabled(),
                        fitting(option, combo.currentText(), text.width()), QPalette::ButtonText);
    comboarrow::draw(painter, button.center(), combo.isEnabled());
}

void draw(QPainter& painter, const RoundRadioButton& radio)
{
    radio.draw(painter, untouched<QStyleOptionButton>(radio));
}

/// A button that opens a list: an icon with a text beside it.
void draw(QPainter& painter, const QPushButton& button)
{
    const auto option = untouched<QStyleOptionButton>(button);
    const int text = option.fontMetrics.horizontalAdvance(button.text());
    QRect icon(QPoint(), button.iconSize());
    QRect room(0, 0, icon.width() + iconGap + text, button.height());
    room.moveCenter(button.rect().center());
    icon.moveCenter(room.center());
    icon.moveLeft(room.left());
    drawIcon(painter, "btn_right_slider_hover.svg", icon);
    room.setLeft(icon.right() + 1 + iconGap);
    button.style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter, option.palette,
                                 button.isEnabled(), button.text(), QPalette::ButtonText);
}

/// In whole pixels of the picture, as screens have it, and without the coloured edges of one kind of screen.
QFont fontOf(const QWidget& control)
{
    constexpr double pixelsPerPoint = 96.0 / 72;
    QFont font = control.font();
    if (font.pointSizeF() > 0)
        font.setPixelSize(qRound(font.pointSizeF() * pixelsPerPoint));
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

template <class Control>
bool drawn(QPainter& painter, const QWidget& widget, const QPointF& place)
{
    const auto* control = qobject_cast<const Control*>(&widget);
    if (!control)
        return false;
    painter.save();
    painter.translate(place);
    painter.setFont(fontOf(widget));
    draw(painter, *control);
    painter.restore();
    return true;
}

} // namespace

void drawControl(QPainter& painter, const QWidget& control, const QPointF& place)
{
    (void)(drawn<QLineEdit>(painter, control, place) || drawn<QComboBox>(painter, control, place) ||
           drawn<RoundRadioButton>(painter, control, place) || drawn<QPushButton>(painter, control, place) ||
           drawn<QLabel>(painter, control, place));
}
