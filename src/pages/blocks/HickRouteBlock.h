#pragma once

#include "pages/blocks/ClockBlock.h"

/// The route of hick to the system clock: divided by 6 or undivided.
class HickRouteBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit HickRouteBlock(ClockTree& tree);

    void ControlsConnectSlots() override;
    void UI_Display() override;

    bool undivided() const { return m_hicktosclk_RadioButton->isChecked(); }

private slots:
    void hicktosclk_RadioButton_checkSlot(bool);

private:
    void New_hicktosclk();

    QLabel* m_hicktosclk_Label = nullptr;
    QRadioButton* m_hicktosclk_div6_RadioButton = nullptr;
    QRadioButton* m_hicktosclk_RadioButton = nullptr;
    std::vector<RadioChoice> m_hicktosclkChoices;
};
