/* The calls that set up USB, power, the RTC, pins, clock outputs and peripheral clocks. */
#include "controller.h"

#include <string.h>

void crm_usb_clock_source_select(crm_usb_clock_source_type source)
{
    now.usb_source = source;
    require(!dead(USB) && now.ready[CRM_HICK_STABLE_FLAG], "usb on a source that is not ready");
}

void crm_pllu_output_set(confirm_state state)
{
    require(now.ready[CRM_PLL_STABLE_FLAG], "pllu of a pll that is not ready");
    now.running[CRM_PLLU_STABLE_FLAG] = state;
}

void crm_periph_clock_enable(crm_periph_clock_type clock, confirm_state state)
{
    now.periph[clock] = state;
}

void pwc_ldo_output_voltage_set(pwc_ldo_output_voltage_type voltage)
{
    require(now.periph[CRM_PWC_PERIPH_CLOCK], "ldo without the clock of pwc");
    now.ldo = (int)voltage;
    settle();
}

void pwc_battery_powered_domain_access(confirm_state state)
{
    require(now.periph[CRM_PWC_PERIPH_CLOCK], "battery powered domain without the clock of pwc");
    now.domain_open = state;
}

void crm_battery_powered_domain_reset(confirm_state state)
{
    require(now.domain_open, "battery powered domain reset without access to it");
    now.domain_held = state;
}

static uint32_t set_rtc(int source, int divisor)
{
    require(now.domain_open && !now.domain_held, "rtc clock without access to the battery powered domain");
    now.rtc = source;
    now.rtc_div = divisor;
    return source & 0xF;
}

void crm_rtc_clock_select(crm_rtc_clock_type source)
{
    firmware_crm.bpdc_bit.rtcsel = set_rtc(source & 0xF, chip->hext_to_rtc);
}

void crm_ertc_clock_select(crm_ertc_clock_type source)
{
    firmware_crm.bpdc_bit.ertcsel =
        set_rtc(source & 0xF, chip->hext_to_rtc ? chip->hext_to_rtc : (int)source >> 4);
}

void gpio_default_para_init(gpio_init_type* init)
{
    memset(init, 0, sizeof *init);
}

void gpio_init(gpio_type* port, gpio_init_type* init)
{
    require(now.periph[port->port], "pin set up without the clock of its port");
    require(init->gpio_mode == GPIO_MODE_MUX, "clock output on a pin without mux mode");
    now.last_pin = port->port * 16 + (int)init->gpio_pins;
}

void gpio_pin_mux_config(gpio_type* port, gpio_pins_source_type pin, gpio_mux_sel_type mux)
{
    require(now.periph[port->port], "pin set up without the clock of its port");
    now.muxed_pin = port->port * 16 + (int)pin;
    (void)mux;
}

/* The dividers come last: the pin that was set up before them is the one of this output. */
static void set_clkout(int index, int divisor)
{
    now.out_div[index] = divisor;
    now.pin[index] = now.last_pin;
    require(now.muxed_pin < 0 || now.muxed_pin == now.last_pin, "mux of another pin than the clock output's");
}

void firmware_clkout_one(crm_clkout_div_type divisor)
{
    set_clkout(0, divisor);
}

void firmware_clkout_two(crm_clkout_div1_type first, crm_clkout_div2_type second)
{
    set_clkout(0, (int)first * (int)second);
}

void firmware_clkout_indexed(crm_clkout_index_type index, crm_clkout_div1_type first,
                             crm_clkout_div2_type second)
{
    set_clkout(index, (int)first * (int)second);
}

void crm_i2c_clock_select(crm_i2c_type i2c, crm_i2c_clock_source_type source)
{
    (void)i2c;
    now.i2c1 = (int)source;
}

void crm_usart_clock_select(crm_usart_type usart, crm_usart_clock_source_type source)
{
    now.usart[usart] = (int)source;
}

void crm_can_clock_select(crm_can_type can, crm_can_clock_source_type source)
{
    now.can[can] = (int)source;
}
