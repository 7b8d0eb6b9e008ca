// Measures GetFileMD5 through the system's own calls. There is no benchmark library for this
// compiler, and nothing here needs one.
//
// usage: velkarix_bench FILE [SECONDS]
// SECONDS is what `openssl md5` of the same file takes on the host; with it the two are compared.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/win32/Win32Machine.h"
#include "shell/FilePaths.h"
#include "shell/modMD5.h"

namespace {

// An odd number, so that one of the runs is the median.
constexpr int RepetitionCount = 7;
// The share of the command's rate that is to be reached.
constexpr double LeastRatio = 0.9;

double Now() {
    LARGE_INTEGER count;
    LARGE_INTEGER frequency;
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: velkarix_bench FILE [SECONDS]\n");
        return 2;
    }
    const std::string path = argv[1];
    velkarix::Win32Machine win32;
    const velkarix::Machine machine = win32.Parts();
    const double size =
        static_cast<double>(velkarix::FileLength(machine.files, path).value_or(0)) / (1024 * 1024);

    std::vector<double> seconds;
    for (int i = 0; i < RepetitionCount; ++i) {
        const double start = Now();
        if (velkarix::GetFileMD5(machine, path).size() != 32) {
            std::fprintf(stderr, "no digest of %s\n", path.c_str());
            return 1;
        }
        seconds.push_back(Now() - start);
    }
    std::sort(seconds.begin(), seconds.end());
    const double median = seconds[RepetitionCount / 2];
    std::printf("GetFileMD5_win32 %.1f MB/s\n", size / median);
    if (argc > 2) {
        const double reference = std::atof(argv[2]);
        std::printf("openssl_md5 %.1f MB/s\n", size / reference);
        const double ratio = reference / median;
        std::printf("GetFileMD5_win32 / openssl_md5: %.3f of its rate (at least %.3f, %s)\n", ratio,
                    LeastRatio, ratio >= LeastRatio ? "met" : "MISSED");
    }
    return 0;
}
