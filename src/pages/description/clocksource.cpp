#include "pages/description/clocksource.h"

#include "model/ZN64ConfigCLK.h"

std::optional<ClockReading> frequencyOf(ClockSource source, const ZN64ConfigCLK& model, double hick)
{
    switch (source) {
    case ClockSource::None:
    case ClockSource::Untold:
    case ClockSource::UsbPhy:
        return {};
    case ClockSource::Outside:
        return ClockReading{0.0, "MHz", "Actual value"};
    case ClockSource::Lick:
        return ClockReading{model.Get_Lick_Input_Value(), "kHz"};
    case ClockSource::Lext:
        return ClockReading{model.Get_Lext_Input_Value(), "kHz"};
    case ClockSource::Hick:
        return ClockReading{hick};
    case ClockSource::Hext:
        return ClockReading{model.Get_Hext_Input_Value()};
    case ClockSource::Sclk:
        return ClockReading{model.Get_SYSCLKValue()};
    case ClockSource::Ahb:
        return ClockReading{model.Get_AHBCLKValue()};
    case ClockSource::Apb1:
        return ClockReading{model.Get_APB1CLKValue()};
    case ClockSource::Apb1Timer:
        return ClockReading{model.Get_APB1TMRCLK_Value()};
    case ClockSource::Apb2:
        return ClockReading{model.Get_APB2CLKValue()};
    case ClockSource::Apb2Timer:
        return ClockReading{model.Get_APB2TMRCLK_Value()};
    case ClockSource::Apb3:
        return ClockReading{model.Get_APB3CLKValue()};
    case ClockSource::Adc:
        return ClockReading{model.Get_ADCCLK_Value()};
    case ClockSource::Usb:
        return ClockReading{model.Get_USBCLKValue()};
    case ClockSource::Pll:
        return ClockReading{model.Get_PLLCLKValue()};
    case ClockSource::PllDiv2:
        return ClockReading{model.Get_PLLCLKValue() / 2.0};
    case ClockSource::PllDiv4:
        return ClockReading{model.Get_PLLCLKValue() / 4.0};
    case ClockSource::PllU:
        return ClockReading{(model.Get_PLLCLKValue() * model.Get_PLL_FP()) / model.Get_PLL_FU()};
    }
    return {};
}

double clockValue(ClockSource source, const ZN64ConfigCLK& model)
{
    const std::optional<ClockReading> reading = frequencyOf(source, model, 0.0);
    return reading ? reading->value : 0.0;
}
