#pragma once

#include <QComboBox>
#include <QListView>
#include <QRadioButton>

/// The popup list of a combo box, in the combo's font; it tells when it takes and loses the keyboard focus.
class CustomListView : public QListView
{
    Q_OBJECT

public:
    explicit CustomListView(QComboBox* combo);

signals:
    void focusInThis(bool focused);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    QStyleOptionViewItem viewOptions() const override;

private:
    void tellFocusLost();

    const QComboBox* m_combo;
    bool m_focused = false;
};

/// The program's own combo box: a blue outline, no mouse wheel, and a list view that reports its focus. Its
/// text has the room up to the arrow, which is grey in a greyed box.
class CustomComboBox1 : public QComboBox
{
    Q_OBJECT

public:
    explicit CustomComboBox1(QWidget* parent = nullptr);

    /// Enables or greys the combo together with its outline. Pages use this and not setEnabled().
    void setEnabledStatus(bool enabled);

    /// Makes it a switch, through which nothing passes while this item is chosen.
    void setOffItem(int index) { m_offItem = index; }
    /// Whether it is a switch that is off.
    bool isOff() const { return m_offItem >= 0 && currentIndex() == m_offItem; }

    CustomListView* listView() const { return m_tempListView; }

signals:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    /// Swallows the wheel: it changes neither the selection nor the zoom of the view behind.
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    CustomListView* m_tempListView;
    int m_offItem = -1;
};

/// A radio button of the trees, which is round at every zoom, checked or not.
class RoundRadioButton : public QRadioButton
{
    Q_OBJECT

public:
    using QRadioButton::QRadioButton;

    /// Draws it where the painter stands, in the state of the option.
    void draw(QPainter& painter, QStyleOptionButton option) const;

protected:
    void paintEvent(QPaintEvent* event) override;
};
