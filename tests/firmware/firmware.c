/* The stand-in library's bodies. A run prints one line for each call ("crm_ahb_div_set 8"), a line with "fault:"
   for what a real chip would choke on, and at the end the clocks that are set, in Hz ("= sclk 192000000"). */
#include FIRMWARE_CHIP_HEADER

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

int generated_main(void);
void firmware_loop(const char *condition);

crm_type firmware_crm;
static gpio_type ports[] = {{0}, {1}, {2}};
gpio_type *const GPIOA = ports, *const GPIOC = ports + 1, *const GPIOE = ports + 2;

static int running[5]; /* by crm_clock_source_type or crm_flag_type, whose values agree */
static int periph[5], polls, faults, pll_set, domain_open, step_mode, hick48, sclk, usb_source;
static int ahb = 1, apb1 = 1, apb2 = 1, usb_half_steps = 2, pll_source, unused;
static double pll_ratio;

/* what a real chip would choke on is a fault when it does not hold */
static void require(int good, const char *text) {
  if (!good)
    faults += printf("fault: %s\n", text);
}

static double hick_to_sclk(void) {
  return FIRMWARE_HICK_HZ > 8e6 && !hick48 ? FIRMWARE_HICK_HZ / 6 : FIRMWARE_HICK_HZ;
}

static double pll_input(void) {
  if (pll_source == CRM_PLL_SOURCE_HICK)
    return FIRMWARE_HICK_HZ / FIRMWARE_HICK_TO_PLL;
  return pll_source == CRM_PLL_SOURCE_HEXT ? HEXT_VALUE : HEXT_VALUE / 2.0;
}

static double sclk_hz(int source) {
  if (source == CRM_SCLK_PLL)
    return pll_input() * pll_ratio;
  return source == CRM_SCLK_HEXT ? HEXT_VALUE : hick_to_sclk();
}

static double usb_hz(void) {
  if (usb_source == CRM_USB_CLOCK_SOURCE_PLL)
    return sclk_hz(CRM_SCLK_PLL) * 2 / usb_half_steps;
  return usb_source == CRM_USB_CLOCK_SOURCE_HICK ? FIRMWARE_HICK_HZ : 0;
}

void firmware_loop(const char *condition) {
  const double s = sclk_hz(sclk);

  if (strcmp(condition, "1") != 0)
    return;
  printf("= sclk %.0f\n= ahb %.0f\n= apb1 %.0f\n= apb2 %.0f\n= usb %.0f\n", s, s / ahb, s / ahb / apb1,
         s / ahb / apb2, usb_hz());
  printf("= hext %d\n= pll %d\n= lext %d\n", running[CRM_CLOCK_SOURCE_HEXT], running[CRM_CLOCK_SOURCE_PLL],
         running[CRM_CLOCK_SOURCE_LEXT]);
  exit(faults != 0);
}

int main(void) {
  generated_main();
  require(0, "main came back");
  return 1;
}

#define CALL(value) printf("%s %d\n", __func__, (int)(value))

void crm_reset(void) {
  printf("%s\n", __func__);
  memset(running, 0, sizeof running);
  running[CRM_CLOCK_SOURCE_HICK] = 1;
  sclk = CRM_SCLK_HICK;
}

void crm_hext_bypass(confirm_state value) {
  CALL(value);
  require(!running[CRM_CLOCK_SOURCE_HEXT], "bypass changed while hext runs");
}

void crm_lext_bypass(confirm_state value) {
  CALL(value);
  require(!running[CRM_CLOCK_SOURCE_LEXT], "bypass changed while lext runs");
  require(domain_open, "lext bypass without access to the battery powered domain");
}

void crm_clock_source_enable(crm_clock_source_type source, confirm_state state) {
  printf("%s %d %d\n", __func__, (int)source, (int)state);
  if (source == CRM_CLOCK_SOURCE_PLL) {
    require(pll_set, "pll started without parameters");
    require(running[pll_source == CRM_PLL_SOURCE_HICK ? CRM_CLOCK_SOURCE_HICK : CRM_CLOCK_SOURCE_HEXT],
            "pll started on a source that is off");
  }
  running[source] = state;
}

flag_status crm_flag_get(crm_flag_type flag) {
  if (running[flag])
    return SET;
  if (++polls > 100) {
    require(0, "waits for a source that is off");
    exit(1);
  }
  return RESET;
}

error_status crm_hext_stable_wait(void) {
  return crm_flag_get(CRM_HEXT_STABLE_FLAG) == SET ? SUCCESS : ERROR;
}

static void set_pll(int source, double ratio) {
  require(!running[CRM_CLOCK_SOURCE_PLL], "pll changed while it runs");
  pll_set = 1;
  pll_source = source;
  pll_ratio = ratio;
}

void firmware_pll_range(crm_pll_clock_source_type source, crm_pll_mult_type mult,
                        crm_pll_output_range_type range) {
  printf("crm_pll_config %d %d %d\n", (int)source, (int)mult, (int)range);
  set_pll(source, mult);
  require((pll_input() * mult > 72e6) == (range == CRM_PLL_OUTPUT_RANGE_GT72MHZ),
          "wrong output range of the pll");
}

void firmware_pll_fr(crm_pll_clock_source_type source, uint16_t ns, uint16_t ms, crm_pll_fr_type fr) {
  printf("crm_pll_config %d %d %d %d\n", (int)source, ns, ms, (int)fr);
  set_pll(source, (double)ns / ms / fr);
}

void crm_sysclk_switch(crm_sclk_type source) {
  const int needed[] = {CRM_CLOCK_SOURCE_HICK, CRM_CLOCK_SOURCE_HEXT, CRM_CLOCK_SOURCE_PLL};

  CALL(source);
  require(running[needed[source]], "system clock switched to a source that is off");
#ifdef FIRMWARE_AUTO_STEP
  require(step_mode == (sclk_hz(source) > 108e6), "step mode does not fit the system clock");
#else
  require(sclk_hz(source) < 168e6 || ahb == 8, "fast system clock without a step");
#endif
  sclk = source;
}

crm_sclk_type crm_sysclk_switch_status_get(void) { return (crm_sclk_type)sclk; }

void crm_usb_clock_source_select(crm_usb_clock_source_type source) {
  CALL(source);
  usb_source = source;
  require(running[source == CRM_USB_CLOCK_SOURCE_HICK ? CRM_CLOCK_SOURCE_HICK : CRM_CLOCK_SOURCE_PLL],
          "usb on a source that is off");
}

void crm_periph_clock_enable(crm_periph_clock_type clock, confirm_state state) {
  printf("%s %d %d\n", __func__, (int)clock, (int)state);
  periph[clock] = state;
}

void pwc_ldo_output_voltage_set(pwc_ldo_output_voltage_type voltage) {
  CALL(voltage);
  require(periph[CRM_PWC_PERIPH_CLOCK], "ldo without the clock of pwc");
}

void pwc_battery_powered_domain_access(confirm_state state) {
  CALL(state);
  require(periph[CRM_PWC_PERIPH_CLOCK], "battery powered domain without the clock of pwc");
  domain_open = state;
}

void crm_rtc_clock_select(crm_rtc_clock_type source) {
  CALL(source);
  require(domain_open, "rtc clock without access to the battery powered domain");
  firmware_crm.bpdc_bit.rtcsel = source & 0xF;
}

void crm_ertc_clock_select(crm_ertc_clock_type source) {
  printf("%s %d %d\n", __func__, (int)source & 0xF, (int)source >> 4);
  require(domain_open, "ertc clock without access to the battery powered domain");
  firmware_crm.bpdc_bit.ertcsel = source & 0xF;
}

void gpio_default_para_init(gpio_init_type *init) { memset(init, 0, sizeof *init); }

void gpio_init(gpio_type *port, gpio_init_type *init) {
  printf("%s %d %d\n", __func__, port->port, (int)init->gpio_pins);
  require(periph[port->port], "pin set up without the clock of its port");
  require(init->gpio_mode == GPIO_MODE_MUX, "clock output on a pin without mux mode");
}

void gpio_pin_mux_config(gpio_type *port, gpio_pins_source_type pin, gpio_mux_sel_type mux) {
  printf("%s %d %d %d\n", __func__, port->port, (int)pin, (int)mux);
  require(periph[port->port], "pin set up without the clock of its port");
}

void firmware_clkout_indexed(crm_clkout_index_type index, crm_clkout_div1_type first,
                             crm_clkout_div2_type second) {
  printf("crm_clkout_div_set %d %d %d\n", (int)index, (int)first, (int)second);
}

#define SETS(name, type, variable)                                                                           \
  void name(type value) {                                                                                    \
    CALL(value);                                                                                             \
    variable = (int)value;                                                                                   \
  }
#include "calls.h"

void system_core_clock_update(void) {}
