#include "clocks.h"

#include "model/ZN64ConfigCLK.h"

double clockValue(const ZN64ConfigCLK& model, Clock clock)
{
    switch (clock) {
    case Clock::Sysclk:
        return model.Get_SYSCLKValue();
    case Clock::Ahb:
        return model.Get_AHBCLKValue();
    case Clock::Apb1:
        return model.Get_APB1CLKValue();
    case Clock::Apb1Timer:
        return model.Get_APB1TMRCLK_Value();
    case Clock::Apb2:
        return model.Get_APB2CLKValue();
    case Clock::Apb2Timer:
        return model.Get_APB2TMRCLK_Value();
    case Clock::Apb3:
        return model.Get_APB3CLKValue();
    case Clock::Adc:
        return model.Get_ADCCLK_Value();
    case Clock::Pll:
        return model.Get_PLLCLKValue();
    case Clock::Usb:
        return model.Get_USBCLKValue();
    }
    return 0.0;
}
