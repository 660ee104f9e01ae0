/* What a run tells at its end. */
#include "controller.h"

#include <stdio.h>

static void show(const char* name, enum node node, double divisor)
{
    if (dead(node))
        printf("dead: %s on %s\n", name, dead(node));
    else if (node != NO_CLOCK)
        printf("= %s %.9f\n", name, mhz(node) / divisor);
}

static void show_outputs(void)
{
    static const enum node single[] = {NO_CLOCK, LICK, LEXT,     HICK,        HEXT, SCLK,
                                       USB,      ADC,  PLL_HALF, PLL_QUARTER, PLL,  USB};
    static const enum node first[] = {HICK, LEXT, HEXT, PLL};
    static const enum node second[] = {SCLK, HEXT, PLL, USB, HICK, NO_CLOCK, LICK, LEXT};

    if (now.clkout >= 0)
        show("clockout", single[now.clkout], now.out_div[0]);
    if (now.clkout1 >= 0)
        show("clockout1", first[now.clkout1], now.out_div[1]);
    if (now.clkout2 >= 0)
        show("clockout2", second[now.clkout2], now.out_div[2]);
}

static void show_peripherals(void)
{
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

void report(void)
{
    require(chip->flash != FLASH_WAITS || now.wait_cycles == needed_cycles(sclk_mhz()),
            "wait cycles without need");
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
    if (mhz(ADC) > 0)
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
