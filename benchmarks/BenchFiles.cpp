#include "BenchFiles.h"

#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

namespace velkarix {
namespace {

std::uint64_t Next(std::uint64_t& state) {
    state += 0x9E3779B97F4A7C15u;
    std::uint64_t mixed = state;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
}

using Write = std::function<void(const void* data, std::size_t size)>;

std::string MakeFile(const std::string& path, const std::function<void(const Write&)>& fill) {
    if (std::filesystem::exists(path)) return path;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "wb"),
                                                               std::fclose);
    bool complete = file != nullptr;
    if (file) {
        fill([&](const void* data, std::size_t size) {
            complete = std::fwrite(data, 1, size, file.get()) == size && complete;
        });
    }
    if (!complete) std::fprintf(stderr, "can't write %s\n", path.c_str());
    return path;
}

}  // namespace

std::string RandomDigest(std::uint64_t& state) {
    char digest[33];
    std::snprintf(digest, sizeof digest, "%016llx%016llx",
                  static_cast<unsigned long long>(Next(state)),
                  static_cast<unsigned long long>(Next(state)));
    return digest;
}

BenchFiles::BenchFiles(const std::string& program)
    : folder_((std::filesystem::absolute(program).parent_path() / "bench-files").string()) {
    std::filesystem::create_directories(folder_);
}

BenchFiles::~BenchFiles() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string BenchFiles::DigestList(std::size_t entries) const {
    return MakeFile(folder_ + "/digests.vkl", [entries](const Write& write) {
        std::uint64_t state = 1;
        for (std::size_t i = 0; i < entries; ++i) {
            const std::string line = RandomDigest(state) + "\r\n";
            write(line.data(), line.size());
        }
    });
}

std::string BenchFiles::RandomFile(std::size_t size) const {
    return MakeFile(folder_ + "/random.bin", [size](const Write& write) {
        std::uint64_t state = 2;
        std::vector<std::uint64_t> block(8192);
        for (std::size_t done = 0; done < size; done += block.size() * sizeof block[0]) {
            for (std::uint64_t& number : block) number = Next(state);
            write(block.data(), block.size() * sizeof block[0]);
        }
    });
}

}  // namespace velkarix
