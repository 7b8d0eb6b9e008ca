#include <cstdlib>
#include <string>

#include "Benchmarks.h"
#include "Comparison.h"
#include "HostFiles.h"
#include "shell/modMD5.h"
#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

constexpr std::size_t FileSize = std::size_t{256} * 1024 * 1024;
// The program is to reach nine tenths of the rate of the command.
constexpr double LargestRatio = 1 / 0.9;

double Digest(const std::string& path) {
    MemoryMachine rest;
    HostFiles files;
    const Machine parts = rest.Parts();
    const Machine machine{parts.registry, parts.profileFiles, parts.versionResources,
                          files,          parts.clock,        parts.processes,
                          parts.token,    parts.shell,        parts.shortcuts,
                          parts.system,   parts.windows,      parts.cryptography};
    Progress progress(machine.clock);
    std::string digest;
    const double seconds = SecondsOf([&] { digest = GetFileMD5(machine, path, progress); });
    if (digest.size() != 32) std::abort();
    return seconds;
}

double DigestByCommand(const std::string& path) {
    const std::string command = "openssl md5 '" + path + "' >/dev/null";
    int result = 0;
    const double seconds = SecondsOf([&] { result = std::system(command.c_str()); });
    if (result != 0) std::abort();
    return seconds;
}

}  // namespace

void AddFileDigestBenchmarks(const BenchFiles& files) {
    AddBenchmark("GetFileMD5_256MB", FileSize,
                 [&files] { return Digest(files.RandomFile(FileSize)); });
    AddBenchmark("openssl_md5_256MB", FileSize,
                 [&files] { return DigestByCommand(files.RandomFile(FileSize)); });
    AddComparison({"GetFileMD5_256MB", "openssl_md5_256MB", LargestRatio});
}

}  // namespace velkarix
