/* Every call with one plain argument: what it is named, what it takes, and where a run keeps it. */
SETS(crm_ahb_div_set, crm_ahb_div_type, ahb)
SETS(crm_apb1_div_set, crm_apb1_div_type, apb1)
SETS(crm_apb2_div_set, crm_apb2_div_type, apb2)
SETS(crm_hick_sclk_frequency_select, crm_hick_sclk_frequency_type, hick48)
SETS(crm_auto_step_mode_enable, confirm_state, step_mode)
SETS(crm_usb_clock_div_set, crm_usb_div_type, usb_half_steps)
SETS(crm_clock_out_set, crm_clkout_select_type, unused)
SETS(crm_clock_out1_set, crm_clkout1_select_type, unused)
SETS(crm_clock_out2_set, crm_clkout2_select_type, unused)
SETS(crm_battery_powered_domain_reset, confirm_state, unused)
SETS(crm_adc_clock_div_set, crm_adc_div_type, unused)
SETS(flash_clock_divider_set, flash_clock_divider_type, unused)
#undef SETS
