#include "canvas/CustomQControl.h"

#include "canvas/comboarrow.h"

#include "canvas/appearance.h"
#include "widgets/look.h"

#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

#include <utility>

namespace {

/// Built once: every combo compares against these texts on each change of focus.
struct ComboSheets
{
    QString normal = sheet("rgb(0, 176, 240)", "black");
    QString active = sheet("rgb(0, 176, 240)", "rgb(51,51,51)");
    QString disabled = sheet("gray", "gray");

    static QString sheet(const char* border, const char* text)
    {
        return QStringLiteral("QComboBox{border-style: outset; border-width: 1px; border-color: %1;color:%2;"
                              "border-radius:2px;padding:1px 2px;}")
                   .arg(QLatin1String(border), QLatin1String(text)) +
               QStringLiteral(
                   "QAbstractItemView{border: 1px solid black; selection-background-color: lightgray; "
                   "padding-top: 4px;padding-bottom:4px;}"
                   "QComboBox::drop-down{border-left-width: 1px;border-left-color: blue;"
                   "border-left-style: none; border-top-right-radius: 3px;border-bottom-right-radius: 3px;"
                   "subcontrol-origin: padding;subcontrol-position: top right; width:20px;}"
                   "QComboBox::down-arrow{image:url(:/image/downArrow4.png); height:20px; width:10px}"
                   "QComboBox QAbstractScrollArea QScrollBar::vertical{"
                   "background-color:rgb(217, 233, 246); width: 12px;}"
                   "QComboBox QAbstractScrollArea QScrollBar::handle{background:rgb(36, 183, 181); "
                   "border:2px solid transparent; border-radius:5px;}"
                   "QComboBox QAbstractScrollArea QScrollBar::handle:hover{background:rgb(36, 183, 181);}"
                   "QComboBox QAbstractScrollArea QScrollBar::sub-line{background:transparent;}"
                   "QComboBox QAbstractScrollArea QScrollBar::add-line{background:transparent;}");
    }
};

const ComboSheets& sheets()
{
    static const ComboSheets all;
    return all;
}

} // namespace

CustomListView::CustomListView(QComboBox* combo) : QListView(combo), m_combo(combo) {}

void CustomListView::focusInEvent(QFocusEvent* event)
{
    m_focused = true;
    emit focusInThis(true);
    QAbstractItemView::focusInEvent(event);
}

void CustomListView::focusOutEvent(QFocusEvent* event)
{
    tellFocusLost();
    QAbstractItemView::focusOutEvent(event);
}

void CustomListView::hideEvent(QHideEvent* event)
{
    // A list that closes on a scene loses the focus without an event of its own.
    tellFocusLost();
    QListView::hideEvent(event);
}

QStyleOptionViewItem CustomListView::viewOptions() const
{
    // Here and not by a palette and a font of the list, which would be worked out for each of a page's
    // combos.
    QStyleOptionViewItem options = QListView::viewOptions();
    // The sheet makes the chosen entry's ground light and leaves its text to the palette.
    options.palette.setColor(QPalette::HighlightedText, Qt::black);
    options.font = m_combo->font();
    options.fontMetrics = QFontMetrics(options.font);
    return options;
}

void CustomListView::tellFocusLost()
{
    if (std::exchange(m_focused, false))
        emit focusInThis(false);
}

CustomComboBox1::CustomComboBox1(QWidget* parent)
    : QComboBox(parent), m_tempListView(new CustomListView(this))
{
    setContentsMargins(0, 0, 0, 0);
    setFont(QFont(QStringLiteral("Arial"), 10, 0));
    setView(m_tempListView);
    // The style first: a sheet that is there already would be worked out once more on top of it.
    setStyle(look::plainStyle());
    setStyleSheet(sheets().normal);
    m_tempListView->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void CustomComboBox1::setEnabledStatus(bool enabled)
{
    setEnabled(enabled);
    appearance::setSheet(this, enabled ? sheets().active : sheets().disabled);
}

void CustomComboBox1::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit clicked();
    QComboBox::mousePressEvent(event);
}

void CustomComboBox1::wheelEvent(QWheelEvent* event)
{
    // The toolkit hands the event over as ignored: left so, the view behind would scroll.
    event->accept();
}

void CustomComboBox1::focusInEvent(QFocusEvent* event)
{
    appearance::setSheet(this, sheets().active);
    QComboBox::focusInEvent(event);
}

void CustomComboBox1::focusOutEvent(QFocusEvent* event)
{
    appearance::setSheet(this, sheets().normal);
    QComboBox::focusOutEvent(event);
}

void CustomComboBox1::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.subControls &= ~QStyle::SubControls(QStyle::SC_ComboBoxArrow);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const auto part = [&](QStyle::SubControl which) {
        return QRectF(style()->subControlRect(QStyle::CC_ComboBox, &option, which, this));
    };
    const QPointF middle = part(QStyle::SC_ComboBoxArrow).center();
    comboarrow::draw(painter, middle, isEnabled());
    // The style ends the text at the arrow's column, of which the arrow takes less than half.
    const qreal arrowLeft = middle.x() - comboarrow::across;
    option.rect.setRight(option.rect.right() + int(arrowLeft - part(QStyle::SC_ComboBoxEditField).right()));
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void RoundRadioButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    draw(painter, option);
}

void RoundRadioButton::draw(QPainter& painter, QStyleOptionButton option) const
{
    // The sheet's ring is a square with round corners: here it is the disc of a checked button with a hole.
    option.state.setFlag(QStyle::State_On, true);
    option.state.setFlag(QStyle::State_Off, false);
    style()->drawControl(QStyle::CE_RadioButton, &option, &painter, this);
    if (isChecked())
        return;
    const QRectF disc = style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().button());
    painter.drawEllipse(disc.adjusted(1, 1, -1, -1));
}
