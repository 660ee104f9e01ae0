#include "ZN64G110PLL.h"

#include "blocks/ClockBlock.h"
#include "descriptionparts.h"
#include "model/divisors.h"

namespace {

/// The oscillators and the RTC.
Places oscillatorPlaces()
{
    return {
        labelAt("m_lick_Label", 80, 48, "lick(kHz)"),
        editAt("m_lick_lineEdit", 65, 65, "40"),
        outputAt("m_towdt_lineEdit", 415, 17, "to wdt(kHz)"),
        comboAt("m_tortc_ComboBox", 305, 142, 80),
        outputAt("m_tortc_lineEdit", 415, 142),
        labelAt("m_tortc_Label", 500, 145, "to rtc(kHz)", 9),
        labelAt("m_lext_Label1", 80, 121, "lext(kHz)"),
        editAt("m_lext_lineEdit", 65, 138, "32.768"),
        labelAt("m_lextbypass_Label", 83, 168, "bypass"),
        comboAt("m_lextbypass_ComboBox", 65, 186, 80),
        labelAt("m_lext_In", 18, 140, "IN", 8),
        labelAt("m_lext_Out", 6, 151, "OUT", 8),
        labelAt("m_rtcsel_Label", 248, 32, "rtcsel"),
        radioAt("m_rtcsel_lick_RadioButton", 257, 75),
        radioAt("m_rtcsel_lext_RadioButton", 257, 148),
        radioAt("m_rtcsel_hext_RadioButton", 257, 214),
        labelAt("m_hext_Label1", 65, 279, "hext(4-25MHz)"),
        editAt("m_hext_lineEdit", 65, 297, "8"),
        labelAt("m_hextbypass_Label", 83, 329, "bypass"),
        comboAt("m_hextbypass_ComboBox", 65, 347, 80),
        labelAt("m_hext_In", 18, 299, "IN", 8),
        labelAt("m_hext_Out", 6, 310, "OUT", 8),
        labelAt("m_hick_Label", 80, 425, "hick(MHz)"),
        editAt("m_hick_lineEdit", 65, 443, "8"),
    };
}

/// From the PLL to the system clock.
Places pllPlaces()
{
    return {
        labelAt("m_pllhextdiv_Label", 323, 263, "pllhextdiv"),
        radioAt("m_pllhext_nodiv_RadioButton", 345, 305),
        radioAt("m_pllhext_div_RadioButton", 345, 346),
        labelAt("m_pllrc_Label", 461, 290, "pllrcs"),
        radioAt("m_pllrcs_hext_RadioButton", 472, 327),
        radioAt("m_pllrcs_hick_RadioButton", 472, 380),
        labelAt("m_pllmult_Label", 560, 327, "pll_mult"),
        comboAt("m_pllmult_ComboBox", 555, 347, 60),
        labelAt("m_pllclk_Label", 650, 335, "", 9, 75),
        labelAt("m_sclkselect_Label", 712, 237, "sclk select"),
        radioAt("m_sclkselect_hext_RadioButton", 740, 297),
        radioAt("m_sclkselect_pll_RadioButton", 740, 355),
        radioAt("m_sclkselect_hick_RadioButton", 740, 412),
        labelAt("m_sclk_Label", 793, 327, "sclk(MHz)", 9),
        editAt("m_sclk_lineEdit", 783, 347),
        labelAt("m_sclkRange_Label", 798, 376, "(4 - %1)", 9, 70),
    };
}

/// The buses, USB and the ADC.
Places busPlaces()
{
    return {
        labelAt("m_ahbdiv_Label", 936, 327, "ahbdiv"),
        comboAt("m_ahbdiv_ComboBox", 926, 347, 60, 1),
        labelAt("m_apb1div_Label", 1041, 352, "apb1div", 9),
        comboAt("m_apb1div_ComboBox", 1036, 372, 55, 2),
        labelAt("m_apb2div_Label", 1041, 582, "apb2div", 9),
        comboAt("m_apb2div_ComboBox", 1036, 602, 55, 1),
        editAt("m_tosystick_div", 1092, 142),
        editAt("m_toapb1tmr_mul", 1092, 412),
        editAt("m_toapb2tmr_mul", 1092, 650),
        labelAt("m_usbdiv_Label", 717, 482, "usbdiv"),
        comboAt("m_usbdiv_ComboBox", 707, 502, 60),
        labelAt("m_tousb_Label", 820, 482, "to usb"),
        comboAt("m_tousbswitch_ComboBox", 810, 502, 70),
        labelAt("m_usbclock_Label", 900, 525, "", 9, 70),
        labelAt("m_toadcdiv_Label", 1119, 498, "adcdiv", 9),
        comboAt("m_toadcdiv_ComboBox", 1115, 514, 50, 3),
        comboAt("m_toadcswitch_ComboBox", 1075, 550, 68, 2),
        outputAt("m_toadc_lineEdit", 1180, 513),
        labelAt("m_toadc_Label", 1265, 516, "adc (MHz)", 9),
    };
}

/// The clock output.
Places clockOutputPlaces()
{
    return {
        labelAt("m_clockoutpin_Label", 140, 634, "select pin"),
        comboAt("m_clockoutpin_ComboBox", 133, 654, 70, 1),
        labelAt("m_clockout_Value_QLabel", 48, 672, "", 9, 70),
        radioAt("m_clockout_noclk_RadioButton", 339, 565),
        labelAt("m_clockout_noclk_QLabel1", 400, 560, "no clk"),
        radioAt("m_clockout_hick_RadioButton", 339, 590),
        labelAt("m_clockout_hick_QLabel1", 400, 585, "hick"),
        labelAt("m_clockout_hick_QLabel", 440, 585, ""),
        radioAt("m_clockout_hext_RadioButton", 339, 617),
        labelAt("m_clockout_hext_QLabel1", 400, 612, "hext"),
        labelAt("m_clockout_hext_QLabel", 440, 612, ""),
        radioAt("m_clockout_sclk_RadioButton", 339, 645),
        labelAt("m_clockout_sclk_QLabel1", 400, 640, "sclk"),
        labelAt("m_clockout_sclk_QLabel", 440, 640, ""),
        radioAt("m_clockout_usb_RadioButton", 339, 672),
        labelAt("m_clockout_usb_QLabel1", 400, 667, "usb"),
        labelAt("m_clockout_usb_QLabel", 440, 667, ""),
        radioAt("m_clockout_adcclk_RadioButton", 339, 699),
        labelAt("m_clockout_adcclk_QLabel1", 400, 694, "adcclk"),
        labelAt("m_clockout_adcclk_QLabel", 450, 694, ""),
        radioAt("m_clockout_plldiv2_RadioButton", 339, 727),
        labelAt("m_clockout_plldiv2_QLabel1", 400, 722, "pll/2"),
        labelAt("m_clockout_plldiv2_QLabel", 440, 722, ""),
        radioAt("m_clockout_plldiv4_RadioButton", 339, 755),
        labelAt("m_clockout_plldiv4_QLabel1", 400, 750, "pll/4"),
        labelAt("m_clockout_plldiv4_QLabel", 440, 750, ""),
        labelAt("m_clockout_QLabel", 326, 786, "clkout"),
    };
}

/// The output column with its lists.
Places outputPlaces()
{
    return {
        outputAt("m_toi2s_lineEdit", 1180, 93, "i2s (MHz)"),
        outputAt("m_tosystick_lineEdit", 1180, 144, "systick(MHz)"),
        outputAt("m_tosido_lineEdit", 1180, 188, "sdio (MHz)"),
        outputAt("m_todma_lineEdit", 1180, 233, "dma (MHz)"),
        outputAt("m_toxmc_lineEdit", 1180, 274, "xmc (MHz)"),
        outputAt("m_toapb1peripheral_lineEdit", 1180, 372, "apb1 peripheral (MHz)"),
        outputAt("m_toapb1tmr_lineEdit", 1180, 456, "apb1 tmr (MHz)"),
        outputAt("m_toapb2peripheral_lineEdit", 1180, 602, "apb2 peripheral (MHz)"),
        outputAt("m_toapb2tmr_lineEdit", 1180, 687, "apb2 tmr (MHz)"),
        groupAt("m_toapb1periphera_list_group", 1265, 417),
        groupAt("m_toapb1tmr_list_group", 1265, 501),
        groupAt("m_toapb2periphera_list_group", 1265, 397),
        groupAt("m_toapb2tmr_list_group", 1265, 551),
    };
}

Places places()
{
    return oscillatorPlaces() + pllPlaces() + busPlaces() + clockOutputPlaces() + outputPlaces();
}

std::vector<const char*> controls()
{
    return {"New_lick",     "New_towdt",  "New_tortc",        "New_lext",          "New_lextbypass",
            "New_rtcsel",   "New_hext",   "New_hextbypass",   "New_pllhextdiv",    "New_pllrcs",
            "New_pll_mult", "New_pllclk", "New_sclkselect",   "New_ahbdiv",        "New_apb1div",
            "New_apb2div",  "New_usbdiv", "New_tousb",        "New_hick",          "New_clockoutpinselect",
            "New_clockout", "New_Result", "New_toperipheral", "New_totmrmultiply", "New_totadc"};
}

std::vector<StartValue> start()
{
    return {
        {"rtcsel",          RTCSEL_LICK          },
        {"rtcswitch",       0                    },
        {"lextbypass",      0                    },
        {"hextbypass",      0                    },
        {"hext",            8.0                  },
        {"pllhextdiv",      PLLHEXT_NODIV        },
        {"pllrcs",          PLLRC_HEXT           },
        {"pllmult",         24                   },
        {"sclkselect",      SYSCLK_PLL           },
        {"ahbdiv",          1                    },
        {"apb1div",         1                    },
        {"apb2div",         1                    },
        {"tmrmultiply",     1                    },
        {"adcswitch",       0                    },
        {"adcdiv",          2                    },
        {"usbdiv",          4.0                  },
        {"tousbswitch",     TO_USB_SWITCH_DISABLE},
        {"clkout",          CLKOUT_NOCLK         },
        {"clkoutpinselect", CLKOUTPIN_NONE       },
    };
}

void fixedFields(ZN64ConfigCLK& model)
{
    model.Set_ConfigMode(PLLMODE_NORMAL);
    model.Set_HEXT_DIV(2);
    model.Set_HICK_TO_USB(HICK_TO_USB_DISABLE);
    model.Set_HICK_TO_SCLK(HICK_TO_SCLK_NODIV);
    model.Set_CLKOUT_Div(1);
}

ClockOutputDescription clockOutput()
{
    ClockOutputDescription output;
    output.stem = "clockout";
    output.setting = "clkout";
    output.pinSetting = "clkoutpinselect";
    output.field = MODEL_FIELD(CLKOUT);
    output.pinField = MODEL_FIELD(CLKOUT_PinSelect);
    output.rows = {
        {CLKOUT_NOCLK,   "noclk",   OutputSource::None   },
        {CLKOUT_HICK,    "hick",    OutputSource::Hick   },
        {CLKOUT_HEXT,    "hext",    OutputSource::Hext   },
        {CLKOUT_SCLK,    "sclk",    OutputSource::Sclk   },
        {CLKOUT_USB,     "usb",     OutputSource::Usb    },
        {CLKOUT_ADCCLK,  "adcclk",  OutputSource::Adc    },
        {CLKOUT_PLLDIV2, "plldiv2", OutputSource::PllDiv2},
        {CLKOUT_PLLDIV4, "plldiv4", OutputSource::PllDiv4},
    };
    output.pins = {"PA8"};
    output.fallback = CLKOUT_NOCLK;
    output.hick = HickAtOutput::Always8;
    return output;
}

std::vector<ListGroup> lists()
{
    return descriptionparts::lists(
        {"SPI2", "SPI3", "SPI4", "USART2", "USART3", "UART4", "UART5", "I2C1", "I2C2", "I2C3", "CAN1", "DAC"},
        {"TMR2", "TMR3", "TMR4", "TMR5", "TMR6", "TMR7", "TMR12", "TMR13", "TMR14"},
        {"GPIOA", "GPIOB", "GPIOC", "GPIOD", "GPIOE", "GPIOF", "GPIOG", "SPI1", "USART1"},
        {"TMR1", "TMR8", "TMR9", "TMR10", "TMR11", "TMR15"});
}

PageDescription describe()
{
    PageDescription page{ZN64G110, "G110PLL.bmp", QSize(1408, 830), "zn64g110", places()};
    page.controls = controls();
    page.start = start();
    page.fixedFields = fixedFields;
    page.fileOrder = {"lextbypass",      "rtcsel",    "rtcswitch", "hext",        "hextbypass",
                      "pllhextdiv",      "pllrcs",    "pllmult",   "sclkselect",  "ahbdiv",
                      "apb1div",         "apb2div",   "usbdiv",    "tousbswitch", "clkout",
                      "clkoutpinselect", "adcswitch", "adcdiv"};
    page.readingOrder = {"lextbypass", "rtcsel",      "rtcswitch",  "hext",   "hextbypass",      "pllhextdiv",
                         "pllrcs",     "pllmult",     "sclkselect", "ahbdiv", "apb1div",         "apb2div",
                         "usbdiv",     "tousbswitch", "adcswitch",  "adcdiv", "clkoutpinselect", "clkout"};
    page.limits.lowestSysclk = 4.0;
    page.limits.sysclk = 200.0;
    page.limits.apb1 = 100.0;
    page.limits.apb2 = 100.0;
    page.limits.pll = 200.0;
    page.limits.adc = 28.0;
    page.hardLimits = descriptionparts::hardLimits(page.limits);
    page.softLimits = {
        descriptionparts::usbClock(),
        {SoftLimitKind::AdcAbove, 28.0,
                      "The maximum ADC clock is 28 MHz. The currently configured ADC clock is wrong.  please confirm "
         "whether to continue?"},
    };
    page.usbDivisors = listOf(divisors::usbHalfStepsTo4);
    page.adcDivisors = listOf(divisors::adc);
    page.outputs = descriptionparts::outputs({"m_tosido_lineEdit", "m_todma_lineEdit", "m_toxmc_lineEdit"});
    page.listGroups = lists();
    page.clockOutputs = {clockOutput()};
    page.checksPllInput = true;
    return page;
}

} // namespace

const PageDescription& g110Description()
{
    static const PageDescription page = describe();
    return page;
}

ZN64G110PLL::ZN64G110PLL(QWidget* parent) : ClockTreePage(g110Description(), parent)
{
    build();
}
