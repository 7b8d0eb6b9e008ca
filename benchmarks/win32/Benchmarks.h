// The benchmarks on Windows. There is no benchmark library for this compiler, and nothing here
// needs one.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace velkarix {

// Prints the rate of GetFileMD5 on a file. `reference` is the seconds that `openssl md5` of the
// same file takes on the host; with it (not 0) the two are compared. False when there is no digest.
bool MeasureFileDigest(const std::string& path, double reference);

// Prints what the pages of startup items and of installed applications cost beside the bare calls
// of the system, with 2,000 items each. These name copies of `program`, which has an icon and a
// version resource. Keys and files are the benchmark's own and are removed again.
bool MeasurePages(const std::string& program);

// Prints what the browser page's list of 30,000 domains costs beside the bare registry calls, and
// how that grows. The keys are made below a key of the benchmark's own, which is removed again.
bool MeasureDomains();

// Prints what the protection from up to 50,000 ActiveX controls costs beside the bare registry
// calls, and how that grows. Keys and list are the benchmark's own and are removed again.
bool MeasureActiveX();

double Now();  // seconds

// The median of the seconds of each piece of work, run in turn, so that a slow moment of the
// machine hits all of them; seven times, or as few as three where that takes long. `prepare` comes
// before each run and isn't counted. Prints each median below the work's name.
struct Work {
    std::string name;
    std::function<void()> run;
    std::function<void()> prepare = {};
};
std::vector<double> MedianSeconds(const std::vector<Work>& works);

// Prints the quotient of two times and whether it keeps within its limit.
void PrintRatio(const std::string& what, double ratio, double limit);

}  // namespace velkarix
