/* The generated main file with its main as a function, and its last loop as the end of the run. */
void firmware_loop(const char *condition);
#define main generated_main
#define while(condition) for (; firmware_loop(#condition), (condition);)
#include "main.c"
