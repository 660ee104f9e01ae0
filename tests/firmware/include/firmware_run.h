/* Put before a generated main file: its main becomes a function, and its last loop ends the run. */
#include "firmware.h"

void firmware_loop(const char *condition);
#define main generated_main
#define while(condition) for (; firmware_loop(#condition), (condition);)
