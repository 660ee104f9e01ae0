/* The limits that the clocks must keep on every step. */
#include "controller.h"

#include <math.h>

static const double margin = 1e-6; /* MHz: hext is a whole number of Hz */

int needed_cycles(double sclk)
{
    return sclk > 216 + margin ? 7 : sclk > 192 + margin ? 6 : (int)fmax(0, ceil((sclk - margin) / 32) - 1);
}

static int needed_ldo(double sclk)
{
    return sclk > chip->above_1v3 + margin   ? PWC_LDO_OUTPUT_1V3
           : sclk > chip->above_1v2 + margin ? PWC_LDO_OUTPUT_1V2
                                             : chip->lowest_ldo;
}

static void settle_pll(void)
{
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
        require((pll() > 72) == (now.pll_range == CRM_PLL_OUTPUT_RANGE_GT72MHZ),
                "wrong output range of the pll");
}

void settle(void)
{
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
