/* A stand-in for the chips' firmware library: what generated sources call, with typed arguments. The values
   of the enumerators are what they mean (a divisor, a multiplier), so that a run can compute clocks. */
#ifndef FIRMWARE_H
#define FIRMWARE_H

#include <stdint.h>

typedef enum { FALSE, TRUE } confirm_state;
typedef enum { RESET, SET } flag_status;
typedef enum { ERROR, SUCCESS } error_status;

#define HEXT_STABLE_DELAY ((uint32_t)3)
#define PLL_STABLE_DELAY  ((uint32_t)3)

/* the register file, as far as it is read directly */
typedef struct {
  struct {
    uint32_t rtcsel : 4;
    uint32_t ertcsel : 4;
  } bpdc_bit;
} crm_type;
extern crm_type firmware_crm;
#define CRM (&firmware_crm)

/* oscillators and pll */
typedef enum {
  CRM_CLOCK_SOURCE_HICK, CRM_CLOCK_SOURCE_HEXT, CRM_CLOCK_SOURCE_PLL, CRM_CLOCK_SOURCE_LEXT,
  CRM_CLOCK_SOURCE_LICK
} crm_clock_source_type;
typedef enum {
  CRM_HICK_STABLE_FLAG, CRM_HEXT_STABLE_FLAG, CRM_PLL_STABLE_FLAG, CRM_LEXT_STABLE_FLAG, CRM_LICK_STABLE_FLAG,
  CRM_PLLU_STABLE_FLAG
} crm_flag_type;
typedef enum { CRM_PLL_SOURCE_HICK, CRM_PLL_SOURCE_HEXT, CRM_PLL_SOURCE_HEXT_DIV } crm_pll_clock_source_type;
typedef enum {
#define M(n) CRM_PLL_MULT_##n = n
  M(2), M(3), M(4), M(5), M(6), M(7), M(8), M(9), M(10), M(11), M(12), M(13), M(14), M(15), M(16), M(17), M(18),
  M(19), M(20), M(21), M(22), M(23), M(24), M(25), M(26), M(27), M(28), M(29), M(30), M(31), M(32), M(33), M(34),
  M(35), M(36), M(37), M(38), M(39), M(40), M(41), M(42), M(43), M(44), M(45), M(46), M(47), M(48), M(49), M(50),
  M(51), M(52), M(53), M(54), M(55), M(56), M(57), M(58), M(59), M(60), M(61), M(62), M(63), M(64)
#undef M
} crm_pll_mult_type;
typedef enum { CRM_PLL_OUTPUT_RANGE_LE72MHZ, CRM_PLL_OUTPUT_RANGE_GT72MHZ } crm_pll_output_range_type;
typedef enum {
  CRM_PLL_FR_1 = 1, CRM_PLL_FR_2 = 2, CRM_PLL_FR_4 = 4, CRM_PLL_FR_8 = 8, CRM_PLL_FR_16 = 16, CRM_PLL_FR_32 = 32
} crm_pll_fr_type;
typedef enum {
#define P(n) CRM_PLL_FP_##n = n
  P(1), P(2), P(4), P(6), P(8), P(10), P(12), P(14), P(16), P(18), P(20), P(22), P(24), P(26), P(28), P(30)
#undef P
} crm_pll_fp_type;
typedef enum {
  CRM_PLL_FU_11 = 11, CRM_PLL_FU_13 = 13, CRM_PLL_FU_12 = 12, CRM_PLL_FU_14 = 14, CRM_PLL_FU_16 = 16,
  CRM_PLL_FU_18 = 18, CRM_PLL_FU_20 = 20
} crm_pll_fu_type;
typedef enum { CRM_HEXT_DIV_2 = 2, CRM_HEXT_DIV_3, CRM_HEXT_DIV_4, CRM_HEXT_DIV_5 } crm_hext_div_type;

/* system clock, buses, flash and power */
typedef enum { CRM_SCLK_HICK, CRM_SCLK_HEXT, CRM_SCLK_PLL } crm_sclk_type;
typedef enum { CRM_HICK_SCLK_8MHZ, CRM_HICK_SCLK_48MHZ } crm_hick_sclk_frequency_type;
#define D5(prefix) prefix##1 = 1, prefix##2 = 2, prefix##4 = 4, prefix##8 = 8, prefix##16 = 16
#define D9(prefix) D5(prefix), prefix##64 = 64, prefix##128 = 128, prefix##256 = 256, prefix##512 = 512
typedef enum { D9(CRM_AHB_DIV_) } crm_ahb_div_type;
typedef enum { D5(CRM_APB1_DIV_) } crm_apb1_div_type;
typedef enum { D5(CRM_APB2_DIV_) } crm_apb2_div_type;
typedef enum { D5(CRM_APB3_DIV_) } crm_apb3_div_type;
typedef enum { D5(CRM_HEXT_SCLK_DIV_), CRM_HEXT_SCLK_DIV_32 = 32 } crm_hext_sclk_div_type;
typedef enum { D5(CRM_HICK_SCLK_DIV_) } crm_hick_sclk_div_type;
typedef enum { FLASH_CLOCK_DIV_2 = 2, FLASH_CLOCK_DIV_3 = 3 } flash_clock_divider_type;
typedef enum {
  FLASH_WAIT_CYCLE_0, FLASH_WAIT_CYCLE_1, FLASH_WAIT_CYCLE_2, FLASH_WAIT_CYCLE_3, FLASH_WAIT_CYCLE_4,
  FLASH_WAIT_CYCLE_5, FLASH_WAIT_CYCLE_6, FLASH_WAIT_CYCLE_7
} flash_wait_cycle_type;
typedef enum {
  PWC_LDO_OUTPUT_1V3 = 13, PWC_LDO_OUTPUT_1V2 = 12, PWC_LDO_OUTPUT_1V1 = 11, PWC_LDO_OUTPUT_1V0 = 10
} pwc_ldo_output_voltage_type;

/* usb: the divider counts half steps */
typedef enum {
  CRM_USB_DIV_1 = 2, CRM_USB_DIV_1_5, CRM_USB_DIV_2, CRM_USB_DIV_2_5, CRM_USB_DIV_3, CRM_USB_DIV_3_5, CRM_USB_DIV_4,
  CRM_USB_DIV_4_5, CRM_USB_DIV_5, CRM_USB_DIV_5_5, CRM_USB_DIV_6, CRM_USB_DIV_6_5, CRM_USB_DIV_7, CRM_USB_DIV_7_5,
  CRM_USB_DIV_8, CRM_USB_DIV_8_5, CRM_USB_DIV_9
} crm_usb_div_type;
typedef enum {
  CRM_USB_CLOCK_SOURCE_NONE, CRM_USB_CLOCK_SOURCE_PLL, CRM_USB_CLOCK_SOURCE_HICK, CRM_USB_CLOCK_SOURCE_PLLU
} crm_usb_clock_source_type;

/* clock outputs */
typedef enum {
  CRM_CLKOUT_NOCLK, CRM_CLKOUT_LICK, CRM_CLKOUT_LEXT, CRM_CLKOUT_HICK, CRM_CLKOUT_HEXT, CRM_CLKOUT_SCLK,
  CRM_CLKOUT_USB, CRM_CLKOUT_ADC, CRM_CLKOUT_PLL_DIV_2, CRM_CLKOUT_PLL_DIV_4, CRM_CLKOUT_PLL, CRM_CLKOUT_USBFS
} crm_clkout_select_type;
typedef enum { CRM_CLKOUT1_HICK, CRM_CLKOUT1_LEXT, CRM_CLKOUT1_HEXT, CRM_CLKOUT1_PLL } crm_clkout1_select_type;
typedef enum {
  CRM_CLKOUT2_SCLK, CRM_CLKOUT2_HEXT, CRM_CLKOUT2_PLL, CRM_CLKOUT2_USB, CRM_CLKOUT2_HICK, CRM_CLKOUT2_ADC,
  CRM_CLKOUT2_LICK, CRM_CLKOUT2_LEXT
} crm_clkout2_select_type;
typedef enum { CRM_CLKOUT_INDEX_1 = 1, CRM_CLKOUT_INDEX_2 } crm_clkout_index_type;
typedef enum { D9(CRM_CLKOUT_DIV_) } crm_clkout_div_type;
typedef enum {
  CRM_CLKOUT_DIV1_1 = 1, CRM_CLKOUT_DIV1_2, CRM_CLKOUT_DIV1_3, CRM_CLKOUT_DIV1_4, CRM_CLKOUT_DIV1_5
} crm_clkout_div1_type;
typedef enum { D9(CRM_CLKOUT_DIV2_) } crm_clkout_div2_type;

/* rtc: the divided hext clock has the divider in the upper bits */
typedef enum { CRM_RTC_CLOCK_NOCLK, CRM_RTC_CLOCK_LEXT, CRM_RTC_CLOCK_LICK, CRM_RTC_CLOCK_HEXT_DIV } crm_rtc_clock_type;
typedef enum {
  CRM_ERTC_CLOCK_NOCLK, CRM_ERTC_CLOCK_LEXT, CRM_ERTC_CLOCK_LICK, CRM_ERTC_CLOCK_HEXT_DIV,
#define E(n) CRM_ERTC_CLOCK_HEXT_DIV_##n = 3 | n << 4
  E(2), E(3), E(4), E(5), E(6), E(7), E(8), E(9), E(10), E(11), E(12), E(13), E(14), E(15), E(16), E(17), E(18),
  E(19), E(20), E(21), E(22), E(23), E(24), E(25), E(26), E(27), E(28), E(29), E(30), E(31)
#undef E
} crm_ertc_clock_type;

/* peripheral clocks */
typedef enum {
  CRM_ADC_DIV_2 = 2, CRM_ADC_DIV_3, CRM_ADC_DIV_4, CRM_ADC_DIV_5, CRM_ADC_DIV_6, CRM_ADC_DIV_8 = 8,
  CRM_ADC_DIV_12 = 12, CRM_ADC_DIV_16 = 16
} crm_adc_div_type;
typedef enum { CRM_ADC_CLOCK_SOURCE_HCLK, CRM_ADC_CLOCK_SOURCE_PLLCLK } crm_adc_clock_source_type;
typedef enum { CRM_USART1 = 1, CRM_USART2, CRM_USART3 } crm_usart_type;
typedef enum {
  CRM_USART_CLOCK_SOURCE_PCLK, CRM_USART_CLOCK_SOURCE_SCLK, CRM_USART_CLOCK_SOURCE_HICK48,
  CRM_USART_CLOCK_SOURCE_LEXT, CRM_USART_CLOCK_SOURCE_HICK
} crm_usart_clock_source_type;
typedef enum { CRM_I2C1 = 1 } crm_i2c_type;
typedef enum {
  CRM_I2C_CLOCK_SOURCE_PCLK, CRM_I2C_CLOCK_SOURCE_SCLK, CRM_I2C_CLOCK_SOURCE_HICK48, CRM_I2C_CLOCK_SOURCE_HICK
} crm_i2c_clock_source_type;
typedef enum { CRM_CAN1 = 1, CRM_CAN2, CRM_CAN3 } crm_can_type;
typedef enum {
  CRM_CAN_CLOCK_SOURCE_HEXT, CRM_CAN_CLOCK_SOURCE_PLL, CRM_CAN_CLOCK_SOURCE_PCLK, CRM_CAN_CLOCK_SOURCE_PLLU
} crm_can_clock_source_type;
typedef enum {
  CRM_I2SF5_CLOCK_SOURCE_PLLP, CRM_I2SF5_CLOCK_SOURCE_SCLK, CRM_I2SF5_CLOCK_SOURCE_HICK,
  CRM_I2SF5_CLOCK_SOURCE_EXTERNAL
} crm_i2sf5_clock_source_type;
typedef enum {
  CRM_GPIOA_PERIPH_CLOCK, CRM_GPIOB_PERIPH_CLOCK, CRM_GPIOC_PERIPH_CLOCK, CRM_GPIOD_PERIPH_CLOCK,
  CRM_GPIOE_PERIPH_CLOCK, CRM_GPIOF_PERIPH_CLOCK, CRM_GPIOG_PERIPH_CLOCK, CRM_GPIOH_PERIPH_CLOCK,
  CRM_PWC_PERIPH_CLOCK, CRM_BPR_PERIPH_CLOCK
} crm_periph_clock_type;

/* pins */
typedef struct { int port; } gpio_type;
extern gpio_type firmware_gpio[8];
#define GPIOA (&firmware_gpio[0])
#define GPIOB (&firmware_gpio[1])
#define GPIOC (&firmware_gpio[2])
#define GPIOD (&firmware_gpio[3])
#define GPIOE (&firmware_gpio[4])
#define GPIOF (&firmware_gpio[5])
#define GPIOG (&firmware_gpio[6])
#define GPIOH (&firmware_gpio[7])
#define N16(prefix) prefix##0, prefix##1, prefix##2, prefix##3, prefix##4, prefix##5, prefix##6, prefix##7, \
  prefix##8, prefix##9, prefix##10, prefix##11, prefix##12, prefix##13, prefix##14, prefix##15
typedef enum { N16(GPIO_PINS_), GPIO_PINS_ALL } gpio_pins_type;
typedef enum { N16(GPIO_PINS_SOURCE) } gpio_pins_source_type;
typedef enum { N16(GPIO_MUX_) } gpio_mux_sel_type;
typedef enum { GPIO_DRIVE_STRENGTH_MODERATE, GPIO_DRIVE_STRENGTH_STRONGER } gpio_drive_type;
typedef enum { GPIO_OUTPUT_PUSH_PULL, GPIO_OUTPUT_OPEN_DRAIN } gpio_output_type;
typedef enum { GPIO_MODE_INPUT, GPIO_MODE_OUTPUT, GPIO_MODE_MUX } gpio_mode_type;
typedef enum { GPIO_PULL_NONE, GPIO_PULL_UP } gpio_pull_type;
typedef struct {
  gpio_pins_type gpio_pins;
  gpio_output_type gpio_out_type;
  gpio_pull_type gpio_pull;
  gpio_mode_type gpio_mode;
  gpio_drive_type gpio_drive_strength;
} gpio_init_type;

void crm_reset(void);
void crm_hext_bypass(confirm_state);
void crm_lext_bypass(confirm_state);
void crm_clock_source_enable(crm_clock_source_type, confirm_state);
error_status crm_hext_stable_wait(void);
flag_status crm_flag_get(crm_flag_type);
void crm_hext_clock_div_set(crm_hext_div_type);
/* a chip's header gives one of these the name crm_pll_config, and crm_pll_config2 to another */
void firmware_pll_range(crm_pll_clock_source_type, crm_pll_mult_type, crm_pll_output_range_type);
void firmware_pll_mult(crm_pll_clock_source_type, crm_pll_mult_type);
void firmware_pll_fr(crm_pll_clock_source_type, uint16_t ns, uint16_t ms, crm_pll_fr_type);
void firmware_pll_fp(crm_pll_clock_source_type, uint16_t ns, uint16_t ms, crm_pll_fp_type);
void crm_pllu_div_set(crm_pll_fu_type);
void crm_pllu_output_set(confirm_state);
void crm_ahb_div_set(crm_ahb_div_type);
void crm_apb1_div_set(crm_apb1_div_type);
void crm_apb2_div_set(crm_apb2_div_type);
void crm_apb3_div_set(crm_apb3_div_type);
void crm_hext_sclk_div_set(crm_hext_sclk_div_type);
void crm_hick_sclk_div_set(crm_hick_sclk_div_type);
void crm_hick_sclk_frequency_select(crm_hick_sclk_frequency_type);
void crm_auto_step_mode_enable(confirm_state);
void crm_sysclk_switch(crm_sclk_type);
crm_sclk_type crm_sysclk_switch_status_get(void);
void crm_usb_clock_div_set(crm_usb_div_type);
void crm_usb_clock_source_select(crm_usb_clock_source_type);
void crm_periph_clock_enable(crm_periph_clock_type, confirm_state);
void crm_clock_out_set(crm_clkout_select_type);
void crm_clock_out1_set(crm_clkout1_select_type);
void crm_clock_out2_set(crm_clkout2_select_type);
/* a chip's header gives one of these the name crm_clkout_div_set */
void firmware_clkout_div(crm_clkout_div_type);
void firmware_clkout_two_divs(crm_clkout_div1_type, crm_clkout_div2_type);
void firmware_clkout_indexed(crm_clkout_index_type, crm_clkout_div1_type, crm_clkout_div2_type);
void crm_battery_powered_domain_reset(confirm_state);
void crm_rtc_clock_select(crm_rtc_clock_type);
void crm_ertc_clock_select(crm_ertc_clock_type);
void crm_adc_clock_div_set(crm_adc_div_type);
void crm_adc_clock_select(crm_adc_clock_source_type);
void crm_usart_clock_select(crm_usart_type, crm_usart_clock_source_type);
void crm_i2c_clock_select(crm_i2c_type, crm_i2c_clock_source_type);
void crm_can_clock_select(crm_can_type, crm_can_clock_source_type);
void crm_i2sf5_clock_select(crm_i2sf5_clock_source_type);
void flash_psr_set(flash_wait_cycle_type);
void flash_clock_divider_set(flash_clock_divider_type);
void pwc_ldo_output_voltage_set(pwc_ldo_output_voltage_type);
void pwc_battery_powered_domain_access(confirm_state);
void gpio_default_para_init(gpio_init_type *);
void gpio_init(gpio_type *, gpio_init_type *);
void gpio_pin_mux_config(gpio_type *, gpio_pins_source_type, gpio_mux_sel_type);
void system_core_clock_update(void);
void reduce_power_consumption(void);
void zn64_board_init(void);
void delay_ms(uint32_t);

#endif
