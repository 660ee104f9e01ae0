#pragma once

#include "pages/blocks/ClockBlock.h"

/// The label with the PLL's output frequency.
class PllOutputBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit PllOutputBlock(ClockTree& tree);

    void UI_Display() override;
    void UpdateResultControls() override;
    std::optional<Remarks> remarksOn(const QWidget* control) const override;

    /// The PLL's own limits are checked only while this holds.
    bool shown() const { return m_pllclk_Label->isEnabled(); }

private:
    QLabel* m_pllclk_Label = nullptr;
};
