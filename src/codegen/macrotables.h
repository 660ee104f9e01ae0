#pragma once

#include <QString>

// The macro names of the firmware library, by position. What maps a value of the model to a row stands with
// the getters; the first row is the fallback of nearly all of them.

// Sources and parameters of the PLL.
inline const QString pll_rc_State_Define_String[] = {QStringLiteral("CRM_PLL_SOURCE_HEXT"),
                                                     QStringLiteral("CRM_PLL_SOURCE_HEXT_DIV"),
                                                     QStringLiteral("CRM_PLL_SOURCE_HICK")};
inline const QString pll_mult_State_Define_String[] = {QStringLiteral("CRM_PLL_MULT_")};
inline const QString hextdiv_State_Define_String[] = {QStringLiteral("CRM_HEXT_DIV_")};
inline const QString pll_output_range_State_Define_String[] = {
    QStringLiteral("CRM_PLL_OUTPUT_RANGE_LE72MHZ"), QStringLiteral("CRM_PLL_OUTPUT_RANGE_GT72MHZ")};
inline const QString pll_fr_State_Define_String[] = {
    QStringLiteral("CRM_PLL_FR_1"), QStringLiteral("CRM_PLL_FR_2"),  QStringLiteral("CRM_PLL_FR_4"),
    QStringLiteral("CRM_PLL_FR_8"), QStringLiteral("CRM_PLL_FR_16"), QStringLiteral("CRM_PLL_FR_32")};
inline const QString pll_fp_State_Define_String[] = {
    QStringLiteral("CRM_PLL_FP_1"),  QStringLiteral("CRM_PLL_FP_2"),  QStringLiteral("CRM_PLL_FP_4"),
    QStringLiteral("CRM_PLL_FP_6"),  QStringLiteral("CRM_PLL_FP_8"),  QStringLiteral("CRM_PLL_FP_10"),
    QStringLiteral("CRM_PLL_FP_12"), QStringLiteral("CRM_PLL_FP_14"), QStringLiteral("CRM_PLL_FP_16"),
    QStringLiteral("CRM_PLL_FP_18"), QStringLiteral("CRM_PLL_FP_20"), QStringLiteral("CRM_PLL_FP_22"),
    QStringLiteral("CRM_PLL_FP_24"), QStringLiteral("CRM_PLL_FP_26"), QStringLiteral("CRM_PLL_FP_28"),
    QStringLiteral("CRM_PLL_FP_30")};
inline const QString pll_fu_State_Define_String[] = {
    QStringLiteral("CRM_PLL_FU_11"), QStringLiteral("CRM_PLL_FU_13"), QStringLiteral("CRM_PLL_FU_12"),
    QStringLiteral("CRM_PLL_FU_14"), QStringLiteral("CRM_PLL_FU_16"), QStringLiteral("CRM_PLL_FU_18"),
    QStringLiteral("CRM_PLL_FU_20")};

// System clock, buses and flash.
inline const QString SYSCLKSelect_Define_String[] = {
    QStringLiteral("CRM_SCLK_HEXT"), QStringLiteral("CRM_SCLK_PLL"), QStringLiteral("CRM_SCLK_HICK")};
inline const QString AHBDIV_Define_String[] = {
    QStringLiteral("CRM_AHB_DIV_1"),   QStringLiteral("CRM_AHB_DIV_2"),   QStringLiteral("CRM_AHB_DIV_4"),
    QStringLiteral("CRM_AHB_DIV_8"),   QStringLiteral("CRM_AHB_DIV_16"),  QStringLiteral("CRM_AHB_DIV_64"),
    QStringLiteral("CRM_AHB_DIV_128"), QStringLiteral("CRM_AHB_DIV_256"), QStringLiteral("CRM_AHB_DIV_512")};
inline const QString APB1DIV_Define_String[] = {
    QStringLiteral("CRM_APB1_DIV_1"), QStringLiteral("CRM_APB1_DIV_2"), QStringLiteral("CRM_APB1_DIV_4"),
    QStringLiteral("CRM_APB1_DIV_8"), QStringLiteral("CRM_APB1_DIV_16")};
inline const QString APB2DIV_Define_String[] = {
    QStringLiteral("CRM_APB2_DIV_1"), QStringLiteral("CRM_APB2_DIV_2"), QStringLiteral("CRM_APB2_DIV_4"),
    QStringLiteral("CRM_APB2_DIV_8"), QStringLiteral("CRM_APB2_DIV_16")};
inline const QString APB3DIV_Define_String[] = {
    QStringLiteral("CRM_APB3_DIV_1"), QStringLiteral("CRM_APB3_DIV_2"), QStringLiteral("CRM_APB3_DIV_4"),
    QStringLiteral("CRM_APB3_DIV_8"), QStringLiteral("CRM_APB3_DIV_16")};
inline const QString FLASHDIV_Define_String[] = {QStringLiteral("FLASH_CLOCK_DIV_2"),
                                                 QStringLiteral("FLASH_CLOCK_DIV_3")};
inline const QString FLASHPSR_Define_String[] = {
    QStringLiteral("FLASH_WAIT_CYCLE_0"), QStringLiteral("FLASH_WAIT_CYCLE_1"),
    QStringLiteral("FLASH_WAIT_CYCLE_2"), QStringLiteral("FLASH_WAIT_CYCLE_3"),
    QStringLiteral("FLASH_WAIT_CYCLE_4"), QStringLiteral("FLASH_WAIT_CYCLE_5"),
    QStringLiteral("FLASH_WAIT_CYCLE_6"), QStringLiteral("FLASH_WAIT_CYCLE_7")};
inline const QString HEXTDIV_Define_String[] = {
    QStringLiteral("CRM_HEXT_SCLK_DIV_1"),  QStringLiteral("CRM_HEXT_SCLK_DIV_2"),
    QStringLiteral("CRM_HEXT_SCLK_DIV_4"),  QStringLiteral("CRM_HEXT_SCLK_DIV_8"),
    QStringLiteral("CRM_HEXT_SCLK_DIV_16"), QStringLiteral("CRM_HEXT_SCLK_DIV_32")};
inline const QString HICKDIV_Define_String[] = {
    QStringLiteral("CRM_HICK_SCLK_DIV_1"), QStringLiteral("CRM_HICK_SCLK_DIV_2"),
    QStringLiteral("CRM_HICK_SCLK_DIV_4"), QStringLiteral("CRM_HICK_SCLK_DIV_8"),
    QStringLiteral("CRM_HICK_SCLK_DIV_16")};
inline const QString PWC_LDO_OUTPUT_SOURCE_Define_String[] = {
    QStringLiteral("PWC_LDO_OUTPUT_1V3"), QStringLiteral("PWC_LDO_OUTPUT_1V2"),
    QStringLiteral("PWC_LDO_OUTPUT_1V1"), QStringLiteral("PWC_LDO_OUTPUT_1V0")};

// USB.
inline const QString USBDIV_Define_String[] = {
    QStringLiteral("CRM_USB_DIV_1"),   QStringLiteral("CRM_USB_DIV_1_5"), QStringLiteral("CRM_USB_DIV_2"),
    QStringLiteral("CRM_USB_DIV_2_5"), QStringLiteral("CRM_USB_DIV_3"),   QStringLiteral("CRM_USB_DIV_3_5"),
    QStringLiteral("CRM_USB_DIV_4"),   QStringLiteral("CRM_USB_DIV_4_5"), QStringLiteral("CRM_USB_DIV_5"),
    QStringLiteral("CRM_USB_DIV_5_5"), QStringLiteral("CRM_USB_DIV_6"),   QStringLiteral("CRM_USB_DIV_6_5"),
    QStringLiteral("CRM_USB_DIV_7"),   QStringLiteral("CRM_USB_DIV_7_5"), QStringLiteral("CRM_USB_DIV_8"),
    QStringLiteral("CRM_USB_DIV_8_5"), QStringLiteral("CRM_USB_DIV_9")};

// Clock outputs.
inline const QString CLKOUT1_Define_String[] = {
    QStringLiteral("CRM_CLKOUT1_HICK"), QStringLiteral("CRM_CLKOUT1_LEXT"),
    QStringLiteral("CRM_CLKOUT1_HEXT"), QStringLiteral("CRM_CLKOUT1_PLL")};
inline const QString CLKOUT2_Define_String[] = {
    QStringLiteral("CRM_CLKOUT2_SCLK"), QStringLiteral("CRM_CLKOUT2_HEXT"), QStringLiteral("CRM_CLKOUT2_PLL"),
    QStringLiteral("CRM_CLKOUT2_USB"),  QStringLiteral("CRM_CLKOUT2_HICK"), QStringLiteral("CRM_CLKOUT2_ADC"),
    QStringLiteral("CRM_CLKOUT2_LICK"), QStringLiteral("CRM_CLKOUT2_LEXT")};
inline const QString CLKOUT_Define_String[] = {
    QStringLiteral("CRM_CLKOUT_NOCLK"),     QStringLiteral("CRM_CLKOUT_LICK"),
    QStringLiteral("CRM_CLKOUT_LEXT"),      QStringLiteral("CRM_CLKOUT_HICK"),
    QStringLiteral("CRM_CLKOUT_HEXT"),      QStringLiteral("CRM_CLKOUT_SCLK"),
    QStringLiteral("CRM_CLKOUT_USB"),       QStringLiteral("CRM_CLKOUT_ADC"),
    QStringLiteral("CRM_CLKOUT_PLL_DIV_2"), QStringLiteral("CRM_CLKOUT_PLL_DIV_4"),
    QStringLiteral("CRM_CLKOUT_PLL"),       QStringLiteral("CRM_CLKOUT_USBFS")};
inline const QString CLKOUT_INDEX_Define_String[] = {QStringLiteral("CRM_CLKOUT_INDEX_1"),
                                                     QStringLiteral("CRM_CLKOUT_INDEX_2")};
inline const QString CLKOUT_INDEX_Num_String[] = {QStringLiteral("CRM_CLKOUT_INDEX_1"),
                                                  QStringLiteral("CRM_CLKOUT_INDEX_2")};
inline const QString CLKOUT_DIV1_Define_String[] = {
    QStringLiteral("CRM_CLKOUT_DIV1_1"), QStringLiteral("CRM_CLKOUT_DIV1_2"),
    QStringLiteral("CRM_CLKOUT_DIV1_3"), QStringLiteral("CRM_CLKOUT_DIV1_4"),
    QStringLiteral("CRM_CLKOUT_DIV1_5")};
inline const QString CLKOUT_DIV2_Define_String[] = {
    QStringLiteral("CRM_CLKOUT_DIV2_1"),   QStringLiteral("CRM_CLKOUT_DIV2_2"),
    QStringLiteral("CRM_CLKOUT_DIV2_4"),   QStringLiteral("CRM_CLKOUT_DIV2_8"),
    QStringLiteral("CRM_CLKOUT_DIV2_16"),  QStringLiteral("CRM_CLKOUT_DIV2_64"),
    QStringLiteral("CRM_CLKOUT_DIV2_128"), QStringLiteral("CRM_CLKOUT_DIV2_256"),
    QStringLiteral("CRM_CLKOUT_DIV2_512")};
inline const QString CLKOUT_DIV_Define_String[] = {
    QStringLiteral("CRM_CLKOUT_DIV_1"),   QStringLiteral("CRM_CLKOUT_DIV_2"),
    QStringLiteral("CRM_CLKOUT_DIV_4"),   QStringLiteral("CRM_CLKOUT_DIV_8"),
    QStringLiteral("CRM_CLKOUT_DIV_16"),  QStringLiteral("CRM_CLKOUT_DIV_64"),
    QStringLiteral("CRM_CLKOUT_DIV_128"), QStringLiteral("CRM_CLKOUT_DIV_256"),
    QStringLiteral("CRM_CLKOUT_DIV_512")};

// Pins.
inline const QString crm_GPIO_clock_type_String[] = {
    QStringLiteral("CRM_GPIOA_PERIPH_CLOCK"), QStringLiteral("CRM_GPIOB_PERIPH_CLOCK"),
    QStringLiteral("CRM_GPIOC_PERIPH_CLOCK"), QStringLiteral("CRM_GPIOD_PERIPH_CLOCK"),
    QStringLiteral("CRM_GPIOE_PERIPH_CLOCK"), QStringLiteral("CRM_GPIOF_PERIPH_CLOCK"),
    QStringLiteral("CRM_GPIOG_PERIPH_CLOCK"), QStringLiteral("CRM_GPIOH_PERIPH_CLOCK")};
inline const QString crm_GPIO_type_String[] = {
    QStringLiteral("GPIOA"), QStringLiteral("GPIOB"), QStringLiteral("GPIOC"), QStringLiteral("GPIOD"),
    QStringLiteral("GPIOE"), QStringLiteral("GPIOF"), QStringLiteral("GPIOG"), QStringLiteral("GPIOH")};
inline const QString crm_GPIO_PINS_Num_String[] = {
    QStringLiteral("GPIO_PINS_0"),  QStringLiteral("GPIO_PINS_1"),  QStringLiteral("GPIO_PINS_2"),
    QStringLiteral("GPIO_PINS_3"),  QStringLiteral("GPIO_PINS_4"),  QStringLiteral("GPIO_PINS_5"),
    QStringLiteral("GPIO_PINS_6"),  QStringLiteral("GPIO_PINS_7"),  QStringLiteral("GPIO_PINS_8"),
    QStringLiteral("GPIO_PINS_9"),  QStringLiteral("GPIO_PINS_10"), QStringLiteral("GPIO_PINS_11"),
    QStringLiteral("GPIO_PINS_12"), QStringLiteral("GPIO_PINS_13"), QStringLiteral("GPIO_PINS_14"),
    QStringLiteral("GPIO_PINS_15"), QStringLiteral("GPIO_PINS_ALL")};
inline const QString gpio_pins_source_type_String[] = {
    QStringLiteral("GPIO_PINS_SOURCE0"),  QStringLiteral("GPIO_PINS_SOURCE1"),
    QStringLiteral("GPIO_PINS_SOURCE2"),  QStringLiteral("GPIO_PINS_SOURCE3"),
    QStringLiteral("GPIO_PINS_SOURCE4"),  QStringLiteral("GPIO_PINS_SOURCE5"),
    QStringLiteral("GPIO_PINS_SOURCE6"),  QStringLiteral("GPIO_PINS_SOURCE7"),
    QStringLiteral("GPIO_PINS_SOURCE8"),  QStringLiteral("GPIO_PINS_SOURCE9"),
    QStringLiteral("GPIO_PINS_SOURCE10"), QStringLiteral("GPIO_PINS_SOURCE11"),
    QStringLiteral("GPIO_PINS_SOURCE12"), QStringLiteral("GPIO_PINS_SOURCE13"),
    QStringLiteral("GPIO_PINS_SOURCE14"), QStringLiteral("GPIO_PINS_SOURCE15")};
inline const QString gpio_mux_sel_type_String[] = {
    QStringLiteral("GPIO_MUX_0"),  QStringLiteral("GPIO_MUX_1"),  QStringLiteral("GPIO_MUX_2"),
    QStringLiteral("GPIO_MUX_3"),  QStringLiteral("GPIO_MUX_4"),  QStringLiteral("GPIO_MUX_5"),
    QStringLiteral("GPIO_MUX_6"),  QStringLiteral("GPIO_MUX_7"),  QStringLiteral("GPIO_MUX_8"),
    QStringLiteral("GPIO_MUX_9"),  QStringLiteral("GPIO_MUX_10"), QStringLiteral("GPIO_MUX_11"),
    QStringLiteral("GPIO_MUX_12"), QStringLiteral("GPIO_MUX_13"), QStringLiteral("GPIO_MUX_14"),
    QStringLiteral("GPIO_MUX_15")};

// Peripheral clocks.
inline const QString ADCDIV_Define_String[] = {
    QStringLiteral("CRM_ADC_DIV_2"),  QStringLiteral("CRM_ADC_DIV_3"), QStringLiteral("CRM_ADC_DIV_4"),
    QStringLiteral("CRM_ADC_DIV_5"),  QStringLiteral("CRM_ADC_DIV_6"), QStringLiteral("CRM_ADC_DIV_8"),
    QStringLiteral("CRM_ADC_DIV_12"), QStringLiteral("CRM_ADC_DIV_16")};
inline const QString ADC_CLOCK_SOURCE_Define_String[] = {QStringLiteral("CRM_ADC_CLOCK_SOURCE_HCLK"),
                                                         QStringLiteral("CRM_ADC_CLOCK_SOURCE_PLLCLK")};
inline const QString ERTCDIV_Define_String[] = {
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_2"),  QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_3"),
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_4"),  QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_5"),
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_6"),  QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_7"),
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_8"),  QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_9"),
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_10"), QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_11"),
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_12"), QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_13"),
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_14"), QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_15"),
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_16"), QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_17"),
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_18"), QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_19"),
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_20"), QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_21"),
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_22"), QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_23"),
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_24"), QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_25"),
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_26"), QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_27"),
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_28"), QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_29"),
    QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_30"), QStringLiteral("CRM_ERTC_CLOCK_HEXT_DIV_31")};
inline const QString USART_CLOCK_SOURCE_Define_String[] = {
    QStringLiteral("CRM_USART_CLOCK_SOURCE_PCLK"), QStringLiteral("CRM_USART_CLOCK_SOURCE_SCLK"),
    QStringLiteral("CRM_USART_CLOCK_SOURCE_HICK48"), QStringLiteral("CRM_USART_CLOCK_SOURCE_LEXT"),
    QStringLiteral("CRM_USART_CLOCK_SOURCE_HICK")};
inline const QString I2C_CLOCK_SOURCE_Define_String[] = {
    QStringLiteral("CRM_I2C_CLOCK_SOURCE_PCLK"), QStringLiteral("CRM_I2C_CLOCK_SOURCE_SCLK"),
    QStringLiteral("CRM_I2C_CLOCK_SOURCE_HICK48"), QStringLiteral("CRM_I2C_CLOCK_SOURCE_HICK")};
inline const QString CAN_CLOCK_SOURCE_Define_String[] = {
    QStringLiteral("CRM_CAN_CLOCK_SOURCE_HEXT"), QStringLiteral("CRM_CAN_CLOCK_SOURCE_PLL"),
    QStringLiteral("CRM_CAN_CLOCK_SOURCE_PCLK"), QStringLiteral("CRM_CAN_CLOCK_SOURCE_PLLU")};
inline const QString I2SF5_CLOCK_SOURCE_Define_String[] = {
    QStringLiteral("CRM_I2SF5_CLOCK_SOURCE_PLLP"), QStringLiteral("CRM_I2SF5_CLOCK_SOURCE_SCLK"),
    QStringLiteral("CRM_I2SF5_CLOCK_SOURCE_HICK"), QStringLiteral("CRM_I2SF5_CLOCK_SOURCE_EXTERNAL")};
