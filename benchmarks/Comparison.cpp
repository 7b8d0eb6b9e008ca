#include "Comparison.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>
#include <utility>

namespace velkarix {
namespace {

// An odd number, so that one of the runs is the median.
constexpr int RepetitionCount = 11;

std::vector<Comparison>& Comparisons() {
    static std::vector<Comparison> comparisons;
    return comparisons;
}

std::optional<double> Find(const std::vector<std::pair<std::string, double>>& medians,
                           const std::string& name) {
    const auto found = std::find_if(medians.begin(), medians.end(),
                                    [&](const auto& median) { return median.first == name; });
    return found == medians.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace

void AddBenchmark(const std::string& name, std::size_t bytes, const std::function<double()>& run) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [bytes, run](benchmark::State& state) {
                                     for (auto _ : state) state.SetIterationTime(run());
                                     if (bytes != 0)
                                         state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
                                 })
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->Repetitions(RepetitionCount);
}

void AddComparison(Comparison comparison) {
    Comparisons().push_back(std::move(comparison));
}

double SecondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void ComparingReporter::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.aggregate_name == "median") {
            medians_.emplace_back(run.run_name.function_name, run.GetAdjustedRealTime());
        }
    }
}

void ComparingReporter::Finalize() {
    for (const Comparison& comparison : Comparisons()) {
        const std::optional<double> measured = Find(medians_, comparison.measured);
        const std::optional<double> reference = Find(medians_, comparison.reference);
        if (!measured || !reference) continue;
        const double ratio = *measured / *reference;
        std::printf("%s / %s: %.3f", comparison.measured.c_str(), comparison.reference.c_str(),
                    ratio);
        if (comparison.limit != 0) {
            std::printf(" (limit %.3f, %s)", comparison.limit,
                        ratio <= comparison.limit ? "met" : "MISSED");
        }
        std::printf("\n");
    }
}

}  // namespace velkarix
