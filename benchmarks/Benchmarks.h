// What each file of benchmarks registers, with the comparisons that belong to it.
#pragma once

#include "BenchFiles.h"

namespace velkarix {

void AddDefinitionListBenchmarks(const BenchFiles& files);
void AddFileDigestBenchmarks(const BenchFiles& files);

}  // namespace velkarix
