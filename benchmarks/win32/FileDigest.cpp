// Measures GetFileMD5 through the system's own calls.
#include <cstdio>
#include <string>

#include "Benchmarks.h"
#include "platform/win32/Win32Machine.h"
#include "shell/FilePaths.h"
#include "shell/modMD5.h"

namespace velkarix {
namespace {

// The share of the command's rate that is to be reached.
constexpr double LeastRatio = 0.9;

}  // namespace

bool MeasureFileDigest(const std::string& path, double reference) {
    Win32Machine win32;
    const Machine machine = win32.Parts();
    const double size =
        static_cast<double>(FileLength(machine.files, path).value_or(0)) / (1024 * 1024);

    Progress progress(machine.clock);
    bool digested = true;
    const double median =
        MedianSeconds({{"GetFileMD5 of the file", [&] {
                            digested = GetFileMD5(machine, path, progress).size() == 32 && digested;
                        }}})[0];
    if (!digested) {
        std::fprintf(stderr, "no digest of %s\n", path.c_str());
        return false;
    }
    std::printf("GetFileMD5_win32 %.1f MB/s\n", size / median);
    if (reference != 0) {
        std::printf("openssl_md5 %.1f MB/s\n", size / reference);
        const double ratio = reference / median;
        std::printf("GetFileMD5_win32 / openssl_md5: %.3f of its rate (at least %.3f, %s)\n", ratio,
                    LeastRatio, ratio >= LeastRatio ? "met" : "MISSED");
    }
    return true;
}

}  // namespace velkarix
