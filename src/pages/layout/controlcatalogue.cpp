#include "pages/layout/controlcatalogue.h"

#include <QHash>

namespace {

constexpr int bold = 75;
constexpr int halfBold = 70;

constexpr ControlEntry label(const char* name, const char* text, int pointSize = 10, int weight = 0,
                             const char* spoken = "")
{
    return {name, ControlType::Label, text, 0, 0, pointSize, weight, spoken};
}

constexpr ControlEntry edit(const char* name, const char* text, const char* spoken)
{
    return {name, ControlType::Edit, text, 0, 0, 10, 0, spoken};
}

constexpr ControlEntry combo(const char* name, int width, int z, const char* spoken)
{
    return {name, ControlType::Combo, "", width, z, 10, 0, spoken};
}

constexpr ControlEntry radio(const char* name, const char* spoken)
{
    return {name, ControlType::Radio, "", 0, 0, 10, 0, spoken};
}

constexpr ControlEntry output(const char* name, const char* text = "", const char* spoken = "")
{
    return {name, ControlType::Output, text, 0, 0, 9, 0, spoken};
}

constexpr ControlEntry list(const char* name)
{
    return {name, ControlType::List};
}

// clang-format off
const ControlEntry entries[] = {
    // The oscillators and the RTC
    label("m_lick_Label", "lick(kHz)"),
    edit("m_lick_lineEdit", "{lick}", "lick, kHz"),
    output("m_towdt_lineEdit", "to wdt(kHz)"),
    combo("m_tortc_ComboBox", 80, 0, "RTC switch"),
    output("m_tortc_lineEdit", "", "RTC clock, kHz"),
    label("m_tortc_Label", "to {rtc}(kHz)", 9),
    label("m_lext_Label1", "lext(kHz)"),
    edit("m_lext_lineEdit", "{lext}", "lext, kHz"),
    label("m_lextbypass_Label", "bypass"),
    combo("m_lextbypass_ComboBox", 80, 0, "lext bypass"),
    label("m_lext_In", "IN", 8),
    label("m_lext_Out", "OUT", 8),
    label("m_rtcsel_Label", "{rtc}sel"),
    radio("m_rtcsel_lick_RadioButton", "RTC clock from lick"),
    radio("m_rtcsel_lext_RadioButton", "RTC clock from lext"),
    radio("m_rtcsel_hext_RadioButton", "RTC clock from hext"),
    label("m_rtcdiv_Label", "ertcdiv"),
    combo("m_rtcdiv_ComboBox", 60, 1, "RTC divider"),
    label("m_hext_Label1", "hext({hextMin}-{hextMax}MHz)"),
    edit("m_hext_lineEdit", "", "hext, MHz"),
    label("m_hextbypass_Label", "bypass"),
    combo("m_hextbypass_ComboBox", 80, 0, "hext bypass"),
    label("m_hext_In", "IN", 8),
    label("m_hext_Out", "OUT", 8),
    label("m_hick_Label", "hick(MHz)"),
    edit("m_hick_lineEdit", "{hick}", "hick, MHz"),

    // The PLL
    label("m_hextdiv_Label", "hextdiv"),
    combo("m_hextdiv_ComboBox", 50, 0, "hext divider"),
    label("m_hickdiv_Label", "hickdiv"),
    combo("m_hickdiv_ComboBox", 50, 0, "hick divider"),
    label("m_pllhextdiv_Label", "pllhextdiv"),
    radio("m_pllhext_nodiv_RadioButton", "PLL input from hext, not divided"),
    radio("m_pllhext_div_RadioButton", "PLL input from hext, divided"),
    label("m_pllrc_Label", "pllrcs"),
    radio("m_pllrcs_hext_RadioButton", "PLL source hext"),
    radio("m_pllrcs_hick_RadioButton", "PLL source hick"),
    label("m_pllmode_Label", "pll_mode"),
    combo("m_pllmode_ComboBox", 65, 1, "PLL mode"),
    label("m_pllmult_Label", "pll_mult"),
    combo("m_pllmult_ComboBox", 60, 0, "PLL multiplier"),
    label("m_pllms_Label1", "pll_ms"),
    edit("m_pllms_lineEdit", "1", "PLL MS"),
    label("m_pllms_Label2", "({msMin}-{msMax})"),
    label("m_pllns_Label1", "pll_ns"),
    edit("m_pllns_lineEdit", "1", "PLL NS"),
    label("m_pllns_Label2", "({nsMin}-{nsMax})"),
    label("m_pllfr_Label", "pll_fr"),
    combo("m_pllfr_ComboBox", 60, 0, "PLL FR"),
    label("m_pllfp_Label", "pll_fp"),
    combo("m_pllfp_ComboBox", 60, 0, "PLL FP"),
    label("m_pllfu_Label", "pll_fu"),
    combo("m_pllfu_ComboBox", 60, 0, "PLL FU"),
    label("m_pllCFG_Label", "CRM_PLLCFG : ", 10, bold),
    edit("m_pllCFG_Value_lineEdit", "0x08000000", "PLL register value"),
    label("m_pllclk_Label", "", 9, bold, "PLL output"),

    // The system clock
    label("m_sclkselect_Label", "sclk select"),
    radio("m_sclkselect_hext_RadioButton", "system clock from hext"),
    radio("m_sclkselect_pll_RadioButton", "system clock from the PLL"),
    radio("m_sclkselect_hick_RadioButton", "system clock from hick"),
    label("m_hicktosclk_Label", "hick to sclk"),
    radio("m_hicktosclk_div6_RadioButton", "hick to the system clock, divided by 6"),
    radio("m_hicktosclk_RadioButton", "hick to the system clock, not divided"),
    label("m_sclk_Label", "sclk(MHz)", 9),
    edit("m_sclk_lineEdit", "", "system clock, MHz"),
    label("m_sclkRange_Label", "({sclkMin} - {sclk})", 9, halfBold),
    label("m_sclkWarning1_QLabel", "Useage limited:", 10, bold),
    label("m_sclkWarning2_QLabel", "Temperature range - 40~85 degree. "),
    label("m_sclkWarning3_QLabel", "VDD must over 3.0V. "),

    // The buses
    label("m_ahbdiv_Label", "ahbdiv"),
    combo("m_ahbdiv_ComboBox", 60, 1, "AHB divider"),
    label("m_apb1div_Label", "apb1div", 9),
    combo("m_apb1div_ComboBox", 55, 2, "APB1 divider"),
    label("m_apb1divMax_Label", "{apb1}MHz max", 9),
    label("m_apb2div_Label", "apb2div", 9),
    combo("m_apb2div_ComboBox", 55, 1, "APB2 divider"),
    label("m_apb2divMax_Label", "{apb2}MHz max", 9),
    label("m_apb3div_Label", "apb3div", 9),
    combo("m_apb3div_ComboBox", 55, 1, "APB3 divider"),
    label("m_apb3divMax_Label", "{apb3}MHz max", 9),
    edit("m_tosystick_div", "", "systick divider"),
    edit("m_toapb1tmr_mul", "", "APB1 timer multiplier"),
    edit("m_toapb2tmr_mul", "", "APB2 timer multiplier"),
    edit("m_toapb1tmr_div", "", "APB1 timer divider"),
    edit("m_toapb2tmr_div", "", "APB2 timer divider"),

    // USB and the ADC
    label("m_usbdiv_Label", "usbdiv"),
    combo("m_usbdiv_ComboBox", 60, 0, "USB divider"),
    label("m_tousb_Label", "to usb"),
    combo("m_tousbswitch_ComboBox", 70, 0, "USB switch"),
    label("m_usbclock_Label", "", 9, halfBold, "USB clock"),
    label("m_hicktousb_Label", "hick to usb"),
    radio("m_tousb_pll_RadioButton", "USB clock from the PLL"),
    radio("m_tousb_hick_RadioButton", "USB clock from hick"),
    label("m_tousbhsphy_Label", "usbhs phy(MHz)", 9),
    output("m_tousbhsphy_lineEdit", "", "USB PHY clock, MHz"),
    label("m_toadcdiv_Label", "adcdiv", 9),
    combo("m_toadcdiv_ComboBox", 50, 3, "ADC divider"),
    combo("m_toadcswitch_ComboBox", 68, 2, "ADC switch"),
    label("m_toadc_Label", "adc (MHz)", 9),

    // The clock outputs, but for the rows of their sources
    label("m_clockoutpin_Label", "select pin"),
    combo("m_clockoutpin_ComboBox", 70, 1, "clock output pin"),
    label("m_clockoutdiv_Label", "clockoutdiv"),
    combo("m_clockoutdiv_ComboBox", 70, 0, "clock output divider"),
    label("m_clockoutdiv1_Label", "clockoutdiv1"),
    combo("m_clockoutdiv1_ComboBox", 70, 0, "clock output divider 1"),
    label("m_clockoutdiv2_Label", "clockoutdiv2"),
    combo("m_clockoutdiv2_ComboBox", 70, 0, "clock output divider 2"),
    label("m_clockout_Value_QLabel", "", 9, halfBold, "clock output"),
    label("m_clockout_QLabel", "clkout"),
    label("m_clockout1pin_Label", "select pin"),
    combo("m_clockout1pin_ComboBox", 80, 0, "clock output 1 pin"),
    label("m_clockout1div1_Label", "clockout1div1"),
    combo("m_clockout1div1_ComboBox", 80, 0, "clock output 1 divider 1"),
    label("m_clockout1div2_Label", "clockout1div2"),
    combo("m_clockout1div2_ComboBox", 80, 0, "clock output 1 divider 2"),
    label("m_clockout1_Value_QLabel", "", 10, halfBold, "clock output 1"),
    label("m_clockout1_QLabel", "clkout1"),
    label("m_clockout2pin_Label", "select pin"),
    combo("m_clockout2pin_ComboBox", 80, 1, "clock output 2 pin"),
    label("m_clockout2div1_Label", "clockout2div1"),
    combo("m_clockout2div1_ComboBox", 80, 0, "clock output 2 divider 1"),
    label("m_clockout2div2_Label", "clockout2div2"),
    combo("m_clockout2div2_ComboBox", 80, 0, "clock output 2 divider 2"),
    label("m_clockout2_Value_QLabel", "", 10, halfBold, "clock output 2"),
    label("m_clockout2_QLabel", "clkout2"),

    // The output column. Two of the lists have lost the last letter of their name.
    output("m_toi2s_lineEdit", "i2s (MHz)"),
    output("m_tosystick_lineEdit", "systick(MHz)"),
    output("m_tosido_lineEdit", "sdio (MHz)"),
    output("m_todma_lineEdit", "dma (MHz)"),
    output("m_toxmc_lineEdit", "xmc (MHz)"),
    output("m_togpio_lineEdit", "gpio (MHz)"),
    output("m_todvp_lineEdit", "dvp (MHz)"),
    output("m_toqspi_lineEdit", "qspi (MHz)"),
    output("m_toaes_lineEdit", "aes (MHz)"),
    output("m_totrng_lineEdit", "trng (MHz)"),
    output("m_toemac_lineEdit", "emac (MHz)"),
    output("m_toadc_lineEdit", "adc (MHz)", "adc, MHz"),
    output("m_toapb1peripheral_lineEdit", "apb1 peripheral (MHz)"),
    output("m_toapb1tmr_lineEdit", "apb1 tmr (MHz)"),
    output("m_toapb2peripheral_lineEdit", "apb2 peripheral (MHz)"),
    output("m_toapb2tmr_lineEdit", "apb2 tmr (MHz)"),
    output("m_toapb3peripheral_lineEdit", "apb3 peripheral (MHz)"),
    list("m_toapb1periphera_list_group"),
    list("m_toapb1tmr_list_group"),
    list("m_toapb2periphera_list_group"),
    list("m_toapb2tmr_list_group"),
};
// clang-format on

QHash<QString, const ControlEntry*> byName()
{
    QHash<QString, const ControlEntry*> found;
    for (const ControlEntry& entry : entries) {
        if (found.contains(QLatin1String(entry.name)))
            qFatal("the catalogue names %s twice", entry.name);
        found.insert(QLatin1String(entry.name), &entry);
    }
    return found;
}

} // namespace

const ControlEntry* controlcatalogue::find(const QString& name)
{
    static const QHash<QString, const ControlEntry*> all = byName();
    return all.value(name, nullptr);
}
