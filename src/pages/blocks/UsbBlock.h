#pragma once

#include "pages/blocks/ClockBlock.h"

/// The USB clock: switch, on some series the choice between the PLL and hick, and the result.
class UsbBlock : public ClockBlock
{
    Q_OBJECT

public:
    explicit UsbBlock(ClockTree& tree);

    void ControlsConnectSlots() override;
    void UI_Display() override;
    void UpdateResultControls() override;
    std::optional<Remarks> remarksOn(const QWidget* control) const override;
    bool usesPll() const override { return fromPll(); }

    bool on() const { return m_tousbswitch_ComboBox->currentIndex() == 0; }
    bool fromPll() const { return on() && pllSelected(); }
    bool fromHick() const { return on() && !pllSelected(); }

private slots:
    void usbswitch_ComboBox_currentIndexChanged(int index);
    void hicktousb_RadioButton_checkSlot(bool);

private:
    void New_tousb();
    void New_hicktousb();
    /// A series without a choice of the source always takes the PLL.
    bool pllSelected() const { return !m_tousb_pll_RadioButton || m_tousb_pll_RadioButton->isChecked(); }
    /// Solves for USB once it is switched on or has a new source.
    void serveNewDemand();

    CustomComboBox1* m_tousbswitch_ComboBox = nullptr;
    QLabel* m_usbclock_Label = nullptr;
    QLabel* m_hicktousb_Label = nullptr;
    QRadioButton* m_tousb_pll_RadioButton = nullptr;
    QRadioButton* m_tousb_hick_RadioButton = nullptr;
    std::vector<RadioChoice> m_tousbChoices;
};
