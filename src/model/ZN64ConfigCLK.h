#pragma once

#include "model/clockenums.h"

#include <QString>

struct SeriesTraits;

/// The clock tree of one chip: every oscillator value, selector and divider, and the frequencies that follow.
/// All frequencies are double in MHz, but for lick and lext, which are in kHz. A setter is a bare store: it
/// checks nothing, limits nothing and calculates nothing. The limits belong to the pages. The object is also
/// the host of the code generator's fragments, which edit a template's text in place.
class ZN64ConfigCLK
{
public:
    /// A fresh object of the series, in the state of InitValue().
    explicit ZN64ConfigCLK(ZN64MCUSERIALS series);

    /// The start values. Fields that it leaves alone start at zero and belong to the page's own start state.
    void InitValue();

    ZN64MCUSERIALS series() const { return m_MCUType; }
    /// What sets this series apart in the model.
    const SeriesTraits& traits() const { return *m_traits; }

    // Oscillators. lick and lext in kHz, hick and hext in MHz.
    void Set_Lick_Input_Value(double value) { m_lick_Input_Value = value; }
    double Get_Lick_Input_Value() const { return m_lick_Input_Value; }
    void Set_Lext_Input_Value(double value) { m_lext_Input_Value = value; }
    double Get_Lext_Input_Value() const { return m_lext_Input_Value; }
    void Set_Hick_Input_Value(double value) { m_hick_Input_Value = value; }
    double Get_Hick_Input_Value() const { return m_hick_Input_Value; }
    void Set_Hext_Input_Value(double value) { m_hext_Input_Value = value; }
    double Get_Hext_Input_Value() const { return m_hext_Input_Value; }
    void Set_Lext_Bypass_Value(bool value) { m_lext_Bypass = value; }
    bool Get_Lext_Bypass_Value() const { return m_lext_Bypass; }
    void Set_Hext_Bypass_Value(bool value) { m_hext_Bypass = value; }
    bool Get_Hext_Bypass_Value() const { return m_hext_Bypass; }

    // RTC
    void Set_RTCSEL(RTCSEL value) { m_rtcsel = value; }
    RTCSEL Get_RTCSEL() const { return m_rtcsel; }
    void Set_ToRTC_Switch(bool value) { m_rtc_Swith = value; }
    bool Get_ToRTC_Switch() const { return m_rtc_Swith; }
    void Set_RTC_DIV(int value) { m_rtc_div = value; }
    int Get_RTC_DIV() const { return m_rtc_div; }

    // Pre-dividers
    void Set_HEXT_DIV(int value) { m_hext_div = value; }
    int Get_HEXT_DIV() const { return m_hext_div; }
    void Set_SCLKHICK_DIV(int value) { m_sclkhick_div = value; }
    int Get_SCLKHICK_DIV() const { return m_sclkhick_div; }
    void Set_PLLHEXTDIV(int value) { m_pllhext_div = static_cast<PLLHEXTDIV>(value); }
    PLLHEXTDIV Get_PLLHEXTDIV() const { return m_pllhext_div; }
    void Set_PLLRC(int value) { m_PLLRC = static_cast<PLLRC>(value); }
    PLLRC Get_PLLRC() const { return m_PLLRC; }

    // PLL. The mode only says which set of fields is in force; nothing is converted between them.
    void Set_ConfigMode(PLLCONFIGMODE value) { m_ConfigMode = value; }
    PLLCONFIGMODE Get_ConfigMode() const { return m_ConfigMode; }
    void Set_PLL_MS(int value) { m_PLL_MS = value; }
    int Get_PLL_MS() const { return m_PLL_MS; }
    void Set_PLL_NS(int value) { m_PLL_NS = value; }
    int Get_PLL_NS() const { return m_PLL_NS; }
    void Set_PLL_FR(int value) { m_PLL_FR = value; }
    int Get_PLL_FR() const { return m_PLL_FR; }
    void Set_PLL_FP(int value) { m_PLL_FP = value; }
    int Get_PLL_FP() const { return m_PLL_FP; }
    void Set_PLL_FU(int value) { m_PLL_FU = value; }
    int Get_PLL_FU() const { return m_PLL_FU; }
    void Set_PLL_MUL(int value) { m_PLL_MUL = value; }
    int Get_PLL_MUL() const { return m_PLL_MUL; }

    // System clock and buses. The timer multipliers are start values: the next calculation overwrites them.
    void Set_SYSCLKSelect(int value) { m_sclk_select = static_cast<SYSCLKSelect>(value); }
    SYSCLKSelect Get_SYSCLKSelect() const { return m_sclk_select; }
    void Set_AHBDIV(int value) { m_AHBDIV = value; }
    int Get_AHBDIV() const { return m_AHBDIV; }
    void Set_APB1DIV(int value) { m_APB1DIV = value; }
    int Get_APB1DIV() const { return m_APB1DIV; }
    void Set_APB2DIV(int value) { m_APB2DIV = value; }
    int Get_APB2DIV() const { return m_APB2DIV; }
    void Set_APB3DIV(int value) { m_APB3DIV = value; }
    int Get_APB3DIV() const { return m_APB3DIV; }
    void Set_APB1TMR_MUL(int value) { m_APB1TMR_MUL = value; }
    int Get_APB1TMR_MUL() const { return m_APB1TMR_MUL; }
    void Set_APB2TMR_MUL(int value) { m_APB2TMR_MUL = value; }
    int Get_APB2TMR_MUL() const { return m_APB2TMR_MUL; }
    void Set_HICK_TO_SCLK(int value) { m_HickToSclk = static_cast<HICK_TO_SCLK>(value); }
    HICK_TO_SCLK Get_HICK_TO_SCLK() const { return m_HickToSclk; }

    // ADC
    void Set_ToADC_Switch(bool value) { m_ToADC_Switch = value; }
    bool Get_ToADC_Switch() const { return m_ToADC_Switch; }
    void Set_ToADCDIV(int value) { m_ToADCDIV = value; }
    int Get_ToADCDIV() const { return m_ToADCDIV; }
    void Set_adc_Clock_Source(ADC_CLOCK_SOURCE value) { m_adc_Clock_Source = value; }
    ADC_CLOCK_SOURCE Get_adc_Clock_Source() const { return m_adc_Clock_Source; }

    // USB
    void Set_USBDIV(double value) { m_USBDIV = value; }
    double Get_USBDIV() const { return m_USBDIV; }
    void Set_HICK_TO_USB(int value) { m_HickToUSB = static_cast<HICK_TO_USB>(value); }
    HICK_TO_USB Get_HICK_TO_USB() const { return m_HickToUSB; }
    void Set_TO_USB_Switch(int value) { m_ToUSBSwitch = static_cast<TO_USB_SWITCH>(value); }
    TO_USB_SWITCH Get_TO_USB_Switch() const { return m_ToUSBSwitch; }

    // Clock outputs
    void Set_CLKOUT(int value) { m_CLKOUT = static_cast<CLKOUT>(value); }
    CLKOUT Get_CLKOUT() const { return m_CLKOUT; }
    void Set_CLKOUT_Div(int value) { m_CLKOUT_Div = value; }
    int Get_CLKOUT_Div() const { return m_CLKOUT_Div; }
    void Set_CLKOUT_Div1(int value) { m_CLKOUT_Div1 = value; }
    int Get_CLKOUT_Div1() const { return m_CLKOUT_Div1; }
    void Set_CLKOUT_Div2(int value) { m_CLKOUT_Div2 = value; }
    int Get_CLKOUT_Div2() const { return m_CLKOUT_Div2; }
    void Set_CLKOUT_PinSelect(int value) { m_CLKOUT_PinSelect = static_cast<CLKOUTPIN>(value); }
    CLKOUTPIN Get_CLKOUT_PinSelect() const { return m_CLKOUT_PinSelect; }
    void Set_CLKOUT1(int value) { m_CLKOUT1 = static_cast<CLKOUT1>(value); }
    CLKOUT1 Get_CLKOUT1() const { return m_CLKOUT1; }
    void Set_CLKOUT1_Div1(int value) { m_CLKOUT1_Div1 = value; }
    int Get_CLKOUT1_Div1() const { return m_CLKOUT1_Div1; }
    void Set_CLKOUT1_Div2(int value) { m_CLKOUT1_Div2 = value; }
    int Get_CLKOUT1_Div2() const { return m_CLKOUT1_Div2; }
    void Set_CLKOUT1_PinSelect(int value) { m_CLKOUT1_PinSelect = static_cast<CLKOUT1PIN>(value); }
    CLKOUT1PIN Get_CLKOUT1_PinSelect() const { return m_CLKOUT1_PinSelect; }
    void Set_CLKOUT2(int value) { m_CLKOUT2 = static_cast<CLKOUT2>(value); }
    CLKOUT2 Get_CLKOUT2() const { return m_CLKOUT2; }
    void Set_CLKOUT2_Div1(int value) { m_CLKOUT2_Div1 = value; }
    int Get_CLKOUT2_Div1() const { return m_CLKOUT2_Div1; }
    void Set_CLKOUT2_Div2(int value) { m_CLKOUT2_Div2 = value; }
    int Get_CLKOUT2_Div2() const { return m_CLKOUT2_Div2; }
    void Set_CLKOUT2_PinSelect(int value) { m_CLKOUT2_PinSelect = static_cast<CLKOUT2PIN>(value); }
    CLKOUT2PIN Get_CLKOUT2_PinSelect() const { return m_CLKOUT2_PinSelect; }

    // Results that a caller may write too, MHz. A written SYSCLK is the wanted one for the solvers.
    void Set_SYSCLKValue(double value) { m_SYSCLK_Value = value; }
    double Get_SYSCLKValue() const { return m_SYSCLK_Value; }
    void Set_PLLCLKValue(double value) { m_PLLCLK_Value = value; }
    double Get_PLLCLKValue() const { return m_PLLCLK_Value; }
    void Set_USBCLKValue(double value) { m_USBCLK_Value = value; }
    double Get_USBCLKValue() const { return m_USBCLK_Value; }

    // Peripheral clock switches and sources
    void Set_USART1_Switch(bool value) { m_USART1Switch = value; }
    bool Get_USART1_Switch() const { return m_USART1Switch; }
    void Set_USART2_Switch(bool value) { m_USART2Switch = value; }
    bool Get_USART2_Switch() const { return m_USART2Switch; }
    void Set_USART3_Switch(bool value) { m_USART3Switch = value; }
    bool Get_USART3_Switch() const { return m_USART3Switch; }
    void Set_I2C1_Switch(bool value) { m_I2CSwitch = value; }
    bool Get_I2C1_Switch() const { return m_I2CSwitch; }
    void Set_I2SF5_Switch(bool value) { m_I2SF5Switch = value; }
    bool Get_I2SF5_Switch() const { return m_I2SF5Switch; }
    void Set_CAN1_Switch(bool value) { m_CAN1Switch = value; }
    bool Get_CAN1_Switch() const { return m_CAN1Switch; }
    void Set_CAN2_Switch(bool value) { m_CAN2Switch = value; }
    bool Get_CAN2_Switch() const { return m_CAN2Switch; }
    void Set_CAN3_Switch(bool value) { m_CAN3Switch = value; }
    bool Get_CAN3_Switch() const { return m_CAN3Switch; }
    void Set_usart1_Clock_Source(USART_CLOCK_SOURCE value) { m_usart1_Clock_Source = value; }
    USART_CLOCK_SOURCE Get_usart1_Clock_Source() const { return m_usart1_Clock_Source; }
    void Set_usart2_Clock_Source(USART_CLOCK_SOURCE value) { m_usart2_Clock_Source = value; }
    USART_CLOCK_SOURCE Get_usart2_Clock_Source() const { return m_usart2_Clock_Source; }
    void Set_usart3_Clock_Source(USART_CLOCK_SOURCE value) { m_usart3_Clock_Source = value; }
    USART_CLOCK_SOURCE Get_usart3_Clock_Source() const { return m_usart3_Clock_Source; }
    void Set_i2c1_Clock_Source(I2C1_CLOCK_SOURCE value) { m_i2c1_Clock_Source = value; }
    I2C1_CLOCK_SOURCE Get_i2c1_Clock_Source() const { return m_i2c1_Clock_Source; }
    void Set_i2sf5_Clock_Source(I2SF5_CLOCK_SOURCE value) { m_i2sf5_Clock_Source = value; }
    I2SF5_CLOCK_SOURCE Get_i2sf5_Clock_Source() const { return m_i2sf5_Clock_Source; }
    void Set_can1_Clock_Source(CAN_CLOCK_SOURCE value) { m_can1_Clock_Source = value; }
    CAN_CLOCK_SOURCE Get_can1_Clock_Source() const { return m_can1_Clock_Source; }
    void Set_can2_Clock_Source(CAN_CLOCK_SOURCE value) { m_can2_Clock_Source = value; }
    CAN_CLOCK_SOURCE Get_can2_Clock_Source() const { return m_can2_Clock_Source; }
    void Set_can3_Clock_Source(CAN_CLOCK_SOURCE value) { m_can3_Clock_Source = value; }
    CAN_CLOCK_SOURCE Get_can3_Clock_Source() const { return m_can3_Clock_Source; }

    // Generation
    void Set_GenerateCodeMode(GENERATE_CODE_MODE value) { m_GenerateCodeMode = value; }
    GENERATE_CODE_MODE Get_GenerateCodeMode() const { return m_GenerateCodeMode; }

    // Results of the last calculation, MHz.
    double Get_AHBCLKValue() const { return m_AHBCLK_Value; }
    double Get_APB1CLKValue() const { return m_APB1CLK_Value; }
    double Get_APB2CLKValue() const { return m_APB2CLK_Value; }
    double Get_APB3CLKValue() const { return m_APB3CLK_Value; }
    double Get_APB1TMRCLK_Value() const { return m_APB1TMRCLK_Value; }
    double Get_APB2TMRCLK_Value() const { return m_APB2TMRCLK_Value; }
    /// Exactly 0.0 while the ADC is switched off.
    double Get_ADCCLK_Value() const { return m_ADCCLK_Value; }
    double Get_RTCCLK_Value() const { return m_RTCCLK_Value; }

    // Forward: from the selectors and dividers to the frequencies.

    /// The clock at the PLL's input, MHz, before the divider MS.
    double GetPllInPutValue() const;
    void CalculatePLLCLK();
    /// Recalculates every derived field. It may raise APB1DIV and APB2DIV from 1 to 2 to keep the bus in its
    /// limit.
    void CalculateCLK();
    /// The series' highest system clock, MHz; 0 for a value that is no series.
    int GetSYSCLKValidMaxValue() const;
    /// Whether MS puts the PLL's divided input within 2 to 16 MHz. corrected is always written: the nearest
    /// good MS, or 1. No field is written.
    bool PLL_MS_Valid_Check(int ms, int& corrected) const;
    /// Whether NS and MS put the VCO within its limits, leaving USB out of account. corrected is always
    /// written: the nearest good NS, or 31. No field is written.
    bool PLL_NS_Valid_Check(int ns, int ms, int& corrected) const;

    // Backward: from a wanted clock to PLL parameters. None of these can fail: the nearest reachable value is
    // taken.

    /// Solves for the stored SYSCLK if the PLL drives it, recalculates the buses and chooses the USB divider.
    void CalculateParam_From_SYSCLK();
    /// Solves for 48 MHz at USB. Does nothing while USB does not come from the PLL.
    void CalculateParam_From_USBCLK();
    void CalculateParam_From_ResultCLK_Normal(double pllInput, int forUsb);
    void CalculateParam_From_ResultCLK_Flexible(double pllInput, int forUsb);
    void CalculateParam_From_ResultCLK_Flexible_SYSCLK(double pllInput);
    void CalculateParam_From_ResultCLK_Flexible_USBCLK(double pllInput);
    /// The first and the last MS in 1 to 15 that keeps the divided input in its limits; 1 and 15 if none
    /// does.
    void Get_PLL_MS_ValidRange(double pllInput, int& upper, int& lower) const;
    /// The first and the last NS in 31 to 500 that keeps the VCO in its limits; 31 and 500 if none does.
    void Get_PLL_NS_ValidRange(double pllInput, double ms, int& upper, int& lower) const;
    /// The PLL's register as "0x" and eight hexadecimal digits.
    QString Get_CRM_PLLCFG_Value() const;

    // Which blocks the present selectors put to use. They read fields only.

    bool hext_isEnable() const;
    bool hick_isEnable() const;
    bool pll_isEnable() const;
    bool usbpll_isEnable() const;
    bool hextdiv_isEnable() const;

    // Code generation (src/codegen).

    /// Reads the four templates of the stem, edits them and writes the files below the two folders, asking
    /// about existing files in the user's mode. False as soon as a step fails; files written so far stay.
    bool GenerateCode(const QString& incPath, const QString& srcPath, const QString& stem);
    /// Asks whether the named file may be replaced. proceed is the answer; replaceAll is the state of the
    /// tick on Yes, and false on any other answer.
    void ShowConflictMessage(const QString& fileName, bool& proceed, bool& replaceAll);
    /// The series' fragments over the clock source; false at the first that misses what it looks for.
    bool GenerateClockSource(QString& text) const;
    /// The series' fragments over the main file; false at the first that misses what it looks for.
    bool GenerateMainSource(QString& text) const;

    // A fragment edits the template's text from the model. False means that what it looks for is missing.
    bool GenerateCode_flashpsr(QString& text) const;
    bool GenerateCode_hextbypass(QString& text) const;
    bool GenerateCode_hext(QString& text) const;
    bool GenerateCode_hick(QString& text) const;
    bool GenerateCode_hextdiv(QString& text) const;
    bool GenerateCode_pll(QString& text) const;
    bool GenerateCode_pll_normal(QString& text) const;
    bool GenerateCode_pll_flexible(QString& text) const;
    bool GenerateCode_plludiv(QString& text) const;
    bool GenerateCode_autostepmode(QString& text) const;
    bool GenerateCode_pllsysclock(QString& text) const;
    bool GenerateCode_hextsysclock(QString& text) const;
    bool GenerateCode_hicksysclock(QString& text) const;
    bool GenerateCode_pllusbclock(QString& text) const;
    bool GenerateCode_hickusbclock(QString& text) const;
    bool GenerateCode_ahbclk(QString& text) const;
    bool GenerateCode_apb1clk(QString& text) const;
    bool GenerateCode_apb2clk(QString& text) const;
    bool GenerateCode_apb3clk(QString& text) const;
    bool GenerateCode_flashclkdiv(QString& text) const;
    bool GenerateCode_result(QString& text) const;
    bool GenerateCode_PWC_LDO_OUTPUT(QString& text) const;
    bool GenerateCode_clockout(QString& text) const;
    bool GenerateCode_clockout1(QString& text) const;
    bool GenerateCode_clockout2(QString& text) const;
    bool GenerateCode_mainFunc(QString& text) const;
    bool GenerateCode_rtc(QString& text) const;
    bool GenerateCode_rtc_lick(QString& text) const;
    bool GenerateCode_rtc_lext(QString& text) const;
    bool GenerateCode_rtc_hext(QString& text) const;
    bool GenerateCode_adc(QString& text) const;
    bool GenerateCode_i2c(QString& text) const;
    bool GenerateCode_i2sf5(QString& text) const;
    bool GenerateCode_can(QString& text) const;
    bool GenerateCode_usart(QString& text) const;
    bool GenerateCode_usart_lext(QString& text) const;
    bool GenerateCode_hextdefine(QString& text) const;

    // The macro that stands for the present value of a field, or the default of the field's table.
    QString GetOutPutString_OscInitType_FlashPsr() const;
    QString GetOutPutString_OscInitType_PLLRC() const;
    QString GetOutPutString_OscInitType_HextDiv() const;
    QString GetOutPutString_OscInitType_PLLMULT() const;
    QString GetOutPutString_OscInitType_PLLOutputRange() const;
    QString GetOutPutString_OscInitType_PLLMS() const;
    QString GetOutPutString_OscInitType_PLLNS() const;
    QString GetOutPutString_OscInitType_PLLFR() const;
    QString GetOutPutString_OscInitType_PLLFP() const;
    QString GetOutPutString_OscInitType_PLLFU() const;
    QString GetOutPutString_SysClkInitType_SYSCLKSel() const;
    QString GetOutPutString_SysClkInitType_AHBClkDivider() const;
    QString GetOutPutString_SysClkInitType_APB1ClkDivider() const;
    QString GetOutPutString_SysClkInitType_APB2ClkDivider() const;
    QString GetOutPutString_SysClkInitType_APB3ClkDivider() const;
    QString GetOutPutString_SysClkInitType_USBDivider() const;
    QString GetOutPutString_HEXTDIV_Define_String() const;
    QString GetOutPutString_HICKDIV_Define_String() const;
    QString GetOutPutString_CLKOUT_GPIO_clock_type_String() const;
    QString GetOutPutString_CLKOUT_GPIO_type_String() const;
    QString GetOutPutString_CLKOUT_GPIO_PINS_Num_String() const;
    QString GetOutPutString_CLKOUT_gpio_pins_source_type_String() const;
    QString GetOutPutString_CLKOUT_gpio_mux_sel_type_String() const;
    QString GetOutPutString_CLKOUT1_GPIO_clock_type_String() const;
    QString GetOutPutString_CLKOUT1_GPIO_type_String() const;
    QString GetOutPutString_CLKOUT1_GPIO_PINS_Num_String() const;
    QString GetOutPutString_CLKOUT1_gpio_pins_source_type_String() const;
    QString GetOutPutString_CLKOUT1_gpio_mux_sel_type_String() const;
    QString GetOutPutString_CLKOUT_Define_String() const;
    QString GetOutPutString_CLKOUT1_Define_String() const;
    QString GetOutPutString_CLKOUT2_Define_String() const;
    QString GetOutPutString_ERTCDIV_Define_String() const;
    QString GetOutPutString_ADCClockSource_Define_String() const;
    QString GetOutPutString_ADCDIV_Define_String() const;
    QString GetOutPutString_I2CClockSource_Define_String() const;
    QString GetOutPutString_i2sf5ClockSource_Define_String() const;
    QString GetOutPutString_Usart1ClockSource_Define_String() const;
    QString GetOutPutString_Usart2ClockSource_Define_String() const;
    QString GetOutPutString_Usart3ClockSource_Define_String() const;
    QString GetOutPutString_PWC_LDO_OUTPUT_Define_String() const;
    QString GetOutPutString_CLKOUT_DIV1_Define_String(int divisor) const;
    QString GetOutPutString_CLKOUT_DIV2_Define_String(int divisor) const;
    QString GetOutPutString_CLKOUT_DIV_Define_String(int divisor) const;
    QString GetOutPutString_CLKOUT_INDEX_Num_String(int output) const;
    QString GetOutPutString_CANClockSource_Define_String(CAN_CLOCK_SOURCE source) const;
    /// The pin of a text like "PA8"; CLKOUTPIN_NONE for any other text.
    CLKOUTPIN GetCLKOUTPINEnumFromPinText(const QString& text) const;
    /// "PA8" and so on; "NONE" for any other value.
    QString GetCLKOUTPINTextFromEnum(int pin) const;

private:
    /// What a search of the flexible PLL came to; all zero if nothing came near enough. The divider is FP on
    /// the series that have it, else FR.
    struct PllSolution
    {
        int ms = 0;
        int ns = 0;
        int divider = 0;
    };

    void initSources();
    void initDividers();
    void initResults();
    void initPeripherals();

    double flexiblePllOutput(double pllInput) const;
    double hickToSclkValue() const;
    double sysclkFromPll() const;
    void calculateSysclk();
    void calculateBuses();
    void forceApbDividers();
    void raiseApb1Divider();
    void calculateUsbFromPll();

    void solvePll(int forUsb);
    void chooseUsbDivider();
    void chooseUsbFu();
    /// The wanted system clock, held down to the series' highest, MHz.
    double wantedSysclk() const;
    /// The VCO's top as the search sees it: lower while USB hangs on the VCO, MHz.
    double solverVcoTop() const;
    template <typename Table>
    PllSolution nearestPll(const Table& dividers, double pllInput, double target) const;
    PllSolution nearestVco(double pllInput, double target) const;
    static int nearestFp(const PllSolution& vco, double pllInput, double target);
    void storeSolution(const PllSolution& solution);

    // An output counts only with a pin selected.
    bool clkoutIs(CLKOUT source) const;
    bool clkout1Is(CLKOUT1 source) const;
    bool clkout2Is(CLKOUT2 source) const;
    bool outputsUsePllFrom(PLLRC source) const;
    bool usbUsesPllFrom(PLLRC source) const;
    bool pllUserActive(unsigned user) const;
    bool peripheralUsesPll(unsigned user) const;

    ZN64MCUSERIALS m_MCUType;
    const SeriesTraits* m_traits;
    /// Whether the answer in the conflict box holds for the next conflicts. Outlives a generation run.
    bool m_replaceflag = false;

    double m_lick_Input_Value = 0.0; // kHz
    double m_lext_Input_Value = 0.0; // kHz
    bool m_lext_Bypass = false;
    double m_hext_Input_Value = 0.0;
    double m_hick_Input_Value = 0.0;
    bool m_hext_Bypass = false;
    RTCSEL m_rtcsel{};
    bool m_rtc_Swith = false;
    int m_rtc_div = 0;
    double m_RTCCLK_Value = 0.0; // stays 0.0: the page computes what it shows
    int m_hext_div = 0;
    int m_sclkhick_div = 0;
    PLLHEXTDIV m_pllhext_div{};
    PLLRC m_PLLRC{};
    int m_PLL_MS = 0;
    int m_PLL_NS = 0;
    int m_PLL_FR = 0;
    int m_PLL_FP = 0;
    int m_PLL_FU = 0;
    SYSCLKSelect m_sclk_select{};
    int m_AHBDIV = 0;
    int m_APB1DIV = 0;
    int m_APB2DIV = 0;
    int m_APB3DIV = 0;
    double m_PLLCLK_Value = 0.0;
    double m_SYSCLK_Value = 0.0;
    double m_AHBCLK_Value = 0.0;
    double m_APB1CLK_Value = 0.0;
    int m_APB1TMR_MUL = 0;
    double m_APB1TMRCLK_Value = 0.0;
    double m_APB2CLK_Value = 0.0;
    double m_APB3CLK_Value = 0.0;
    int m_APB2TMR_MUL = 0;
    double m_APB2TMRCLK_Value = 0.0;
    bool m_ToADC_Switch = false;
    int m_ToADCDIV = 0;
    double m_ADCCLK_Value = 0.0;
    double m_USBDIV = 0.0; // several series have half steps
    TO_USB_SWITCH m_ToUSBSwitch{};
    double m_USBCLK_Value = 0.0;
    HICK_TO_USB m_HickToUSB{};
    HICK_TO_SCLK m_HickToSclk{};
    int m_CLKOUT1_Div1 = 0;
    int m_CLKOUT1_Div2 = 0;
    CLKOUT1PIN m_CLKOUT1_PinSelect{};
    int m_CLKOUT2_Div1 = 0;
    int m_CLKOUT2_Div2 = 0;
    CLKOUT2PIN m_CLKOUT2_PinSelect{};
    CLKOUT1 m_CLKOUT1{};
    CLKOUT2 m_CLKOUT2{};
    int m_CLKOUT_Div = 0;
    CLKOUTPIN m_CLKOUT_PinSelect{};
    CLKOUT m_CLKOUT{};
    int m_CLKOUT_Div1 = 0;
    int m_CLKOUT_Div2 = 0;
    bool m_USART1Switch = false;
    bool m_USART2Switch = false;
    bool m_USART3Switch = false;
    bool m_I2CSwitch = false;
    bool m_I2SF5Switch = false;
    bool m_CAN1Switch = false;
    bool m_CAN2Switch = false;
    bool m_CAN3Switch = false;
    PLLCONFIGMODE m_ConfigMode{};
    int m_PLL_MUL = 0;
    USART_CLOCK_SOURCE m_usart1_Clock_Source{};
    USART_CLOCK_SOURCE m_usart2_Clock_Source{};
    USART_CLOCK_SOURCE m_usart3_Clock_Source{};
    I2C1_CLOCK_SOURCE m_i2c1_Clock_Source{};
    ADC_CLOCK_SOURCE m_adc_Clock_Source{};
    I2SF5_CLOCK_SOURCE m_i2sf5_Clock_Source{};
    CAN_CLOCK_SOURCE m_can1_Clock_Source{};
    CAN_CLOCK_SOURCE m_can2_Clock_Source{};
    CAN_CLOCK_SOURCE m_can3_Clock_Source{};
    GENERATE_CODE_MODE m_GenerateCodeMode{};
};
