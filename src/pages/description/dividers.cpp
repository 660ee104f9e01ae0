#include "pages/description/dividers.h"

#include "model/divisors.h"

namespace {

Divider row(const char* routine, const char* control, const char* setting, ModelField field,
            std::vector<double> divisors)
{
    const double fallback = divisors.front();
    return {routine, control, setting, field, std::move(divisors), fallback};
}

Divider apb(const char* routine, const char* control, const char* setting, ModelField field)
{
    Divider divider = row(routine, control, setting, field, listOf(divisors::apb));
    divider.follows = DividerFollows::Results;
    return divider;
}

Divider pllOutput(const char* routine, const char* control, const char* setting, ModelField field,
                  std::vector<double> divisors)
{
    Divider divider = row(routine, control, setting, field, std::move(divisors));
    divider.use = DividerUse::PllInUse;
    divider.effect = DividerEffect::HextThenPll;
    divider.follows = DividerFollows::PllSearch;
    return divider;
}

} // namespace

Divider dividers::ahb()
{
    return row("New_ahbdiv", "m_ahbdiv", "ahbdiv", MODEL_FIELD(AHBDIV), listOf(divisors::ahb));
}

Divider dividers::apb1()
{
    return apb("New_apb1div", "m_apb1div", "apb1div", MODEL_FIELD(APB1DIV));
}

Divider dividers::apb2()
{
    return apb("New_apb2div", "m_apb2div", "apb2div", MODEL_FIELD(APB2DIV));
}

Divider dividers::apb3()
{
    Divider divider = apb("New_apb3div", "m_apb3div", "apb3div", MODEL_FIELD(APB3DIV));
    divider.fallback = 4.0;
    return divider;
}

Divider dividers::rtc()
{
    Divider divider = row("New_rtcdiv", "m_rtcdiv", "rtcdiv", MODEL_FIELD(RTC_DIV), listOf(divisors::rtc));
    divider.use = DividerUse::RtcFromHext;
    divider.effect = DividerEffect::ShowRtc;
    return divider;
}

Divider dividers::hextToPll()
{
    Divider divider =
        row("New_hextdiv", "m_hextdiv", "hextdiv", MODEL_FIELD(HEXT_DIV), listOf(divisors::hextToPll));
    divider.use = DividerUse::PllFromDividedHext;
    divider.effect = DividerEffect::KeepSclk;
    return divider;
}

Divider dividers::hextToSclk()
{
    Divider divider =
        row("New_hextdiv", "m_hextdiv", "hextdiv", MODEL_FIELD(HEXT_DIV), listOf(divisors::hextToSclk));
    divider.use = DividerUse::SclkFromHext;
    return divider;
}

Divider dividers::hickToSclk()
{
    Divider divider =
        row("New_hickdiv", "m_hickdiv", "hickdiv", MODEL_FIELD(SCLKHICK_DIV), listOf(divisors::hickToSclk));
    divider.use = DividerUse::SclkFromHick;
    return divider;
}

Divider dividers::pllFr()
{
    return pllOutput("New_pll_fr", "m_pllfr", "pllfr", MODEL_FIELD(PLL_FR), listOf(divisors::pllFr));
}

Divider dividers::pllFp()
{
    return pllOutput("New_pll_fp", "m_pllfp", "pllfp", MODEL_FIELD(PLL_FP), listOf(divisors::pllFp));
}

Divider dividers::usb(std::vector<double> divisors)
{
    Divider divider = row("New_usbdiv", "m_usbdiv", "usbdiv", MODEL_FIELD(USBDIV), std::move(divisors));
    divider.use = DividerUse::UsbFromPll;
    divider.effect = DividerEffect::ServeUsb;
    divider.follows = DividerFollows::Results;
    divider.decimal = true;
    return divider;
}

Divider dividers::pllFu()
{
    Divider divider = row("New_pll_fu", "m_pllfu", "pllfu", MODEL_FIELD(PLL_FU), listOf(divisors::pllFu));
    divider.use = DividerUse::UsbOrCanFromPll;
    divider.effect = DividerEffect::ServeUsb;
    divider.follows = DividerFollows::PllSearch;
    return divider;
}

Divider dividers::adc(std::vector<double> divisors)
{
    Divider divider = row("New_toadcdiv", "m_toadcdiv", "adcdiv", MODEL_FIELD(ToADCDIV), std::move(divisors));
    divider.use = DividerUse::AdcOn;
    divider.itemPrefix = " /";
    return divider;
}

Divider dividers::clockOutput()
{
    return clockOutputSecond("New_clockoutdiv", "m_clockoutdiv", "clkoutdiv", MODEL_FIELD(CLKOUT_Div));
}

Divider dividers::clockOutputFirst(const char* routine, const char* control, const char* setting,
                                   ModelField field)
{
    Divider divider = row(routine, control, setting, field, listOf(divisors::clockOutputFirst));
    divider.use = DividerUse::ClockOutputOn;
    return divider;
}

Divider dividers::clockOutputSecond(const char* routine, const char* control, const char* setting,
                                    ModelField field)
{
    Divider divider = row(routine, control, setting, field, listOf(divisors::clockOutput));
    divider.use = DividerUse::ClockOutputOn;
    return divider;
}
