#include "ZN64G150PLL.h"

#include "ZN64G110PLL.h"
#include "blocks/ClockBlock.h"
#include "descriptionparts.h"
#include "model/divisors.h"

namespace {

/// The same tree on a picture of its own.
Places movedPlaces()
{
    return g110Description()
        .places
        .without({
            "m_pllhext", "m_pllmult", "m_sclkRange", "m_toadc", "m_clockout"
    })
        .moved({
            {"m_lick_Label", 80, 20},
            {"m_lick_lineEdit", 65, 37},
            {"m_towdt_lineEdit", 510, 17},
            {"m_tortc_ComboBox", 405, 102},
            {"m_tortc_lineEdit", 510, 102},
            {"m_lext_Label1", 80, 82},
            {"m_lext_lineEdit", 65, 99},
            {"m_lextbypass_Label", 83, 130},
            {"m_lextbypass_ComboBox", 65, 148},
            {"m_lext_In", 18, 101},
            {"m_lext_Out", 6, 112},
            {"m_rtcsel_lick_RadioButton", 345, 45},
            {"m_rtcsel_lext_RadioButton", 345, 107},
            {"m_rtcsel_hext_RadioButton", 345, 155},
            {"m_hext_Label1", 65, 230},
            {"m_hext_lineEdit", 65, 248},
            {"m_hextbypass_Label", 83, 280},
            {"m_hextbypass_ComboBox", 65, 298},
            {"m_hext_In", 18, 250},
            {"m_hext_Out", 6, 261},
            {"m_hick_Label", 80, 381},
            {"m_pllrc_Label", 332, 220},
            {"m_pllrcs_hext_RadioButton", 342, 256},
            {"m_pllrcs_hick_RadioButton", 342, 316},
            {"m_sclkselect_Label", 712, 170},
            {"m_sclkselect_hext_RadioButton", 738, 232},
            {"m_sclkselect_pll_RadioButton", 738, 290},
            {"m_sclkselect_hick_RadioButton", 738, 347},
            {"m_sclk_lineEdit", 783, 282},
            {"m_ahbdiv_Label", 934, 263},
            {"m_ahbdiv_ComboBox", 924, 283},
            {"m_apb1div_ComboBox", 1035, 448},
            {"m_apb2div_ComboBox", 1035, 613},
            {"m_tosystick_div", 1092, 89},
            {"m_toapb1tmr_mul", 1092, 486},
            {"m_toapb2tmr_mul", 1092, 653},
            {"m_usbdiv_Label", 720, 433},
            {"m_usbdiv_ComboBox", 710, 408},
            {"m_tousb_Label", 850, 410},
            {"m_tousbswitch_ComboBox", 840, 430},
            {"m_toi2s_lineEdit", 1177, 41},
            {"m_tosystick_lineEdit", 1177, 92},
            {"m_tosido_lineEdit", 1177, 134},
            {"m_todma_lineEdit", 1177, 179},
            {"m_toxmc_lineEdit", 1177, 221},
            {"m_toapb1peripheral_lineEdit", 1177, 446},
            {"m_toapb1tmr_lineEdit", 1177, 530},
            {"m_toapb2peripheral_lineEdit", 1177, 613},
            {"m_toapb2tmr_lineEdit", 1177, 698},
            {"m_toapb1periphera_list_group", 1262, 491},
            {"m_toapb1tmr_list_group", 1262, 575},
            {"m_toapb2periphera_list_group", 1262, 658},
            {"m_toapb2tmr_list_group", 1262, 563},
        });
}

/// Both clock outputs.
Places clockOutputPlaces()
{
    return {
        labelAt("m_clockout1pin_Label", 136, 496, "select pin"),
        comboAt("m_clockout1pin_ComboBox", 125, 515, 80),
        labelAt("m_clockout1div2_Label", 257, 495, "clockout1div2"),
        comboAt("m_clockout1div2_ComboBox", 256, 515, 80),
        labelAt("m_clockout1div1_Label", 384, 495, "clockout1div1"),
        comboAt("m_clockout1div1_ComboBox", 383, 515, 80),
        radioAt("m_clockout1_hick_RadioButton", 514, 490),
        labelAt("m_clockout1_hick_QLabel1", 572, 490, "hick"),
        labelAt("m_clockout1_hick_QLabel", 612, 490, ""),
        radioAt("m_clockout1_lext_RadioButton", 514, 511),
        labelAt("m_clockout1_lext_QLabel1", 572, 511, "lext"),
        labelAt("m_clockout1_lext_QLabel", 612, 511, ""),
        radioAt("m_clockout1_hext_RadioButton", 514, 532),
        labelAt("m_clockout1_hext_QLabel1", 572, 532, "hext"),
        labelAt("m_clockout1_hext_QLabel", 612, 532, ""),
        radioAt("m_clockout1_pll_RadioButton", 514, 554),
        labelAt("m_clockout1_pll_QLabel1", 572, 554, "pll"),
        labelAt("m_clockout1_pll_QLabel", 612, 554, ""),
        labelAt("m_clockout1_QLabel", 500, 585, "clkout1"),
        labelAt("m_clockout1_Value_QLabel", 50, 545, "", 10, 70),
        labelAt("m_clockout2pin_Label", 136, 674, "select pin"),
        comboAt("m_clockout2pin_ComboBox", 125, 694, 80, 1),
        labelAt("m_clockout2div2_Label", 257, 674, "clockout2div2"),
        comboAt("m_clockout2div2_ComboBox", 256, 694, 80),
        labelAt("m_clockout2div1_Label", 384, 674, "clockout2div1"),
        comboAt("m_clockout2div1_ComboBox", 383, 694, 80),
        radioAt("m_clockout2_sclk_RadioButton", 514, 626),
        labelAt("m_clockout2_sclk_QLabel1", 572, 626, "sclk"),
        labelAt("m_clockout2_sclk_QLabel", 612, 626, ""),
        radioAt("m_clockout2_hext_RadioButton", 514, 646),
        labelAt("m_clockout2_hext_QLabel1", 572, 646, "hext"),
        labelAt("m_clockout2_hext_QLabel", 612, 646, ""),
        radioAt("m_clockout2_pll_RadioButton", 514, 667),
        labelAt("m_clockout2_pll_QLabel1", 572, 667, "pll"),
        labelAt("m_clockout2_pll_QLabel", 612, 667, ""),
        radioAt("m_clockout2_usb_RadioButton", 514, 688),
        labelAt("m_clockout2_usb_QLabel1", 572, 688, "usb"),
        labelAt("m_clockout2_usb_QLabel", 612, 688, ""),
        radioAt("m_clockout2_hick_RadioButton", 514, 709),
        labelAt("m_clockout2_hick_QLabel1", 572, 709, "hick"),
        labelAt("m_clockout2_hick_QLabel", 612, 709, ""),
        radioAt("m_clockout2_adcclk_RadioButton", 514, 730),
        labelAt("m_clockout2_adcclk_QLabel1", 572, 730, "adcclk"),
        labelAt("m_clockout2_adcclk_QLabel", 612, 730, ""),
        radioAt("m_clockout2_lick_RadioButton", 514, 751),
        labelAt("m_clockout2_lick_QLabel1", 572, 751, "lick"),
        labelAt("m_clockout2_lick_QLabel", 612, 751, ""),
        radioAt("m_clockout2_lext_RadioButton", 514, 771),
        labelAt("m_clockout2_lext_QLabel1", 572, 771, "lext"),
        labelAt("m_clockout2_lext_QLabel", 612, 771, ""),
        labelAt("m_clockout2_QLabel", 500, 807, "clkout2"),
        labelAt("m_clockout2_Value_QLabel", 50, 723, "", 10, 70),
    };
}

Places places()
{
    return clockOutputPlaces() +
           movedPlaces().with({
               labelAt("m_tortc_Label", 595, 105, "to ertc(kHz)", 9),
               labelAt("m_rtcsel_Label", 332, 186, "ertcsel"),
               labelAt("m_rtcdiv_Label", 250, 135, "ertcdiv"),
               comboAt("m_rtcdiv_ComboBox", 240, 150, 60, 1),
               editAt("m_hick_lineEdit", 65, 399, "48"),
               labelAt("m_hicktosclk_Label", 267, 440, "hick to sclk"),
               radioAt("m_hicktosclk_div6_RadioButton", 288, 357),
               radioAt("m_hicktosclk_RadioButton", 288, 407),
               labelAt("m_pllms_Label1", 410, 262, "pll_ms"),
               editAt("m_pllms_lineEdit", 395, 282, "1"),
               labelAt("m_pllms_Label2", 405, 313, "(1-15)"),
               labelAt("m_pllns_Label1", 497, 262, "pll_ns"),
               editAt("m_pllns_lineEdit", 482, 282, "1"),
               labelAt("m_pllns_Label2", 487, 312, "(31-500)"),
               labelAt("m_pllfr_Label", 585, 262, "pll_fr"),
               comboAt("m_pllfr_ComboBox", 570, 282, 60),
               labelAt("m_pllCFG_Label", 420, 230, "CRM_PLLCFG : ", 10, 75),
               editAt("m_pllCFG_Value_lineEdit", 510, 227, "0x08000000"),
               labelAt("m_pllclk_Label", 650, 275, "", 10, 75),
               labelAt("m_sclk_Label", 775, 262, "sclk(4 - %1 MHz)", 9),
               labelAt("m_sclkWarning1_QLabel", 775, 315, "Useage limited:", 10, 75),
               labelAt("m_sclkWarning2_QLabel", 775, 332, "Temperature range - 40~85 degree. "),
               labelAt("m_sclkWarning3_QLabel", 775, 349, "VDD must over 3.0V. "),
               labelAt("m_apb1div_Label", 1040, 428, "apb1div"),
               labelAt("m_apb1divMax_Label", 1090, 438, "144MHz max"),
               labelAt("m_apb2div_Label", 1040, 593, "apb2div"),
               labelAt("m_apb2divMax_Label", 1090, 603, "144MHz max"),
               labelAt("m_hicktousb_Label", 768, 490, "hick to usb"),
               radioAt("m_tousb_pll_RadioButton", 795, 415),
               radioAt("m_tousb_hick_RadioButton", 795, 455),
               labelAt("m_usbclock_Label", 920, 460, "", 10, 70),
               outputAt("m_togpio_lineEdit", 1177, 263, "gpio (MHz)"),
               outputAt("m_todvp_lineEdit", 1177, 303, "dvp (MHz)"),
               outputAt("m_toqspi_lineEdit", 1177, 345, "qspi (MHz)"),
               outputAt("m_toadc_lineEdit", 1177, 389, "adc (MHz)"),
           });
}

std::vector<const char*> controls()
{
    return {"New_lick",          "New_towdt",
            "New_tortc",         "New_lext",
            "New_lextbypass",    "New_rtcsel",
            "New_rtcdiv",        "New_hext",
            "New_hextbypass",    "New_pllrcs",
            "New_pll_ms",        "New_pll_ns",
            "New_pll_fr",        "New_pllclk",
            "New_pll_CFG",       "New_sclkselect",
            "New_ahbdiv",        "New_apb1div",
            "New_apb2div",       "New_usbdiv",
            "New_hicktousb",     "New_hicktosclk",
            "New_hick",          "New_clockout1div1",
            "New_clockout1div2", "New_clockout1pinselect",
            "New_clockout1",     "New_clockout2div1",
            "New_clockout2div2", "New_clockout2pinselect",
            "New_clockout2",     "New_Result",
            "New_toperipheral",  "New_totmrmultiply"};
}

std::vector<StartValue> start()
{
    return {
        {"rtcsel",           RTCSEL_LICK          },
        {"rtcswitch",        0                    },
        {"lextbypass",       0                    },
        {"rtcdiv",           2                    },
        {"hextbypass",       0                    },
        {"hext",             8.0                  },
        {"pllrcs",           PLLRC_HEXT           },
        {"pllms",            1                    },
        {"pllns",            144                  },
        {"pllfr",            4                    },
        {"sclkselect",       SYSCLK_PLL           },
        {"ahbdiv",           1                    },
        {"apb1div",          1                    },
        {"apb2div",          1                    },
        {"tmrmultiply",      1                    },
        {"usbdiv",           6.0                  },
        {"hicktousb",        HICK_TO_USB_DISABLE  },
        {"tousbswitch",      TO_USB_SWITCH_DISABLE},
        {"hicktosclk",       HICK_TO_SCLK_DIV6    },
        {"clkout1",          CLKOUT1_HICK         },
        {"clkout1div1",      1                    },
        {"clkout1div2",      1                    },
        {"clkout1pinselect", CLKOUT1PIN_NONE      },
        {"clkout2",          CLKOUT2_SCLK         },
        {"clkout2div1",      1                    },
        {"clkout2div2",      1                    },
        {"clkout2pinselect", CLKOUT2PIN_NONE      },
    };
}

std::vector<double> firstDivisors()
{
    return listOf(divisors::clockOutputFirst);
}

std::vector<double> secondDivisors()
{
    return listOf(divisors::clockOutput);
}

ClockOutputDescription clockOutput1()
{
    ClockOutputDescription output;
    output.stem = "clockout1";
    output.setting = "clkout1";
    output.pinSetting = "clkout1pinselect";
    output.field = MODEL_FIELD(CLKOUT1);
    output.pinField = MODEL_FIELD(CLKOUT1_PinSelect);
    output.rows = {
        {CLKOUT1_HICK, "hick", OutputSource::Hick},
        {CLKOUT1_LEXT, "lext", OutputSource::Lext},
        {CLKOUT1_HEXT, "hext", OutputSource::Hext},
        {CLKOUT1_PLL,  "pll",  OutputSource::Pll },
    };
    output.pins = {"PA8", "PE4"};
    output.dividers = {
        {"New_clockout1div1", "m_clockout1div1", "clkout1div1", firstDivisors(),  MODEL_FIELD(CLKOUT1_Div1)},
        {"New_clockout1div2", "m_clockout1div2", "clkout1div2", secondDivisors(), MODEL_FIELD(CLKOUT1_Div2)},
    };
    output.fallback = CLKOUT1_HICK;
    return output;
}

ClockOutputDescription clockOutput2()
{
    ClockOutputDescription output = clockOutput1();
    output.stem = "clockout2";
    output.setting = "clkout2";
    output.pinSetting = "clkout2pinselect";
    output.field = MODEL_FIELD(CLKOUT2);
    output.pinField = MODEL_FIELD(CLKOUT2_PinSelect);
    output.rows = {
        {CLKOUT2_SCLK,   "sclk",   OutputSource::Sclk},
        {CLKOUT2_HEXT,   "hext",   OutputSource::Hext},
        {CLKOUT2_PLL,    "pll",    OutputSource::Pll },
        {CLKOUT2_USB,    "usb",    OutputSource::Usb },
        {CLKOUT2_HICK,   "hick",   OutputSource::Hick},
        {CLKOUT2_ADCCLK, "adcclk", OutputSource::Adc },
        {CLKOUT2_LICK,   "lick",   OutputSource::Lick},
        {CLKOUT2_LEXT,   "lext",   OutputSource::Lext},
    };
    output.pins = {"PC9"};
    output.dividers = {
        {"New_clockout2div1", "m_clockout2div1", "clkout2div1", firstDivisors(),  MODEL_FIELD(CLKOUT2_Div1)},
        {"New_clockout2div2", "m_clockout2div2", "clkout2div2", secondDivisors(), MODEL_FIELD(CLKOUT2_Div2)},
    };
    output.fallback = CLKOUT2_HICK;
    return output;
}

std::vector<ListGroup> lists()
{
    return descriptionparts::lists(
        {"SPI2", "SPI3", "USART2", "USART3", "UART4", "UART5", "UART7", "UART8", "I2C1", "I2C2", "I2C3",
         "CAN1", "CAN2", "DAC"},
        {"TMR2", "TMR3", "TMR4", "TMR5", "TMR6", "TMR7", "TMR12", "TMR13", "TMR14"},
        {"SPI1", "SPI4", "USART1", "USART6", "SCFG"}, {"TMR1", "TMR8", "TMR9", "TMR10", "TMR11", "TMR20"});
}

PageLimits pageLimits()
{
    PageLimits limits;
    limits.lowestSysclk = 4.0;
    limits.sysclk = 288.0;
    limits.apb1 = 144.0;
    limits.apb2 = 144.0;
    limits.pll = 288.0;
    limits.sysclkWarning = 240.0;
    return limits;
}

PageDescription describe()
{
    PageDescription page{ZN64G150, "G150PLL.bmp", QSize(1404, 828), "zn64g150_152", places()};
    page.controls = controls();
    page.start = start();
    page.fixedFields = [](ZN64ConfigCLK& model) { model.Set_ConfigMode(PLLMODE_FLEXIBLE); };
    page.fileOrder = {"lextbypass",      "rtcsel",           "rtcswitch",  "rtcdiv",      "hext",
                      "hextbypass",      "pllrcs",           "pllms",      "pllns",       "pllfr",
                      "sclkselect",      "ahbdiv",           "apb1div",    "apb2div",     "usbdiv",
                      "hicktousb",       "tousbswitch",      "hicktosclk", "clkout1",     "clkout1div1",
                      "clkout1div2",     "clkout1pinselect", "clkout2",    "clkout2div1", "clkout2div2",
                      "clkout2pinselect"};
    page.readingOrder = {"lextbypass",  "rtcsel",      "rtcswitch",        "rtcdiv",
                         "hext",        "hextbypass",  "pllrcs",           "pllms",
                         "pllns",       "pllfr",       "sclkselect",       "ahbdiv",
                         "apb1div",     "apb2div",     "usbdiv",           "hicktosclk",
                         "hicktousb",   "tousbswitch", "clkout1pinselect", "clkout1",
                         "clkout1div1", "clkout1div2", "clkout2pinselect", "clkout2",
                         "clkout2div1", "clkout2div2"};
    page.limits = pageLimits();
    page.hardLimits = descriptionparts::hardLimits(page.limits);
    page.softLimits = {descriptionparts::usbClock()};
    page.usbDivisors = listOf(divisors::usbHalfStepsTo7);
    page.outputs = descriptionparts::outputs({"m_tosido_lineEdit", "m_todma_lineEdit", "m_toxmc_lineEdit",
                                              "m_togpio_lineEdit", "m_todvp_lineEdit", "m_toqspi_lineEdit",
                                              "m_toadc_lineEdit"});
    page.listGroups = lists();
    page.clockOutputs = {clockOutput1(), clockOutput2()};
    page.alwaysSearchesUsb = true;
    return page;
}

} // namespace

const PageDescription& g150Description()
{
    static const PageDescription page = describe();
    return page;
}

ZN64G150PLL::ZN64G150PLL(QWidget* parent) : ClockTreePage(g150Description(), parent)
{
    build();
}
