#include "Benchmarks.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>

namespace velkarix {
namespace {

// An odd number, so that one of the runs is the median.
constexpr int RepetitionCount = 7;

}  // namespace

double Now() {
    LARGE_INTEGER count;
    LARGE_INTEGER frequency;
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

std::vector<double> MedianSeconds(const std::vector<Work>& works) {
    std::vector<std::vector<double>> seconds(works.size());
    for (int i = 0; i < RepetitionCount; ++i) {
        for (std::size_t work = 0; work < works.size(); ++work) {
            if (works[work].prepare) works[work].prepare();
            const double start = Now();
            works[work].run();
            seconds[work].push_back(Now() - start);
        }
    }
    std::vector<double> medians;
    for (std::vector<double>& each : seconds) {
        std::sort(each.begin(), each.end());
        medians.push_back(each[RepetitionCount / 2]);
    }
    return medians;
}

void PrintRatio(const std::string& what, double ratio, double limit) {
    std::printf("%s: %.3f (limit %.3f, %s)\n", what.c_str(), ratio, limit,
                ratio <= limit ? "met" : "MISSED");
}

}  // namespace velkarix
