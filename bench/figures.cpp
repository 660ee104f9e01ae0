#include "figures.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>

std::vector<double> figures::medians(int runs, const std::vector<std::function<void()>>& works,
                                     const std::function<void()>& prepare)
{
    std::vector<std::vector<double>> times(works.size());
    QElapsedTimer timer;
    for (int i = 0; i < runs; ++i) {
        for (std::size_t work = 0; work < works.size(); ++work) {
            if (prepare)
                prepare();
            timer.start();
            works[work]();
            times[work].push_back(timer.nsecsElapsed() / 1e6);
        }
    }
    std::vector<double> middles;
    for (std::vector<double>& all : times) {
        std::nth_element(all.begin(), all.begin() + runs / 2, all.end());
        middles.push_back(all[static_cast<std::size_t>(runs / 2)]);
    }
    return middles;
}

double figures::median(int runs, const std::function<void()>& work, const std::function<void()>& prepare)
{
    return medians(runs, {work}, prepare).front();
}

void figures::print(const char* name, double milliseconds, const char* baselineName, double baseline)
{
    std::printf("  %-38s %9.3f ms  %7.2f x  %s (%.3f ms)\n", name, milliseconds, milliseconds / baseline,
                baselineName, baseline);
    std::fflush(stdout);
}
