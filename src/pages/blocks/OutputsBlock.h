#pragma once

#include "ClockBlock.h"
#include "pages/pagedescription.h"

#include <QDialog>
#include <QPushButton>

/// The column of output frequencies, with the lists of the peripherals on each bus. At most one list is open.
class OutputsBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit OutputsBlock(ClockTreePage& page);

    void ControlsConnectSlots() override;
    void UpdateResultControls() override;

    /// Closes the open list, if any, and moves the focus to its button.
    void closeLists();

private slots:
    void toapb1peripheral_List_Button_checkSlot() { toggleList("m_toapb1peripheral_List_Button"); }
    void toapb1tmr_List_Button_checkSlot() { toggleList("m_toapb1tmr_List_Button"); }
    void toapb2peripheral_List_Button_checkSlot() { toggleList("m_toapb2peripheral_List_Button"); }
    void toapb2tmr_List_Button_checkSlot() { toggleList("m_toapb2tmr_List_Button"); }

private:
    struct Output
    {
        QLineEdit* edit;
        Clock clock;
        double divisor;
    };
    struct List
    {
        QPushButton* button;
        QDialog* group;
    };

    void New_toperipheral();
    void makeList(const ListGroup& description);
    void toggleList(const char* button);
    static void showList(const List& list, bool open);
    double limit(Clock clock) const;

    std::vector<Output> m_outputs;
    std::vector<List> m_lists;
};
