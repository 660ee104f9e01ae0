#include "controller.h"

#include <math.h>

#define NEVER INFINITY
/* family by family: sclk, APB1 to APB3; PLL output, VCO; hick and what of it reaches the PLL, half of the PLL to sclk;
   flash, step; LDO; hick at outputs; hext to the rtc */
#define MULTIPLIED(name, sclk, apb, hick, step, out)                                                                   \
  {name, sclk, apb, apb, 0, 0, sclk, 0, hick, 4, 0, FLASH_FAST, step, NEVER, NEVER, 0, out, 128}
#define MODES(name, sclk, apb, apb3, step, out, above_1v3, above_1v2, lowest, rtc)                                        \
  {name, sclk, apb, apb, apb3, 16, sclk, 1000, 48, 4, 0, FLASH_WAITS, step, above_1v3, above_1v2, lowest, out, rtc}
#define DIVIDED(name, sclk, apb1, apb2, apb3, pll, vco, half, above_1v3, above_1v2, lowest, out)                       \
  {name, sclk, apb1, apb2, apb3, 0, pll, vco, 48, 8, half, FLASH_WAITS, STEP_AUTO, above_1v3, above_1v2, lowest, out, 0}
#define G171(name) DIVIDED(name, 216, 120, 216, 0, 216, 1000, 0, 192, 108, PWC_LDO_OUTPUT_1V1, HICK_OUT_48_FOR_USB)
#define G165(name) DIVIDED(name, 192, 192, 192, 90, 192, 1200, 0, 160, 108, PWC_LDO_OUTPUT_1V1, HICK_OUT_48)
#define P212(name) DIVIDED(name, 180, 180, 180, 90, 180, 1000, 0, 150, 0, PWC_LDO_OUTPUT_1V2, HICK_OUT_48)
#define G133(name) DIVIDED(name, 150, 120, 150, 0, NEVER, 1000, 1, 120, 64, PWC_LDO_OUTPUT_1V1, HICK_OUT_48_FOR_USB)
#define G150(name)                                                                                                     \
  {name, 288, 144, 144, 0, 0, 288, 1200, 48, 8, 0, FLASH_DIVIDED, STEP_AUTO, 240, 144, PWC_LDO_OUTPUT_1V1, BY_ROUTE, 0}
#define BY_ROUTE HICK_OUT_BY_ROUTE

const struct chip chips[] = {
    MULTIPLIED("G110", 200, 100, 8, STEP_WRITTEN, HICK_OUT_8),
    MULTIPLIED("G110R", 240, 120, 48, STEP_AUTO, BY_ROUTE),
    MULTIPLIED("G114", 240, 120, 48, STEP_AUTO, BY_ROUTE),
    MULTIPLIED("H110R", 200, 100, 48, STEP_AUTO, BY_ROUTE),
    MULTIPLIED("G120", 200, 100, 48, STEP_AUTO, BY_ROUTE),
    MODES("G125", 150, 75, 0, STEP_AUTO, BY_ROUTE, NEVER, NEVER, 0, 128),
    MODES("TQ125", 150, 75, 0, STEP_AUTO, BY_ROUTE, NEVER, NEVER, 0, 128),
    MODES("G130", 120, 120, 0, STEP_AUTO, BY_ROUTE, NEVER, NEVER, 0, 32),
    MODES("G135", 96, 96, 0, STEP_AUTO, BY_ROUTE, NEVER, NEVER, 0, 128),
    MODES("D042", 80, 80, 0, STEP_NONE, HICK_OUT_48, NEVER, 32, PWC_LDO_OUTPUT_1V1, 128),
    MODES("G142", 200, 200, 90, STEP_AUTO, BY_ROUTE, 120, 0, PWC_LDO_OUTPUT_1V2, 128),
    MODES("G146", 200, 200, 90, STEP_AUTO, BY_ROUTE, 120, 0, PWC_LDO_OUTPUT_1V2, 128),
    G150("G150"), G150("G152"), G133("G133"), G133("H133"), G171("G171"), G171("G174"), G171("G190"),
    G165("G165"), G165("G166"), G165("G167"), P212("P212"), P212("P216"),
};
const int chip_count = sizeof chips / sizeof *chips;
