#pragma once

#include "model/ZN64ConfigCLK.h"

/// Whether any USART that the series has is switched on.
bool anyUsartOn(const ZN64ConfigCLK& clock);
/// Whether any CAN that the series has is switched on.
bool anyCanOn(const ZN64ConfigCLK& clock);
