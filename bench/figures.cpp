#include "figures.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

double figures::median(int runs, const std::function<void()>& work, const std::function<void()>& prepare)
{
    std::vector<double> times;
    QElapsedTimer timer;
    for (int i = 0; i < runs; ++i) {
        if (prepare)
            prepare();
        timer.start();
        work();
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    std::nth_element(times.begin(), times.begin() + runs / 2, times.end());
    return times[static_cast<std::size_t>(runs / 2)];
}

void figures::print(const char* name, double milliseconds, const char* baselineName, double baseline)
{
    std::printf("  %-38s %9.3f ms  %7.2f x  %s (%.3f ms)\n", name, milliseconds, milliseconds / baseline,
                baselineName, baseline);
    std::fflush(stdout);
}
