#pragma once

#include "pages/blocks/ClockTree.h"
#include "pages/blocks/remarks.h"

#include <QButtonGroup>
#include <QObject>

#include <optional>
#include <vector>

/// One subject of the clock tree: its controls, its rules of what is grey, its slots, its results and its
/// settings. A block never looks at another one; what it must know of the rest it asks the tree.
class ClockBlock : public QObject
{
    Q_OBJECT

public:
    explicit ClockBlock(ClockTree& tree) : m_tree(tree) {}

    virtual void ControlsConnectSlots() {}
    /// Greys what the present choices leave unused, and enables the rest.
    virtual void UI_Display() {}
    /// Paints the block's results from the model.
    virtual void UpdateResultControls() {}
    /// Whether the block takes a clock from the PLL at present, judged by its controls.
    virtual bool usesPll() const { return false; }
    /// Whether the block takes hext at present, other than through the PLL.
    virtual bool usesHext() const { return false; }
    /// Whether the block needs the PLL's divider for USB, though USB may be off.
    virtual bool usesPllU() const { return false; }
    /// What is to be told of a field of the block; nothing of a control that is none.
    virtual std::optional<Remarks> remarksOn(const QWidget*) const { return {}; }
    /// Shows or hides what belongs to one mode of the PLL, on a series that has both.
    virtual void ShowPllMode(bool) {}
    /// Shows what a search for PLL parameters found, by the PLL's mode.
    virtual void Update_Normal_Controls() {}
    virtual void Update_Flexible_Controls() {}

protected:
    ClockTree& tree() const { return m_tree; }
    ZN64ConfigCLK& model() const { return m_tree.clocks(); }
    const PageDescription& description() const { return m_tree.description(); }

    /// Whether the clock breaks a limit that is painted red.
    bool outOfRange(ClockSource clock) const;
    /// What is to be told of a field that shows the clock.
    Remarks remarksOn(ClockSource clock) const;

    // Controls at their places, with their member names as object names.

    QLabel* label(const QString& name) const;
    QLabel* labelIfPlaced(const QString& name) const;
    /// An edit of its natural width, at most 80 pixels, and 30 pixels high.
    QLineEdit* boxEdit(const QString& name) const;
    /// A read-only output edit together with the label at its right.
    QLineEdit* outputEdit(const QString& name) const;
    /// A read-only edit, 30 by 30 pixels, that shows a multiplier or a fixed divider.
    QLineEdit* multiplierEdit(const QString& name) const;
    CustomComboBox1* combo(const QString& name, const QStringList& items) const;
    QRadioButton* radio(const QString& name, QButtonGroup* group) const;
    QButtonGroup* buttonGroup(const QString& name);

    /// Registers the routine that makes some of the block's controls; all routines run in one order.
    void addControls(const char* routine, std::function<void()> make);
    void addSetting(const QString& name, Setting setting);

    /// Hides a control that is out of use and moves it down behind the others, so that it takes no clicks.
    /// down: pixels from its place.
    void setHiddenAt(QWidget* control, bool hidden, int down) const;
    static void showRadios(const std::vector<QRadioButton*>& radios, bool on);
    /// The look of a crystal pin that the oscillator drives, or does not.
    static void showPin(QLabel* pin, bool on);

private:
    ClockTree& m_tree;
};

/// "  /1", "  /1.5": the items of a list of divisors.
QStringList divisorItems(const std::vector<double>& divisors, const QString& prefix = QStringLiteral("  /"));
/// The place of the value in the list, 0 if it is not there.
int indexIn(const std::vector<double>& list, double value);
/// The value at the index, the first one's if there is no such index.
double valueAt(const std::vector<double>& list, int index);

/// The text of a frequency: three decimals.
QString frequencyText(double value);
/// "disable" and "enable", the items of a switch.
const QStringList& switchItems();
