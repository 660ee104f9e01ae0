#ifndef FIRMWARE_ZN64G150_152_H
#define FIRMWARE_ZN64G150_152_H

#include "firmware.h"
#include "zn64g150_152_conf.h"

#define crm_pll_config      firmware_pll_fr
#define crm_clkout_div_set  firmware_clkout_indexed
#define FIRMWARE_HICK_HZ    48000000.0
#define FIRMWARE_HICK_TO_PLL 6.0
#define FIRMWARE_AUTO_STEP  1

#endif
