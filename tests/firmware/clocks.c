/* The frequencies that the registers make, and the limits that they must keep. */
#include "controller.h"

#include <math.h>
#include <stdio.h>

static const double margin = 1e-6; /* MHz: hext is a whole number of Hz */

double pll_input(void) {
  if (now.pll_source == CRM_PLL_SOURCE_HICK)
    return chip->hick_to_pll;
  return now.pll_source == CRM_PLL_SOURCE_HEXT ? hext : hext / now.hext_div;
}

static double vco(void) { return pll_input() * now.pll_ns / now.pll_ms; }

static double pll(void) { return now.pll_flexible ? vco() / now.pll_post : pll_input() * now.pll_mult; }

static double source_mhz(int source) {
  if (source == CRM_SCLK_PLL)
    return chip->sclk_is_half_pll ? pll() / 2 : pll();
  if (source == CRM_SCLK_HEXT)
    return hext / now.hext_sclk_div;
  return (chip->hick > 8 && !now.hick48 ? chip->hick / 6 : chip->hick) / now.hick_sclk_div;
}

double sclk_mhz(void) { return source_mhz(now.sclk); }

static double hick_out(void) {
  const int usb = now.usb_source == CRM_USB_CLOCK_SOURCE_HICK;
  const int route = (now.sclk == CRM_SCLK_HICK && now.hick48) ||
                    (now.sclk == CRM_SCLK_PLL && now.pll_source == CRM_PLL_SOURCE_HICK);

  switch (chip->hick_out) {
  case HICK_OUT_8:
    return 8;
  case HICK_OUT_48:
    return 48;
  case HICK_OUT_48_FOR_USB:
    return usb ? 48 : 8;
  default:
    return usb || route ? 48 : 8;
  }
}

static double usb_mhz(void) {
  switch (now.usb_source) {
  case CRM_USB_CLOCK_SOURCE_PLL:
    return pll() * 2 / now.usb_half_steps;
  case CRM_USB_CLOCK_SOURCE_PLLU:
    return vco() / now.pll_fu;
  case CRM_USB_CLOCK_SOURCE_HICK:
    return chip->hick;
  default:
    return 0;
  }
}

static double adc_mhz(void) {
  if (now.adc_source >= 0)
    return mhz(now.adc_source == CRM_ADC_CLOCK_SOURCE_PLLCLK ? PLL : AHB);
  return now.adc_div ? mhz(APB2) / now.adc_div : 0;
}

double mhz(enum node node) {
  switch (node) {
  case LICK:
    return 0.040;
  case LEXT:
    return 0.032768;
  case HICK:
    return hick_out();
  case HICK48:
    return chip->hick;
  case HEXT:
    return hext;
  case SCLK:
    return sclk_mhz();
  case AHB:
    return sclk_mhz() / now.ahb;
  case APB1:
    return sclk_mhz() / now.ahb / now.apb1;
  case APB2:
    return sclk_mhz() / now.ahb / now.apb2;
  case PLL:
    return pll();
  case PLL_HALF:
    return pll() / 2;
  case PLL_QUARTER:
    return pll() / 4;
  case PLLU:
    return vco() / now.pll_fu;
  case USB:
    return usb_mhz();
  case ADC:
    return adc_mhz();
  default:
    return 0;
  }
}

const char *dead(enum node node) {
  switch (node) {
  case LICK:
    return now.ready[CRM_LICK_STABLE_FLAG] ? NULL : "lick";
  case LEXT:
    return now.ready[CRM_LEXT_STABLE_FLAG] ? NULL : "lext";
  case HEXT:
    return now.ready[CRM_HEXT_STABLE_FLAG] ? NULL : "hext";
  case PLL:
  case PLL_HALF:
  case PLL_QUARTER:
    return now.ready[CRM_PLL_STABLE_FLAG] ? NULL : "pll";
  case PLLU:
    return now.ready[CRM_PLLU_STABLE_FLAG] ? NULL : "pllu";
  case USB:
    return now.usb_source == CRM_USB_CLOCK_SOURCE_PLL    ? dead(PLL)
           : now.usb_source == CRM_USB_CLOCK_SOURCE_PLLU ? dead(PLLU)
                                                         : NULL;
  case ADC:
    return now.adc_source == CRM_ADC_CLOCK_SOURCE_PLLCLK ? dead(PLL) : NULL;
  default:
    return NULL;
  }
}

static int needed_cycles(double sclk) {
  return sclk > 216 + margin ? 7 : sclk > 192 + margin ? 6 : (int)fmax(0, ceil((sclk - margin) / 32) - 1);
}

static int needed_ldo(double sclk) {
  return sclk > chip->above_1v3 + margin   ? PWC_LDO_OUTPUT_1V3
         : sclk > chip->above_1v2 + margin ? PWC_LDO_OUTPUT_1V2
                                           : chip->lowest_ldo;
}

static void settle_pll(void) {
  if (!now.running[CRM_CLOCK_SOURCE_PLL])
    return;
  const double divided = now.pll_flexible ? pll_input() / now.pll_ms : pll_input();
  within(divided > 2 - margin && divided < 16 + margin, "pll input");
  within(pll() < chip->pll_high + margin, "pll");
  if (now.pll_flexible)
    within(vco() > 500 - margin && vco() < chip->vco_high + margin, "vco");
  else
    within(pll() > chip->pll_low - margin, "pll");
  if (now.pll_range >= 0)
    require((pll() > 72) == (now.pll_range == CRM_PLL_OUTPUT_RANGE_GT72MHZ), "wrong output range of the pll");
}

void settle(void) {
  const double s = sclk_mhz();

  settle_pll();
  within(s < chip->sclk + margin, "sclk");
  within(mhz(AHB) < chip->sclk + margin, "ahb");
  within(mhz(APB1) < chip->apb1 + margin, "apb1");
  within(mhz(APB2) < chip->apb2 + margin, "apb2");
  if (chip->apb3 > 0)
    within(s / now.ahb / now.apb3 < chip->apb3 + margin, "apb3");
  if (chip->flash == FLASH_WAITS)
    within(now.wait_cycles >= needed_cycles(s), "flash");
  if (chip->flash == FLASH_DIVIDED)
    require(s / now.flash_div < 104 + margin || s > chip->sclk, "flash clock too fast");
  if (chip->lowest_ldo)
    within(now.ldo >= needed_ldo(s), "ldo");
}

static void show(const char *name, enum node node, double divisor) {
  if (dead(node))
    printf("dead: %s on %s\n", name, dead(node));
  else if (node != NO_CLOCK)
    printf("= %s %.9f\n", name, mhz(node) / divisor);
}

static void show_outputs(void) {
  static const enum node single[] = {NO_CLOCK, LICK, LEXT, HICK, HEXT, SCLK, USB, ADC, PLL_HALF, PLL_QUARTER, PLL, USB};
  static const enum node first[] = {HICK, LEXT, HEXT, PLL};
  static const enum node second[] = {SCLK, HEXT, PLL, USB, HICK, NO_CLOCK, LICK, LEXT};

  if (now.clkout >= 0)
    show("clockout", single[now.clkout], now.out_div[0]);
  if (now.clkout1 >= 0)
    show("clockout1", first[now.clkout1], now.out_div[1]);
  if (now.clkout2 >= 0)
    show("clockout2", second[now.clkout2], now.out_div[2]);
}

static void show_peripherals(void) {
  static const enum node usart[] = {NO_CLOCK, SCLK, HICK48, LEXT, HICK};
  static const enum node i2c[] = {APB2, SCLK, HICK48, HICK};
  static const enum node can[] = {HEXT, PLL, APB1, PLLU};
  static const enum node i2sf5[] = {PLL, SCLK, HICK, NO_CLOCK};
  char name[] = "usart1";

  for (int i = 0; i < KEPT_USART; ++i) {
    name[5] = (char)('1' + i);
    if (now.usart[i] >= 0)
      show(name, now.usart[i] ? usart[now.usart[i]] : i == 0 ? APB2 : APB1, 1);
  }
  for (int i = 0; i < KEPT_CAN; ++i) {
    snprintf(name, sizeof name, "can%d", i + 1);
    if (now.can[i] >= 0)
      show(name, can[now.can[i]], 1);
  }
  if (now.i2c1 >= 0)
    show("i2c1", i2c[now.i2c1], 1);
  if (now.i2sf5 >= 0)
    show("i2sf5", i2sf5[now.i2sf5], 1);
}

void report(void) {
  require(chip->flash != FLASH_WAITS || now.wait_cycles == needed_cycles(sclk_mhz()), "wait cycles without need");
  require(!now.step_mode, "step mode left on");
  show("sclk", SCLK, 1);
  show("ahb", AHB, 1);
  show("apb1", APB1, 1);
  show("apb2", APB2, 1);
  show("apb1tmr", APB1, now.apb1 == 1 ? 1 : 0.5);
  show("apb2tmr", APB2, now.apb2 == 1 ? 1 : 0.5);
  if (chip->apb3 > 0)
    show("apb3", AHB, now.apb3);
  if (now.usb_source)
    show("usb", USB, 1);
  if (adc_mhz() > 0)
    show("adc", ADC, 1);
  if (now.rtc)
    show("rtc", now.rtc == 1 ? LEXT : now.rtc == 2 ? LICK : HEXT, now.rtc == 3 ? now.rtc_div : 1);
  show_outputs();
  show_peripherals();
  if (now.clkout >= 0)
    now.pin[0] = now.last_pin; /* the output without a divider too */
  for (int i = 0; i < 3; ++i)
    if (now.pin[i] >= 0)
      printf("pin: %d P%c%d\n", i, 'A' + now.pin[i] / 16, now.pin[i] % 16);
}
