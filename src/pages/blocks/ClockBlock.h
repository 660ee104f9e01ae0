#pragma once

#include "canvas/CustomQControl.h"
#include "pages/settings.h"

#include <QButtonGroup>
#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QRadioButton>

#include <vector>

class ClockTreePage;
struct PageDescription;
class ZN64ConfigCLK;

/// One subject of the clock tree: its controls, its rules of what is grey, its slots, its results and its
/// settings. A block never looks at another one; what it must know of the rest of the tree it asks the page.
class ClockBlock : public QObject
{
    Q_OBJECT

public:
    explicit ClockBlock(ClockTreePage& page);

    virtual void ControlsConnectSlots() {}
    /// Greys what the present choices leave unused, and enables the rest.
    virtual void UI_Display() {}
    /// Paints the block's results from the model.
    virtual void UpdateResultControls() {}
    /// Whether the block takes a clock from the PLL at present, judged by its controls.
    virtual bool usesPll() const { return false; }
    /// Whether the block takes hext at present, other than through the PLL.
    virtual bool usesHext() const { return false; }

protected:
    ClockTreePage& page() const { return m_page; }
    ZN64ConfigCLK& model() const;

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

    /// Registers the routine that makes some of the block's controls; it runs if the series lists it.
    void addControls(const char* routine, std::function<void()> make);
    void addSetting(const char* name, Setting setting);

    static void showRadios(const std::vector<QRadioButton*>& radios, bool on);
    /// The look of a crystal pin that the oscillator drives, or does not.
    static void showPin(QLabel* pin, bool on);

private:
    ClockTreePage& m_page;
};

/// "  /1", "  /1.5": the items of a list of divisors.
QStringList divisorItems(const std::vector<double>& divisors, const QString& prefix = QStringLiteral("  /"));
/// A fixed list of divisors as the pages use it.
template <class List>
std::vector<double> listOf(const List& list)
{
    return {list.begin(), list.end()};
}
/// The place of the value in the list, 0 if it is not there.
int indexIn(const std::vector<double>& list, double value);
/// The value at the index, the first one's if there is no such index.
double valueAt(const std::vector<double>& list, int index);

/// The text of a frequency: three decimals.
QString frequencyText(double value);
/// "disable" and "enable", the items of a switch.
const QStringList& switchItems();
