#pragma once

/// The chip series. The numbers are sparse and live in memory only; design files hold the series name.
enum ZN64MCUSERIALS : int
{
    ZN64G110 = 2,
    ZN64G120 = 4,
    ZN64G125 = 5,
    ZN64G110R = 7,
    ZN64G114 = 8,
    ZN64G130 = 9,
    ZN64G150 = 13,
    ZN64G152 = 14,
    ZN64G135 = 15,
    ZN64D042 = 16,
    ZN64TQ125 = 17,
    ZN64G133 = 18,
    ZN64G174 = 19,
    ZN64G171 = 20,
    ZN64G165 = 21,
    ZN64G166 = 22,
    ZN64G167 = 23,
    ZN64H110R = 24,
    ZN64P212 = 25,
    ZN64P216 = 26,
    ZN64H133 = 29,
    ZN64G190 = 30,
    ZN64G142 = 33,
    ZN64G146 = 34
};

// The values of the enums below stand in design files and are compared as numbers: they are settled. The
// fixed underlying type makes every int a valid value, for a design file may hold any number.

enum RTCSEL : int
{
    RTCSEL_LICK = 0,
    RTCSEL_LEXT = 1,
    RTCSEL_HEXT = 2
};
enum PLLHEXTDIV : int
{
    PLLHEXT_NODIV = 0,
    PLLHEXT_DIV = 1
};
enum PLLRC : int
{
    PLLRC_HEXT = 0,
    PLLRC_HICK = 1
};
enum PLLCONFIGMODE : int
{
    PLLMODE_NORMAL = 0,
    PLLMODE_FLEXIBLE = 1
};
enum SYSCLKSelect : int
{
    SYSCLK_HEXT = 0,
    SYSCLK_PLL = 1,
    SYSCLK_HICK = 2
};
enum HICK_TO_SCLK : int
{
    HICK_TO_SCLK_DIV6 = 0,
    HICK_TO_SCLK_NODIV = 1
};
enum HICK_TO_USB : int
{
    HICK_TO_USB_DISABLE = 0,
    HICK_TO_USB_ENABLE = 1
};
/// Zero means that the USB clock is on: the number stands so in design files.
enum TO_USB_SWITCH : int
{
    TO_USB_SWITCH_ENABLE = 0,
    TO_USB_SWITCH_DISABLE = 1
};

enum CLKOUT : int
{
    CLKOUT_NOCLK = 0,
    CLKOUT_LICK = 1,
    CLKOUT_LEXT = 2,
    CLKOUT_HICK = 3,
    CLKOUT_HEXT = 4,
    CLKOUT_SCLK = 5,
    CLKOUT_USB = 6,
    CLKOUT_ADCCLK = 7,
    CLKOUT_PLLDIV2 = 8,
    CLKOUT_PLLDIV4 = 9,
    CLKOUT_PLL = 10,
    CLKOUT_USBFS = 11
};
enum CLKOUT1 : int
{
    CLKOUT1_HICK = 0,
    CLKOUT1_LEXT = 1,
    CLKOUT1_HEXT = 2,
    CLKOUT1_PLL = 3
};
enum CLKOUT2 : int
{
    CLKOUT2_SCLK = 0,
    CLKOUT2_HEXT = 1,
    CLKOUT2_PLL = 2,
    CLKOUT2_USB = 3,
    CLKOUT2_HICK = 4,
    CLKOUT2_ADCCLK = 5,
    CLKOUT2_LICK = 6,
    CLKOUT2_LEXT = 7
};
enum CLKOUTPIN : int
{
    CLKOUTPIN_NONE = 0,
    CLKOUTPIN_PA8 = 1,
    CLKOUTPIN_PA9 = 2,
    CLKOUTPIN_PB13 = 3,
    CLKOUTPIN_PC9 = 4,
    CLKOUTPIN_PF2 = 5,
    CLKOUTPIN_PE4 = 6
};
enum CLKOUT1PIN : int
{
    CLKOUT1PIN_NONE = 0,
    CLKOUT1PIN_PA8 = 1,
    CLKOUT1PIN_PE4 = 2
};
enum CLKOUT2PIN : int
{
    CLKOUT2PIN_NONE = 0,
    CLKOUT2PIN_PC9 = 1
};

enum USART_CLOCK_SOURCE : int
{
    USART_CLOCK_SOURCE_PCLK = 0,
    USART_CLOCK_SOURCE_SCLK = 1,
    USART_CLOCK_SOURCE_HICK48 = 2,
    USART_CLOCK_SOURCE_LEXT = 3,
    USART_CLOCK_SOURCE_HICK = 4
};
enum I2C1_CLOCK_SOURCE : int
{
    I2C1_CLOCK_SOURCE_PCLK = 0,
    I2C1_CLOCK_SOURCE_SCLK = 1,
    I2C1_CLOCK_SOURCE_HICK48 = 2,
    I2C1_CLOCK_SOURCE_HICK = 3
};
enum ADC_CLOCK_SOURCE : int
{
    ADC_CLOCK_SOURCE_HCLK = 0,
    ADC_CLOCK_SOURCE_PLLCLK = 1
};
/// Enumerator 0 is the source that pages show as coming from the PLL, in spite of its name.
enum I2SF5_CLOCK_SOURCE : int
{
    I2SF5_CLOCK_SOURCE_PCLK = 0,
    I2SF5_CLOCK_SOURCE_SCLK = 1,
    I2SF5_CLOCK_SOURCE_HICK = 2,
    I2SF5_CLOCK_SOURCE_EXTERNAL = 3
};
enum CAN_CLOCK_SOURCE : int
{
    CAN_CLOCK_SOURCE_HEXT = 0,
    CAN_CLOCK_SOURCE_PLL = 1,
    CAN_CLOCK_SOURCE_PCLK = 2
};

/// Preview into the sample folder without questions, or the user's command with a folder of his choice.
enum GENERATE_CODE_MODE : int
{
    MODE_CODE_VIEW = 0,
    MODE_USER_BUTTON = 1
};
