/* The frequencies that the registers make. */
#include "controller.h"

#include <stddef.h>

double pll_input(void)
{
    if (now.pll_source == CRM_PLL_SOURCE_HICK)
        return chip->hick_to_pll;
    return now.pll_source == CRM_PLL_SOURCE_HEXT ? hext : hext / now.hext_div;
}

double vco(void)
{
    return pll_input() * now.pll_ns / now.pll_ms;
}

double pll(void)
{
    return now.pll_flexible ? vco() / now.pll_post : pll_input() * now.pll_mult;
}

static double source_mhz(int source)
{
    if (source == CRM_SCLK_PLL)
        return chip->sclk_is_half_pll ? pll() / 2 : pll();
    if (source == CRM_SCLK_HEXT)
        return hext / now.hext_sclk_div;
    return (chip->hick > 8 && !now.hick48 ? chip->hick / 6 : chip->hick) / now.hick_sclk_div;
}

double sclk_mhz(void)
{
    return source_mhz(now.sclk);
}

static double hick_out(void)
{
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

static double usb_mhz(void)
{
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

static double adc_mhz(void)
{
    if (now.adc_source >= 0)
        return mhz(now.adc_source == CRM_ADC_CLOCK_SOURCE_PLLCLK ? PLL : AHB);
    return now.adc_div ? mhz(APB2) / now.adc_div : 0;
}

double mhz(enum node node)
{
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

const char* dead(enum node node)
{
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
