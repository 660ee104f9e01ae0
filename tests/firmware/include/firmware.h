/* A stand-in for the chips' firmware libraries: what generated sources call, with typed arguments. The values of the
   enumerators are what they mean (a divisor, a multiplier), so that a run can compute clocks. The header of a stem
   says by HAS_ words which of the calls its library has. */
#ifndef FIRMWARE_H
#define FIRMWARE_H

#include <stdint.h>

typedef enum { FALSE, TRUE } confirm_state;
typedef enum { RESET, SET } flag_status;
typedef enum { ERROR, SUCCESS } error_status;

/* the register file, as far as it is read directly */
typedef struct { struct { uint32_t rtcsel : 4; uint32_t ertcsel : 4; } bpdc_bit; } crm_type;
extern crm_type firmware_crm;
#define CRM (&firmware_crm)

#define TEN(p) p##0, p##1, p##2, p##3, p##4, p##5, p##6, p##7, p##8, p##9
#define SIXTEEN(p) TEN(p), p##10, p##11, p##12, p##13, p##14, p##15
#define IS(p, n) p##n = n
#define FIVE(p) IS(p, 1), IS(p, 2), IS(p, 4), IS(p, 8), IS(p, 16)
#define NINE(p) FIVE(p), IS(p, 64), IS(p, 128), IS(p, 256), IS(p, 512)

/* oscillators and pll */
typedef enum {
  CRM_CLOCK_SOURCE_HICK, CRM_CLOCK_SOURCE_HEXT, CRM_CLOCK_SOURCE_PLL, CRM_CLOCK_SOURCE_LEXT, CRM_CLOCK_SOURCE_LICK
} crm_clock_source_type;
typedef enum {
  CRM_HICK_STABLE_FLAG, CRM_HEXT_STABLE_FLAG, CRM_PLL_STABLE_FLAG, CRM_LEXT_STABLE_FLAG, CRM_LICK_STABLE_FLAG,
#if HAS_PLL_FP
  CRM_PLLU_STABLE_FLAG
#endif
} crm_flag_type;
typedef enum {
  CRM_PLL_SOURCE_HICK, CRM_PLL_SOURCE_HEXT,
#if HAS_PLL_RANGE || HAS_PLL_MODES
  CRM_PLL_SOURCE_HEXT_DIV
#endif
} crm_pll_clock_source_type;
typedef enum {
  CRM_PLL_MULT_2 = 2, CRM_PLL_MULT_3, CRM_PLL_MULT_4, CRM_PLL_MULT_5, CRM_PLL_MULT_6, CRM_PLL_MULT_7, CRM_PLL_MULT_8,
  CRM_PLL_MULT_9, TEN(CRM_PLL_MULT_1), TEN(CRM_PLL_MULT_2), TEN(CRM_PLL_MULT_3), TEN(CRM_PLL_MULT_4),
  TEN(CRM_PLL_MULT_5), CRM_PLL_MULT_60, CRM_PLL_MULT_61, CRM_PLL_MULT_62, CRM_PLL_MULT_63, CRM_PLL_MULT_64
} crm_pll_mult_type;
typedef enum { CRM_PLL_OUTPUT_RANGE_LE72MHZ, CRM_PLL_OUTPUT_RANGE_GT72MHZ } crm_pll_output_range_type;
typedef enum { FIVE(CRM_PLL_FR_), IS(CRM_PLL_FR_, 32) } crm_pll_fr_type;
#define P(n) CRM_PLL_FP_##n = n
typedef enum {
  P(1), P(2), P(4), P(6), P(8), P(10), P(12), P(14), P(16), P(18), P(20), P(22), P(24), P(26), P(28), P(30)
} crm_pll_fp_type;
#define U(n) CRM_PLL_FU_##n = n
typedef enum { U(11), U(12), U(13), U(14), U(16), U(18), U(20) } crm_pll_fu_type;
#define D(n) CRM_HEXT_DIV_##n = n
typedef enum { D(2), D(3), D(4), D(5) } crm_hext_div_type;

/* system clock, buses, flash and power */
typedef enum { CRM_SCLK_HICK, CRM_SCLK_HEXT, CRM_SCLK_PLL } crm_sclk_type;
typedef enum { CRM_HICK_SCLK_8MHZ, CRM_HICK_SCLK_48MHZ } crm_hick_sclk_frequency_type;
typedef enum { FIVE(CRM_HEXT_SCLK_DIV_), IS(CRM_HEXT_SCLK_DIV_, 32) } crm_hext_sclk_div_type;
typedef enum { FIVE(CRM_HICK_SCLK_DIV_) } crm_hick_sclk_div_type;
typedef enum { NINE(CRM_AHB_DIV_) } crm_ahb_div_type;
typedef enum { FIVE(CRM_APB1_DIV_) } crm_apb1_div_type;
typedef enum { FIVE(CRM_APB2_DIV_) } crm_apb2_div_type;
typedef enum { FIVE(CRM_APB3_DIV_) } crm_apb3_div_type;
#define W(n) FLASH_WAIT_CYCLE_##n = n
typedef enum { W(0), W(1), W(2), W(3), W(4), W(5), W(6), W(7) } flash_psr_type;
typedef enum { FLASH_CLOCK_DIV_2 = 2, FLASH_CLOCK_DIV_3 } flash_clock_divider_type;
typedef enum {
  PWC_LDO_OUTPUT_1V0 = 10, PWC_LDO_OUTPUT_1V1, PWC_LDO_OUTPUT_1V2, PWC_LDO_OUTPUT_1V3
} pwc_ldo_output_voltage_type;

/* usb: the divider counts half steps */
#define H(n) CRM_USB_DIV_##n = 2 * n, CRM_USB_DIV_##n##_5
typedef enum { H(1), H(2), H(3), H(4), H(5), H(6), H(7), H(8), CRM_USB_DIV_9 } crm_usb_div_type;
typedef enum {
  FIRMWARE_USB_OFF,
#if HAS_USB_DIV
  CRM_USB_CLOCK_SOURCE_PLL = 1,
#endif
#if HAS_HICK_USB
  CRM_USB_CLOCK_SOURCE_HICK = 2,
#endif
#if HAS_PLL_FP
  CRM_USB_CLOCK_SOURCE_PLLU = 3
#endif
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
typedef enum {
  CRM_CLKOUT_DIV1_1 = 1, CRM_CLKOUT_DIV1_2, CRM_CLKOUT_DIV1_3, CRM_CLKOUT_DIV1_4, CRM_CLKOUT_DIV1_5
} crm_clkout_div1_type;
typedef enum { NINE(CRM_CLKOUT_DIV2_) } crm_clkout_div2_type;
typedef enum { NINE(CRM_CLKOUT_DIV_) } crm_clkout_div_type;

/* rtc: the divided hext clock has the divider in the upper bits */
typedef enum { CRM_RTC_CLOCK_NOCLK, CRM_RTC_CLOCK_LEXT, CRM_RTC_CLOCK_LICK, CRM_RTC_CLOCK_HEXT_DIV } crm_rtc_clock_type;
typedef enum {
  CRM_ERTC_CLOCK_NOCLK, CRM_ERTC_CLOCK_LEXT, CRM_ERTC_CLOCK_LICK,
#if HAS_ERTC_DIV
#define E(n) CRM_ERTC_CLOCK_HEXT_DIV_##n = 3 | n << 4
  E(2), E(3), E(4), E(5), E(6), E(7), E(8), E(9), E(10), E(11), E(12), E(13), E(14), E(15), E(16), E(17), E(18),
  E(19), E(20), E(21), E(22), E(23), E(24), E(25), E(26), E(27), E(28), E(29), E(30), E(31)
#else
  CRM_ERTC_CLOCK_HEXT_DIV
#endif
} crm_ertc_clock_type;

/* adc and peripheral clocks */
#define A(n) CRM_ADC_DIV_##n = n
typedef enum { A(2), A(3), A(4), A(5), A(6), A(8), A(12), A(16) } crm_adc_div_type;
typedef enum { CRM_ADC_CLOCK_SOURCE_HCLK, CRM_ADC_CLOCK_SOURCE_PLLCLK } crm_adc_clock_source_type;
typedef enum { CRM_I2C1 } crm_i2c_type;
typedef enum {
  CRM_I2C_CLOCK_SOURCE_PCLK, CRM_I2C_CLOCK_SOURCE_SCLK, CRM_I2C_CLOCK_SOURCE_HICK48, CRM_I2C_CLOCK_SOURCE_HICK
} crm_i2c_clock_source_type;
typedef enum {
  CRM_USART1, CRM_USART2,
#if HAS_USART3
  CRM_USART3
#endif
} crm_usart_type;
typedef enum {
  CRM_USART_CLOCK_SOURCE_PCLK, CRM_USART_CLOCK_SOURCE_SCLK, CRM_USART_CLOCK_SOURCE_HICK48,
  CRM_USART_CLOCK_SOURCE_LEXT, CRM_USART_CLOCK_SOURCE_HICK
} crm_usart_clock_source_type;
typedef enum {
  CRM_CAN1,
#if HAS_CAN_PLLU
  CRM_CAN2, CRM_CAN3
#endif
} crm_can_type;
typedef enum {
  CRM_CAN_CLOCK_SOURCE_HEXT,
#if HAS_CAN_PLLU
  CRM_CAN_CLOCK_SOURCE_PLLU = 3,
#else
  CRM_CAN_CLOCK_SOURCE_PLL = 1,
#endif
  CRM_CAN_CLOCK_SOURCE_PCLK = 2
} crm_can_clock_source_type;
typedef enum {
  CRM_I2SF5_CLOCK_SOURCE_PLLP, CRM_I2SF5_CLOCK_SOURCE_SCLK, CRM_I2SF5_CLOCK_SOURCE_HICK,
  CRM_I2SF5_CLOCK_SOURCE_EXTERNAL
} crm_i2sf5_clock_source_type;

/* ports by their letter; behind them the clocks of two modules */
#define PORTS(X) X(A) X(B) X(C) X(D) X(E) X(F) X(G) X(H)
#define CLOCK_OF_PORT(letter) CRM_GPIO##letter##_PERIPH_CLOCK,
typedef enum {
  PORTS(CLOCK_OF_PORT) CRM_PWC_PERIPH_CLOCK,
#if HAS_BPR
  CRM_BPR_PERIPH_CLOCK
#endif
} crm_periph_clock_type;

/* pins */
typedef struct { int port; } gpio_type;
extern gpio_type firmware_ports[];
#define GPIOA (firmware_ports + 0)
#define GPIOB (firmware_ports + 1)
#define GPIOC (firmware_ports + 2)
#define GPIOE (firmware_ports + 4)
#define GPIOF (firmware_ports + 5)
typedef enum { SIXTEEN(GPIO_PINS_), GPIO_PINS_ALL } gpio_pins_type;
typedef enum { SIXTEEN(GPIO_PINS_SOURCE) } gpio_pins_source_type;
typedef enum { SIXTEEN(GPIO_MUX_) } gpio_mux_sel_type;
typedef enum { GPIO_DRIVE_STRENGTH_MODERATE, GPIO_DRIVE_STRENGTH_STRONGER } gpio_drive_type;
typedef enum { GPIO_OUTPUT_PUSH_PULL, GPIO_OUTPUT_OPEN_DRAIN } gpio_output_type;
typedef enum { GPIO_MODE_INPUT, GPIO_MODE_OUTPUT, GPIO_MODE_MUX } gpio_mode_type;
typedef enum { GPIO_PULL_NONE, GPIO_PULL_UP } gpio_pull_type;
typedef struct {
  gpio_pins_type gpio_pins; gpio_output_type gpio_out_type; gpio_pull_type gpio_pull; gpio_mode_type gpio_mode;
  gpio_drive_type gpio_drive_strength;
} gpio_init_type;

/* the text where the library has it, by a HAS_ word */
#define WHERE(has, text) WHERE_VALUE(has, text)
#define WHERE_VALUE(has, text) WHERE_##has(text)
#define WHERE_0(text)
#define WHERE_1(text) text
#define SETS(name, type, variable) void name(type);
#include "calls.h"

void crm_reset(void), system_core_clock_update(void);
void crm_hext_bypass(confirm_state), crm_lext_bypass(confirm_state);
void crm_clock_source_enable(crm_clock_source_type, confirm_state);
error_status crm_hext_stable_wait(void);
flag_status crm_flag_get(crm_flag_type);
void crm_sysclk_switch(crm_sclk_type);
crm_sclk_type crm_sysclk_switch_status_get(void);
void crm_periph_clock_enable(crm_periph_clock_type, confirm_state);
void pwc_battery_powered_domain_access(confirm_state), crm_battery_powered_domain_reset(confirm_state);
void gpio_default_para_init(gpio_init_type *), gpio_init(gpio_type *, gpio_init_type *);
#if HAS_DELAYS
#define HEXT_STABLE_DELAY ((uint32_t)3)
#define PLL_STABLE_DELAY  ((uint32_t)3)
#endif
WHERE(HAS_RTC, void crm_rtc_clock_select(crm_rtc_clock_type);)
WHERE(HAS_ERTC, void crm_ertc_clock_select(crm_ertc_clock_type);)
WHERE(HAS_LDO, void pwc_ldo_output_voltage_set(pwc_ldo_output_voltage_type);)
#if HAS_USB_DIV || HAS_PLL_FP
void crm_usb_clock_source_select(crm_usb_clock_source_type);
#endif
WHERE(HAS_PLL_FP, void crm_pllu_output_set(confirm_state);)
WHERE(HAS_MUX, void gpio_pin_mux_config(gpio_type *, gpio_pins_source_type, gpio_mux_sel_type);)
WHERE(HAS_I2C_USART, void crm_i2c_clock_select(crm_i2c_type, crm_i2c_clock_source_type);)
WHERE(HAS_I2C_USART, void crm_usart_clock_select(crm_usart_type, crm_usart_clock_source_type);)
WHERE(HAS_CAN, void crm_can_clock_select(crm_can_type, crm_can_clock_source_type);)
WHERE(HAS_BOARD, void zn64_board_init(void); void delay_ms(uint32_t);)
WHERE(HAS_POWER, void reduce_power_consumption(void);)

/* one name in the libraries, other arguments by stem */
void firmware_pll_range(crm_pll_clock_source_type, crm_pll_mult_type, crm_pll_output_range_type);
void firmware_pll_mult(crm_pll_clock_source_type, crm_pll_mult_type);
void firmware_pll_fr(crm_pll_clock_source_type, uint16_t ns, uint16_t ms, crm_pll_fr_type);
void firmware_pll_fp(crm_pll_clock_source_type, uint16_t ns, uint16_t ms, crm_pll_fp_type);
void firmware_clkout_one(crm_clkout_div_type);
void firmware_clkout_two(crm_clkout_div1_type, crm_clkout_div2_type);
void firmware_clkout_indexed(crm_clkout_index_type, crm_clkout_div1_type, crm_clkout_div2_type);
#if HAS_PLL_RANGE
#define crm_pll_config firmware_pll_range
#elif HAS_PLL_MODES
#define crm_pll_config  firmware_pll_mult
#define crm_pll_config2 firmware_pll_fr
#elif HAS_PLL_FP
#define crm_pll_config firmware_pll_fp
#elif HAS_PLL_FR
#define crm_pll_config firmware_pll_fr
#endif
#if HAS_TWO_CLKOUTS
#define crm_clkout_div_set firmware_clkout_indexed
#elif HAS_CLKOUT_DIV2
#define crm_clkout_div_set firmware_clkout_two
#elif HAS_CLKOUT_DIV
#define crm_clkout_div_set firmware_clkout_one
#endif

#endif
