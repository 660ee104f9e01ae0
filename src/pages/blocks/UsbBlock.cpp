#include "UsbBlock.h"

#include "canvas/appearance.h"
#include "pages/ClockTreePage.h"

namespace {
constexpr double usbClock = 48.0; // MHz, exactly
}

UsbBlock::UsbBlock(ClockTreePage& page) : ClockBlock(page)
{
    addControls("New_usbdiv", [this] { New_usbdiv(); });
    addControls("New_tousb", [this] { New_tousb(); });
    addControls("New_hicktousb", [this] { New_hicktousb(); });
}

void UsbBlock::New_usbdiv()
{
    const std::vector<double>& divisors = page().description().usbDivisors;
    m_usbdiv_Label = label(QStringLiteral("m_usbdiv_Label"));
    m_usbdiv_ComboBox = combo(QStringLiteral("m_usbdiv_ComboBox"), divisorItems(divisors));
    addSetting("usbdiv", settings::decimal(
                             model(), MODEL_FIELD(USBDIV),
                             [this, &divisors](double divisor) {
                                 m_usbdiv_ComboBox->setCurrentIndex(indexIn(divisors, divisor));
                             },
                             settings::oneOf(divisors, divisors.front())));
}

void UsbBlock::New_tousb()
{
    label(QStringLiteral("m_tousb_Label"));
    // The one switch with "enable" first: its index is the model's number, in which zero is on.
    m_tousbswitch_ComboBox = combo(QStringLiteral("m_tousbswitch_ComboBox"),
                                   {QStringLiteral("enable"), QStringLiteral("disable")});
    m_usbclock_Label = label(QStringLiteral("m_usbclock_Label"));
    addSetting("tousbswitch",
               settings::whole(
                   model(), MODEL_FIELD(TO_USB_Switch),
                   [this](double index) { m_tousbswitch_ComboBox->setCurrentIndex(static_cast<int>(index)); },
                   settings::unchecked()));
}

void UsbBlock::New_hicktousb()
{
    New_tousb();
    m_hicktousb_Label = label(QStringLiteral("m_hicktousb_Label"));
    QButtonGroup* group = buttonGroup(QStringLiteral("m_tousb_ButtonGroup"));
    m_tousb_pll_RadioButton = radio(QStringLiteral("m_tousb_pll_RadioButton"), group);
    m_tousb_hick_RadioButton = radio(QStringLiteral("m_tousb_hick_RadioButton"), group);
    m_tousbChoices = {
        {HICK_TO_USB_DISABLE, m_tousb_pll_RadioButton },
        {HICK_TO_USB_ENABLE,  m_tousb_hick_RadioButton}
    };
    addSetting("hicktousb", settings::radios(model(), MODEL_FIELD(HICK_TO_USB), m_tousbChoices,
                                             settings::oneOf(valuesOf(m_tousbChoices), HICK_TO_USB_DISABLE)));
}

void UsbBlock::ControlsConnectSlots()
{
    connect(m_usbdiv_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(usbdiv_ComboBox_currentIndexChanged(int)));
    connect(m_tousbswitch_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(usbswitch_ComboBox_currentIndexChanged(int)));
    for (const RadioChoice& choice : m_tousbChoices)
        connect(choice.radio, SIGNAL(toggled(bool)), this, SLOT(hicktousb_RadioButton_checkSlot(bool)));
}

void UsbBlock::UI_Display()
{
    m_usbclock_Label->setVisible(on());
    m_usbdiv_Label->setEnabled(fromPll());
    m_usbdiv_ComboBox->setEnabledStatus(fromPll());
    if (m_hicktousb_Label) {
        m_hicktousb_Label->setEnabled(on());
        showRadios({m_tousb_pll_RadioButton, m_tousb_hick_RadioButton}, on());
    }
}

void UsbBlock::UpdateResultControls()
{
    const double usb = model().Get_USBCLKValue();
    ZN64MCUPLL::SetLabelColor(m_usbclock_Label, usb == usbClock ? Qt::darkGreen : Qt::red);
    appearance::setText(m_usbclock_Label, frequencyText(usb) + QLatin1String(" MHz"));
    m_usbdiv_ComboBox->setCurrentIndex(indexIn(page().description().usbDivisors, model().Get_USBDIV()));
}

void UsbBlock::serveUsb()
{
    // A PLL that drives the system clock is not moved for USB.
    if (page().sclkFromPll() || !fromPll()) {
        page().UpdateCalculateResult();
        return;
    }
    if (!page().readHextForPll())
        return;
    page().searchUsb();
    page().UpdateResultControls();
}

void UsbBlock::usbdiv_ComboBox_currentIndexChanged(int index)
{
    model().Set_USBDIV(valueAt(page().description().usbDivisors, index));
    serveUsb();
}

void UsbBlock::usbswitch_ComboBox_currentIndexChanged(int index)
{
    model().Set_TO_USB_Switch(index);
    page().UI_Display();
    if (index == 0)
        serveUsb();
    else
        page().UpdateParam_From_ResultCLK();
}

void UsbBlock::hicktousb_RadioButton_checkSlot(bool)
{
    page().UI_Display();
    model().Set_HICK_TO_USB(checkedValue(m_tousbChoices));
    if (!pllSelected())
        model().Set_USBCLKValue(usbClock);
    serveUsb();
}
