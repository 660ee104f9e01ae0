/* What the helper writes: the designs of one compiler run, and their number. */
struct design
{
    double hext; /* Hz, by the configuration header */
    int (*run)(void);
};
extern const struct design batch[];
extern const int batch_size;
void firmware_loop(const char* condition);
