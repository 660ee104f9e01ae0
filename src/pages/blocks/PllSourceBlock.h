#pragma once

#include "pages/blocks/ClockBlock.h"

/// The PLL's source, hext or hick, and on some series the choice of a divider of hext before it.
class PllSourceBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit PllSourceBlock(ClockTree& tree);

    void ControlsConnectSlots() override;
    void UI_Display() override;

    bool hextSelected() const { return m_pllrcs_hext_RadioButton->isChecked(); }
    /// Whether hext passes its divider on the way to the PLL.
    bool hextDivided() const { return m_pllhext_div_RadioButton && m_pllhext_div_RadioButton->isChecked(); }
    /// Whether the PLL's input from hext is within its limits. If not, it tells, corrects hext and repaints
    /// everything, so that the caller has nothing left to do.
    bool PLLInputSourceClockCheck();

private slots:
    void pllhextdiv_RadioButton_checkSlot(bool);
    void pllrcs_RadioButton_checkSlot(bool);

private:
    void New_pllhextdiv();
    void New_pllrcs();

    QLabel* m_pllhextdiv_Label = nullptr;
    QRadioButton* m_pllhext_nodiv_RadioButton = nullptr;
    QRadioButton* m_pllhext_div_RadioButton = nullptr;
    QLabel* m_pllrc_Label = nullptr;
    QRadioButton* m_pllrcs_hext_RadioButton = nullptr;
    QRadioButton* m_pllrcs_hick_RadioButton = nullptr;
    std::vector<RadioChoice> m_pllhextdivChoices;
    std::vector<RadioChoice> m_pllrcsChoices;
    bool m_correcting = false;
};
