// The files of a machine in memory that come in pieces, and that can't be read beyond some place.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

#include "tests/machine/MemoryFileSystem.h"

namespace velkarix {

class PiecewiseFiles : public MemoryFileSystem {
  public:
    using MemoryFileSystem::MemoryFileSystem;

    ErrorCode ReadFile(FileHandle file, std::span<std::uint8_t> buffer,
                       std::uint32_t& read) override {
        const std::size_t wanted = std::min({buffer.size(), pieceSize, readable});
        if (wanted == 0) return error::AccessDenied;
        const ErrorCode result = MemoryFileSystem::ReadFile(file, buffer.first(wanted), read);
        readable -= read;
        return result;
    }

    std::size_t pieceSize = 1;
    // How many bytes can be read in all. That a file has ended is seen by one more call to read,
    // so that this is one more than a file's size where it can be read whole.
    std::size_t readable = SIZE_MAX;
};

}  // namespace velkarix
