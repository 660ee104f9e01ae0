#pragma once

#include "pages/blocks/ClockBlock.h"
#include "pages/description/outputs.h"

/// The column of output frequencies, with the lists of the peripherals on each bus. At most one list is open.
class OutputsBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit OutputsBlock(ClockTree& tree);

    void ControlsConnectSlots() override;
    void UpdateResultControls() override;
    std::optional<Remarks> remarksOn(const QWidget* control) const override;

    /// Closes the open list, if any, and moves the focus to its button.
    void closeLists();

private slots:
    /// Opens the list of the button that was clicked, or closes it.
    void List_Button_checkSlot();

private:
    struct Output
    {
        QLineEdit* edit;
        const OutputEntry& entry;
    };
    struct List
    {
        QPushButton* button;
        QDialog* group;
    };

    void New_toperipheral();
    void makeList(const ListNames& names);
    static void showList(const List& list, bool open);

    std::vector<Output> m_outputs;
    std::vector<List> m_lists;
};
