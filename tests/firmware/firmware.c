/* The stand-in library's bodies, and the run of the designs of a batch. A run prints "fault: ..." for what a
   real chip would choke on, "limit: ..." for a limit that is broken, "stuck: ..." if it waits for good, and
   at the end the clocks in MHz ("= sclk 192.000000000"), what it left without a clock ("dead: can1 on hext")
   and how many checks it was put to. */
#include "batch.h"
#include "controller.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

crm_type firmware_crm;
gpio_type firmware_ports[] = {{0}, {1}, {2}, {3}, {4}, {5}, {6}, {7}};
struct controller now;
const struct chip* chip;
double hext;
jmp_buf end_of_run;
static int checks;

static const struct controller cold = {
    .ahb = 1,
    .apb1 = 1,
    .apb2 = 1,
    .apb3 = 1,
    .hext_div = 2,
    .hext_sclk_div = 1,
    .hick_sclk_div = 1,
    .flash_div = 2,
    .pll_range = -1,
    .pll_mult = 1,
    .pll_ns = 1,
    .pll_ms = 1,
    .pll_post = 1,
    .pll_fu = 11,
    .usb_half_steps = 2,
    .clkout = -1,
    .clkout1 = -1,
    .clkout2 = -1,
    .out_div = {1,  1,  1 },
    .pin = {-1, -1, -1},
    .last_pin = -1,
    .muxed_pin = -1,
    .rtc_div = 1,
    .adc_source = -1,
    .i2sf5 = -1,
    .i2c1 = -1,
    .usart = {-1, -1, -1},
    .can = {-1, -1, -1}
};

void require(int good, const char* text)
{
    ++checks;
    if (!good)
        printf("fault: %s\n", text);
}

void within(int good, const char* limit)
{
    ++checks;
    if (!good)
        printf("limit: %s\n", limit);
}

void firmware_loop(const char* condition)
{
    if (strcmp(condition, "1") != 0)
        return;
    report();
    longjmp(end_of_run, 1);
}

static void run_design(const struct design* design)
{
    now = cold;
    checks = 0;
    firmware_crm.bpdc_bit.rtcsel = firmware_crm.bpdc_bit.ertcsel = 0;
    hext = design->hext / 1e6;
    if (setjmp(end_of_run) == 0) {
        design->run();
        require(0, "main came back");
    }
    printf("checks: %d\n", checks);
}

int main(int count, char** words)
{
    for (int i = 0; i < chip_count; ++i)
        if (count > 1 && strcmp(words[1], chips[i].series) == 0)
            chip = &chips[i];
    if (!chip)
        return 2;
    for (int i = 0; i < batch_size; ++i) {
        printf("design %d\n", i);
        run_design(&batch[i]);
    }
    return 0;
}

void crm_reset(void)
{
    now = cold;
    now.running[CRM_CLOCK_SOURCE_HICK] = now.ready[CRM_HICK_STABLE_FLAG] = 1;
    now.sclk = CRM_SCLK_HICK;
    now.ldo = chip->lowest_ldo;
}

void crm_hext_bypass(confirm_state value)
{
    (void)value;
    require(!now.running[CRM_CLOCK_SOURCE_HEXT], "bypass changed while hext runs");
}

void crm_lext_bypass(confirm_state value)
{
    (void)value;
    require(!now.running[CRM_CLOCK_SOURCE_LEXT], "bypass changed while lext runs");
    require(now.domain_open, "lext bypass without access to the battery powered domain");
}

void crm_clock_source_enable(crm_clock_source_type source, confirm_state state)
{
    require(source != CRM_CLOCK_SOURCE_PLL || now.pll_set, "pll started without parameters");
    require(source != CRM_CLOCK_SOURCE_LEXT || now.domain_open,
            "lext without access to the battery powered domain");
    if (now.running[source] == (int)state)
        return;
    now.running[source] = state;
    now.ready[source] = now.polls[source] = 0;
    settle();
}

/* A source is ready some looks after its start, and not before somebody looked; the pll not before its own
 * source. */
static int gets_ready(int flag)
{
    if (flag == CRM_PLL_STABLE_FLAG)
        return now.ready[now.pll_source == CRM_PLL_SOURCE_HICK ? CRM_HICK_STABLE_FLAG : CRM_HEXT_STABLE_FLAG];
    return flag != CRM_PLLU_STABLE_FLAG || now.ready[CRM_PLL_STABLE_FLAG];
}

flag_status crm_flag_get(crm_flag_type flag)
{
    static const char* const names[] = {"hick", "hext", "pll", "lext", "lick", "pllu"};

    if (now.ready[flag])
        return SET;
    if (++now.polls[flag] > 100) {
        printf("stuck: %s\n", names[flag]);
        longjmp(end_of_run, 1);
    }
    if (now.running[flag] && now.polls[flag] > 3 && gets_ready(flag))
        now.ready[flag] = 1;
    return now.ready[flag] ? SET : RESET;
}

error_status crm_hext_stable_wait(void)
{
    return crm_flag_get(CRM_HEXT_STABLE_FLAG) == SET ? SUCCESS : ERROR;
}

static void set_pll(int source, int flexible)
{
    require(!now.running[CRM_CLOCK_SOURCE_PLL], "pll changed while it runs");
    now.pll_set = 1;
    now.pll_source = source;
    now.pll_flexible = flexible;
}

void firmware_pll_range(crm_pll_clock_source_type source, crm_pll_mult_type mult,
                        crm_pll_output_range_type range)
{
    set_pll(source, 0);
    now.pll_mult = mult;
    now.pll_range = range;
}

void firmware_pll_mult(crm_pll_clock_source_type source, crm_pll_mult_type mult)
{
    set_pll(source, 0);
    now.pll_mult = mult;
}

static void set_flexible(int source, int ns, int ms, int post)
{
    set_pll(source, 1);
    require(ns >= 31 && ns <= 500 && ms >= 1 && ms <= 15, "parameter of the pll out of its field");
    now.pll_ns = ns;
    now.pll_ms = ms;
    now.pll_post = post;
}

void firmware_pll_fr(crm_pll_clock_source_type source, uint16_t ns, uint16_t ms, crm_pll_fr_type fr)
{
    set_flexible(source, ns, ms, fr);
}

void firmware_pll_fp(crm_pll_clock_source_type source, uint16_t ns, uint16_t ms, crm_pll_fp_type fp)
{
    set_flexible(source, ns, ms, fp);
}

void crm_sysclk_switch(crm_sclk_type source)
{
    static const int needed[] = {CRM_CLOCK_SOURCE_HICK, CRM_CLOCK_SOURCE_HEXT, CRM_CLOCK_SOURCE_PLL};

    require(now.ready[needed[source]], "system clock switched to a source that is not ready");
    now.sclk = source;
    if (chip->step == STEP_AUTO)
        require(now.step_mode == (sclk_mhz() > 108), "step mode does not fit the system clock");
    if (chip->step == STEP_WRITTEN)
        require(sclk_mhz() < 168 || now.ahb == 8, "fast system clock without a step");
    settle();
}

crm_sclk_type crm_sysclk_switch_status_get(void)
{
    return (crm_sclk_type)now.sclk;
}

#define SETS(name, type, variable)                                                                           \
    void name(type value)                                                                                    \
    {                                                                                                        \
        now.variable = (int)value;                                                                           \
        settle();                                                                                            \
    }
#include "calls.h"

void system_core_clock_update(void) {}
void zn64_board_init(void) {}
void delay_ms(uint32_t time)
{
    (void)time;
}
void reduce_power_consumption(void) {}
