// Benchmarks in pairs: what is measured and, in the same run, what it is measured against.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

namespace velkarix {

// The seconds that `measured` takes divided by those of `reference`, both names of benchmarks,
// is to be at most `limit`; 0 is no limit.
struct Comparison {
    std::string measured;
    std::string reference;
    double limit = 0;
};

// Registers a benchmark. `run` does the work once and gives the seconds that it took, so that
// what comes before and after isn't counted. `bytes` is how much data it goes through, 0 for none.
void AddBenchmark(const std::string& name, std::size_t bytes, const std::function<double()>& run);
void AddComparison(Comparison comparison);

// The seconds that `work` takes.
double SecondsOf(const std::function<void()>& work);

// Prints the benchmarks as they come and, at the end, each comparison of the medians.
class ComparingReporter : public benchmark::ConsoleReporter {
  public:
    ComparingReporter() : ConsoleReporter(OO_None) {}  // without colours, for logs

    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

  private:
    std::vector<std::pair<std::string, double>> medians_;
};

}  // namespace velkarix
