#include <malloc.h>

#include <string>
#include <vector>

#include "Benchmarks.h"
#include "Comparison.h"

int main(int argc, char** argv) {
    // Large memory comes fresh from the system each time, as it does in the program, which loads
    // its lists once, at its start. Else whoever runs later finds it warm.
    mallopt(M_MMAP_THRESHOLD, 1024 * 1024);

    // Both sides of a comparison in turn, so that a slow moment of the machine hits both.
    std::vector<std::string> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, {"--benchmark_enable_random_interleaving=true",
                                             "--benchmark_report_aggregates_only=true"});
    std::vector<char*> pointers;
    pointers.reserve(arguments.size());
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) return 1;

    const velkarix::BenchFiles files(argv[0]);
    velkarix::AddDefinitionListBenchmarks(files);
    velkarix::AddFileDigestBenchmarks(files);
    velkarix::ComparingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
