#include "pages/blocks/UsbBlock.h"

#include "canvas/ZN64MCUPLL.h"
#include "canvas/appearance.h"
#include "model/seriestraits.h"

UsbBlock::UsbBlock(ClockTree& tree) : ClockBlock(tree)
{
    if (description().usb->hickRoute)
        addControls("New_hicktousb", [this] { New_hicktousb(); });
    else
        addControls("New_tousb", [this] { New_tousb(); });
}

void UsbBlock::New_tousb()
{
    label(QStringLiteral("m_tousb_Label"));
    // The one switch with "enable" first: its index is the model's number, in which zero is on.
    m_tousbswitch_ComboBox = combo(QStringLiteral("m_tousbswitch_ComboBox"),
                                   {QStringLiteral("enable"), QStringLiteral("disable")});
    m_tousbswitch_ComboBox->setOffItem(1);
    m_usbclock_Label = label(QStringLiteral("m_usbclock_Label"));
    addSetting(QStringLiteral("tousbswitch"),
               settings::whole(
                   model(), MODEL_FIELD(TO_USB_Switch),
                   [this](double index) { m_tousbswitch_ComboBox->setCurrentIndex(static_cast<int>(index)); },
                   settings::unchecked()));
}

void UsbBlock::New_hicktousb()
{
    m_hicktousb_Label = label(QStringLiteral("m_hicktousb_Label"));
    QButtonGroup* group = buttonGroup(QStringLiteral("m_tousb_ButtonGroup"));
    m_tousb_pll_RadioButton = radio(QStringLiteral("m_tousb_pll_RadioButton"), group);
    m_tousb_hick_RadioButton = radio(QStringLiteral("m_tousb_hick_RadioButton"), group);
    m_tousbChoices = {
        {HICK_TO_USB_DISABLE, m_tousb_pll_RadioButton },
        {HICK_TO_USB_ENABLE,  m_tousb_hick_RadioButton}
    };
    addSetting(QStringLiteral("hicktousb"),
               settings::radios(model(), MODEL_FIELD(HICK_TO_USB), m_tousbChoices,
                                settings::oneOf(valuesOf(m_tousbChoices), HICK_TO_USB_DISABLE)));
    New_tousb();
}

void UsbBlock::ControlsConnectSlots()
{
    connect(m_tousbswitch_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(usbswitch_ComboBox_currentIndexChanged(int)));
    for (const RadioChoice& choice : m_tousbChoices)
        connect(choice.radio, SIGNAL(toggled(bool)), this, SLOT(hicktousb_RadioButton_checkSlot(bool)));
}

void UsbBlock::UI_Display()
{
    m_usbclock_Label->setVisible(on());
    if (m_hicktousb_Label) {
        m_hicktousb_Label->setEnabled(on());
        showRadios({m_tousb_pll_RadioButton, m_tousb_hick_RadioButton}, on());
    }
}

void UsbBlock::UpdateResultControls()
{
    const double usb = model().Get_USBCLKValue();
    ZN64MCUPLL::SetLabelColor(m_usbclock_Label, usb == usbClockMHz ? Qt::darkGreen : Qt::red);
    appearance::setText(m_usbclock_Label, frequencyText(usb) + QLatin1String(" MHz"));
}

std::optional<Remarks> UsbBlock::remarksOn(const QWidget* control) const
{
    if (control != m_usbclock_Label || !on())
        return {};
    Remarks remarks{model().Get_USBCLKValue(), {limits::usbClock()}};
    // A PLL that drives the system clock is not moved for USB.
    if (fromPll() && !tree().sclkFromPll())
        remarks.wanted = usbClockMHz;
    return remarks;
}

void UsbBlock::serveNewDemand()
{
    if (!description().usbMovesBusyPll || !fromPll()) {
        tree().serveUsb();
        return;
    }
    if (!tree().readHextForPll())
        return;
    tree().searchUsb();
    tree().UpdateResultControls();
}

void UsbBlock::usbswitch_ComboBox_currentIndexChanged(int index)
{
    model().Set_TO_USB_Switch(index);
    tree().UI_Display();
    if (index == 0)
        serveNewDemand();
    else
        tree().UpdateParam_From_ResultCLK();
}

void UsbBlock::hicktousb_RadioButton_checkSlot(bool)
{
    tree().UI_Display();
    model().Set_HICK_TO_USB(checkedValue(m_tousbChoices));
    if (pllSelected()) {
        serveNewDemand();
        return;
    }
    model().Set_USBCLKValue(usbClockMHz);
    if (description().usbMovesBusyPll)
        tree().UpdateParam_From_ResultCLK();
    else
        tree().UpdateCalculateResult();
}
