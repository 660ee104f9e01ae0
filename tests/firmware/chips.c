#include "controller.h"

#include <math.h>

#define NEVER INFINITY
#define BY_ROUTE HICK_OUT_BY_ROUTE
#define FOR_USB HICK_OUT_48_FOR_USB
#define V1V1 PWC_LDO_OUTPUT_1V1
#define V1V2 PWC_LDO_OUTPUT_1V2

/* sclk, APB1, APB2, APB3; PLL output, lowest and highest, and VCO; hick and what of it reaches the PLL, half
   of the PLL to sclk; flash, step; LDO; hick at outputs; hext to the rtc */
// clang-format off
const struct chip chips[] = {
    {"G110",  200, 100, 100,  0,  0, 200,      0,  8, 4, 0, FLASH_FAST,    STEP_WRITTEN, NEVER, NEVER, 0,    HICK_OUT_8,  128},
    {"G110R", 240, 120, 120,  0,  0, 240,      0, 48, 4, 0, FLASH_FAST,    STEP_AUTO,    NEVER, NEVER, 0,    BY_ROUTE,    128},
    {"G114",  240, 120, 120,  0,  0, 240,      0, 48, 4, 0, FLASH_FAST,    STEP_AUTO,    NEVER, NEVER, 0,    BY_ROUTE,    128},
    {"H110R", 200, 100, 100,  0,  0, 200,      0, 48, 4, 0, FLASH_FAST,    STEP_AUTO,    NEVER, NEVER, 0,    BY_ROUTE,    128},
    {"G120",  200, 100, 100,  0,  0, 200,      0, 48, 4, 0, FLASH_FAST,    STEP_AUTO,    NEVER, NEVER, 0,    BY_ROUTE,    128},
    {"G125",  150,  75,  75,  0, 16, 150,   1000, 48, 4, 0, FLASH_WAITS,   STEP_AUTO,    NEVER, NEVER, 0,    BY_ROUTE,    128},
    {"TQ125", 150,  75,  75,  0, 16, 150,   1000, 48, 4, 0, FLASH_WAITS,   STEP_AUTO,    NEVER, NEVER, 0,    BY_ROUTE,    128},
    {"G130",  120, 120, 120,  0, 16, 120,   1000, 48, 4, 0, FLASH_WAITS,   STEP_AUTO,    NEVER, NEVER, 0,    BY_ROUTE,     32},
    {"G135",   96,  96,  96,  0, 16,  96,   1000, 48, 4, 0, FLASH_WAITS,   STEP_AUTO,    NEVER, NEVER, 0,    BY_ROUTE,    128},
    {"D042",   80,  80,  80,  0, 16,  80,   1000, 48, 4, 0, FLASH_WAITS,   STEP_NONE,    NEVER,    32, V1V1, HICK_OUT_48, 128},
    {"G142",  200, 200, 200, 90, 16, 200,   1000, 48, 4, 0, FLASH_WAITS,   STEP_AUTO,      120,     0, V1V2, BY_ROUTE,    128},
    {"G146",  200, 200, 200, 90, 16, 200,   1000, 48, 4, 0, FLASH_WAITS,   STEP_AUTO,      120,     0, V1V2, BY_ROUTE,    128},
    {"G150",  288, 144, 144,  0,  0, 288,   1200, 48, 8, 0, FLASH_DIVIDED, STEP_AUTO,      240,   144, V1V1, BY_ROUTE,      0},
    {"G152",  288, 144, 144,  0,  0, 288,   1200, 48, 8, 0, FLASH_DIVIDED, STEP_AUTO,      240,   144, V1V1, BY_ROUTE,      0},
    {"G133",  150, 120, 150,  0,  0, NEVER, 1000, 48, 8, 1, FLASH_WAITS,   STEP_AUTO,      120,    64, V1V1, FOR_USB,       0},
    {"H133",  150, 120, 150,  0,  0, NEVER, 1000, 48, 8, 1, FLASH_WAITS,   STEP_AUTO,      120,    64, V1V1, FOR_USB,       0},
    {"G171",  216, 120, 216,  0,  0, 216,   1000, 48, 8, 0, FLASH_WAITS,   STEP_AUTO,      192,   108, V1V1, FOR_USB,       0},
    {"G174",  216, 120, 216,  0,  0, 216,   1000, 48, 8, 0, FLASH_WAITS,   STEP_AUTO,      192,   108, V1V1, FOR_USB,       0},
    {"G190",  216, 120, 216,  0,  0, 216,   1000, 48, 8, 0, FLASH_WAITS,   STEP_AUTO,      192,   108, V1V1, FOR_USB,       0},
    {"G165",  192, 192, 192, 90,  0, 192,   1200, 48, 8, 0, FLASH_WAITS,   STEP_AUTO,      160,   108, V1V1, HICK_OUT_48,   0},
    {"G166",  192, 192, 192, 90,  0, 192,   1200, 48, 8, 0, FLASH_WAITS,   STEP_AUTO,      160,   108, V1V1, HICK_OUT_48,   0},
    {"G167",  192, 192, 192, 90,  0, 192,   1200, 48, 8, 0, FLASH_WAITS,   STEP_AUTO,      160,   108, V1V1, HICK_OUT_48,   0},
    {"P212",  180, 180, 180, 90,  0, 180,   1000, 48, 8, 0, FLASH_WAITS,   STEP_AUTO,      150,     0, V1V2, HICK_OUT_48,   0},
    {"P216",  180, 180, 180, 90,  0, 180,   1000, 48, 8, 0, FLASH_WAITS,   STEP_AUTO,      150,     0, V1V2, HICK_OUT_48,   0},
};
// clang-format on
const int chip_count = sizeof chips / sizeof *chips;
