/* Every call with one plain argument: what it is named, what it takes, and where the controller keeps it. */
SETS(crm_ahb_div_set, crm_ahb_div_type, ahb)
SETS(crm_apb1_div_set, crm_apb1_div_type, apb1)
SETS(crm_apb2_div_set, crm_apb2_div_type, apb2)
WHERE(HAS_APB3, SETS(crm_apb3_div_set, crm_apb3_div_type, apb3))
WHERE(HAS_HEXT_DIV, SETS(crm_hext_clock_div_set, crm_hext_div_type, hext_div))
WHERE(HAS_SCLK_DIV, SETS(crm_hext_sclk_div_set, crm_hext_sclk_div_type, hext_sclk_div))
WHERE(HAS_SCLK_DIV, SETS(crm_hick_sclk_div_set, crm_hick_sclk_div_type, hick_sclk_div))
WHERE(HAS_HICK48, SETS(crm_hick_sclk_frequency_select, crm_hick_sclk_frequency_type, hick48))
WHERE(HAS_AUTO_STEP, SETS(crm_auto_step_mode_enable, confirm_state, step_mode))
WHERE(HAS_FLASH_PSR, SETS(flash_psr_set, flash_psr_type, wait_cycles))
WHERE(HAS_FLASH_DIV, SETS(flash_clock_divider_set, flash_clock_divider_type, flash_div))
WHERE(HAS_USB_DIV, SETS(crm_usb_clock_div_set, crm_usb_div_type, usb_half_steps))
WHERE(HAS_PLL_FP, SETS(crm_pllu_div_set, crm_pll_fu_type, pll_fu))
WHERE(HAS_TWO_CLKOUTS, SETS(crm_clock_out1_set, crm_clkout1_select_type, clkout1))
WHERE(HAS_TWO_CLKOUTS, SETS(crm_clock_out2_set, crm_clkout2_select_type, clkout2))
#if !HAS_TWO_CLKOUTS || FIRMWARE_LIBRARY
SETS(crm_clock_out_set, crm_clkout_select_type, clkout)
#endif
WHERE(HAS_ADC_DIV, SETS(crm_adc_clock_div_set, crm_adc_div_type, adc_div))
WHERE(HAS_ADC_SOURCE, SETS(crm_adc_clock_select, crm_adc_clock_source_type, adc_source))
WHERE(HAS_I2SF5, SETS(crm_i2sf5_clock_select, crm_i2sf5_clock_source_type, i2sf5))
#undef SETS
