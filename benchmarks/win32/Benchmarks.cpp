#include "Benchmarks.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>

namespace velkarix {
namespace {

// Odd numbers, so that one of the rounds is the median.
constexpr std::size_t MostRounds = 7;
constexpr std::size_t LeastRounds = 3;
constexpr double LongTime = 15;  // seconds, after which the least is enough

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
    const double begin = Now();
    for (std::size_t round = 0; round < MostRounds; ++round) {
        if (round >= LeastRounds && round % 2 == 1 && Now() - begin > LongTime) break;
        for (std::size_t work = 0; work < works.size(); ++work) {
            if (works[work].prepare) works[work].prepare();
            const double start = Now();
            works[work].run();
            seconds[work].push_back(Now() - start);
        }
    }
    std::vector<double> medians;
    for (std::size_t work = 0; work < works.size(); ++work) {
        std::vector<double>& each = seconds[work];
        std::sort(each.begin(), each.end());
        medians.push_back(each[each.size() / 2]);
        std::printf("%s: %.1f ms\n", works[work].name.c_str(), medians.back() * 1e3);
    }
    return medians;
}

void PrintRatio(const std::string& what, double ratio, double limit) {
    std::printf("%s: %.3f (limit %.3f, %s)\n", what.c_str(), ratio, limit,
                ratio <= limit ? "met" : "MISSED");
}

}  // namespace velkarix
