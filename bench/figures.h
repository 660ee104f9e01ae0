#pragma once

#include <functional>

/// Times one thing against plain Qt.
namespace figures {

/// The median of several runs, ms. prepare runs before each, outside the time.
double median(int runs, const std::function<void()>& work, const std::function<void()>& prepare = {});

/// One line: name, ms, the baseline's name and ms, the ratio.
void print(const char* name, double milliseconds, const char* baselineName, double baseline);

} // namespace figures
