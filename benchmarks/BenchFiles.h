// The files that the benchmarks work on. They are made when first asked for, in a folder beside
// the benchmark program, and removed when it ends.
#pragma once

#include <cstdint>
#include <string>

namespace velkarix {

class BenchFiles {
  public:
    // `program` is the path that the benchmark program was started by.
    explicit BenchFiles(const std::string& program);
    BenchFiles(const BenchFiles&) = delete;
    BenchFiles& operator=(const BenchFiles&) = delete;
    ~BenchFiles();

    // A definition list of this many random digests, one to a line.
    std::string DigestList(std::size_t entries) const;
    // A file of random bytes.
    std::string RandomFile(std::size_t size) const;

  private:
    std::string folder_;
};

// A random text of 32 lower-case hexadecimal digits; the numbers follow from `state`, which goes
// on to the next.
std::string RandomDigest(std::uint64_t& state);

}  // namespace velkarix
