/* The simulated clock controller: one for all series, set apart by the rows of chips.c. */
#ifndef CONTROLLER_H
#define CONTROLLER_H

#include "firmware.h"

#include <setjmp.h>

enum flash
{
    FLASH_FAST,
    FLASH_WAITS,
    FLASH_DIVIDED
};
enum step
{
    STEP_NONE,
    STEP_WRITTEN,
    STEP_AUTO
};
enum hick_out
{
    HICK_OUT_8,
    HICK_OUT_48,
    HICK_OUT_48_FOR_USB,
    HICK_OUT_BY_ROUTE
};

/* what sets a series apart; frequencies in MHz */
struct chip
{
    const char* series;
    double sclk, apb1, apb2, apb3; /* highest; AHB goes as high as sclk */
    double pll_low, pll_high;      /* of the output; the lowest counts in the normal mode only */
    double vco_high;               /* of the flexible mode, above 500 */
    double hick, hick_to_pll;
    int sclk_is_half_pll;
    enum flash flash;
    enum step step;
    double above_1v3, above_1v2; /* the system clock from which the core needs the voltage */
    int lowest_ldo;              /* 0 for a core with one voltage */
    enum hick_out hick_out;
    int hext_to_rtc; /* divisor; 0 where a register has it */
};
extern const struct chip chips[];
extern const int chip_count;

enum
{
    FLAGS = CRM_PLLU_STABLE_FLAG + 1,
    PERIPHS = CRM_BPR_PERIPH_CLOCK + 1,
    KEPT_CAN = 3,
    KEPT_USART = 3
};

/* the registers, and what a wait has shown */
struct controller
{
    int running[FLAGS], ready[FLAGS], polls[FLAGS], periph[PERIPHS];
    int sclk, ahb, apb1, apb2, apb3, hext_div, hext_sclk_div, hick_sclk_div, hick48, step_mode;
    int wait_cycles, flash_div, ldo;
    int pll_set, pll_source, pll_flexible, pll_mult, pll_range, pll_ns, pll_ms, pll_post, pll_fu;
    int usb_source, usb_half_steps, domain_open, domain_held, rtc, rtc_div;
    int clkout, clkout1, clkout2, out_div[3], pin[3], last_pin,
        muxed_pin; /* a pin is its port times 16 and its number */
    int adc_div, adc_source, i2sf5, i2c1, usart[KEPT_USART], can[KEPT_CAN];
};
extern struct controller now;
extern const struct chip* chip;
extern double hext;
extern jmp_buf end_of_run;

/* clocks as they can be selected */
enum node
{
    NO_CLOCK,
    LICK,
    LEXT,
    HICK,
    HICK48,
    HEXT,
    SCLK,
    AHB,
    APB1,
    APB2,
    PLL,
    PLL_HALF,
    PLL_QUARTER,
    PLLU,
    USB,
    ADC
};
double mhz(enum node);
const char* dead(enum node); /* what is off on the way to it; null if it runs */
double sclk_mhz(void), pll_input(void), vco(void), pll(void);
int needed_cycles(double sclk);
void report(void);

/* a real chip would choke on it */
void require(int good, const char* text);
/* a limit that a design may break only if its page says so */
void within(int good, const char* limit);
/* holds the present state against all limits of the running clocks */
void settle(void);

#endif
