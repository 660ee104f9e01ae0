#pragma once

#include <functional>
#include <vector>

/// Times one thing against plain Qt.
namespace figures {

/// The median of several runs, ms. prepare runs before each, outside the time.
double median(int runs, const std::function<void()>& work, const std::function<void()>& prepare = {});

/// The medians of several things that take turns, ms: what else the machine does then strikes all of them
/// alike.
std::vector<double> medians(int runs, const std::vector<std::function<void()>>& works,
                            const std::function<void()>& prepare = {});

/// One line: name, ms, the baseline's name and ms, the ratio.
void print(const char* name, double milliseconds, const char* baselineName, double baseline);

} // namespace figures
