#ifndef FIRMWARE_ZN64G110_H
#define FIRMWARE_ZN64G110_H

#include "firmware.h"
#include "zn64g110_conf.h"

#define crm_pll_config      firmware_pll_range
#define FIRMWARE_HICK_HZ    8000000.0
#define FIRMWARE_HICK_TO_PLL 2.0

#endif
